// SPDX-License-Identifier: MIT
// What the log knows of a station the moment its call is entered, and whether the QSO is a dupe.
// Leans on the log lines, the lookups and the dialogs; the call field, the grid field and the log window call
// it.
#pragma once

#include <string>

#include "core/station.h"

/// Scans the log for the call in `CallS`: bands worked, last grid, lookups, and the dupe prompt. The focus
/// ends where the operator goes on.
void DupeCheck(Station& s);
/// The exact grid of a station that the six-digit list knows.
void LoadSixDigitGrid(Station& s);

/// Where and when the station was worked on the band before; line 0 where it wasn't.
struct Dupe {
    int line = 0;
    std::string date, time;
};

/// One pass over lines 3 to `LogLineCount`: fills `MatchCount`, `MatchBand` and `MatchList` (30 at most, the
/// last slot taking each further match), and gives the last line of this call on this band.
Dupe scanLog(Session& session, std::string_view call, std::string_view band);
/// Copies the matches to `MatchSorted` in the order of the bands, in log order within a band.
void sortMatches(Session& session);
/// Text and title of the question that a dupe raises.
std::string dupeText(std::string_view call, std::string_view band, const Dupe& dupe);
std::string dupeTitle(std::string_view call);
