// SPDX-License-Identifier: MIT
// All that the program asks of a machine, one small interface a service.
// Leans on nothing; shell/headless and shell/qt with shell/linux provide it; every routine reaches it through
// the Station.
#pragma once

#include "shell/platform/clock.h"
#include "shell/platform/delay.h"
#include "shell/platform/dialogs.h"
#include "shell/platform/files.h"
#include "shell/platform/ports.h"
#include "shell/platform/programs.h"
#include "shell/platform/windows.h"

struct Platform {
    Clock& clock;
    Dialogs& dialogs;
    Files& files;
    Programs& programs;
    Windows& windows;
    Ports& ports;
    Delay& delay;
};
