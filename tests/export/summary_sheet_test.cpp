// SPDX-License-Identifier: MIT
#include "export/summary_sheet.h"

#include <gtest/gtest.h>

#include <vector>

#include "base/text.h"
#include "core/sample_log.h"
#include "export/sample_station.h"

using namespace exporting;

namespace {

struct BandSums {
    int band, qsos, points, qsoPoints, grids, score;
};

Session sessionOf(const std::string& number, const std::vector<BandSums>& bands) {
    Session session;
    sample::fillLog(session, {});
    session.ContestNumber = number;
    session.ContestName = "2007 ARRL June QSO Party";
    int points = 0, grids = 0;
    for (const BandSums& sums : bands) {
        session.BandWorked(sums.band) = true;
        session.BandQSOs(sums.band) = sums.qsos;
        session.BandPoints(sums.band) = sums.points;
        session.BandQSOPoints(sums.band) = sums.qsoPoints;
        session.BandGrids(sums.band) = sums.grids;
        session.BandScore(sums.band) = sums.score;
        points += sums.qsoPoints;
        grids += sums.grids;
    }
    session.TotalQSOPoints = points;
    session.GridTotal = grids;
    session.TotalScore = static_cast<float>(points * grids);
    return session;
}

constexpr const char* kHead =
    "    2007 ARRL June QSO Party                     K3ABC       FN20\r\n"
    "\r\n";
constexpr const char* kEntry =
    "    SINGLE-OP ALL LOW                              EPA Section\r\n"
    "\r\n"
    "\r\n";
constexpr const char* kColumns =
    "    Band       QSOs X pt =  QSO pts.  X   Grids   =     Points\r\n"
    "    ---------------------------------------------------------------\r\n";
constexpr const char* kRule = "    ---------------------------------------------------------------\r\n";
constexpr const char* kDeclaration =
    "\r\n"
    "    Club participation ?    Yes  No\r\n"
    "    ARRL Affiliated Club: Warminster ARC\r\n"
    "\r\n"
    "     I have observed all contest rules, as well as all regulations\r\n"
    "    established for Amateur Radio in my country. This report is true\r\n"
    "    and accurate to the best of my knowledge. I agree to be bound by\r\n"
    "    the decisions of the Awards Committee.\r\n"
    "\r\n"
    "                 Date: 06/11/07  Call:  K3ABC\r\n"
    "\r\n"
    "                   Pat Operator\r\n"
    "                   1 Hill Road\r\n"
    "                   Town, PA 19000\r\n";

/// The sheet between the contest's line and the heads of the columns.
std::string entryPart(const Personal& data) {
    const std::string sheet = summarySheet(sessionOf("2", {}), data, "06/11/07");
    const std::size_t start = sheet.find("\r\n") + 2;
    return sheet.substr(start, sheet.find("    Band ") - start);
}

}  // namespace

TEST(SummarySheet, HasABandALineAndTheirTotals) {
    const Session session = sessionOf("2", {{1, 10, 1, 10, 5, 50}, {6, 2, 3, 6, 2, 12}});
    EXPECT_EQ(summarySheet(session, sampleStation(), "06/11/07"),
              std::string(kHead) + kEntry + kColumns +
                  "    50         10     1      10            5             50 \r\n"
                  "    1296       2      3      6             2             12 \r\n" +
                  kRule +
                  "    TOTALS     12            16            7             112 \r\n"
                  "\r\n"
                  "                           Claimed score =  112 \r\n" +
                  kDeclaration);
}

TEST(SummarySheet, OfContest19HasNeitherTotalsNorAClaimedScore) {
    const Session session = sessionOf("19", {{5, 3, 1, 3, 2, 6}});
    EXPECT_EQ(summarySheet(session, sampleStation(), "06/11/07"),
              std::string(kHead) + kEntry + kColumns +
                  "    903        3      1      3             2             6 \r\n" + kRule + "\r\n" +
                  kDeclaration);
}

TEST(SummarySheet, OfNothingWorkedIsAllNoughts) {
    EXPECT_EQ(summarySheet(sessionOf("2", {}), sampleStation(), "06/11/07"),
              std::string(kHead) + kEntry + kColumns + kRule +
                  "    TOTALS     0             0             0             0 \r\n"
                  "\r\n"
                  "                           Claimed score =  0 \r\n" +
                  kDeclaration);
}

TEST(SummarySheet, HoldsTheBandsThatAreMarkedAsWorkedAlone) {
    Session session = sessionOf("2", {{13, 0, 4, 0, 0, 0}});
    session.BandQSOs(12) = 5;
    const std::string sheet = summarySheet(session, sampleStation(), "06/11/07");
    EXPECT_TRUE(text::contains(sheet, "    Laser      0      4      0             0             0 \r\n"))
        << sheet;
    EXPECT_FALSE(text::contains(sheet, "47000")) << sheet;
}

TEST(SummarySheet, ShowsLargeFiguresInPlainDigits) {
    const Session session = sessionOf("1", {{7, 2500, 8, 20000, 1000, 20000000}});
    const std::string sheet = summarySheet(session, sampleStation(), "06/11/07");
    EXPECT_TRUE(
        text::contains(sheet, "    2304       2500   8      20000         1000          20000000 \r\n"))
        << sheet;
    EXPECT_TRUE(text::contains(sheet, "Claimed score =  20000000 \r\n")) << sheet;
}

TEST(SummarySheet, CutsTheGridToItsSquare) {
    Personal data = sampleStation();
    data(personal::Grid) = "FN20";
    EXPECT_TRUE(text::startsWith(summarySheet(sessionOf("2", {}), data, "06/11/07"), kHead));
}

TEST(SummarySheet, NamesTheOperatorsOfAMultiOperatorEntry) {
    Personal data = sampleStation();
    data(personal::OperatorCategory) = "MULTI-OP";
    EXPECT_EQ(entryPart(data),
              "\r\n"
              "    MULTI-OP ALL LOW                              EPA Section\r\n"
              "\r\n"
              "    Operators:\r\n"
              "    W1AW K2DEF\r\n"
              "    N3GHI\r\n"
              "\r\n");
    data(personal::MoreOperators).clear();
    EXPECT_TRUE(text::endsWith(entryPart(data), "    Operators:\r\n    W1AW K2DEF\r\n\r\n"));
    data(personal::Operators).clear();
    EXPECT_TRUE(text::endsWith(entryPart(data), "    Operators:\r\n\r\n"));
}

TEST(SummarySheet, NamesTheClubBehindItsOwnCall) {
    Personal data = sampleStation();
    data(personal::Call) = "SIGRAINI";
    EXPECT_FALSE(text::contains(entryPart(data), "Praituna")) << "a single operator is no club";
    data(personal::OperatorCategory) = "multi-op";
    EXPECT_TRUE(text::startsWith(entryPart(data),
                                 "\r\n"
                                 "                   Praituna VHF Radio Club\r\n"
                                 "\r\n"
                                 "    multi-op ALL LOW"))
        << entryPart(data);
    data(personal::Call) = "K3ABC";
    EXPECT_FALSE(text::contains(entryPart(data), "Praituna"));
}

TEST(SummarySheet, IsNotRequiredWhereTheLeagueWantsACabrilloFile) {
    for (int number = 1; number <= 31; ++number)
        EXPECT_EQ(summaryNotRequired(number), number <= 11 || number == 13) << number;
}
