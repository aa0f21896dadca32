// SPDX-License-Identifier: MIT
// The main form's start, and the splash in front of it.
// Leans on the log file, the lookups, the band list and the settings; the setup screen hands over to it.
#pragma once

#include "core/station.h"

/// The splash: shown for two seconds, then the setup screen.
void frmStart_Load(Station& s);
/// Waits two seconds on the clock of the day, across midnight as well.
void SecTimer(Station& s);
/// From the setup screen's close to the first key in the call field.
void frmLog_Load(Station& s);
