// SPDX-License-Identifier: MIT
#include "lookup/master_file.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using Rows = std::vector<std::string>;

/// A station's line: "<CALL:n>" fills columns 1 to 8, the call begins at column 9.
std::string stationOf(const std::string& call, const std::string& grid) {
    return "<CALL:" + std::to_string(call.size()) + ">" + call +
           ",<GRIDSQUARE:" + std::to_string(grid.size()) + ">" + grid + ",<EOR>\r\n";
}

const std::string kHead = "W1XYZ IN THE HEADER\r\n<EOH>\r\n";

TEST(MasterFile, GivesCallAndGridOfAHit) {
    const std::string content = kHead + stationOf("W1XYZ", "FN31PR") + stationOf("K3ABC", "FN20");
    EXPECT_EQ(master::callRows(content, "W1X"), (Rows{"W1XYZ          FN31PR"}));
    EXPECT_EQ(master::callRows(content, "FN20"), (Rows{"K3ABC          FN20"}));
    EXPECT_EQ(master::callRows(content, "ZZ9"), Rows{});
}

TEST(MasterFile, GivesTheHitsInTheOrderOfTheFileOnceEach) {
    const std::string content =
        kHead + stationOf("K1AK1A", "FN31") + stationOf("K1B", "FN32") + stationOf("K1AC", "FN33");
    EXPECT_EQ(master::callRows(content, "K1A"), (Rows{"K1AK1A         FN31", "K1AC           FN33"}));
}

TEST(MasterFile, PassesOverEverythingUpToTheEndOfItsHeader) {
    const std::string line = stationOf("W1XYZ", "FN31");
    EXPECT_EQ(master::callRows(line + "<EOH>\r\n", "W1XYZ"), Rows{});
    EXPECT_EQ(master::callRows(line, "W1XYZ"), Rows{});
    EXPECT_EQ(master::callRows(" <EOH>\r\n" + line, "W1XYZ"), Rows{});
    EXPECT_EQ(master::callRows("<EOH> \r\n" + line, "W1XYZ"), Rows{});
    EXPECT_EQ(master::callRows("A <EOH>\r\n<EOH>\r\n" + line, "W1XYZ").size(), 1u);
    EXPECT_EQ(master::callRows("<EOH>\n" + line, "W1XYZ").size(), 1u);
    EXPECT_EQ(master::callRows("", "W1XYZ"), Rows{});
}

TEST(MasterFile, LooksFromTheNinthColumnOn) {
    const std::string content = kHead + stationOf("W1XYZ", "FN31");
    EXPECT_EQ(master::callRows(content, "CALL"), Rows{});
    EXPECT_EQ(master::callRows(content, ">W1X"), Rows{});
    EXPECT_EQ(master::callRows(content, "W1X").size(), 1u);
    EXPECT_EQ(master::callRows(content, "EOR").size(), 1u);
}

TEST(MasterFile, LeavesOutALineWithoutAGridField) {
    EXPECT_EQ(master::callRows(kHead + "<CALL:5>W1XYZ,<NAME:3>JOE,<EOR>\r\n", "W1X"), Rows{});
}

TEST(MasterFile, ShowsTheCallAloneWhereNoGridFollows) {
    EXPECT_EQ(master::callRows(kHead + "<CALL:5>W1XYZ,<GRID:4>FN31,<EOR>\r\n", "W1X"), (Rows{"W1XYZ"}));
    // The mark of the grid counts from column 23 on alone.
    EXPECT_EQ(master::callRows(kHead + "<CALL:3>W1E:A,<GRID\r\n", "W1E"), (Rows{"W1E:A"}));
}

TEST(MasterFile, ReadsTheGridUpToTheNextComma) {
    EXPECT_EQ(master::callRows(kHead + "<CALL:5>W1XYZ,<GRIDSQUARE:6>FN31PR", "W1X"),
              (Rows{"W1XYZ          FN31PR"}));
    EXPECT_EQ(master::callRows(kHead + "<CALL:9>W1XYZ/ABC,<GRIDSQUARE:4>FN31 X,Y\r\n", "W1X"),
              (Rows{"W1XYZ/ABC      FN31 X"}));
}

TEST(MasterFile, CutsAPartialHitByTheLengthsInItsLine) {
    const std::string content = kHead + stationOf("W1XYZ", "FN31PR") + stationOf("K3ABC", "FN20");
    EXPECT_EQ(master::partialRows(content, "1XY"), (Rows{"W1XYZ     FN31PR"}));
    EXPECT_EQ(master::partialRows(content, "3A"), (Rows{"K3ABC     FN20"}));
    EXPECT_EQ(master::partialRows(kHead + "<CALL:3>W1XYZ,<GRIDSQUARE:2>FN31PR,\r\n", "W1"),
              (Rows{"W1X     FN"}));
}

TEST(MasterFile, LooksForAPartFromTheSeventhColumnOn) {
    const std::string content = kHead + stationOf("W1XYZ", "FN31");
    EXPECT_EQ(master::partialRows(content, "5>W").size(), 1u);
    EXPECT_EQ(master::partialRows(content, ":5>"), Rows{});
    EXPECT_EQ(master::partialRows(content, "CALL"), Rows{});
    EXPECT_EQ(master::partialRows(stationOf("W1XYZ", "FN31") + "<EOH>\r\n", "W1"), Rows{});
}

TEST(MasterFile, GivesAPartialHitWithoutAColonNoGrid) {
    EXPECT_EQ(master::partialRows(kHead + "<CALL:5>W1XYZ\r\n", "W1"), (Rows{"W1XYZ     "}));
    EXPECT_EQ(master::partialRows(kHead + "<CALL:X>W1XYZ\r\n", "W1"), (Rows{"     "}));
}

TEST(MasterFile, FindsTheFirstColonFromTheTwentiethColumnOn) {
    // Columns 19 and 20 hold colons: the second one leads the grid.
    EXPECT_EQ(master::partialRows(kHead + "<CALL:5>W1XYZABCDE::4>FN31\r\n", "W1"), (Rows{"W1XYZ     FN31"}));
}

}  // namespace
