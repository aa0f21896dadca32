// SPDX-License-Identifier: MIT
// The two entry fields: what a key does in the call field and in the grid field, and Esc anywhere.
// Leans on the dupe check, the call commands, the accept and the grid geometry; shell/program.cpp wires it.
#pragma once

#include "core/station.h"

void CallS_KeyPress(Station& s, forms::KeyPress& key);
void CallS_GotFocus(Station& s);
void tGrid_KeyPress(Station& s, forms::KeyPress& key);
void tGrid_GotFocus(Station& s);
/// Esc: takes the entry back and closes what lies over the log.
void ResetQSO(Station& s);
/// The road of a callsign once it is entered or recalled: dupe check, lookups, and on to the grid or the
/// accept.
void enterCall(Station& s);

constexpr forms::Colour kLightGreen = forms::rgb(128, 255, 128);
constexpr forms::Colour kLightYellow = forms::rgb(255, 255, 128);
