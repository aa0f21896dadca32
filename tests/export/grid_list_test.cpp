// SPDX-License-Identifier: MIT
#include "export/grid_list.h"

#include <gtest/gtest.h>

#include <vector>

#include "base/text.h"
#include "core/sample_log.h"
#include "core/tally.h"

using namespace exporting;

namespace {

Session sessionOf(const std::string& number, const std::vector<sample::Line>& lines) {
    Session session;
    std::vector<std::string> texts;
    for (const sample::Line& line : lines) texts.push_back(sample::lineOf(line));
    sample::fillLog(session, texts);
    session.ContestNumber = number;
    session.ContestName = "2007 ARRL Jan. VHF Sweepstakes";
    markBandsWorked(session);
    countLines(session);
    return session;
}

std::string listOf(const Session& session) {
    std::string file;
    addGridList(file, session, "K3ABC");
    return file;
}

constexpr const char* kHead = "    2007 ARRL Jan. VHF Sweepstakes     K3ABC       Grids worked\r\n\r\n";

/// A grid of its own for each number below 1000.
std::string gridOf(int number) {
    return std::string("F") + static_cast<char>('A' + number / 100) +
           static_cast<char>('0' + number / 10 % 10) + static_cast<char>('0' + number % 10);
}

}  // namespace

TEST(GridList, HoldsTheMarkedLinesOfEachBand) {
    const Session session = sessionOf("1", {{"144", "W1XYZ", "FN31pr", "1-144", "1"},
                                            {"50", "K2DEF", "FN21", "1-50", "1"},
                                            {"144", "W1ABC/R", "FN31", "", "1"},
                                            {"144", "N3GHIJKL/QRP", "EM12", "2-144", "1"},
                                            {"144", "W1XYZ", "FN31pr", "", "0"}});
    EXPECT_EQ(listOf(session), std::string(kHead) +
                                   "\r\n"
                                   "    50 MHz       Grid              # New Grids\r\n"
                                   "\r\n"
                                   "    K2DEF        FN21 . . . . . . .  1-50\r\n"
                                   "\r\n"
                                   "    Total QSOs =  1        Grids =   1 \r\n"
                                   "\r\n"
                                   "\r\n"
                                   "    144 MHz      Grid              # New Grids\r\n"
                                   "\r\n"
                                   "    W1XYZ        FN31 . . . . . . .  1-144\r\n"
                                   "    N3GHIJKL/QRP EM12 . . . . . . .  2-144\r\n"
                                   "\r\n"
                                   "    Total QSOs =  3        Grids =   2 \r\n"
                                   "\r\n");
}

TEST(GridList, OfALaserBandIsHeadedByItsLabel) {
    const std::string list = listOf(sessionOf("1", {{"Laser", "W1XYZ", "FN31", "1-Laser", "8"}}));
    EXPECT_TRUE(text::contains(list, "\r\n    Laser MHz    Grid              # New Grids\r\n")) << list;
    EXPECT_TRUE(text::contains(list, " . . . . . . .  1-Laser\r\n")) << list;
}

TEST(GridList, OfALogWithoutQsosIsItsHeadAlone) {
    EXPECT_EQ(listOf(sessionOf("1", {})), kHead);
    EXPECT_EQ(listOf(sessionOf("21", {})), kHead);
}

TEST(GridList, ByDistanceIsMadeFromTheLogAndCountsAcrossTheBands) {
    const Session session = sessionOf("25", {{"903", "W1XYZ", "FN31pr", "", "100"},
                                             {"903", "K2DEF", "FN31", "", "100"},
                                             {"903", "K2DEF", "FN21", "", "0"},
                                             {"1296", "W1XYZ", "FN31pr", "", "100"}});
    EXPECT_EQ(listOf(session), std::string(kHead) +
                                   "\r\n"
                                   "    903 MHz      Grid\r\n"
                                   "\r\n"
                                   "    W1XYZ        FN31 . . . . . . . 1 \r\n"
                                   "    K2DEF        FN21 . . . . . . . 2 \r\n"
                                   "\r\n"
                                   "     Total QSOs = 3         Grids = 2 \r\n"
                                   "\r\n"
                                   "\r\n"
                                   "    1296 MHz     Grid\r\n"
                                   "\r\n"
                                   "    W1XYZ        FN31 . . . . . . . 3 \r\n"
                                   "\r\n"
                                   "     Total QSOs = 1         Grids = 1 \r\n"
                                   "\r\n");
}

TEST(GridList, IsMadeFromTheLogInContests21To25Alone) {
    for (int number = 1; number <= 31; ++number) {
        const std::string list = listOf(sessionOf(std::to_string(number), {{}}));
        EXPECT_EQ(text::contains(list, "# New Grids"), number < 21 || number > 25) << number;
    }
}

TEST(BandGridList, TakesFourHundredGridsAndFaultsAtTheNext) {
    BandGridList list;
    std::vector<std::string> lines;
    for (int number = 0; number <= 400; ++number)
        lines.push_back(sample::lineOf({"50", "W1XYZ", gridOf(number)}));
    for (int number = 0; number < 400; ++number) list.add(lines[static_cast<std::size_t>(number)]);
    list.add(lines[0]);
    EXPECT_EQ(list.grids(), 400);
    EXPECT_EQ(list.qsos(), 401);
    EXPECT_THROW(list.add(lines[400]), RunTimeError);
}

TEST(GridList, KeepsWhatCameBeforeAFault) {
    std::vector<sample::Line> lines{{"50", "K2DEF", "FN21"}};
    for (int number = 0; number <= 400; ++number) lines.push_back({"144", "W1XYZ", gridOf(number)});
    std::string file;
    EXPECT_THROW(addGridList(file, sessionOf("21", lines), "K3ABC"), RunTimeError);
    EXPECT_EQ(file, std::string(kHead) +
                        "\r\n"
                        "    50 MHz       Grid\r\n"
                        "\r\n"
                        "    K2DEF        FN21 . . . . . . . 1 \r\n"
                        "\r\n"
                        "     Total QSOs = 1         Grids = 1 \r\n"
                        "\r\n"
                        "\r\n"
                        "    144 MHz      Grid\r\n"
                        "\r\n");
}
