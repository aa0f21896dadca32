// SPDX-License-Identifier: MIT
#include "export/grid_list.h"

#include "base/print_line.h"
#include "base/text.h"
#include "contest/contest_table.h"
#include "core/qso_line.h"

namespace exporting {

namespace {

constexpr std::string_view kDots = " . . . . . . .";

void addEmptyLine(std::string& file) { PrintLine(file).end(); }

void addMarkedBand(std::string& file, const Session& session, int band) {
    addEmptyLine(file);
    PrintLine(file).at(5, session.BandName(band)).then(" MHz").at(18, "Grid").at(36, "# New Grids").end();
    addEmptyLine(file);
    for (int number = kFirstQsoLine; number <= session.LogLineCount; ++number) {
        const std::string& line = session.LogLines(number);
        // Most lines have no mark, which is the quicker one to see.
        if (!qso::isNewGrid(line) || qso::band(line) != session.BandName(band)) continue;
        PrintLine(file)
            .at(5, qso::call(line))
            .at(18, qso::square(line))
            .at(22, kDots)
            .at(36, "  ")
            .then(qso::newGridMark(line))
            .end();
    }
    addEmptyLine(file);
    PrintLine(file)
        .at(5, "Total QSOs = ")
        .thenNumber(session.BandQSOs(band))
        .at(28, "Grids = ")
        .numberAt(37, session.BandGrids(band))
        .end();
    addEmptyLine(file);
}

/// `counter` goes on across the bands.
void addUnmarkedBand(std::string& file, const Session& session, int band, int& counter) {
    addEmptyLine(file);
    PrintLine(file).at(5, session.BandName(band)).then(" MHz").at(18, "Grid").end();
    addEmptyLine(file);
    BandGridList list;
    for (int number = kFirstQsoLine; number <= session.LogLineCount; ++number) {
        const std::string& line = session.LogLines(number);
        if (qso::band(line) == session.BandName(band)) list.add(line);
    }
    for (int number = 1; number <= list.grids(); ++number) {
        PrintLine(file)
            .at(5, list.entry(number).call)
            .at(18, list.entry(number).grid)
            .at(22, kDots)
            .numberAt(36, ++counter)
            .end();
    }
    addEmptyLine(file);
    PrintLine(file)
        .at(6, "Total QSOs =")
        .thenNumber(list.qsos())
        .at(29, "Grids =")
        .thenNumber(list.grids())
        .end();
    addEmptyLine(file);
}

}  // namespace

void BandGridList::add(std::string_view line) {
    ++qsos_;
    const std::string_view grid = text::trim(qso::square(line));
    if (!seen_.insert(grid).second) return;
    entries_(grids_ + 1) = {grid, qso::call(line)};
    ++grids_;
}

void addGridList(std::string& file, const Session& session, std::string_view ownCall) {
    const bool marked = !contest::scoresByDistance(contest::numberOf(session.ContestNumber));
    int counter = 0;
    PrintLine(file).at(5, session.ContestName).at(40, ownCall).at(52, "Grids worked").end();
    addEmptyLine(file);
    for (int band = kFirstBand; band <= PerBand<bool>::kLast; ++band) {
        if (!session.BandWorked(band)) continue;
        if (marked) {
            addMarkedBand(file, session, band);
        } else {
            addUnmarkedBand(file, session, band, counter);
        }
    }
}

}  // namespace exporting
