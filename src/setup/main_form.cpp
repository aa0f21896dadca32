// SPDX-License-Identifier: MIT
#include "setup/main_form.h"

#include "bandsw/band_change.h"
#include "bandsw/band_encoder.h"
#include "base/number.h"
#include "base/text.h"
#include "contest/activity.h"
#include "contest/contest_table.h"
#include "core/accept_prompt.h"
#include "core/delete_qso.h"
#include "core/entry_fields.h"
#include "core/log_file.h"
#include "core/say.h"
#include "core/search.h"
#include "keyer/cw_setup.h"
#include "lookup/lookups.h"
#include "setup/settings_on_screen.h"
#include "setup/utc_clock.h"

namespace {

constexpr double kSplashSeconds = 2;
constexpr double kSecondsOfADay = 86400;
constexpr std::size_t kSmallestLog = 65, kSmallestForeignLog = 66;

int contestNumber(const Station& s) { return contest::numberOf(s.session.ContestNumber); }

[[noreturn]] void endWith(Station& s, const std::string& text, const std::string& title) {
    warn(s, text, title);
    endProgram();
}

void refuseEmptyLog(Station& s) {
    const std::string name = s.session.LogFileName;
    beep(s);
    warn(s,
         "[ " + name +
             " ] already exits, with no QSOs !\nYou probably started a log file, then exited\n"
             "the logger B4 entering any QSOs. This is OK,\nyou just need to start over.\n\n"
             "   The empty file will be deleted...\n\n   Hit OK and run TARQEN again.",
         " Log has no QSOs...");
    try {
        s.platform.files.remove(name);
    } catch (const FileError&) {
        // It is met again, and told again, at the next start.
    }
    endProgram();
}

void openExistingLog(Station& s) {
    std::size_t length = 0;
    try {
        length = s.platform.files.read(s.session.LogFileName).size();
    } catch (const FileError& error) {
        endWith(s,
                "Error. The log file can't be read:" + std::string(kCrLf) + error.path + kCrLf + error.reason,
                " Log file...");
    }
    if (length < kSmallestLog) refuseEmptyLog(s);
    InputLogFile(s);
    // A number that can't be read counts as one of the four contests with hours of activity.
    if (contestNumber(s) <= 0 || contest::hasStartDate(contestNumber(s)))
        s.forms.frmLog.menu.mStartDate.setEnabled(true);
}

/// How long the file is that a new log would go to; made where it is missing.
std::size_t makeNewLog(Station& s) {
    const std::string& name = s.session.LogFileName;
    try {
        touch(s.platform.files, name);
        return s.platform.files.read(name).size();
    } catch (const FileError&) {
        endWith(s, "Bad filename or path. Your file name is:  " + name + "  ??" + kCrLf + "Start all over...",
                "");
    }
}

void startBand(Station& s) {
    Session& session = s.session;
    LogForm& form = s.forms.frmLog;
    const int number = contestNumber(s);
    const contest::Contest* const contest = contest::contestOf(number);
    if (contest == nullptr || contest->startBand == 0) return;
    const std::string label = session.BandName(contest->startBand);
    session.CurrentBand = contest->startBand;
    form.tBand.setText(label);
    form.Freq.setCaption(label);
    form.UsingBand.setCaption(label);
    if (contest::singleBandWhenNew(number)) form.Label18.setCaption("Bands");
    if (contest::hasStartDate(number)) form.menu.mStartDate.setEnabled(true);
}

void openNewLog(Station& s) {
    const std::string name = s.session.LogFileName;
    if (makeNewLog(s) >= kSmallestForeignLog) {
        endWith(s,
                "[ " + name +
                    " ] already exits !  You can't\nstart a new LOG with an existing file.\n\n"
                    "  Hit OK and run TARQEN again.",
                " Start over...");
    }
    LogForm& form = s.forms.frmLog;
    s.session.LogLineCount = 0;
    startBand(s);
    form.menu.mStartDate.setCaption("Start Date = " + dateText(s.platform.clock.local()));
    form.cSignText.setCaption(s.PersonalData(personal::Call));
}

void showHints(Station& s) {
    forms::ListBox& list = s.forms.frmLog.QSOs;
    for (const char* const line :
         {"", "    Only <Enter> and <Space> can be used to input data.",
          "      The <Tab> key is only used to move fields.        Read these hints....",
          "         Is the UTC date and time correct ?",
          "  Right mouse on labels and buttons to see information.", ""}) {
        list.add(line);
    }
}

void SetLetterTable(Session& session) {
    for (int letter = 1; letter <= 26; ++letter)
        session.LetterTable(letter) = std::string(1, static_cast<char>('A' + letter - 1));
    session.LetterTable(27) = "/";
}

void ClearEntry(Station& s) {
    LogForm& form = s.forms.frmLog;
    const Session& session = s.session;
    RefillLogWindow(s);
    form.tQSOs.setCaption(
        session.LogLineCount > 2 ? number::toText(session.LogLineCount - 2 - session.DupeCount) : "0");
    form.CallS.setText("");
    form.tGrid.setText("");
    form.NewGrid.setCaption("");
}

void showForm(Station& s) {
    LogForm& form = s.forms.frmLog;
    form.show();
    form.DOSFile.setCaption(text::lower(s.session.LogFileName));
    form.Heading.setCaption("");
    QueryState(s);
    form.Query.hide();
    form.cUpdate.hide();
    form.Text1.setCaption("Normal");
    form.Text1.setBackColour(kLightGreen);
    form.Combo3.add(kEnterKey);
    form.Combo3.add(kAutoAccept);
    form.LastCall.setChecked(false);
    s.platform.windows.pump();
}

void markDistanceContest(Station& s) {
    LogForm& form = s.forms.frmLog;
    if (!contest::scoresByDistance(contestNumber(s))) return;
    form.Label6.setCaption("Dist.km");
    form.menu.mWriteSum.setEnabled(false);
    form.cmdQSum.hide();
}

}  // namespace

