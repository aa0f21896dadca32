// SPDX-License-Identifier: MIT
// Which key of the program a key of the keyboard is, and which keys stay with Qt.
// Leans on the forms' keys; the windows (windows_front.h) ask it for every key that goes down.
#pragma once

#include <QKeyEvent>
#include <optional>
#include <vector>

#include "shell/forms/control.h"

namespace keys {

/// What becomes of a key press in a window of the program.
enum class Road {
    Program,  ///< The forms get it.
    Desktop,  ///< Qt gets it: menus, the clipboard, selecting with Shift.
    Nowhere   ///< Neither: a key of its own without a meaning.
};

/// `inField` tells whether a field that holds text has the focus.
Road roadOf(const QKeyEvent& event, bool inField);
/// The key that the forms are told of; nothing for a key that means nothing to them.
std::optional<forms::KeyStroke> strokeOf(const QKeyEvent& event);
/// The characters of a text that arrives composed, one stroke each; those that the program can't hold are
/// left out.
std::vector<forms::KeyStroke> strokesOf(const QString& text);

}  // namespace keys
