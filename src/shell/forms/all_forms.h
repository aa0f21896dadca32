// SPDX-License-Identifier: MIT
// Every form of the program, on one screen.
#pragma once

#include "shell/forms/band_sw_form.h"
#include "shell/forms/contest_form.h"
#include "shell/forms/cw_setup_form.h"
#include "shell/forms/log_form.h"
#include "shell/forms/port_form.h"
#include "shell/forms/screen.h"
#include "shell/forms/setup_form.h"
#include "shell/forms/start_form.h"
#include "shell/forms/transmit_form.h"
#include "shell/forms/utc_form.h"

struct Forms {
    forms::Screen screen;
    StartForm frmStart{screen};
    SetupForm frmSetup{screen};
    ContestForm frmContest{screen};
    UtcForm UTCfrm{screen};
    LogForm frmLog{screen};
    TransmitForm frmTX{screen};
    KeyboardForm frmCWTX{screen};
    CwSetupForm CWSetup{screen};
    PortForm ConfigScrn{screen};
    BandSwForm BandSw{screen};
};
