// SPDX-License-Identifier: MIT
// The words of a script's line, taken one after the other. Every call throws RunEnds where the line has no
// such word.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "shell/platform/clock.h"

class LineReader {
public:
    explicit LineReader(std::string_view line);
    /// Whether nothing but blanks is left.
    bool atEnd() const;
    /// Whether the line ends right behind the last word, without a blank.
    bool spent() const { return rest_.empty(); }
    std::string word();
    /// All behind the one blank after the last word, as it stands.
    std::string rest();
    std::int64_t whole(std::int64_t least, std::int64_t most);
    int wholeInt(int least, int most) { return static_cast<int>(whole(least, most)); }
    /// A decimal number, not below 0.
    double decimal(double most);
    DateTime moment();
    /// Raises unless the line is at its end.
    void end() const;

private:
    std::string_view rest_;
};
