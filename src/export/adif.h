// SPDX-License-Identifier: MIT
// The log as an ADIF file, as pure functions from log lines to lines of text.
// Leans on base and qso_line; the routine `mADIF_Click` writes what comes of it.
#pragma once

#include <string>
#include <string_view>

#include "core/session.h"

namespace exporting {

/// Four digits of a year's last two: "98" and "99" are of the century before.
std::string fullYear(std::string_view twoDigits);
/// The field of a band with the blank before it. A label that no band has takes what the record before had.
std::string_view adifBand(std::string_view label, std::string_view before);
/// A log line as a record with its line end; `band` is what the record before had, and becomes its own.
void addAdifRecord(std::string& file, std::string_view line, std::string_view& band);

/// What the head of the file tells.
struct AdifSource {
    std::string version, ownCall, contest, logName;
    /// MM/DD/YYYY.
    std::string today;
};
/// The whole file: the head, and a record for each of the log's lines from 3 on, dupes included.
std::string adifFile(const Session& session, const AdifSource& source);

/// The name of the file that an answer asks for: with the ending, in upper case.
std::string adifName(std::string_view answer);

}  // namespace exporting
