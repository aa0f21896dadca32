// SPDX-License-Identifier: MIT
#include "grid/km_lookup.h"

#include <gtest/gtest.h>

#include "support/played_station.h"

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

namespace {

constexpr const char* kFile = "ARAM-bandas-km.dat";

class KmLookupFile : public testing::Test {
protected:
    KmLookupFile() : files_(folder.path()) {}
    int pointsOf(std::string& band, int points) {
        fromKmLookUp(played_.station(), band, points);
        return points;
    }
    TempFolder folder;

private:
    PosixFiles files_;
    PlayedStation played_{files_};
};

}  // namespace

TEST_F(KmLookupFile, ComesIntoBeingEmptyWhereItIsMissing) {
    ASSERT_FALSE(folder.has(kFile));
    std::string band = "144";
    EXPECT_EQ(pointsOf(band, 4), 4);
    EXPECT_EQ(contentOf(folder, kFile), "");
    EXPECT_TRUE(folder.has(kFile));
}

TEST_F(KmLookupFile, IsLookedUpByTheShortFormWhichTheCallerKeeps) {
    const std::string content = "1296   3\r\n1.2    7\r\n144    2\r\n";
    folder.write(kFile, content);
    std::string band = "1296";
    EXPECT_EQ(pointsOf(band, 4), 7);
    EXPECT_EQ(band, "1.2");
    band = "144";
    EXPECT_EQ(pointsOf(band, 4), 2);
    EXPECT_EQ(band, "144");
    EXPECT_EQ(folder.read(kFile), content);
}

TEST_F(KmLookupFile, GivesOnePointAtLeast) {
    folder.write(kFile, "144    0\r\n");
    std::string band = "144", other = "432";
    EXPECT_EQ(pointsOf(band, 4), 1);
    EXPECT_EQ(pointsOf(other, -3), 1);
}
