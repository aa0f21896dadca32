// SPDX-License-Identifier: MIT
#include "grid/km_lookup.h"

#include <gtest/gtest.h>

TEST(KmLookup, TheFirstLineOfTheBandGivesItsLastTwoCharacters) {
    EXPECT_EQ(pointsInList("144  one  3\r\n144  two  4\r\n", "144", 0), 3);
    EXPECT_EQ(pointsInList("1.2  x 12\r\n", "1.2", 0), 12);
}

TEST(KmLookup, TheKeyIsTheFirstFiveColumnsTrimmed) {
    EXPECT_EQ(pointsInList(" 144  x 7\r\n", "144", 2), 7);
    EXPECT_EQ(pointsInList("144x  x 7\r\n", "144", 2), 2);
}

TEST(KmLookup, PointsStayWithoutALineAndAreNeverBelowOne) {
    EXPECT_EQ(pointsInList("", "144", 5), 5);
    EXPECT_EQ(pointsInList("", "144", 0), 1);
    EXPECT_EQ(pointsInList("144  x 0\r\n", "144", 9), 1);
}

TEST(KmLookup, TheMicrowaveBandsHaveShortForms) {
    EXPECT_EQ(shortBandForPoints("1296"), "1.2");
    EXPECT_EQ(shortBandForPoints("2304"), "2.3");
    EXPECT_EQ(shortBandForPoints("3456"), "3.4");
    EXPECT_EQ(shortBandForPoints("5760"), "5.7");
    EXPECT_EQ(shortBandForPoints("10368"), "10");
    EXPECT_EQ(shortBandForPoints("24000"), "24");
    EXPECT_EQ(shortBandForPoints("47000"), "47");
    EXPECT_EQ(shortBandForPoints("903"), "903");
    EXPECT_EQ(shortBandForPoints("Laser"), "Laser");
}
