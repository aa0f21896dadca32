// SPDX-License-Identifier: MIT
#pragma once

#include "shell/linux/system_clock.h"
#include "shell/qt/windows_front.h"

/// The machine's clocks; while a routine waits, windows repaint and keys wait.
class QtClock : public SystemClock {
public:
    void attach(WindowsFront* front) { front_ = front; }
    void idle(double seconds) override;

private:
    WindowsFront* front_ = nullptr;
};
