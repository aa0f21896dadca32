// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "core/dupe_check.h"
#include "core/sample_log.h"
#include "core/search.h"

namespace {

using sample::fillLog;
using sample::lineOf;

Session logOf(const std::vector<std::string>& lines) {
    Session session;
    fillLog(session, lines);
    return session;
}

std::string rowText(const Table<std::string, 0, 2>& row) { return row(0) + "|" + row(1) + "|" + row(2); }

TEST(DupeCheck, SameCallOnTheSameBandIsADupe) {
    Session session = logOf(
        {lineOf({.call = "K1AA"}), lineOf({.time = "1502", .date = "01/20/07"}), lineOf({.call = "K1AB"})});
    const Dupe dupe = scanLog(session, "W1XYZ", "144");
    EXPECT_EQ(dupe.line, 4);
    EXPECT_EQ(dupe.time, "1502");
    EXPECT_EQ(dupe.date, "01/20/07");
    EXPECT_EQ(session.MatchCount, 1);
}

TEST(DupeCheck, SameCallOnAnotherBandIsNoDupe) {
    Session session = logOf({lineOf({.band = "50"}), lineOf({.band = "1296"})});
    EXPECT_EQ(scanLog(session, "W1XYZ", "144").line, 0);
    EXPECT_EQ(session.MatchCount, 2);
}

TEST(DupeCheck, AnotherCallIsNoDupe) {
    Session session = logOf({lineOf({.call = "W1XYZ/R"}), lineOf({.call = "W1XY"}),
                             lineOf({.call = "AW1XYZ"}), lineOf({.call = "w1xyz"}), lineOf({.call = ""})});
    EXPECT_EQ(scanLog(session, "W1XYZ", "144").line, 0);
    EXPECT_EQ(session.MatchCount, 0);
}

TEST(DupeCheck, NeedsTheBandLabelAsItStands) {
    Session session = logOf({lineOf({.band = "Laser"}), lineOf({.band = "1296"})});
    EXPECT_EQ(scanLog(session, "W1XYZ", "LASER").line, 0);
    EXPECT_EQ(scanLog(session, "W1XYZ", "12").line, 0);
    EXPECT_EQ(scanLog(session, "W1XYZ", "Laser").line, 3);
}

TEST(DupeCheck, TheLastOfSeveralLinesGivesTheMoment) {
    Session session =
        logOf({lineOf({.time = "1400"}), lineOf({.band = "50", .time = "1410"}),
               lineOf({.time = "1420", .date = "01/21/07"}), lineOf({.band = "50", .time = "1430"})});
    const Dupe dupe = scanLog(session, "W1XYZ", "144");
    EXPECT_EQ(dupe.line, 5);
    EXPECT_EQ(dupe.time, "1420");
    EXPECT_EQ(dupe.date, "01/21/07");
}

TEST(DupeCheck, ALineLoggedAsADupeCountsAsAnEarlierQso) {
    Session session = logOf({lineOf({.points = "0"})});
    EXPECT_EQ(scanLog(session, "W1XYZ", "144").line, 3);
}

TEST(DupeCheck, LooksAtNeitherTheHeadersNorLinesBeyondTheCount) {
    Session session = logOf({lineOf({.band = "50"}), lineOf({})});
    session.LogLines(1) = lineOf({});
    session.LogLines(2) = lineOf({});
    session.LogLineCount = 3;
    EXPECT_EQ(scanLog(session, "W1XYZ", "144").line, 0);
    EXPECT_EQ(session.MatchCount, 1);
}

TEST(DupeCheck, ReadsTwelveColumnsOfACall) {
    Session session = logOf({lineOf({.call = "ABCDEFGHIJK1"}), lineOf({.call = "ABCDEFGHIJK1X"})});
    EXPECT_EQ(scanLog(session, "ABCDEFGHIJK1", "144").line, 4);
    EXPECT_EQ(session.MatchCount, 2);
    // A call beyond twelve characters is never read back from a line.
    EXPECT_EQ(scanLog(session, "ABCDEFGHIJK1X", "144").line, 0);
    EXPECT_EQ(session.MatchCount, 0);
}

TEST(DupeCheck, ReadsACallWithoutTheBlanksAround) {
    Session session = logOf({lineOf({.call = "  W1XYZ"}), lineOf({.call = " W1XYZA"}), "", "144"});
    EXPECT_EQ(scanLog(session, "W1XYZ", "144").line, 3);
    EXPECT_EQ(session.MatchCount, 1);
    scanLog(session, "", "144");
    EXPECT_EQ(session.MatchCount, 2);
}

TEST(DupeCheck, KeepsTheMatchesInLogOrder) {
    Session session =
        logOf({lineOf({.band = "432", .grid = "FN31"}), lineOf({.call = "K1AA"}),
               lineOf({.band = "Laser", .grid = "EM12ab"}), lineOf({.band = "50", .grid = "FM"})});
    scanLog(session, "W1XYZ", "144");
    ASSERT_EQ(session.MatchCount, 3);
    EXPECT_EQ(session.MatchBand(1), "432");
    EXPECT_EQ(session.MatchBand(2), "Laser");
    EXPECT_EQ(session.MatchBand(3), "50");
    EXPECT_EQ(rowText(session.MatchList(1)), "432|W1XYZ|FN31");
    EXPECT_EQ(rowText(session.MatchList(2)), "Laser|W1XYZ|EM12");
    EXPECT_EQ(session.MatchList(3)(0), "50");
}

TEST(DupeCheck, StartsEachScanWithoutMatches) {
    Session session = logOf({lineOf({})});
    scanLog(session, "W1XYZ", "144");
    scanLog(session, "K1AA", "144");
    EXPECT_EQ(session.MatchCount, 0);
}

Session logOfManyMatches(int count, const std::string& lastBand) {
    std::vector<std::string> lines;
    for (int number = 1; number < count; ++number) lines.push_back(lineOf({.band = "50"}));
    lines.push_back(lineOf({.band = lastBand, .grid = "EM99", .time = "2222"}));
    return logOf(lines);
}

TEST(DupeCheck, HoldsThirtyMatches) {
    Session session = logOfManyMatches(30, "144");
    scanLog(session, "W1XYZ", "144");
    EXPECT_EQ(session.MatchCount, 30);
    EXPECT_EQ(session.MatchBand(29), "50");
    EXPECT_EQ(rowText(session.MatchList(29)), "50|W1XYZ|FN31");
    EXPECT_EQ(rowText(session.MatchList(30)), "144|W1XYZ|EM99");
}

TEST(DupeCheck, TheThirtyFirstMatchReplacesTheThirtieth) {
    Session session = logOfManyMatches(31, "144");
    const Dupe dupe = scanLog(session, "W1XYZ", "144");
    EXPECT_EQ(session.MatchCount, 30);
    EXPECT_EQ(session.MatchBand(30), "144");
    EXPECT_EQ(rowText(session.MatchList(30)), "144|W1XYZ|EM99");
    EXPECT_EQ(rowText(session.MatchList(29)), "50|W1XYZ|FN31");
    EXPECT_EQ(dupe.line, 33);
    EXPECT_EQ(dupe.time, "2222");
}

TEST(DupeCheck, SeesADupeAmongFortyMatches) {
    std::vector<std::string> lines(40, lineOf({.band = "50"}));
    lines[34] = lineOf({.band = "222"});
    Session session = logOf(lines);
    EXPECT_EQ(scanLog(session, "W1XYZ", "222").line, 37);
}

TEST(SortedMatches, StandInTheOrderOfTheBands) {
    const std::vector<std::string> bands{"Laser", "47000", "24000", "10368", "5760", "3456", "2304",
                                         "1296",  "903",   "432",   "222",   "144",  "50"};
    std::vector<std::string> lines;
    for (const std::string& band : bands) lines.push_back(lineOf({.band = band}));
    Session session = logOf(lines);
    scanLog(session, "W1XYZ", "144");
    sortMatches(session);
    const std::vector<std::string> sorted{"50",   "144",  "222",   "432",   "903",   "1296", "2304",
                                          "3456", "5760", "10368", "24000", "47000", "Laser"};
    for (int row = 1; row <= 13; ++row) {
        EXPECT_EQ(session.MatchSorted(row)(0), sorted[static_cast<std::size_t>(row - 1)]) << row;
        EXPECT_EQ(session.MatchSorted(row)(1), "W1XYZ");
    }
}

TEST(SortedMatches, KeepTheLogOrderWithinABand) {
    Session session = logOf({lineOf({.band = "144", .grid = "FN11"}), lineOf({.band = "50", .grid = "FN22"}),
                             lineOf({.band = "144", .grid = "FN33"}), lineOf({.band = "50", .grid = "FN44"}),
                             lineOf({.band = "144", .grid = "FN55"})});
    scanLog(session, "W1XYZ", "144");
    sortMatches(session);
    const std::vector<std::string> rows{"50|W1XYZ|FN22", "50|W1XYZ|FN44", "144|W1XYZ|FN11", "144|W1XYZ|FN33",
                                        "144|W1XYZ|FN55"};
    for (int row = 1; row <= 5; ++row) {
        EXPECT_EQ(rowText(session.MatchSorted(row)), rows[static_cast<std::size_t>(row - 1)]);
    }
}

TEST(SortedMatches, HoldThirtyOfOneBand) {
    Session session = logOfManyMatches(31, "50");
    scanLog(session, "W1XYZ", "50");
    sortMatches(session);
    EXPECT_EQ(rowText(session.MatchSorted(1)), "50|W1XYZ|FN31");
    EXPECT_EQ(rowText(session.MatchSorted(30)), "50|W1XYZ|EM99");
}

TEST(SortedMatches, TakeLaserOnce) {
    Session session = logOf({lineOf({.band = "Laser"}), lineOf({.band = "50"})});
    scanLog(session, "W1XYZ", "144");
    sortMatches(session);
    EXPECT_EQ(session.MatchSorted(1)(0), "50");
    EXPECT_EQ(session.MatchSorted(2)(0), "Laser");
    EXPECT_EQ(session.MatchSorted(3)(0), "");
}

TEST(DupePrompt, TellsWhereAndWhenTheStationWasWorked) {
    const Dupe dupe{7, "01/20/07", "1502"};
    EXPECT_EQ(dupeText("W1XYZ", "144", dupe),
              "W1XYZ Dupe for 144 MHz at 1502 on 01/20/07\r\n\r\n"
              "Accept QSO ?   [TAB] over to < YES > to:\r\n\r\n"
              "Log it as a dupe, QSO not counted, zero points.");
    EXPECT_EQ(dupeText("W1XYZ/R", "50", dupe),
              "W1XYZ/R Dupe for 50 MHz at 1502 on 01/20/07\r\n\r\n"
              "Accept QSO ?   [TAB] over to < YES > to:\r\n\r\n"
              "Log as new rover Q by entering a new grid.");
    EXPECT_EQ(dupeText("W1XYZ/M", "Laser", dupe),
              "W1XYZ/M Dupe for Laser MHz at 1502 on 01/20/07\r\n\r\n"
              "Accept QSO ?   [TAB] over to < YES > to:\r\n\r\n"
              "Log as new mobile Q by entering a new grid.");
}

TEST(DupePrompt, TitleTellsWhatTheStationIs) {
    EXPECT_EQ(dupeTitle("W1XYZ"), " Dupe QSO ?");
    EXPECT_EQ(dupeTitle("W1XYZ/P"), " Dupe QSO ?");
    EXPECT_EQ(dupeTitle("W1XYZ/R"), " Rover QSO");
    EXPECT_EQ(dupeTitle("W1XYZ/M"), " Mobile QSO");
}

TEST(SearchRow, OfAQsoTellsItsSquare) {
    EXPECT_EQ(searchRow(lineOf({.grid = "FN31pr", .time = "1435", .date = "01/22/07"})),
              "W1XYZ  FN31 on 144 -- 01/22 at 1435");
    EXPECT_EQ(searchRow(lineOf({.band = "10368", .call = "K3ABC/R", .points = "10"})),
              "K3ABC/R  FN31 on 10368 -- 01/22 at 1435");
}

TEST(SearchRow, OfADupeTellsThatItHasNoPoints) {
    EXPECT_EQ(searchRow(lineOf({.mark = "1-144", .points = "0"})),
              "W1XYZ on 144 -- 01/22 at 1435 dupe, 0 pts.");
}

TEST(SearchRow, OfALineCutShortHasEmptyFields) {
    EXPECT_EQ(searchRow(""), "   on  --  at ");
    EXPECT_EQ(searchRow("144   PH  01/22/07"), "   on 144 -- 01/22 at ");
}

}  // namespace
