// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "base/text.h"
#include "shell/headless/headless_clock.h"

namespace {

constexpr std::int64_t kSecond = 1'000'000'000;

std::string shown(const DateTime& at) {
    return text::digits(at.year, 4) + "-" + text::digits(at.month, 2) + "-" + text::digits(at.day, 2) + " " +
           text::digits(at.hour, 2) + ":" + text::digits(at.minute, 2) + ":" + text::digits(at.second, 2);
}

TEST(HeadlessClock, StartsAtAFixedMomentInBothTimes) {
    HeadlessClock clock;
    EXPECT_EQ(shown(clock.local()), "2007-01-20 14:35:00");
    EXPECT_EQ(shown(clock.utc()), "2007-01-20 14:35:00");
    EXPECT_EQ(clock.milliseconds(), 0);
}

TEST(HeadlessClock, KeepsTheDistanceOfUtcWhenLocalTimeIsSet) {
    HeadlessClock clock;
    clock.setUtc({2007, 1, 20, 19, 35, 0});
    EXPECT_EQ(shown(clock.local()), "2007-01-20 14:35:00");
    clock.setLocal({2007, 12, 31, 23, 0, 30});
    EXPECT_EQ(shown(clock.utc()), "2008-01-01 04:00:30");
}

TEST(HeadlessClock, AdvancesBothTimesTogether) {
    HeadlessClock clock;
    clock.setUtc({2007, 1, 20, 19, 35, 0});
    clock.advance(61 * kSecond);
    EXPECT_EQ(shown(clock.local()), "2007-01-20 14:36:01");
    EXPECT_EQ(shown(clock.utc()), "2007-01-20 19:36:01");
    EXPECT_EQ(clock.milliseconds(), 61000);
}

TEST(HeadlessClock, GoesOnCountingForTimersWhenTheTimeIsSet) {
    HeadlessClock clock;
    clock.advance(kSecond);
    clock.setLocal({1999, 12, 31, 0, 0, 0});
    clock.setUtc({1999, 12, 31, 5, 0, 0});
    EXPECT_EQ(clock.milliseconds(), 1000);
    EXPECT_EQ(shown(clock.local()), "1999-12-31 00:00:00");
}

TEST(HeadlessClock, TurnsTheDayAndItsSecondsAtMidnight) {
    HeadlessClock clock;
    clock.setLocal({2008, 2, 28, 23, 59, 59});
    clock.advance(kSecond / 2);
    EXPECT_DOUBLE_EQ(clock.secondsSinceMidnight(), 86399.5);
    clock.advance(kSecond / 2);
    EXPECT_DOUBLE_EQ(clock.secondsSinceMidnight(), 0);
    EXPECT_EQ(shown(clock.local()), "2008-02-29 00:00:00");
}

TEST(HeadlessClock, KeepsDatesBeforeTheCountOfTheSystemBegins) {
    HeadlessClock clock;
    clock.setLocal({1969, 12, 31, 23, 59, 58});
    EXPECT_DOUBLE_EQ(clock.secondsSinceMidnight(), 86398);
    EXPECT_EQ(shown(clock.local()), "1969-12-31 23:59:58");
}

TEST(HeadlessClock, PassesWhatARoutineWaits) {
    HeadlessClock clock;
    clock.idle(0.25);
    EXPECT_EQ(clock.nanoseconds(), kSecond / 4);
    clock.idle(0);
    clock.idle(-1);
    EXPECT_EQ(clock.nanoseconds(), kSecond / 4);
    // A wait shorter than the clock counts must not stand still.
    clock.idle(1e-12);
    EXPECT_EQ(clock.nanoseconds(), kSecond / 4 + 1);
}

TEST(HeadlessClock, NeverGoesBackToADueTime) {
    HeadlessClock clock;
    clock.advanceTo(5000);
    clock.advanceTo(4000);
    EXPECT_EQ(clock.nanoseconds(), 5000);
}

}  // namespace
