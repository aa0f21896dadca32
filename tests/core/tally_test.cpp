// SPDX-License-Identifier: MIT
#include "core/tally.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "core/sample_log.h"

namespace {

using sample::fillLog;
using sample::lineOf;

void countAll(Session& session) {
    markBandsWorked(session);
    countLines(session);
}

TEST(Tally, KnowsTheThirteenBandsByTheirLabels) {
    Session session;
    LoadBandNames(session);
    const std::vector<std::string> labels{"",     "50",   "144",   "222",   "432",   "903",   "1296", "2304",
                                          "3456", "5760", "10368", "24000", "47000", "Laser", ""};
    for (int band = 0; band <= 14; ++band) {
        EXPECT_EQ(session.BandName(band), labels[static_cast<std::size_t>(band)]) << band;
        if (band >= 1 && band <= 13) {
            EXPECT_EQ(bandIndex(session, session.BandName(band)), band);
        }
    }
}

TEST(Tally, FindsNoBandForAnyOtherLabel) {
    Session session;
    LoadBandNames(session);
    for (const char* const label : {"", "14", "LASER", "laser", "1 44", "144 ", "10000", "0"}) {
        EXPECT_EQ(bandIndex(session, label), 0) << label;
    }
}

TEST(Tally, CountsQsosAndGridsByBand) {
    Session session;
    fillLog(session, {lineOf({.band = "50", .mark = "1-50"}), lineOf({.band = "50"}),
                      lineOf({.band = "144", .mark = "1-144"}), lineOf({.band = "Laser", .mark = "1-Laser"}),
                      lineOf({.band = "10368"})});
    countAll(session);
    EXPECT_EQ(session.BandQSOs(1), 2);
    EXPECT_EQ(session.BandGrids(1), 1);
    EXPECT_EQ(session.BandQSOs(2), 1);
    EXPECT_EQ(session.BandGrids(2), 1);
    EXPECT_EQ(session.BandQSOs(10), 1);
    EXPECT_EQ(session.BandGrids(10), 0);
    EXPECT_EQ(session.BandQSOs(13), 1);
    EXPECT_EQ(session.BandGrids(13), 1);
    EXPECT_EQ(session.BandQSOs(3), 0);
    EXPECT_EQ(session.DupeCount, 0);
}

TEST(Tally, CountsADupeOnNoBandEvenWithAMark) {
    Session session;
    fillLog(session, {lineOf({.mark = "1-144"}), lineOf({.points = "0"}),
                      lineOf({.mark = "2-144", .points = "0"}), lineOf({.points = "10"})});
    countAll(session);
    EXPECT_EQ(session.BandQSOs(2), 2);
    EXPECT_EQ(session.BandGrids(2), 1);
    EXPECT_EQ(session.DupeCount, 2);
}

TEST(Tally, CountsADupeWhateverItsBand) {
    Session session;
    fillLog(session, {lineOf({.band = "70", .points = "0"}), lineOf({.band = "5760", .points = "0"})});
    countAll(session);
    EXPECT_EQ(session.DupeCount, 2);
    for (int band = 1; band <= 13; ++band) EXPECT_EQ(session.BandQSOs(band), 0);
}

TEST(Tally, CountsALineOfAnUnknownBandNowhere) {
    Session session;
    fillLog(session, {lineOf({.band = "70", .mark = "1-70"}), lineOf({.band = "LASER"}), "", "x"});
    countAll(session);
    for (int band = 0; band <= 14; ++band) {
        EXPECT_EQ(session.BandQSOs(band), 0) << band;
        EXPECT_EQ(session.BandGrids(band), 0) << band;
        EXPECT_FALSE(session.BandWorked(band)) << band;
    }
    EXPECT_EQ(session.DupeCount, 0);
}

TEST(Tally, MarksABandAsWorkedByAnyLineOfIt) {
    Session session;
    fillLog(session, {lineOf({.band = "432", .points = "0"}), lineOf({.band = "Laser"})});
    markBandsWorked(session);
    for (int band = 1; band <= 13; ++band) {
        EXPECT_EQ(session.BandWorked(band), band == 4 || band == 13) << band;
    }
}

TEST(Tally, NeverTakesAWorkedMarkAway) {
    Session session;
    session.BandWorked(5) = true;
    fillLog(session, {});
    markBandsWorked(session);
    EXPECT_TRUE(session.BandWorked(5));
}

TEST(Tally, LooksAtNoLineBeyondTheCount) {
    Session session;
    fillLog(session, {lineOf({}), lineOf({.band = "50"}), lineOf({.band = "222", .points = "0"})});
    session.LogLineCount = 3;
    countAll(session);
    EXPECT_EQ(session.BandQSOs(2), 1);
    EXPECT_EQ(session.BandQSOs(1), 0);
    EXPECT_FALSE(session.BandWorked(1));
    EXPECT_FALSE(session.BandWorked(3));
    EXPECT_EQ(session.DupeCount, 0);
}

TEST(Tally, CountsAnewWhatWasCountedBefore) {
    Session session;
    fillLog(session, {lineOf({.mark = "1-144"}), lineOf({.points = "0"})});
    countAll(session);
    countAll(session);
    EXPECT_EQ(session.BandQSOs(2), 1);
    EXPECT_EQ(session.BandGrids(2), 1);
    EXPECT_EQ(session.DupeCount, 1);
}

TEST(Tally, CountsOnlyBandsThatAreMarkedAsWorked) {
    Session session;
    fillLog(session, {lineOf({.mark = "1-144"})});
    countLines(session);
    EXPECT_EQ(session.BandQSOs(2), 0);
    EXPECT_EQ(session.BandGrids(2), 0);
}

TEST(Tally, PutsBackWhatAnAcceptHasChanged) {
    Session session;
    session.LogLineCount = 7;
    session.GridTotal = 3;
    session.BandQSOs(2) = 4;
    session.BandGrids(2) = 3;
    session.QSOPoints = "1";
    session.NewGridMark = "3-144";
    session.DupeAccepted = true;
    session.GridEntered = true;
    const CountsBefore before(session);
    session.LogLineCount = 8;
    session.GridTotal = 4;
    session.BandQSOs(2) = 5;
    session.BandGrids(2) = 4;
    session.QSOPoints = "0";
    session.NewGridMark = "4-144";
    session.DupeAccepted = false;
    session.GridEntered = false;
    before.putBack(session);
    EXPECT_EQ(session.LogLineCount, 7);
    EXPECT_EQ(session.GridTotal, 3);
    EXPECT_EQ(session.BandQSOs(2), 4);
    EXPECT_EQ(session.BandGrids(2), 3);
    EXPECT_EQ(session.QSOPoints, "1");
    EXPECT_EQ(session.NewGridMark, "3-144");
    EXPECT_TRUE(session.DupeAccepted);
    EXPECT_TRUE(session.GridEntered);
}

}  // namespace
