// SPDX-License-Identifier: MIT
// A report on its way to the disk and to the operator's eye.
// Leans on the platform's files, dialogs and programs; the routines that write reports call it.
#pragma once

#include <functional>
#include <string>

#include "core/station.h"

namespace exporting {

/// The pointer of a routine at work, and the normal one again however the routine ends.
class Hourglass {
public:
    explicit Hourglass(Station& s);
    ~Hourglass();
    Hourglass(const Hourglass&) = delete;
    Hourglass& operator=(const Hourglass&) = delete;

private:
    Station& s_;
};

/// Writes a file anew, in place. `compose` appends the content; a fault in it, or on the disk, leaves what
/// was written so far and goes on to the caller.
void writeReport(Station& s, const std::string& name, const std::function<void(std::string&)>& compose);

/// Starts both text viewers of the program's folder with a file's name; one that can't be started is passed
/// over without a word.
void offerForViewing(Station& s, const std::string& name);

}  // namespace exporting
