// SPDX-License-Identifier: MIT
#include "bandsw/band_change.h"

#include <gtest/gtest.h>

namespace {

TEST(BandKeys, StepUpThroughTenBandsAndWrap) {
    for (int band = 1; band <= 9; ++band) EXPECT_EQ(bandAfter(band, false), band + 1);
    EXPECT_EQ(bandAfter(10, false), 1);
    for (int band = 11; band <= 13; ++band) EXPECT_EQ(bandAfter(band, false), 1) << band;
    EXPECT_EQ(bandAfter(0, false), 1);
}

TEST(BandKeys, StepDownThroughTenBandsAndWrap) {
    for (int band = 2; band <= 10; ++band) EXPECT_EQ(bandBefore(band, false), band - 1);
    EXPECT_EQ(bandBefore(1, false), 10);
    EXPECT_EQ(bandBefore(0, false), 10);
}

TEST(BandKeys, ComeDownFromTheHighestBandsOneByOne) {
    EXPECT_EQ(bandBefore(13, false), 12);
    EXPECT_EQ(bandBefore(12, false), 11);
    EXPECT_EQ(bandBefore(11, false), 10);
    EXPECT_EQ(bandBefore(13, true), 12);
    EXPECT_EQ(bandBefore(12, true), 11);
}

TEST(BandKeys, StayFromTwoTwentyTwoOnInTheUhfContest) {
    for (int band = 3; band <= 9; ++band) EXPECT_EQ(bandAfter(band, true), band + 1);
    for (int band = 10; band <= 13; ++band) EXPECT_EQ(bandAfter(band, true), 3) << band;
    for (int band = 4; band <= 10; ++band) EXPECT_EQ(bandBefore(band, true), band - 1);
    for (int band = 0; band <= 3; ++band) EXPECT_EQ(bandBefore(band, true), 10) << band;
}

}  // namespace
