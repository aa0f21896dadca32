// SPDX-License-Identifier: MIT
// Every form of the program, on one screen.
#pragma once

#include "shell/forms/contest_form.h"
#include "shell/forms/log_form.h"
#include "shell/forms/screen.h"
#include "shell/forms/setup_form.h"
#include "shell/forms/start_form.h"
#include "shell/forms/utc_form.h"

struct Forms {
    forms::Screen screen;
    StartForm frmStart{screen};
    SetupForm frmSetup{screen};
    ContestForm frmContest{screen};
    UtcForm UTCfrm{screen};
    LogForm frmLog{screen};
};
