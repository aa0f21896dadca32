// SPDX-License-Identifier: MIT
#pragma once

#include "shell/platform/clock.h"

/// A clock that stands still but for what it is told. Local time and UTC advance together.
class HeadlessClock : public Clock {
public:
    HeadlessClock() { setLocal(DateTime{}); }
    DateTime local() override;
    DateTime utc() override;
    double secondsSinceMidnight() override;
    std::int64_t milliseconds() override;
    void idle(double seconds) override;

    /// Sets the local time; UTC keeps its distance. The count for timers goes on as it was.
    void setLocal(const DateTime& moment);
    /// Sets UTC alone.
    void setUtc(const DateTime& moment);
    std::int64_t nanoseconds() const { return elapsed_; }
    void advance(std::int64_t nanoseconds) { elapsed_ += nanoseconds; }
    /// Advances to a count of nanoseconds, unless it is past already.
    void advanceTo(std::int64_t nanoseconds);

private:
    std::int64_t localNow() const { return origin_ + elapsed_; }
    /// Nanoseconds since the machine was made.
    std::int64_t elapsed_ = 0;
    /// The local time, in nanoseconds of the calendar, at an elapsed time of 0.
    std::int64_t origin_ = 0;
    std::int64_t utcMinusLocal_ = 0;
};
