// SPDX-License-Identifier: MIT
#pragma once

#include "shell/platform/clock.h"

/// The machine's own clocks.
class SystemClock : public Clock {
public:
    DateTime local() override;
    DateTime utc() override;
    double secondsSinceMidnight() override;
    std::int64_t milliseconds() override;
    /// Sleeps, for a fiftieth of a second at most, so that who waits can look up often.
    void idle(double seconds) override;
};
