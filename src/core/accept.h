// SPDX-License-Identifier: MIT
// The accept: one QSO from the entry fields to the disk, the counts and the screen.
// Leans on the log file, scoring, the dupe check and the rate; the entry fields and the button `cUpdate` call
// it.
#pragma once

#include "core/station.h"

/// Logs the QSO in the fields. Where it can't be logged, the operator is told and both fields stay as they
/// are; where the log on the disk refuses the line, nothing is counted.
void cUpDate_Click(Station& s);
