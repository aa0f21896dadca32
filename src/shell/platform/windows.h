// SPDX-License-Identifier: MIT
#pragma once

#include <string>

/// What the desktop does for the program's windows beyond showing them.
class Windows {
public:
    virtual ~Windows() = default;
    /// Runs the events that wait, keys and due timers included, inside a busy routine.
    /// Raises ProgramEnd where one of them ended the program.
    virtual void pump() = 0;
    /// Gives the processor away for a moment, in a wait that pumps until a time has passed.
    virtual void rest() = 0;
    virtual void saveSize(const std::string& form) = 0;
    virtual void restoreSize(const std::string& form) = 0;
    /// Opens a pop-up menu of a form at the pointer; its items are clicked as any menu's.
    virtual void popUp(const std::string& form, const std::string& menu) = 0;
};
