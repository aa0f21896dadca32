// SPDX-License-Identifier: MIT
#include "core/post_contest.h"

#include "core/accept_prompt.h"
#include "core/qso_line.h"
#include "keyer/cw_setup.h"

namespace {

bool shapedAsDate(const std::string& answer) {
    return answer.size() == 8 && answer[2] == '/' && answer[5] == '/';
}

std::string ask(Station& s, const std::string& text, const std::string& title, const std::string& offered) {
    return s.platform.dialogs.prompt({text, title, offered}).value_or("");
}

void setAcceptMode(Station& s, const char* mode) {
    s.ControlValues(setting::AcceptMode) = mode;
    s.forms.frmLog.Combo3.setText(mode);
}

void switchOff(forms::CheckBox& box) {
    box.setChecked(false);
    box.setForeColour(forms::kBlack);
}

}  // namespace

QsoMoment momentOfLastLine(const Session& session) {
    // The line being entered is counted already.
    if (session.LogLineCount <= kFirstQsoLine) return {"01/22/07", "0000"};
    const std::string& last = session.LogLines(session.LogLineCount - 1);
    return {std::string(qso::date(last)), std::string(qso::time(last))};
}

QsoMoment PromptQSODateTime(Station& s, const QsoMoment& offered) {
    QsoMoment moment;
    do {
        moment.date = ask(s, "<Enter> UTC Date of QSO     format: 01/22/05", " UTC Date", offered.date);
    } while (!shapedAsDate(moment.date));
    do {
        moment.time = ask(s, "<Enter> UTC Time of QSO     format: 0123", " UTC Time", offered.time);
    } while (moment.time.size() != 4);
    moment.time = qso::storedTime(moment.time);
    return moment;
}

void mReal_Click(Station& s) {
    LogForm& form = s.forms.frmLog;
    form.menu.mReal.setChecked(true);
    form.menu.mPost.setChecked(false);
    form.Timer1.start();
    setAcceptMode(s, kEnterKey);
    form.focus(form.CallS);
}

void mPost_Click(Station& s) {
    LogForm& form = s.forms.frmLog;
    form.menu.mPost.setChecked(true);
    form.menu.mReal.setChecked(false);
    form.Timer1.stop();
    form.UTCTime.setCaption("Enter a log");
    setAcceptMode(s, kAutoAccept);
    s.ControlValues(setting::Cw) = "no CW";
    s.ControlValues(setting::Dvk) = "no DVK";
    showCwSwitch(s);
    switchOff(form.cmdDVK);
    form.DVKStatus.hide();
    form.focus(form.CallS);
}
