// SPDX-License-Identifier: MIT
#include "contest/summary.h"

#include "base/number.h"
#include "base/text.h"
#include "contest/points.h"
#include "contest/scoring.h"
#include "core/search.h"

namespace {

constexpr const char* kRule = "  --------------------------------------------";

/// The gap behind a figure: one blank less for each digit beyond the first, down to `narrowest`.
std::string gap(std::int64_t figure, int widest, int narrowest) {
    int width = widest;
    for (std::int64_t limit = 9; figure > limit && width > narrowest; limit = limit * 10 + 9) --width;
    return text::blanks(width);
}

std::string bandLine(const Session& session, int band) {
    const int qsos = session.BandQSOs(band), grids = session.BandGrids(band);
    const std::int64_t points = session.BandQSOPoints(band);
    const std::string& name = session.BandName(band);
    return "  " + name + text::blanks(9 - static_cast<int>(name.size())) + number::toText(qsos) +
           gap(qsos, 7, 5) + number::toText(points) + gap(points, 8, 6) + number::toText(grids) +
           gap(grids, 8, 6) + number::toText(std::int64_t{session.BandScore(band)});
}

std::string totalsLine(const Session& session) {
    std::int64_t qsos = 0;
    for (int band = kFirstBand; band <= kLastBand; ++band) qsos += session.BandQSOs(band);
    const std::int64_t points = session.TotalQSOPoints;
    const int grids = session.GridTotal;
    return "  Totals   " + number::toText(qsos) + gap(qsos, 7, 4) + number::toText(points) +
           gap(points, 8, 6) + number::toText(grids) + gap(grids, 8, 6) +
           number::toText(static_cast<std::int64_t>(session.TotalScore));
}

}  // namespace

std::vector<std::string> summaryLines(const Session& session) {
    std::vector<std::string> lines{"", "  Band    QSOs   Points  X  Grids =  Points", kRule};
    for (int band = kFirstBand; band <= kLastBand; ++band) {
        if (session.BandWorked(band)) lines.push_back(bandLine(session, band));
    }
    lines.emplace_back(kRule);
    if (session.ContestNumber != "19") lines.push_back(totalsLine(session));
    lines.emplace_back("");
    lines.emplace_back("  <Esc> or click text to close.");
    return lines;
}

void cmdQSum_Click(Station& s) {
    LogForm& form = s.forms.frmLog;
    if (s.session.LogLineCount < 2) {
        form.cmdQSum.setChecked(false);
        form.focus(form.CallS);
        return;
    }
    if (form.cmdQSum.checked()) Rfresh_Click(s);
    if (!form.cmdQSum.checked()) {
        form.cmdQSum.setForeColour(forms::kBlack);
        form.QSummary.clear();
        form.QSummary.hide();
        form.focus(form.CallS);
        return;
    }
    if (scoresByDistance(s)) return;
    form.cmdQSum.setForeColour(forms::kRed);
    form.QSummary.setFontName("COURIER");
    form.QSummary.setLeft(0);
    const float total = s.session.TotalScore;
    addUp(s);
    if (s.session.ContestNumber == "19") s.session.TotalScore = total;
    form.QSummary.setItems(summaryLines(s.session));
    form.QSummary.show();
    form.focus(form.CallS);
}
