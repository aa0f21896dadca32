// SPDX-License-Identifier: MIT
#include "contest/summary.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "contest/scoring.h"
#include "core/sample_log.h"

namespace {

const std::string kHead = "  Band    QSOs   Points  X  Grids =  Points";
const std::string kRule = "  --------------------------------------------";
const std::string kClose = "  <Esc> or click text to close.";

struct Figures {
    int qsos;
    int points;
    int grids;
    int score;
};

void setBand(Session& session, int band, const Figures& figures) {
    session.BandWorked(band) = true;
    session.BandQSOs(band) = figures.qsos;
    session.BandQSOPoints(band) = figures.points;
    session.BandGrids(band) = figures.grids;
    session.BandScore(band) = figures.score;
}

Session emptySession() {
    Session session;
    sample::fillLog(session, {});
    session.ContestNumber = "1";
    return session;
}

std::string bandLineOf(int band, const Figures& figures) {
    Session session = emptySession();
    setBand(session, band, figures);
    const std::vector<std::string> lines = summaryLines(session);
    return lines.size() == 8 ? lines[3] : "not one band";
}

std::string totalsOf(const Figures& figures) {
    Session session = emptySession();
    session.BandQSOs(1) = figures.qsos;
    session.TotalQSOPoints = figures.points;
    session.GridTotal = figures.grids;
    session.TotalScore = static_cast<float>(figures.score);
    const std::vector<std::string> lines = summaryLines(session);
    return lines.size() == 7 ? lines[4] : "no totals";
}

TEST(ScoreSummary, ListsTheWorkedBandsBetweenItsRules) {
    Session session = emptySession();
    setBand(session, 1, {10, 10, 5, 50});
    setBand(session, 6, {2, 6, 2, 12});
    session.BandQSOs(3) = 0;
    session.TotalQSOPoints = 16;
    session.GridTotal = 7;
    session.TotalScore = 112;
    const std::vector<std::string> expected{"",
                                            kHead,
                                            kRule,
                                            "  50       10      10       5        50",
                                            "  1296     2       6        2        12",
                                            kRule,
                                            "  Totals   12      16       7        112",
                                            "",
                                            kClose};
    EXPECT_EQ(summaryLines(session), expected);
}

TEST(ScoreSummary, HasNoTotalsInTheContestOfSeparateBands) {
    Session session = emptySession();
    session.ContestNumber = "19";
    setBand(session, 5, {1, 1, 1, 1});
    const std::vector<std::string> expected{"",    kHead, kRule, "  903      1       1        1        1",
                                            kRule, "",    kClose};
    EXPECT_EQ(summaryLines(session), expected);
}

TEST(ScoreSummary, LeavesOutABandThatWasNotWorked) {
    Session session = emptySession();
    session.BandQSOs(4) = 3;
    EXPECT_EQ(summaryLines(session).size(), 7u);
}

TEST(ScoreSummary, PadsTheBandNamesToNineColumns) {
    EXPECT_EQ(bandLineOf(2, {1, 1, 1, 1}), "  144      1       1        1        1");
    EXPECT_EQ(bandLineOf(10, {1, 1, 1, 1}), "  10368    1       1        1        1");
    EXPECT_EQ(bandLineOf(13, {1, 8, 1, 8}), "  Laser    1       8        1        8");
}

TEST(ScoreSummary, NarrowsTheGapBehindTheQsosAtTenAndAtAHundred) {
    EXPECT_EQ(bandLineOf(1, {9, 1, 1, 1}), "  50       9       1        1        1");
    EXPECT_EQ(bandLineOf(1, {10, 1, 1, 1}), "  50       10      1        1        1");
    EXPECT_EQ(bandLineOf(1, {99, 1, 1, 1}), "  50       99      1        1        1");
    EXPECT_EQ(bandLineOf(1, {100, 1, 1, 1}), "  50       100     1        1        1");
    EXPECT_EQ(bandLineOf(1, {1000, 1, 1, 1}), "  50       1000     1        1        1");
    EXPECT_EQ(bandLineOf(1, {0, 0, 0, 0}), "  50       0       0        0        0");
}

TEST(ScoreSummary, NarrowsTheGapsBehindPointsAndGridsTheSameWay) {
    EXPECT_EQ(bandLineOf(1, {1, 9, 1, 1}), "  50       1       9        1        1");
    EXPECT_EQ(bandLineOf(1, {1, 10, 1, 1}), "  50       1       10       1        1");
    EXPECT_EQ(bandLineOf(1, {1, 99, 1, 1}), "  50       1       99       1        1");
    EXPECT_EQ(bandLineOf(1, {1, 100, 1, 1}), "  50       1       100      1        1");
    EXPECT_EQ(bandLineOf(1, {1, 12345, 1, 1}), "  50       1       12345      1        1");
    EXPECT_EQ(bandLineOf(1, {1, 1, 9, 1}), "  50       1       1        9        1");
    EXPECT_EQ(bandLineOf(1, {1, 1, 10, 1}), "  50       1       1        10       1");
    EXPECT_EQ(bandLineOf(1, {1, 1, 99, 1}), "  50       1       1        99       1");
    EXPECT_EQ(bandLineOf(1, {1, 1, 100, 1}), "  50       1       1        100      1");
    EXPECT_EQ(bandLineOf(1, {1, 1, 1000, 123456}), "  50       1       1        1000      123456");
}

TEST(ScoreSummary, NarrowsTheGapBehindTheTotalOfQsosUpToAThousand) {
    EXPECT_EQ(totalsOf({0, 0, 0, 0}), "  Totals   0       0        0        0");
    EXPECT_EQ(totalsOf({1, 1, 1, 1}), "  Totals   1       1        1        1");
    EXPECT_EQ(totalsOf({9, 1, 1, 1}), "  Totals   9       1        1        1");
    EXPECT_EQ(totalsOf({10, 1, 1, 1}), "  Totals   10      1        1        1");
    EXPECT_EQ(totalsOf({99, 1, 1, 1}), "  Totals   99      1        1        1");
    EXPECT_EQ(totalsOf({100, 1, 1, 1}), "  Totals   100     1        1        1");
    EXPECT_EQ(totalsOf({999, 1, 1, 1}), "  Totals   999     1        1        1");
    EXPECT_EQ(totalsOf({1000, 1, 1, 1}), "  Totals   1000    1        1        1");
    EXPECT_EQ(totalsOf({10000, 1, 1, 1}), "  Totals   10000    1        1        1");
}

TEST(ScoreSummary, NarrowsTheGapsBehindTheTotalsOfPointsAndGridsUpToAHundred) {
    EXPECT_EQ(totalsOf({1, 10, 1, 1}), "  Totals   1       10       1        1");
    EXPECT_EQ(totalsOf({1, 100, 1, 1}), "  Totals   1       100      1        1");
    EXPECT_EQ(totalsOf({1, 1000, 1, 1}), "  Totals   1       1000      1        1");
    EXPECT_EQ(totalsOf({1, 1, 10, 1}), "  Totals   1       1        10       1");
    EXPECT_EQ(totalsOf({1, 1, 100, 1}), "  Totals   1       1        100      1");
    EXPECT_EQ(totalsOf({1, 1, 1000, 1}), "  Totals   1       1        1000      1");
}

TEST(ScoreSummary, ShowsALargeScoreInPlainDigits) {
    EXPECT_EQ(totalsOf({1, 1, 1, 1234567}), "  Totals   1       1        1        1234567");
    EXPECT_EQ(totalsOf({1, 1, 1, 0}), "  Totals   1       1        1        0");
}

TEST(ScoreSummary, AddsTheQsosOfAllBands) {
    Session session = emptySession();
    for (int band = 0; band <= 14; ++band) session.BandQSOs(band) = 1;
    session.TotalQSOPoints = 1;
    session.GridTotal = 1;
    session.TotalScore = 1;
    EXPECT_EQ(summaryLines(session)[4], "  Totals   13      1        1        1");
}

TEST(NewGridMark, IsOrdinalHyphenBand) {
    EXPECT_EQ(newGridMark(12, "144"), "12-144");
    EXPECT_EQ(newGridMark(1, "Laser"), "1-Laser");
    EXPECT_EQ(newGridMark(100, "10368"), "100-10368");
}

}  // namespace
