// SPDX-License-Identifier: MIT
// The end of the program.
// Leans on the control file and the log file; the menu's Exit and the frame of the main window call it.
#pragma once

#include "core/station.h"

/// Stores the settings, takes away a log without QSOs, and ends the program.
void cmdExit_Click(Station& s);
/// The main window closed by its frame: asks first.
void frmLog_QueryClose(Station& s, bool& refuse);
