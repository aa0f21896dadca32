// SPDX-License-Identifier: MIT
#pragma once

#include "core/station.h"

/// Whole hours from local time to UTC, by the hours of both clocks alone: -12 to 12.
int hoursToUtc(int utcHour, int localHour);
/// Reads the control file, holds the stored offset against the machine's clocks, and shows the settings. Once
/// a run.
void CheckUtcOffset(Station& s);
