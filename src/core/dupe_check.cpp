// SPDX-License-Identifier: MIT
#include "core/dupe_check.h"

#include "base/number.h"
#include "base/text.h"
#include "core/accept_prompt.h"
#include "core/qso_line.h"
#include "core/say.h"
#include "grid/heading.h"
#include "lookup/lookups.h"

namespace {

constexpr int kMostMatches = 30;

/// Most lines differ in the columns of the call themselves; only the others are cut and trimmed.
bool isCallOf(std::string_view line, std::string_view call) {
    if (!text::standsAt(line, 27, call) && !text::standsAt(line, 27, " ")) return false;
    return qso::call(line) == call;
}

}  // namespace

Dupe scanLog(Session& session, std::string_view call, std::string_view band) {
    Dupe dupe;
    session.MatchCount = 0;
    for (int number = kFirstQsoLine; number <= session.LogLineCount; ++number) {
        const std::string& line = session.LogLines(number);
        if (!isCallOf(line, call)) continue;
        if (session.MatchCount < kMostMatches) ++session.MatchCount;
        const std::string_view lineBand = qso::band(line);
        session.MatchBand(session.MatchCount) = lineBand;
        auto& row = session.MatchList(session.MatchCount);
        row(0) = lineBand;
        row(1) = call;
        row(2) = qso::square(line);
        if (lineBand == band) dupe = {number, std::string(qso::date(line)), std::string(qso::time(line))};
    }
    return dupe;
}

void sortMatches(Session& session) {
    int sorted = 0;
    for (int band = kFirstBand; band <= kLastBand; ++band) {
        // "Laser" has the value 0 on both sides.
        const double value = number::valueOf(session.BandName(band));
        for (int match = 1; match <= session.MatchCount; ++match) {
            if (number::valueOf(session.MatchList(match)(0)) != value) continue;
            if (++sorted > kMostMatches) return;
            session.MatchSorted(sorted) = session.MatchList(match);
        }
    }
    for (int rest = sorted + 1; rest <= kMostMatches; ++rest) session.MatchSorted(rest).fill("");
}

std::string dupeText(std::string_view call, std::string_view band, const Dupe& dupe) {
    const std::string gap = std::string(kCrLf) + kCrLf;
    std::string what = "Log it as a dupe, QSO not counted, zero points.";
    if (qso::endsInRover(call)) what = "Log as new rover Q by entering a new grid.";
    if (qso::endsInMobile(call)) what = "Log as new mobile Q by entering a new grid.";
    return std::string(call) + " Dupe for " + std::string(band) + " MHz at " + dupe.time + " on " +
           dupe.date + gap + "Accept QSO ?   [TAB] over to < YES > to:" + gap + what;
}

std::string dupeTitle(std::string_view call) {
    if (qso::endsInRover(call)) return " Rover QSO";
    if (qso::endsInMobile(call)) return " Mobile QSO";
    return " Dupe QSO ?";
}

