// SPDX-License-Identifier: MIT
#include "core/tally.h"

#include "contest/contest_table.h"
#include "core/qso_line.h"

void LoadBandNames(Session& session) {
    for (int band = kFirstBand; band <= kLastBand; ++band) session.BandName(band) = contest::bandLabel(band);
}

int bandIndex(const Session& session, std::string_view label) {
    for (int band = kFirstBand; band <= kLastBand; ++band) {
        if (session.BandName(band) == label) return band;
    }
    return 0;
}

void markBandsWorked(Session& session) {
    for (int line = 1; line <= session.LogLineCount; ++line) {
        const int band = bandIndex(session, qso::band(session.LogLines(line)));
        if (band != 0) session.BandWorked(band) = true;
    }
}

void countLines(Session& session) {
    session.DupeCount = 0;
    session.BandQSOs.fill(0);
    session.BandGrids.fill(0);
    for (int line = kFirstQsoLine; line <= session.LogLineCount; ++line) {
        const std::string& text = session.LogLines(line);
        const int band = bandIndex(session, qso::band(text));
        // A dupe counts as one whatever its band; any other line counts only on a band that is known.
        if (qso::isDupe(text)) {
            ++session.DupeCount;
            continue;
        }
        if (band == 0 || !session.BandWorked(band)) continue;
        ++session.BandQSOs(band);
        if (qso::isNewGrid(text)) ++session.BandGrids(band);
    }
}

CountsBefore::CountsBefore(const Session& session)
    : lineCount_(session.LogLineCount),
      gridTotal_(session.GridTotal),
      dupeCount_(session.DupeCount),
      qsos_(session.BandQSOs),
      grids_(session.BandGrids),
      points_(session.QSOPoints),
      mark_(session.NewGridMark),
      dupeAccepted_(session.DupeAccepted),
      gridEntered_(session.GridEntered) {}

void CountsBefore::putBack(Session& session) const {
    for (int line = lineCount_ + 1; line <= session.LogLineCount; ++line) session.LogLines(line).clear();
    session.DupeCount = dupeCount_;
    session.LogLineCount = lineCount_;
    session.GridTotal = gridTotal_;
    session.BandQSOs = qsos_;
    session.BandGrids = grids_;
    session.QSOPoints = points_;
    session.NewGridMark = mark_;
    session.DupeAccepted = dupeAccepted_;
    session.GridEntered = gridEntered_;
}
