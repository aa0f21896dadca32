// SPDX-License-Identifier: MIT
// The keyer's delay on the steady clock.
// Leans on keying_priority.h; the desktop's platform owns one. How it waits is a matter of measurement: see
// bench/keying_bench.cpp.
#pragma once

#include "shell/linux/keying_priority.h"
#include "shell/platform/delay.h"

class SteadyDelay : public Delay {
public:
    void begin() override;
    void end() override;
    void wait(std::int64_t units) override;
    void settle() override;

private:
    KeyingPriority priority_;
    int depth_ = 0;
    /// The moment, in nanoseconds of the steady clock, at which the last wait was due to end.
    std::int64_t due_ = 0;
    /// A wait has come since the last edge.
    bool waited_ = false;
};
