// SPDX-License-Identifier: MIT
#pragma once

#include <string>

/// Thrown to end the run of a script from wherever it stands. No fault of the program: no error trap catches
/// it.
struct RunEnds {
    int status = 0;
    std::string reason;
    /// The script's line in which it happened, or 0 while that is still to be found out.
    int line = 0;
};

/// A line that is no command, a name that is no control, a key to no window.
inline RunEnds badScript(const std::string& reason) { return {2, reason}; }
/// A run that can't go on as its script told it to.
inline RunEnds lostRun(const std::string& reason) { return {3, reason}; }
