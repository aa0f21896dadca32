// SPDX-License-Identifier: MIT
#include "bandsw/band_code.h"

#include <gtest/gtest.h>

namespace {

struct Case {
    const char* band;
    int from50, from144;
};

}  // namespace

TEST(BandCode, OfEveryBandFromBothStarts) {
    for (const Case& c :
         {Case{"50", 3, 0}, Case{"144", 32, 3}, Case{"222", 33, 32}, Case{"432", 64, 33}, Case{"903", 65, 64},
          Case{"1296", 96, 65}, Case{"2304", 97, 96}, Case{"3456", 128, 97}, Case{"5760", 129, 128},
          Case{"10368", 160, 129}, Case{"24000", 161, 160}, Case{"47000", 192, 161}, Case{"76000", 0, 192},
          Case{"Laser", 192, 192}, Case{"laser", 0, 0}, Case{"", 0, 0}, Case{"70", 0, 0}}) {
        EXPECT_EQ(bandCode(c.band, false), c.from50) << c.band;
        EXPECT_EQ(bandCode(c.band, true), c.from144) << c.band;
    }
}

TEST(BandCode, TheTestIsOf222) {
    EXPECT_EQ(testCode(true), 32);
    EXPECT_EQ(testCode(false), 33);
}
