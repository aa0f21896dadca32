// SPDX-License-Identifier: MIT
// What the screen says while a QSO waits for its accept.
// Leans on the forms; the entry fields, scoring and the start of the main form call it.
#pragma once

#include "core/station.h"

/// Prepares the accept: the hint of the accept mode, and in "<Enter> key" mode the button with the focus.
void QueryState(Station& s);
/// Clears what the last call left on the screen.
void ClearCallStatus(Station& s);
/// The mode by which a complete QSO is accepted at the grid field.
bool autoAccept(const Station& s);
/// The operator's pick of an accept mode, and an emptied field.
void Combo3_Click(Station& s);
void Combo3_Change(Station& s);

constexpr const char* kEnterKey = "<Enter> key";
constexpr const char* kAutoAccept = "Auto Accept";
