// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "setup/utc_check.h"
#include "setup/utc_clock.h"

namespace {

TEST(UtcOffset, IsTheHoursOfItsTextAndAHalf) {
    struct Case {
        const char* text;
        float hours;
        int half;
    };
    const std::vector<Case> cases{
        {"", 0, 0},        {"0", 0, 0},          {"5", 5, 0},    {"-5", -5, 0},    {"5.5", 5, 30},
        {"-3.5", -3, 30},  {".5", 0, 30},        {"-.5", 0, 30}, {"10.5", 10, 30}, {"4.25", 4.25F, 0},
        {"5.50", 5.5F, 0}, {"-4.75", -4.75F, 0}, {"x", 0, 0},    {"4x.5", 4, 30},  {"+3", 3, 0}};
    for (const Case& c : cases) {
        const UtcOffset offset = offsetOf(c.text);
        EXPECT_EQ(offset.hours, c.hours) << c.text;
        EXPECT_EQ(offset.half, c.half) << c.text;
    }
}

struct Moment {
    int month, day, hour, minute;
};

UtcReading reading(const Moment& moment, double hours, int half) {
    return utcReading({2007, moment.month, moment.day, moment.hour, moment.minute, 17}, hours, half);
}

void expectReading(const UtcReading& utc, double hour, int day, int minute) {
    EXPECT_EQ(utc.hour, hour);
    EXPECT_EQ(utc.day, day);
    EXPECT_EQ(utc.minute, minute);
    EXPECT_EQ(utc.second, 17);
}

TEST(UtcClock, AddsTheOffsetToTheHour) {
    expectReading(reading({1, 20, 9, 35}, 5, 0), 14, 20, 35);
    expectReading(reading({1, 20, 9, 35}, -5, 0), 4, 20, 35);
    expectReading(reading({1, 20, 9, 35}, 0, 0), 9, 20, 35);
}

TEST(UtcClock, RunsPastTheEndOfAMonth) { expectReading(reading({3, 31, 20, 10}, 5, 0), 1, 32, 10); }

TEST(UtcClock, RunsBeforeTheBeginningOfAMonth) { expectReading(reading({6, 1, 2, 0}, -5, 0), 21, 0, 0); }

TEST(UtcClock, TurnsTheDayAtMidnightExactly) {
    expectReading(reading({1, 20, 19, 0}, 5, 0), 0, 21, 0);
    expectReading(reading({1, 20, 18, 59}, 5, 0), 23, 20, 59);
    expectReading(reading({1, 20, 5, 0}, -5, 0), 0, 20, 0);
    expectReading(reading({1, 20, 4, 59}, -5, 0), 23, 19, 59);
}

TEST(UtcClock, AddsTheHalfHourLastSoThatTheHourMayBeTwentyFour) {
    expectReading(reading({1, 20, 18, 45}, 5, 30), 24, 20, 15);
    expectReading(reading({1, 20, 18, 29}, 5, 30), 23, 20, 59);
    expectReading(reading({1, 20, 18, 30}, 5, 30), 24, 20, 0);
    expectReading(reading({1, 20, 10, 31}, 5, 30), 16, 20, 1);
}

TEST(UtcClock, AddsTheHalfHourToANegativeOffsetToo) {
    expectReading(reading({1, 20, 12, 10}, -3, 30), 9, 20, 40);
    expectReading(reading({1, 20, 2, 40}, -3, 30), 24, 19, 10);
}

TEST(UtcClock, KeepsAFractionOfTheHours) { expectReading(reading({1, 20, 10, 10}, 4.25, 0), 14.25, 20, 10); }

TEST(UtcCheck, TakesTheHoursOfBothClocks) {
    struct Case {
        int utc, local, hours;
    };
    const std::vector<Case> cases{{14, 9, 5},   {9, 14, -5},   {1, 20, 5},  {20, 1, -5},  {12, 12, 0},
                                  {0, 12, -12}, {12, 0, 12},   {0, 13, 11}, {13, 0, -11}, {23, 0, -1},
                                  {0, 23, 1},   {23, 10, -11}, {10, 23, 11}};
    for (const Case& c : cases) EXPECT_EQ(hoursToUtc(c.utc, c.local), c.hours) << c.utc << " " << c.local;
}

TEST(ClockText, HasTwoDigitsForEach) {
    EXPECT_EQ(dateText({2007, 3, 1, 4, 5, 6}), "03/01/07");
    EXPECT_EQ(dateText({1999, 12, 31, 4, 5, 6}), "12/31/99");
    EXPECT_EQ(timeText({2007, 3, 1, 4, 5, 6}), "04:05:06");
    EXPECT_EQ(timeText({2007, 3, 1, 23, 59, 0}), "23:59:00");
}

}  // namespace
