// SPDX-License-Identifier: MIT
// The files of an entry: Cabrillo, ASCII log, summary, grids worked and ADIF, each written from the log in
// memory and offered for viewing.
// Leans on the rules of this folder, the session and the platform; the Log menu of the main form calls it.
#pragma once

#include "core/station.h"

/// The call and ".log": the entry for the sponsor. Nothing for a rover. A failure is told.
void mCabrillo_Click(Station& s);
/// The call and ".log": the log line for line, an alternative to the entry. A failure ends it without a word.
void mnonARRL_Click(Station& s);
/// The call and ".sum": the summary sheet. A failure ends it without a word.
void mWriteSum_Click(Station& s);
/// The year and "grid.txt": the grids worked. A failure ends it without a word.
void mWritegrids_Click(Station& s);
/// A name that is asked for, with the ending ".ADI": the log for other programs. A failure ends it without a
/// word.
void mADIF_Click(Station& s);
