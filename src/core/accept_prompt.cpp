// SPDX-License-Identifier: MIT
#include "core/accept_prompt.h"

bool autoAccept(const Station& s) { return s.ControlValues(setting::AcceptMode) == kAutoAccept; }

void QueryState(Station& s) {
    LogForm& form = s.forms.frmLog;
    if (autoAccept(s)) {
        form.Query.setCaption(
            " QSO Auto Accepted after <Enter> or <Space> key at the Grid entry. <Esc> to cancel.");
        form.Query.show();
    } else if (s.ControlValues(setting::AcceptMode) == kEnterKey) {
        // The two blanks and the small "hit" tell this hint from the one of the mode's choice.
        form.Query.setCaption(" QSO OK,  hit <Enter> or <Space> key to Complete QSO.   <Esc> to cancel.");
        form.cUpdate.show();
        form.Query.show();
        form.focus(form.cUpdate);
    }
}

void ClearCallStatus(Station& s) {
    LogForm& form = s.forms.frmLog;
    s.session.CallOK = false;
    s.session.GridEntered = false;
    form.PCalls.hide();
    form.PLogSort.hide();
    form.cUpdate.hide();
    form.Query.hide();
    form.Worked.clear();
    form.NeedBands.clear();
    form.NewGrid.setCaption("");
    form.Heading.hide();
    form.WorkCall.hide();
    form.Name1.hide();
}

void Combo3_Click(Station& s) {
    LogForm& form = s.forms.frmLog;
    s.ControlValues(setting::AcceptMode) = form.Combo3.text();
    if (autoAccept(s)) {
        form.Query.setCaption(
            " QSO Auto Accepted by hitting <Enter> or <Space> key at the Grid entry. <Esc> to cancel.");
        form.Query.show();
    } else if (form.Combo3.text() == kEnterKey) {
        form.Query.setCaption(" QSO OK, Hit <Enter> or <Space> key to Complete QSO.   <Esc> to cancel.");
        form.Query.show();
        form.cUpdate.hide();
    }
    form.focus(form.CallS);
}

void Combo3_Change(Station& s) {
    LogForm& form = s.forms.frmLog;
    if (!form.Combo3.text().empty()) return;
    s.ControlValues(setting::AcceptMode) = kEnterKey;
    form.Combo3.setText(kEnterKey);
}
