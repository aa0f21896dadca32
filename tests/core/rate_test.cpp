// SPDX-License-Identifier: MIT
#include "core/rate.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "core/sample_log.h"

namespace {

/// A log whose line of ten QSOs ago has the one time and whose last line the other.
int rateOver(const std::string& first, const std::string& last) {
    Session session;
    std::vector<std::string> lines(11, sample::lineOf({.time = "9999"}));
    lines.front() = sample::lineOf({.time = first});
    lines.back() = sample::lineOf({.time = last});
    sample::fillLog(session, lines);
    return UpdateQSORate(session);
}

TEST(QsoRate, IsTenTimesTheWholePartOfSixtyByTheSpan) {
    struct Case {
        const char *first, *last;
        int rate;
    };
    const std::vector<Case> cases{{"1430", "1431", 600}, {"1430", "1432", 300}, {"1430", "1437", 80},
                                  {"1400", "1440", 10},  {"1400", "1459", 10},  {"0000", "0060", 10},
                                  {"0000", "0061", 0}};
    for (const Case& c : cases) EXPECT_EQ(rateOver(c.first, c.last), c.rate) << c.first << " " << c.last;
}

TEST(QsoRate, AcrossAnHourSeesFortyMinutesTooMany) {
    EXPECT_EQ(rateOver("1459", "1501"), 10);
    EXPECT_EQ(rateOver("1455", "1510"), 10);
    EXPECT_EQ(rateOver("1459", "1520"), 0);
}

TEST(QsoRate, IsZeroWithoutASpanAndAcrossMidnight) {
    EXPECT_EQ(rateOver("1430", "1430"), 0);
    EXPECT_EQ(rateOver("2358", "0003"), 0);
}

TEST(QsoRate, OfTimesThatAreNoDigitsStaysANumber) {
    EXPECT_EQ(rateOver("0000", ".5  "), 1200);
    EXPECT_GT(rateOver("0000", "1E-9"), 0);
    EXPECT_EQ(rateOver("abcd", "efgh"), 0);
}

TEST(QsoRate, BeginsWithTheTwelfthLine) {
    Session session;
    std::vector<std::string> lines(9, sample::lineOf({.time = "0002"}));
    sample::fillLog(session, lines);
    session.LogLines(1) = std::string(20, ' ') + "0000";
    session.LogLines(2) = std::string(20, ' ') + "0000";
    ASSERT_EQ(session.LogLineCount, 11);
    EXPECT_EQ(UpdateQSORate(session), 0);
    session.LogLines(12) = sample::lineOf({.time = "0002"});
    session.LogLineCount = 12;
    EXPECT_EQ(UpdateQSORate(session), 300);
}

TEST(QsoRate, OfAnEmptyLogIsZero) {
    const Session session;
    EXPECT_EQ(UpdateQSORate(session), 0);
}

}  // namespace
