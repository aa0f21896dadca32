// SPDX-License-Identifier: MIT
#include "lookup/master_file.h"

#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <vector>

#include "base/text.h"
#include "shell/headless/headless_machine.h"
#include "shell/linux/posix_files.h"
#include "support/temp_folder.h"

namespace {

using Rows = std::vector<std::string>;

/// A station's line: "<CALL:n>" fills columns 1 to 8, the call begins at column 9.
std::string stationOf(const std::string& call, const std::string& grid) {
    return "<CALL:" + std::to_string(call.size()) + ">" + call +
           ",<GRIDSQUARE:" + std::to_string(grid.size()) + ">" + grid + ",<EOR>\r\n";
}

const std::string kHead = "W1XYZ IN THE HEADER\r\n<EOH>\r\n";

/// What the master file of a folder is read as.
std::string contentRead(const TempFolder& folder) {
    PosixFiles disk(folder.path());
    std::ostringstream out;
    HeadlessMachine machine(disk, out);
    Station station(machine.platform);
    station.ControlValues(setting::MasterFile) = "tqn4k.adi";
    return master::content(station);
}

TEST(MasterFile, IsReadInUpperCaseWhateverItsLength) {
    const TempFolder folder;
    const std::string mixed = "w1xyz@[`{09~,<gridsquare:6>fn31pr\xE9\xFF\r\nabcdefghijklmnopqrstuvwxyz\x9A";
    const std::string upper = "W1XYZ@[`{09~,<GRIDSQUARE:6>FN31PR\xC9\x9F\r\nABCDEFGHIJKLMNOPQRSTUVWXYZ\x8A";
    for (std::size_t length = 0; length <= mixed.size(); ++length) {
        folder.write("tqn4k.adi", mixed.substr(0, length));
        EXPECT_EQ(contentRead(folder), upper.substr(0, length));
    }
}

TEST(MasterFile, IsReadInUpperCaseWithEachCharacterAtEachPlace) {
    const TempFolder folder;
    std::string mixed, upper;
    for (std::size_t place = 0; place < 8; ++place) {
        for (int code = 0; code < 256; ++code) {
            std::string eight = "aZz@[`{\x7F";
            eight[place] = static_cast<char>(code);
            mixed += eight;
            for (const char c : eight) upper += text::upper(c);
        }
    }
    folder.write("tqn4k.adi", mixed);
    EXPECT_EQ(contentRead(folder), upper);
}

TEST(MasterFile, ThatIsMissingIsEmpty) { EXPECT_EQ(contentRead(TempFolder()), ""); }

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
