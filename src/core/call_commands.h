// SPDX-License-Identifier: MIT
// The call field as a command line: what is typed is tried as a command first, and only then taken for a
// callsign. Leans on call_check, the band change, the search and the menus' routines; the call field calls
// it.
#pragma once

#include <string>
#include <vector>

#include "core/station.h"

/// Runs the command that the field holds, trimmed and in upper case; true where it is a call (typed or
/// recalled) that goes on to the dupe check.
bool isCall(Station& s);
/// The beacon of the band, with its place on the dial.
void mBeac_Click(Station& s);
/// The list of the commands, over the log.
void mShort_Click(Station& s);
/// The lines of that list.
std::vector<std::string> shortcutLines();
/// The box for fragments of calls: its colour and hint follow its mark.
void partial3D_Click(Station& s);
