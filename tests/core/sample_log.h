// SPDX-License-Identifier: MIT
// Log lines put together for tests, column by column, without the program's own writer.
#pragma once

#include <string>
#include <vector>

#include "core/session.h"

namespace sample {

inline std::string padded(std::string text, std::size_t width) {
    text.resize(width, ' ');
    return text;
}

struct Line {
    std::string band = "144";
    std::string call = "W1XYZ";
    std::string grid = "FN31pr";
    std::string mark = "";
    std::string points = "1";
    std::string time = "1435";
    std::string date = "01/22/07";
};

inline std::string lineOf(const Line& line) {
    return padded(line.band, 6) + "PH  " + line.date + "  " + line.time + "  " + padded(line.call, 13) +
           "FN20ab " + padded(line.grid, 7) + padded(line.mark, 9) + padded(line.points, 2);
}

/// Puts two headers and these lines into a session that knows its bands.
inline void fillLog(Session& session, const std::vector<std::string>& lines) {
    constexpr const char* kLabels[] = {"",     "50",   "144",  "222",   "432",   "903",   "1296",
                                       "2304", "3456", "5760", "10368", "24000", "47000", "Laser"};
    for (int band = 1; band <= 13; ++band) session.BandName(band) = kLabels[band];
    session.LogLines(1) = "2007 ARRL Jan. VHF Sweepstakes";
    session.LogLines(2) = "v2.0        K3ABC           1";
    int last = 2;
    for (const std::string& line : lines) session.LogLines(++last) = line;
    session.LogLineCount = last;
}

}  // namespace sample
