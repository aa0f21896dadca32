// SPDX-License-Identifier: MIT
// The machine as a desktop offers it: every service of the platform, over one folder.
// Leans on the services of this folder and of shell/linux; main.cpp builds one, then a program over it, then
// the windows.
#pragma once

#include "shell/linux/linux_ports.h"
#include "shell/linux/posix_files.h"
#include "shell/linux/steady_delay.h"
#include "shell/platform/platform.h"
#include "shell/qt/qt_clock.h"
#include "shell/qt/qt_dialogs.h"
#include "shell/qt/qt_programs.h"
#include "shell/qt/qt_windows.h"
#include "shell/qt/serial_list.h"

class QtPlatform {
public:
    explicit QtPlatform(const std::string& folder) : files_(folder), programs_(folder, files_, dialogs_) {}
    Platform& platform() { return platform_; }
    /// The windows of the program that runs on this machine; null when they go.
    void attach(WindowsFront* front) {
        clock_.attach(front);
        dialogs_.attach(front);
        windows_.attach(front);
    }

private:
    QtClock clock_;
    QtDialogs dialogs_;
    PosixFiles files_;
    QtPrograms programs_;
    QtWindows windows_;
    LinuxPorts ports_{serialPorts};
    SteadyDelay delay_;
    Platform platform_{clock_, dialogs_, files_, programs_, windows_, ports_, delay_};
};
