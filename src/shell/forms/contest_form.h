// SPDX-License-Identifier: MIT
#pragma once

#include "shell/forms/controls.h"
#include "shell/forms/form.h"

/// The choice of a contest for a new log.
struct ContestForm : forms::Form {
    explicit ContestForm(forms::Screen& screen) : Form(screen, "frmContest", "TARQEN - Select a contest") {
        Contest.named("Contests and families of sprints");
        Sprint.named("Sprints of the family");
        Text1.named("Contest chosen");
        setHome(Contest);
        Text1.setTabStop(false);
        Sprint.hide();
        cmdCont.setEnabled(false);
    }
    forms::ListBox Contest{*this, "Contest"};
    forms::ListBox Sprint{*this, "Sprint"};
    forms::TextBox Text1{*this, "Text1"};
    forms::Button cmdCont{*this, "cmdCont", "Continue"};
};
