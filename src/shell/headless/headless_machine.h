// SPDX-License-Identifier: MIT
// A whole machine without a screen, put together: what the program asks of a machine, driven by a script.
// Leans on the services beside it; main.cpp and the tests build one over a folder and a stream for the
// transcript.
#pragma once

#include <ostream>

#include "shell/forms/screen.h"
#include "shell/headless/faults.h"
#include "shell/headless/hardware.h"
#include "shell/headless/headless_clock.h"
#include "shell/headless/headless_dialogs.h"
#include "shell/headless/headless_files.h"
#include "shell/headless/headless_ports.h"
#include "shell/headless/headless_programs.h"
#include "shell/headless/headless_windows.h"
#include "shell/headless/transcript.h"
#include "shell/platform/platform.h"

struct HeadlessMachine {
    HeadlessMachine(Files& disk, std::ostream& out);
    HeadlessMachine(const HeadlessMachine&) = delete;
    HeadlessMachine& operator=(const HeadlessMachine&) = delete;
    /// Gives the machine the screen of the program that runs on it, before the program starts.
    void attach(forms::Screen& screen);

    /// The folder as other programs see it, without the faults.
    Files& disk;
    Transcript transcript;
    HeadlessClock clock;
    Faults faults;
    Hardware hardware;
    HeadlessDialogs dialogs;
    HeadlessFiles files;
    HeadlessPrograms programs;
    HeadlessWindows windows;
    HeadlessPorts ports;
    HeadlessDelay delay;
    Platform platform;
};
