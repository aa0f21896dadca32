// SPDX-License-Identifier: MIT
// Heading and distance on the screen, and the kilometres of a QSO.
// Leans on grid/path.h; the entry fields, the commands, the accept and the dupe check call it.
#pragma once

#include <string>

#include "core/station.h"

/// Shows heading and distance to a grid (taken by value: its case is folded here alone) and leaves the focus
/// in the call field. In the contests scored by distance the whole kilometres go to `QSOPoints`. A bad grid
/// changes nothing.
void CalcSixDigit(Station& s, std::string grid);
/// The kilometres alone, with the screen left as it is but for `NewGrid`, which shows them.
void CalcSixDigit2(Station& s, std::string grid);
/// Appends the heading back from the grid of the last call.
void CalcRecip(Station& s);
