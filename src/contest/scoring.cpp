// SPDX-License-Identifier: MIT
#include "contest/scoring.h"

#include "base/number.h"
#include "base/text.h"
#include "contest/contest_table.h"
#include "contest/points.h"
#include "core/accept_prompt.h"
#include "core/qso_line.h"
#include "core/say.h"

bool scoresByDistance(const Station& s) {
    return contest::scoresByDistance(contest::numberOf(s.session.ContestNumber));
}

std::string newGridMark(int ordinal, std::string_view band) {
    return number::toText(ordinal) + "-" + std::string(band);
}

void ContestPoints(Station& s) {
    const int number = contest::numberOf(s.session.ContestNumber);
    for (int band = kFirstBand; band <= kLastBand; ++band) {
        if (const auto points = contest::pointsOn(number, band)) s.session.BandPoints(band) = *points;
    }
}

void addUp(Station& s) {
    Session& session = s.session;
    const contest::Sums sums = contest::sumsOf(session.BandPoints, session.BandQSOs, session.BandGrids);
    session.BandQSOPoints = sums.qsoPoints;
    session.BandScore = sums.score;
    session.TotalQSOPoints = sums.totalQsoPoints;
    session.GridTotal = sums.grids;
    session.TotalScore = sums.total;
    s.forms.frmLog.tQSOs.setCaption(number::toText(sums.qsos));
}

void showTotalScore(Station& s) {
    LogForm& form = s.forms.frmLog;
    const bool eachBandAlone = s.session.ContestNumber == "19";
    form.tScore.setFontName(eachBandAlone ? "Arial Narrow" : "MS Sans Serif");
    form.tScore.setCaption(eachBandAlone ? "Click Summary"
                                         : number::grouped(static_cast<double>(s.session.TotalScore)));
}

void getScore(Station& s) {
    if (scoresByDistance(s)) return;
    ContestPoints(s);
    addUp(s);
    showTotalScore(s);
    s.forms.frmLog.tGridTotal.setCaption(number::toText(s.session.GridTotal));
}

void getSprintScore(Station& s) {
    Int32 sum;
    for (int line = kFirstQsoLine; line <= s.session.LogLineCount; ++line) {
        sum = number::rounded(sum + number::valueOf(qso::points(s.session.LogLines(line))));
    }
    s.forms.frmLog.tScore.setCaption(number::toText(sum));
}

namespace {

bool gridOnBandBefore(const Session& session, std::string_view band, std::string_view square) {
    for (int line = kFirstQsoLine; line <= session.LogLineCount; ++line) {
        const std::string& text = session.LogLines(line);
        // Most lines differ in their square, which is the quicker one to compare.
        if (text::trim(qso::square(text)) == square && qso::band(text) == band) return true;
    }
    return false;
}

void decideNewGrid(Station& s) {
    Session& session = s.session;
    LogForm& form = s.forms.frmLog;
    if (form.tGrid.text().empty()) {
        form.cUpdate.hide();
        return;
    }
    form.tGrid.setText(text::upper(form.tGrid.text()));
    if (gridOnBandBefore(session, form.tBand.text(), text::left(form.tGrid.text(), 4))) {
        form.NewGrid.setCaption("");
        session.NewGridMark.clear();
        session.GridEntered = true;
        return;
    }
    ++session.BandGrids(session.CurrentBand);
    form.NewGrid.setCaption("New Grid");
    form.Label6.setBackColour(forms::kRed);
    session.NewGridMark = newGridMark(session.BandGrids(session.CurrentBand), form.tBand.text());
    form.Grid.setCaption(number::toText(session.BandGrids(session.CurrentBand)));
    QueryState(s);
    session.GridEntered = true;
}

}  // namespace

void CheckNewGrid(Station& s) {
    if (scoresByDistance(s)) return;
    try {
        decideNewGrid(s);
    } catch (const RunTimeError&) {
        tell(s, "Error in mult check...");
    }
}

void getPageTotals(Station& s) {
    constexpr int kMostPages = 31, kLinesOfAPage = 50;
    for (int page = 1; page <= kMostPages; ++page) {
        if (s.session.LogLineCount - 1 > page * kLinesOfAPage) continue;
        s.session.PageTotal = page;
        return;
    }
}

void RoverGridCheck(Station& s) {
    const LogForm& form = s.forms.frmLog;
    s.session.DupeAccepted = false;
    for (int line = kFirstQsoLine; line <= s.session.LogLineCount; ++line) {
        const std::string& text = s.session.LogLines(line);
        const bool same = qso::band(text) == form.tBand.text() && qso::call(text) == s.session.CurrentCall &&
                          qso::square(text) == text::left(form.tGrid.text(), 4);
        if (same) {
            s.session.DupeAccepted = true;
            return;
        }
    }
}
