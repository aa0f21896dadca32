// SPDX-License-Identifier: MIT
#include "keyer/cw_timing.h"

#include <cmath>

#include "base/run_time_error.h"

namespace keyer {

namespace {

constexpr double kMostUnits = 1e15;

std::int64_t wholeUnits(double units) {
    if (!(std::fabs(units) <= kMostUnits)) throw overflowError();
    return static_cast<std::int64_t>(std::floor(units));
}

}  // namespace

Timing timingOf(int speed, int calibration, int loopConstant, float weight) {
    if (speed == 0 || calibration == 0) throw divisionByZeroError();
    // The rate is kept in single precision; what it divides is not.
    const auto rate = static_cast<float>(static_cast<double>(speed) / calibration);
    Timing timing;
    timing.dot = wholeUnits(loopConstant / static_cast<double>(rate));
    timing.dotOn = wholeUnits((static_cast<double>(weight) - 0.2) * static_cast<double>(timing.dot));
    timing.gap = 2 * timing.dot - timing.dotOn;
    timing.dashOn = 2 * timing.dot + timing.dotOn;
    return timing;
}

}  // namespace keyer
