// SPDX-License-Identifier: MIT
// Short ways to the operator's eye and ear.
#pragma once

#include <string>

#include "core/station.h"

constexpr const char* kCrLf = "\r\n";

inline void warn(Station& s, const std::string& text, const std::string& title = {}) {
    s.platform.dialogs.message({text, title, Icon::Exclamation, Buttons::Ok, Answer::Ok});
}

inline void tell(Station& s, const std::string& text, const std::string& title = {}) {
    s.platform.dialogs.message({text, title, Icon::None, Buttons::Ok, Answer::Ok});
}

inline void beep(Station& s) { s.platform.dialogs.beep(); }

/// A file that the system refused: what, which and why, and what to do.
inline void tellFileFault(Station& s, const std::string& what, const FileError& error,
                          const std::string& remedy) {
    warn(s, what + kCrLf + error.path + kCrLf + error.reason + kCrLf + kCrLf + remedy, " File error...");
}

[[noreturn]] inline void endProgram() { throw forms::ProgramEnd{}; }
