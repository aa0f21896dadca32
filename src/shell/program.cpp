// SPDX-License-Identifier: MIT
#include "shell/program.h"

#include "bandsw/band_change.h"
#include "base/run_time_error.h"
#include "contest/activity.h"
#include "contest/contest_choice.h"
#include "contest/summary.h"
#include "core/accept.h"
#include "core/accept_prompt.h"
#include "core/call_commands.h"
#include "core/delete_qso.h"
#include "core/entry_fields.h"
#include "core/post_contest.h"
#include "core/search.h"
#include "export/exports.h"
#include "keyer/function_keys.h"
#include "setup/main_form.h"
#include "setup/settings_on_screen.h"
#include "setup/setup_fields.h"
#include "setup/setup_screen.h"
#include "setup/shut_down.h"
#include "setup/utc_clock.h"
#include "shell/keyer_wiring.h"
#include "shell/wiring.h"

namespace {

void wireContestForm(Station& s) {
    ContestForm& form = s.forms.frmContest;
    form.onLoad = runs(s, frmContest_Load);
    form.onQueryClose = [&s](bool& refuse) { frmContest_QueryClose(s, refuse); };
    form.Contest.onClick = runs(s, Contest_Click);
    form.Contest.onDoubleClick = runs(s, Contest_DblClick);
    form.Sprint.onClick = runs(s, Sprint_Click);
    form.Sprint.onDoubleClick = runs(s, Sprint_DblClick);
    // The field shows the choice and takes no text of its own.
    form.Text1.onGotFocus = [&form] { form.focus(form.Contest); };
    form.cmdCont.onClick = runs(s, cmdCont_Click);
}

void wireUtcForm(Station& s) {
    UtcForm& form = s.forms.UTCfrm;
    form.onLoad = runs(s, UTCfrm_Load);
    form.Offset.onChange = runs(s, UTCfrm_Offset_Change);
    form.Offset.onLostFocus = runs(s, UTCfrm_Offset_Change);
    form.Timer.onTimer = runs(s, UTCfrm_Timer);
    form.Command1.onClick = runs(s, UTCfrm_Command1_Click);
    form.Label3.onClick = runs(s, UTCfrm_Label3_Click);
}

void wireSetupForm(Station& s) {
    SetupForm& form = s.forms.frmSetup;
    wireSetupFields(s);
    form.onLoad = runs(s, frmSetup_Load);
    form.onQueryClose = [&s](bool& refuse) { frmSetup_QueryClose(s, refuse); };
    form.logFile.onClick = runs(s, logFile_Click);
    form.logFile.onDoubleClick = runs(s, logFile_DblClick);
    form.Label1.onClick = runs(s, startNewLog_Click);
    form.Label4.onClick = runs(s, startNewLog_Click);
    form.cmdDone.onClick = runs(s, cmdDone_Click);
    form.cmdQuit.onClick = [] { throw forms::ProgramEnd{}; };
    for (forms::Label* const label : {&form.Label16, &form.Label17, &form.Label26, &form.UTC_2}) {
        label->onClick = [&s] { s.forms.UTCfrm.show(); };
    }
    form.Timer1.onTimer = runs(s, frmSetup_Timer1);
    form.Timer2.onTimer = runs(s, frmSetup_Timer2);
    form.Timer3.onTimer = runs(s, frmSetup_Timer3);
    form.Timer4.onTimer = runs(s, frmSetup_Timer4);
}

void wireEntry(Station& s) {
    LogForm& form = s.forms.frmLog;
    form.CallS.onKeyPress = [&s](forms::KeyPress& key) { CallS_KeyPress(s, key); };
    form.CallS.onGotFocus = runs(s, CallS_GotFocus);
    form.tGrid.onKeyPress = [&s](forms::KeyPress& key) { tGrid_KeyPress(s, key); };
    form.tGrid.onGotFocus = runs(s, tGrid_GotFocus);
    form.cUpdate.onClick = runs(s, cUpDate_Click);
    // Its two modes are picked, not typed; a letter there would stand for nothing.
    form.Combo3.onKeyPress = [](forms::KeyPress& key) { key.swallowed = key.code >= 32; };
    form.Combo3.onClick = runs(s, Combo3_Click);
    form.Combo3.onChange = runs(s, Combo3_Change);
    form.Mode.onChange = runs(s, Mode_Change);
    form.Mode.onClick = [&s] { s.forms.frmLog.focus(s.forms.frmLog.CallS); };
    form.Mode.onLostFocus = runs(s, Mode_LostFocus);
    form.Bands.onClick = runs(s, Bands_Click);
    // Lists that only show, and a band that only commands change, hand the focus back: no letter goes astray
    // there.
    for (forms::ListBox* const list : {&form.Worked, &form.NeedBands}) {
        list->onClick = [&form] { form.focus(form.CallS); };
    }
    form.tBand.onGotFocus = [&form] { form.focus(form.CallS); };
    form.partial3D.onClick = runs(s, partial3D_Click);
    form.LastCall.onClick = runs(s, LastCall_Click);
    form.Alarm.onClick = runs(s, Alarm_Click);
    form.Timer1.onTimer = runs(s, Timer1_Timer);
}

/// The keys that act wherever the focus is.
void frmLog_KeyDown(Station& s, forms::KeyStroke& stroke) {
    bool keyed = false;
    inKeySequence(s, [&] { keyed = CWKeyDown(s, stroke); });
    if (keyed) {
        stroke.swallowed = true;
        return;
    }
    const bool voiceKeyer = s.ControlValues(setting::Dvk) == "DVK";
    const bool up = stroke.key == forms::Key::PageUp || (stroke.key == forms::Key::F12 && !voiceKeyer);
    const bool down = stroke.key == forms::Key::PageDown || (stroke.key == forms::Key::F11 && !voiceKeyer);
    stroke.swallowed = up || down || stroke.key == forms::Key::Esc;
    inKeySequence(s, [&] {
        if (stroke.key == forms::Key::Esc) ResetQSO(s);
        if (up) NextBand(s);
        if (down) BandDown(s);
    });
}

/// A click on a list that lies over the log closes it; a click on the summary lets its button go as well.
void wireOverlays(Station& s) {
    LogForm& form = s.forms.frmLog;
    for (forms::ListBox* const list : {&form.PCalls, &form.PLogSort, &form.CList}) {
        list->onClick = [&form, list] {
            list->hide();
            form.focus(form.CallS);
        };
    }
    form.QSummary.onClick = [&s, &form] {
        form.cmdQSum.setChecked(false);
        cmdQSum_Click(s);
        form.QSummary.hide();
        form.focus(form.CallS);
    };
}

void wireLogWindow(Station& s) {
    LogForm& form = s.forms.frmLog;
    wireOverlays(s);
    form.QSOs.onClick = runs(s, QSOs_Click);
    form.LogWindow.onClick = runs(s, LogWindow_Click);
    form.Search1.onClick = runs(s, Search1_Click);
    form.Search2.onClick = runs(s, Search2_Click);
    form.DeleteQSO.onClick = runs(s, DeleteQSO_Click);
    form.cmdQSum.onClick = runs(s, cmdQSum_Click);
    form.tScore.onClick = [&s, &form] {
        form.cmdQSum.setChecked(!form.cmdQSum.checked());
        cmdQSum_Click(s);
    };
    form.Rfresh.onClick = [&s, &form] {
        Rfresh_Click(s);
        form.focus(form.CallS);
    };
}

void wireMenu(Station& s) {
    LogMenu& menu = s.forms.frmLog.menu;
    menu.mViewBU.onClick = runs(s, mViewBU_Click);
    menu.cmdExit.onClick = runs(s, cmdExit_Click);
    menu.mBeac.onClick = runs(s, mBeac_Click);
    menu.mShort.onClick = runs(s, mShort_Click);
    menu.mBoldW.onClick = [&s] { chooseLogFontWeight(s, true); };
    menu.mNormW.onClick = [&s] { chooseLogFontWeight(s, false); };
    menu.mFont10.onClick = [&s] { chooseLogFontSize(s, false); };
    menu.mFont12.onClick = [&s] { chooseLogFontSize(s, true); };
    menu.mRecip.onClick = runs(s, mRecip_Click);
    menu.mYourBands.onClick = runs(s, mYourBands_Click);
    menu.mMasterCalls.onClick = runs(s, mMasterCalls_Click);
    menu.fBackup.onClick = runs(s, fBackup_Click);
    menu.mReal.onClick = runs(s, mReal_Click);
    menu.mPost.onClick = runs(s, mPost_Click);
    menu.mShowDupe.onClick = [&s] { chooseDupePrompt(s, true); };
    menu.mDontShow.onClick = [&s] { chooseDupePrompt(s, false); };
    menu.mNoLastGrid.onClick = [&s] { chooseLastGrid(s, false); };
    menu.mYesLastGrid.onClick = [&s] { chooseLastGrid(s, true); };
    menu.mClockMinutes.onClick = runs(s, mClockMinutes_Click);
    menu.mClockSeconds.onClick = runs(s, mClockSeconds_Click);
    menu.mStartDate.onClick = runs(s, mStartDate_Click);
    menu.mWriteDupes.onClick = runs(s, mWriteDupes_Click);
}

/// The reports that are written from the log; each gives the keyboard back to the call field, however it
/// ends.
void wireExports(Station& s) {
    LogForm& form = s.forms.frmLog;
    const auto answers = [&s, &form](forms::MenuItem& item, Routine routine) {
        item.onClick = [&s, &form, routine] {
            routine(s);
            form.focus(form.CallS);
        };
    };
    answers(form.menu.mCabrillo, mCabrillo_Click);
    answers(form.menu.mnonARRL, mnonARRL_Click);
    answers(form.menu.mWriteSum, mWriteSum_Click);
    answers(form.menu.mWritegrids, mWritegrids_Click);
    answers(form.menu.mADIF, mADIF_Click);
}

/// What no routine answers to yet stands in its place and can't be used.
void disableWhatDoesNothing(Station& s) {
    LogForm& form = s.forms.frmLog;
    for (forms::Control* const control : form.controls()) {
        auto* const item = dynamic_cast<forms::MenuItem*>(control);
        if (item && item->children().empty() && item->caption() != "-" && !item->onClick)
            item->setEnabled(false);
    }
    form.menu.mnuOption1.setEnabled(false);
    form.menu.mStartDate.setEnabled(false);
    for (forms::Control* const control : std::initializer_list<forms::Control*>{
             &form.ChangeFile, &form.cmdPLL, &form.cmdDVK, &form.fPrinter}) {
        control->setEnabled(false);
    }
}

void wireLogForm(Station& s) {
    LogForm& form = s.forms.frmLog;
    form.onLoad = runs(s, frmLog_Load);
    form.onKeyDown = [&s](forms::KeyStroke& stroke) { frmLog_KeyDown(s, stroke); };
    form.onQueryClose = [&s](bool& refuse) { frmLog_QueryClose(s, refuse); };
    wireEntry(s);
    wireLogWindow(s);
    wireMenu(s);
    wireExports(s);
    wireKeyer(s);
    disableWhatDoesNothing(s);
}

}  // namespace

Program::Program(Platform& platform) : station_(platform) {
    station_.forms.screen.onFault = [&platform](const std::string& text) {
        // The box that tells of the fault may stand for hours.
        platform.ports.dropLines();
        platform.dialogs.fault(text);
    };
    station_.forms.frmStart.onLoad = runs(station_, frmStart_Load);
    wireSetupForm(station_);
    wireContestForm(station_);
    wireUtcForm(station_);
    wireLogForm(station_);
}

void Program::start() {
    screen().dispatch([this] { station_.forms.frmStart.load(); });
}
