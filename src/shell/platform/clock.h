// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

/// A moment of the calendar, in whole seconds.
struct DateTime {
    int year = 2007, month = 1, day = 20, hour = 14, minute = 35, second = 0;
};

/// The machine's clocks.
class Clock {
public:
    virtual ~Clock() = default;
    virtual DateTime local() = 0;
    virtual DateTime utc() = 0;
    /// Seconds of local time since midnight, with fractions; falls back to 0 at midnight.
    virtual double secondsSinceMidnight() = 0;
    /// A steady count of milliseconds, for timers.
    virtual std::int64_t milliseconds() = 0;
    /// Lets time pass, at most `seconds`, in a wait that polls a clock: windows repaint, keys wait.
    virtual void idle(double seconds) = 0;
};
