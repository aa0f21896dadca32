// SPDX-License-Identifier: MIT
#include "contest/scoring.h"

#include <gtest/gtest.h>

#include <limits>

#include "base/text.h"
#include "support/played_station.h"

namespace {

class Scoring : public testing::Test {
protected:
    Scoring() : files_(folder.path()) { folder.write("Name.dat", personalData()); }
    Session& session() { return station.station().session; }
    int pagesOf(int lines) {
        session().LogLineCount = lines;
        getPageTotals(station.station());
        return session().PageTotal;
    }
    TempFolder folder;

private:
    PosixFiles files_;

protected:
    PlayedStation station{files_};
};

TEST_F(Scoring, FiftyLinesBelowTheFirstHeaderMakeAPage) {
    EXPECT_EQ(pagesOf(0), 1);
    EXPECT_EQ(pagesOf(3), 1);
    EXPECT_EQ(pagesOf(51), 1);
    EXPECT_EQ(pagesOf(52), 2);
    EXPECT_EQ(pagesOf(101), 2);
    EXPECT_EQ(pagesOf(102), 3);
    EXPECT_EQ(pagesOf(1501), 30);
    EXPECT_EQ(pagesOf(1502), 31);
    EXPECT_EQ(pagesOf(1551), 31);
}

TEST_F(Scoring, BeyondThirtyOnePagesTheCountStaysAsItWas) {
    session().PageTotal = 7;
    EXPECT_EQ(pagesOf(1552), 7);
    EXPECT_EQ(pagesOf(2502), 7);
    EXPECT_EQ(pagesOf(1551), 31);
    EXPECT_EQ(pagesOf(1552), 31);
}

TEST_F(Scoring, AFaultInTheGridCountIsToldOnceAndTheQsoIsLoggedWithoutAMark) {
    constexpr int kMost = std::numeric_limits<std::int16_t>::max();
    ASSERT_TRUE(station.play(startOfNewLog("ARRL Jan. VHF Sweepstakes") +
                             "type w1xyz\nkey Space\ntype fn31\nkey Enter\n"))
        << station.reason();
    station.transcript();
    session().BandGrids(1) = kMost;
    ASSERT_TRUE(station.play("key Enter\n")) << station.reason();
    EXPECT_EQ(station.transcript(),
              "message \"Error in mult check...\" title \"\" icon none buttons OK default OK -> OK "
              "(unasked)\n");
    EXPECT_EQ(session().BandGrids(1), kMost);
    EXPECT_EQ(session().NewGridMark, "");
    EXPECT_EQ(session().LogLines(3), "50    PH  01/20/07  1435  W1XYZ        FN20jk FN31            1 ");
    EXPECT_TRUE(text::endsWith(folder.read("JAN.lgg"), std::string(session().LogLines(3)) + "\r\n"));
}

}  // namespace
