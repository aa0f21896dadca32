// SPDX-License-Identifier: MIT
// The fields of the setup screen: what typing, picking and leaving does to each.
// Leans on the session's personal data and settings; shell/program.cpp calls it once to wire them.
#pragma once

#include <string>
#include <string_view>

#include "core/station.h"

/// Gives every field of the setup screen its handlers.
void wireSetupFields(Station& s);
/// The one form of the home club's name, for its six known spellings in any case; any other text as it
/// stands.
std::string clubName(std::string_view text);
/// The note on the screen flashes until `Timer4` ends it.
void frmSetup_Timer1(Station& s);
void frmSetup_Timer2(Station& s);
void frmSetup_Timer3(Station& s);
void frmSetup_Timer4(Station& s);