namespace {

std::string lastGridOf(const Session& session, std::string_view call) {
    for (int line = session.LogLineCount; line >= kFirstQsoLine; --line) {
        if (qso::call(session.LogLines(line)) == call) return std::string(qso::grid(session.LogLines(line)));
    }
    return {};
}

void showRoverHistory(Station& s) {
    Session& session = s.session;
    LogForm& form = s.forms.frmLog;
    form.PCalls.setLeft(0);
    form.PCalls.show();
    form.PCalls.clear();
    form.PCalls.add(qso::endsInRover(session.CurrentCall) ? "  Rover worked:" : "  Mobile worked:");
    if (session.MatchCount < 6) form.PCalls.add("");
    for (int match = 1; match <= session.MatchCount; ++match) {
        const auto& row = session.MatchSorted(match);
        form.PCalls.add(" " + row(0) + "  " + row(1) + "  " + row(2));
    }
    form.tGrid.setText(lastGridOf(session, session.CurrentCall));
}

void ShowMatches(Station& s) {
    sortMatches(s.session);
    if (qso::isMoving(s.session.CurrentCall)) showRoverHistory(s);
}

void showWhereWorked(Station& s) {
    Session& session = s.session;
    LogForm& form = s.forms.frmLog;
    if (session.MatchCount == 0) return;
    form.WorkCall.setCaption(text::upper(session.CurrentCall));
    form.WorkCall.show();
    form.tGrid.setText(lastGridOf(session, session.CurrentCall));
    ShowMatches(s);
    session.LookupHit = 1;
    form.Worked.clear();
    for (int match = 1; match <= session.MatchCount; ++match) form.Worked.add(session.MatchSorted(match)(0));
}

/// False where a lookup has found that there is no log to check against.
bool runLookups(Station& s) {
    const std::string& source = s.ControlValues(setting::BandsToWork);
    if (source == "LOGSORT") LogSort(s);
    if (s.session.LogIsEmpty) return false;
    if (s.forms.frmLog.menu.mPost.checked()) return true;
    if (source == "CKLIST") CkList(s);
    if (s.ControlValues(setting::SixDigit) == "Six-Digit" && s.session.LogLineCount >= kFirstQsoLine) {
        LoadSixDigitGrid(s);
    }
    return true;
}

void goToGrid(Station& s) {
    LogForm& form = s.forms.frmLog;
    if (!form.tGrid.text().empty() && autoAccept(s)) form.cUpdate.hide();
    form.focus(form.tGrid);
}

bool operatorAccepts(Station& s, const Dupe& dupe) {
    const std::string& call = s.session.CurrentCall;
    const LogMenu& menu = s.forms.frmLog.menu;
    if (qso::isMoving(call) && menu.mDontShow.checked()) return true;
    return s.platform.dialogs.message({dupeText(call, s.forms.frmLog.tBand.text(), dupe), dupeTitle(call),
                                       Icon::Exclamation, Buttons::YesNo, Answer::No}) == Answer::Yes;
}

void takeDupe(Station& s) {
    LogForm& form = s.forms.frmLog;
    const std::string& call = s.session.CurrentCall;
    s.session.DupeAccepted = true;
    // A mobile never keeps its last grid, a rover where the operator chose so.
    const bool roverForgets = qso::endsInRover(call) && form.menu.mNoLastGrid.checked();
    if (roverForgets || qso::endsInMobile(call)) form.tGrid.setText("");
    form.focus(form.tGrid);
}

void declineDupe(Station& s) {
    LogForm& form = s.forms.frmLog;
    form.cUpdate.hide();
    form.Query.hide();
    form.CallS.setText("");
    form.tGrid.setText("");
    form.Search2.hide();
    form.Search1.show();
    form.Search1.setEnabled(true);
    s.session.LookupHit = 1;
    form.PLogSort.hide();
    form.focus(form.CallS);
    s.session.DupeCheckDone = false;
}

}  // namespace

void DupeCheck(Station& s) {
    Session& session = s.session;
    LogForm& form = s.forms.frmLog;
    if (session.LogIsEmpty) return;
    session.DupeAccepted = false;
    session.CurrentCall = text::upper(text::trim(form.CallS.text()));
    session.LastCall = session.CurrentCall;
    if (session.LogLineCount >= kFirstQsoLine) session.DupeCheckDone = true;
    const Dupe dupe = scanLog(session, session.CurrentCall, form.tBand.text());
    showWhereWorked(s);
    if (!runLookups(s)) return;
    if (dupe.line == 0) return goToGrid(s);
    beep(s);
    const int row = dupe.line - kFirstQsoLine;
    if (s.ControlValues(setting::LogView) != "Band" && row < form.QSOs.listCount()) form.QSOs.select(row);
    operatorAccepts(s, dupe) ? takeDupe(s) : declineDupe(s);
}

void LoadSixDigitGrid(Station& s) {
    Session& session = s.session;
    LogForm& form = s.forms.frmLog;
    if (qso::endsInRover(session.CurrentCall) || s.ControlValues(setting::RoverPrompts) == "No") return;
    const auto grid = sixDigitGridOf(session, session.CurrentCall);
    if (!grid) return;
    if (session.LookupHit != 1) {
        form.tGrid.setText(text::trim(text::left(*grid, 6)));
        CalcSixDigit(s, form.tGrid.text());
        form.Heading.show();
    }
    CalcSixDigit(s, form.tGrid.text());
    form.Heading.show();
}
