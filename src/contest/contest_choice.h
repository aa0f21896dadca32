// SPDX-License-Identifier: MIT
// The choice of a contest for a new log.
// Leans on contest_table.h and the forms; the setup screen opens it and gets the screen back.
#pragma once

#include "core/station.h"

void frmContest_Load(Station& s);
void Contest_Click(Station& s);
void Contest_DblClick(Station& s);
void Sprint_Click(Station& s);
void Sprint_DblClick(Station& s);
void cmdCont_Click(Station& s);
/// The window closed by its frame: back to the setup screen, with no contest chosen.
void frmContest_QueryClose(Station& s, bool& refuse);
