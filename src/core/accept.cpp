// SPDX-License-Identifier: MIT
#include "core/accept.h"

#include "base/number.h"
#include "base/text.h"
#include "contest/scoring.h"
#include "core/accept_prompt.h"
#include "core/dupe_check.h"
#include "core/entry_fields.h"
#include "core/grid_format.h"
#include "core/log_file.h"
#include "core/needed_bands.h"
#include "core/post_contest.h"
#include "core/qso_line.h"
#include "core/rate.h"
#include "core/say.h"
#include "core/tally.h"
#include "grid/heading.h"

namespace {

bool refuse(Station& s, const std::string& text) {
    tell(s, text);
    s.forms.frmLog.cUpdate.hide();
    return false;
}

bool canBeLogged(Station& s) {
    LogForm& form = s.forms.frmLog;
    const std::string& mode = s.ControlValues(setting::AcceptMode);
    if (mode != kEnterKey && mode != kAutoAccept) {
        warn(s, "Error: Legal Query not selected !", " Select QSO accept");
        form.cUpdate.hide();
        return false;
    }
    if (form.tBand.text().empty()) return refuse(s, "Error: No band entered !");
    if (form.tGrid.text().empty()) return refuse(s, "Error: No grid entered !");
    if (CheckGridFormat(s)) return true;
    form.cUpdate.hide();
    return false;
}

/// The header lines of an empty log, as the bytes that go before its first QSO.
std::string beginLog(Station& s) {
    Session& session = s.session;
    session.LogLineCount = kFirstQsoLine;
    session.LogLines(kFirstQsoLine).clear();
    session.LogLines(1) = session.ContestName;
    session.LogLines(2) = qso::header(s.PersonalData(personal::Call), session.ContestNumber);
    return session.LogLines(1) + kCrLf + session.LogLines(2) + kCrLf;
}

void findPoints(Station& s) {
    Session& session = s.session;
    if (scoresByDistance(s)) {
        // A locator that is none earns nothing, and never what the QSO before earned.
        session.QSOPoints = "0";
        CalcSixDigit2(s, s.forms.frmLog.tGrid.text());
        getSprintScore(s);
        return;
    }
    ContestPoints(s);
    const int band = bandIndex(session, s.forms.frmLog.tBand.text());
    if (band != 0) session.QSOPoints = number::toText(session.BandPoints(band));
}

/// A forced dupe counts for nothing, unless a rover or mobile shows up in a new grid.
void settleDupe(Station& s) {
    Session& session = s.session;
    if (session.DupeAccepted && qso::isMoving(session.CurrentCall)) {
        RoverGridCheck(s);
        CheckNewGrid(s);
    }
    if (session.DupeAccepted) {
        session.QSOPoints = "0";
        --session.BandQSOs(session.CurrentBand);
        ++session.DupeCount;
    }
    session.DupeAccepted = false;
}

std::string composeLine(Station& s) {
    LogForm& form = s.forms.frmLog;
    Session& session = s.session;
    QsoMoment moment{session.UTCDate, session.UTCTime};
    if (form.menu.mPost.checked()) moment = PromptQSODateTime(s, momentOfLastLine(session));
    session.UTCTime = qso::storedTime(session.UTCTime);
    if (!form.menu.mPost.checked()) moment.time = session.UTCTime;
    form.tGrid.setText(qso::subSquareForm(form.tGrid.text()));
    return qso::compose({form.tBand.text(), form.Mode.text(), moment.date, moment.time, session.CurrentCall,
                         qso::subSquareForm(s.PersonalData(personal::Grid)), form.tGrid.text(),
                         session.NewGridMark, session.QSOPoints},
                        scoresByDistance(s));
}

/// Everything up to the moment at which the line is on the disk. FileError where the log refuses it.
void putOnDisk(Station& s) {
    Session& session = s.session;
    LogAppender files(s);
    ++session.LogLineCount;
    session.LogLines(session.LogLineCount).clear();
    const std::string headers = session.LogLineCount == 1 ? beginLog(s) : std::string();
    findPoints(s);
    ++session.BandQSOs(session.CurrentBand);
    settleDupe(s);
    const std::string line = composeLine(s);
    session.LogLines(session.LogLineCount) = line;
    files.appendToLog(headers + line + kCrLf);
    files.appendToBackup(line + kCrLf);
}

void showAccepted(Station& s) {
    Session& session = s.session;
    LogForm& form = s.forms.frmLog;
    session.LogIsEmpty = false;
    const int band = bandIndex(session, form.tBand.text());
    if (band != 0) session.BandWorked(band) = true;
    form.QSOs.add(session.LogLines(session.LogLineCount));
    form.QSOs.select(form.QSOs.listCount() - 1);
    form.QsoRat.setCaption(number::toText(UpdateQSORate(session)));
    form.QSO.setCaption(number::toText(session.BandQSOs(session.CurrentBand)));
    showDupes(s);
    scoresByDistance(s) ? getSprintScore(s) : getScore(s);
    bandWorkedNow(s);
}

void clearEntry(Station& s) {
    LogForm& form = s.forms.frmLog;
    form.cUpdate.hide();
    form.Query.hide();
    form.PLogSort.hide();
    form.PCalls.hide();
    form.tGrid.setText("");
    form.CallS.setText("");
    form.focus(form.CallS);
}

/// The QSO that was not logged stands as before the accept, one key away from it.
void waitForAnotherTry(Station& s, const std::string& newGrid) {
    LogForm& form = s.forms.frmLog;
    form.NewGrid.setCaption(newGrid);
    form.Label6.setBackColour(kLightYellow);
    if (autoAccept(s)) {
        form.focus(form.tGrid);
    } else {
        QueryState(s);
    }
}

}  // namespace

void cUpDate_Click(Station& s) {
    if (!canBeLogged(s)) return;
    Session& session = s.session;
    LogForm& form = s.forms.frmLog;
    const CountsBefore before(session);
    const std::string grid = form.tGrid.text(), newGrid = form.NewGrid.caption();
    session.CurrentCall = text::trim(session.CurrentCall);
    session.NewGridMark.clear();
    try {
        if (!session.DupeAccepted) CheckNewGrid(s);
        putOnDisk(s);
    } catch (const FileError& error) {
        before.putBack(session);
        form.tGrid.setText(grid);
        form.Grid.setCaption(number::toText(session.BandGrids(session.CurrentBand)));
        tellFileFault(s, "Error. The QSO is not logged. The log file can't be written:", error,
                      "Make room on the disk or mend the folder, then accept the QSO again.");
        waitForAnotherTry(s, newGrid);
        return;
    }
    showAccepted(s);
    clearEntry(s);
}
