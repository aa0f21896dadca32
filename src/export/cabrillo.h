// SPDX-License-Identifier: MIT
// The entry as a Cabrillo 3.0 file, as pure functions from log lines, personal data and contest to lines.
// Leans on base, qso_line and contest_table; the routine `mCabrillo_Click` writes what comes of it.
#pragma once

#include <string>
#include <string_view>

#include "core/session.h"
#include "core/settings.h"

namespace exporting {

/// The text behind "CONTEST: ". `contestName` stands for the contests that have no name of their own there.
std::string cabrilloContest(int number, std::string_view contestName);
/// The sponsor wants microwave bands with a "G" behind the gigahertz.
bool inGigahertz(int number);
/// The band field of a QSO line: 5 characters, right-aligned; longer where the label itself is.
std::string cabrilloBand(std::string_view label, bool gigahertz);
/// The call as the sponsor wants it: the first "-" and the first "_", which stand for a slash, become one.
std::string cabrilloCall(std::string_view ownCall);
/// The operators: those of a multi-operator entry, else the own call without a suffix of one character.
std::string cabrilloOperators(const Personal& data);
/// The plain digits of a score as the screen shows it, thousands separators and all. Empty for a score of 0,
/// and in contest 19, of which each band is a contest of its own.
std::string claimedScore(std::string_view contestNumber, std::string_view shownScore);

/// The head from "START-OF-LOG" to "SOAPBOX", each line with its end. `shownScore` is the caption of the
/// score.
std::string cabrilloHead(const Session& session, const Personal& data, std::string_view shownScore);

/// What all QSO lines of a file have in common.
struct CabrilloLog {
    /// YYYY; a log that runs over New Year keeps the year of its contest.
    std::string_view year;
    std::string ownCall;
    bool gigahertz = false;
};
/// Appends the line of one QSO, fields at fixed columns, with its end.
void addCabrilloQso(std::string& file, std::string_view line, const CabrilloLog& log);

/// The whole file: the head, a line for each of the log's lines from 3 on, dupes included, and the end.
std::string cabrilloFile(const Session& session, const Personal& data, std::string_view shownScore);

}  // namespace exporting
