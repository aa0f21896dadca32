// SPDX-License-Identifier: MIT
#pragma once

#include <QSettings>

#include "shell/platform/clock.h"
#include "shell/platform/windows.h"
#include "shell/qt/windows_front.h"

/// What the desktop does for the program's windows: events inside a routine, sizes kept, pop-up menus.
class QtWindows : public Windows {
public:
    void attach(WindowsFront* front) { front_ = front; }
    void pump() override;
    void rest() override;
    void saveSize(const std::string& form) override;
    void restoreSize(const std::string& form) override;
    void popUp(const std::string& form, const std::string& menu) override;

private:
    WindowsFront* front_ = nullptr;
    // One that stays, so that what it is told is written between two events and not while the operator waits.
    QSettings settings_;
};
