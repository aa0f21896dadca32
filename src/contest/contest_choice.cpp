// SPDX-License-Identifier: MIT
#include "contest/contest_choice.h"

#include "base/number.h"
#include "base/text.h"
#include "contest/contest_table.h"
#include "core/say.h"

namespace {

void noticeOfSeparateBands(Station& s) {
    s.platform.dialogs.message({std::string("This software allows you to log all bands") + kCrLf +
                                    "together. It displays the score for each" + kCrLf +
                                    "band separately. While logging, click" + kCrLf +
                                    "[ Summary ] to see the scores.",
                                "", Icon::Information, Buttons::Ok, Answer::Ok});
}

void choose(Station& s, const std::string& entry) {
    ContestForm& form = s.forms.frmContest;
    Session& session = s.session;
    const std::string year = text::digits(s.platform.clock.local().year, 4);
    form.cmdCont.setEnabled(true);
    form.Text1.show();
    form.Text1.setText(entry);
    session.ContestName = year + " " + entry;
    const int number = contest::numberOfName(session.ContestName, year);
    if (number == 0) return;
    session.ContestNumber = number::toText(number);
    if (number == 19) noticeOfSeparateBands(s);
}

}  // namespace

void frmContest_Load(Station& s) {
    ContestForm& form = s.forms.frmContest;
    form.Contest.setItems(contest::topLevel());
    // A second visit starts as the first did, with nothing chosen.
    form.Sprint.hide();
    form.Text1.setText("");
    form.cmdCont.setEnabled(false);
    s.session.LogLineCount = 0;
    s.session.DupeAccepted = false;
}

void Contest_Click(Station& s) {
    ContestForm& form = s.forms.frmContest;
    if (form.Contest.listIndex() < 0) return;
    const std::string entry = form.Contest.content();
    const std::vector<std::string> sprints = contest::sprintsOf(entry);
    if (sprints.empty()) {
        choose(s, entry);
        return;
    }
    form.cmdCont.setEnabled(false);
    form.Sprint.setItems(sprints);
    form.Sprint.show();
    form.Text1.setText("");
}

void Contest_DblClick(Station& s) {
    ContestForm& form = s.forms.frmContest;
    if (form.Contest.listIndex() < 0 || !contest::sprintsOf(form.Contest.content()).empty()) return;
    choose(s, form.Contest.content());
    cmdCont_Click(s);
}

void Sprint_Click(Station& s) {
    if (s.forms.frmContest.Sprint.listIndex() >= 0) choose(s, s.forms.frmContest.Sprint.content());
}

void Sprint_DblClick(Station& s) {
    if (s.forms.frmContest.Sprint.listIndex() < 0) return;
    Sprint_Click(s);
    cmdCont_Click(s);
}

namespace {

void backToSetup(Station& s, bool chosen) {
    SetupForm& setup = s.forms.frmSetup;
    setup.cmdDone.setEnabled(chosen);
    if (chosen) {
        setup.Label25.setCaption(s.session.ContestName);
        setup.Label25.show();
    }
    setup.show();
}

}  // namespace

void cmdCont_Click(Station& s) {
    s.forms.frmContest.unload();
    backToSetup(s, true);
}

void frmContest_QueryClose(Station& s, bool& refuse) {
    refuse = true;
    SetupForm& setup = s.forms.frmSetup;
    s.session.LogFileName.clear();
    setup.fName.hide();
    setup.Label2.hide();
    setup.Label4.setCaption("To start a new contest");
    s.forms.frmContest.unload();
    backToSetup(s, false);
}
