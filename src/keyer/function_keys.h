// SPDX-License-Identifier: MIT
// The function keys of the main form while Morse is switched on.
// Leans on the messages and the keyboard; the main form's key handler (shell/program.cpp) calls it.
#pragma once

#include "core/station.h"

/// F1 to F8 and Ctrl. True where the key is one of the keyer's and has been dealt with.
bool CWKeyDown(Station& s, const forms::KeyStroke& stroke);

/// Runs one statement of the main form's key handler: a fault in it is told, and the handler goes on with the
/// next one.
void inKeySequence(Station& s, const std::function<void()>& statement);