void SecTimer(Station& s) {
    Clock& clock = s.platform.clock;
    const double start = clock.secondsSinceMidnight();
    double passed = 0;
    while (passed < kSplashSeconds) {
        clock.idle(kSplashSeconds - passed);
        const double now = clock.secondsSinceMidnight();
        passed = now - start + (now < start ? kSecondsOfADay : 0);
    }
}

void frmStart_Load(Station& s) {
    s.forms.frmStart.show();
    s.platform.windows.pump();
    SecTimer(s);
    s.forms.frmStart.unload();
    s.forms.frmSetup.show();
}

void frmLog_Load(Station& s) {
    LogForm& form = s.forms.frmLog;
    Session& session = s.session;
    session.AppPath = s.platform.files.path("");
    InitialFiles(s);
    form.Mode.add("PH");
    form.Mode.add("CW");
    form.Mode.setText("PH");
    showBackupPath(s);
    if (s.ControlValues(setting::Offsets) == "Use LO") form.IfOffSet.show();
    session.LogOpenMode == 1 ? openExistingLog(s) : openNewLog(s);
    form.ContName.setCaption(session.ContestName);
    showHints(s);
    session.CurrentCall.clear();
    LoadBands(s);
    SetLetterTable(session);
    form.tGridTotal.setCaption(number::toText(session.GridTotal));
    if (session.CurrentBand != 0) selectBandRow(s);
    showForm(s);
    showSettings(s);
    startClock(s);
    form.Label4.setBackColour(forms::kRed);
    ClearEntry(s);
    showLaterSettings(s);
    startBandEncoder(s);
    loadActivityHours(s, activityFile(session.ContestNumber));
    markDistanceContest(s);
    startKeyer(s);
    form.focus(form.CallS);
}
