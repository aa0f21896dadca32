// SPDX-License-Identifier: MIT
// The fixed columns of a log line: cut into fields and put together.
// Leans on base; every reader and writer of the log cuts its columns here and nowhere else.
#pragma once

#include <string>
#include <string_view>

/// What a QSO line is put together from; longer texts are cut to their columns.
struct QsoFields {
    std::string band, mode, date, time, call, ownGrid, grid, newGridMark, points;
};

namespace qso {

std::string_view band(std::string_view line);
std::string_view mode(std::string_view line);
/// The mode with the column behind it, trimmed, for a mode of three letters.
std::string_view longMode(std::string_view line);
/// MM/DD/YY.
std::string_view date(std::string_view line);
/// MM, DD and YY of the date.
std::string_view month(std::string_view line);
std::string_view day(std::string_view line);
std::string_view year(std::string_view line);
/// HHMM.
std::string_view time(std::string_view line);
std::string_view call(std::string_view line);
std::string_view ownGrid(std::string_view line);
std::string_view grid(std::string_view line);
/// The first four characters of the worked grid as they stand, blanks and all.
std::string_view square(std::string_view line);
bool isNewGrid(std::string_view line);
/// Ordinal, hyphen and band of a new grid, trimmed.
std::string_view newGridMark(std::string_view line);
/// A dupe has "0" in the points' first column; 10 points or more don't look like one.
bool isDupe(std::string_view line);
/// The points or whole kilometres as they stand in the six columns from 63 on.
std::string_view points(std::string_view line);

/// Points take 2 columns, or 6 where the contest scores by distance: 64 or 68 characters in all.
std::string compose(const QsoFields& fields, bool byDistance);
/// Header line 2.
std::string header(std::string_view ownCall, std::string_view contestNumber);
std::string_view headerCall(std::string_view line);
std::string_view headerContest(std::string_view line);

/// A grid of six characters with its last two in lower case; any other as it stands.
std::string subSquareForm(std::string_view grid);
/// Midnight is never stored: "0000", "2400" and all above it are "0001".
std::string storedTime(std::string_view time);
bool endsInRover(std::string_view call);
bool endsInMobile(std::string_view call);
/// A rover or mobile counts again from a new grid.
bool isMoving(std::string_view call);

}  // namespace qso
