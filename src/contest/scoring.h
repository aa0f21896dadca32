// SPDX-License-Identifier: MIT
// The score on the screen and the decision on a new grid.
// Leans on points.h, contest_table.h and the log lines; the accept, loading and refreshing call it.
#pragma once

#include "core/station.h"

/// Fills `BandPoints` for the contest; bands that the contest leaves alone keep what they held.
void ContestPoints(Station& s);
/// Recomputes the sums from the counts and shows them; nothing in the contests scored by distance.
void getScore(Station& s);
/// Sums the kilometres of the lines and shows them.
void getSprintScore(Station& s);
/// Decides whether the grid in `tGrid` is new on the band, counts it and marks the QSO.
void CheckNewGrid(Station& s);
/// Whether the station in work was logged on this band from this grid before: then it stays an accepted dupe.
void RoverGridCheck(Station& s);
/// The pages of a printed log, 50 lines each, into `PageTotal`; beyond 31 pages it keeps what it held.
void getPageTotals(Station& s);
/// The sums of the counts, into the session; nothing is shown.
void addUp(Station& s);
/// `TotalScore` as the contest shows it: grouped, empty at 0, or the pointer to the summary in contest 19.
void showTotalScore(Station& s);
bool scoresByDistance(const Station& s);
/// The label of a grid that counts: ordinal, hyphen, band.
std::string newGridMark(int ordinal, std::string_view band);
