// SPDX-License-Identifier: MIT
#pragma once

#include <ostream>
#include <string_view>

/// What an operator or the hardware could notice, a line an event. Each line is out before the program goes
/// on, so that a process that is killed leaves all that happened before.
class Transcript {
public:
    explicit Transcript(std::ostream& out) : out_(out) {}
    void line(std::string_view text) { out_ << text << '\n' << std::flush; }

private:
    std::ostream& out_;
};
