// SPDX-License-Identifier: MIT
#include "shell/qt/qt_clock.h"

#include <QCoreApplication>

void QtClock::idle(double seconds) {
    const WindowsFront::Hold hold(front_);
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    SystemClock::idle(seconds);
}
