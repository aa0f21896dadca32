// SPDX-License-Identifier: MIT
#include "keyer/cw_timing.h"

#include <gtest/gtest.h>

#include "base/run_time_error.h"

namespace {

struct Case {
    int speed, calibration, constant;
    float weight;
    std::int64_t dot, dotOn;
};

}  // namespace

TEST(CwTiming, FollowsSpeedWeightAndConstants) {
    for (const Case& c : {
             // A dot of 60 ms and one of 20 ms in units of 1.2 microseconds.
             Case{20, 500, 2000, 1.1F, 50000, 45000},
             Case{60, 500, 2000, 1.1F, 16666, 14999},
             Case{30, 500, 2000, 1.1F, 33333, 29999},
             Case{5, 500, 2000, 1.1F, 200000, 180000},
             Case{20, 500, 2000, 1.0F, 50000, 40000},
             Case{20, 1000, 2000, 1.1F, 100000, 90000},
             // The single-precision 0.12 lies below 0.12.
             Case{60, 500, 1, 1.1F, 8, 7},
             Case{60, 100, 1, 1.1F, 1, 0},
             Case{20, 500, 2000, 0.2F, 50000, 0},
         }) {
        const keyer::Timing timing = keyer::timingOf(c.speed, c.calibration, c.constant, c.weight);
        EXPECT_EQ(timing.dot, c.dot) << c.speed << " " << c.calibration << " " << c.constant;
        EXPECT_EQ(timing.dotOn, c.dotOn) << c.speed << " " << c.calibration << " " << c.constant;
        EXPECT_EQ(timing.gap, 2 * c.dot - c.dotOn);
        EXPECT_EQ(timing.dashOn, 2 * c.dot + c.dotOn);
    }
}

TEST(CwTiming, WeightMovesTheEdgeAndNotTheLength) {
    for (const float weight : {0.5F, 0.85F, 1.0F, 1.1F, 1.25F, 1.5F}) {
        const keyer::Timing timing = keyer::timingOf(24, 500, 2000, weight);
        EXPECT_EQ(timing.dotOn + timing.gap, 2 * timing.dot);
        EXPECT_EQ(timing.dashOn + timing.gap, 4 * timing.dot);
    }
}

TEST(CwTiming, ADotOfLessThanAUnitIsNotOn) { EXPECT_EQ(keyer::timingOf(60, 60, 1, 1.1F).dotOn, 0); }

TEST(CwTiming, NoSpeedIsADivisionByZero) {
    EXPECT_THROW(keyer::timingOf(0, 500, 2000, 1.1F), RunTimeError);
    EXPECT_THROW(keyer::timingOf(20, 0, 2000, 1.1F), RunTimeError);
}
