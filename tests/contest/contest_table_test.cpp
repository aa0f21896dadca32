// SPDX-License-Identifier: MIT
#include "contest/contest_table.h"

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

namespace {

using contest::Family;

struct Row {
    int number;
    const char* name;
    Family family;
    int firstBand, lastBand, startBand;
};

const std::vector<Row> kRows{{1, "ARRL Jan. VHF Sweepstakes", Family::TopLevel, 1, 13, 1},
                             {2, "ARRL June QSO Party", Family::TopLevel, 1, 13, 1},
                             {3, "ARRL UHF Contest", Family::TopLevel, 3, 13, 3},
                             {4, "ARRL Sept. QSO Party", Family::TopLevel, 1, 13, 1},
                             {5, "ARRL 50 MHz Sprint", Family::ArrlSprints, 1, 1, 1},
                             {6, "ARRL 144 MHz Sprint", Family::ArrlSprints, 2, 2, 2},
                             {7, "ARRL 222 MHz Sprint", Family::ArrlSprints, 3, 3, 3},
                             {8, "ARRL 432 MHz Sprint", Family::ArrlSprints, 4, 4, 4},
                             {9, "ARRL 903 MHz Sprint", Family::None, 5, 5, 5},
                             {10, "ARRL 1296 MHz Sprint", Family::None, 6, 6, 6},
                             {11, "ARRL 2304 MHz Sprint", Family::None, 7, 7, 7},
                             {12, "903 and up Sprint", Family::GenericSprints, 0, 0, 5},
                             {13, "ARRL 903 1296 2304 MHz Sprints", Family::ArrlSprints, 5, 7, 5},
                             {14, "50 MHz Sprint", Family::GenericSprints, 1, 1, 1},
                             {15, "144 MHz Sprint", Family::GenericSprints, 2, 2, 2},
                             {16, "222 MHz Sprint", Family::GenericSprints, 3, 3, 3},
                             {17, "432 MHz Sprint", Family::GenericSprints, 4, 4, 4},
                             {18, "903 1296 2304 MHz Sprints", Family::None, 5, 7, 5},
                             {19, "903 to 5760 Sprints", Family::GenericSprints, 5, 9, 5},
                             {20, "RVHFG All Band Fall Sprint", Family::TopLevel, 1, 13, 1},
                             {21, "50 MHz Spring Sprint", Family::SpringSprints, 1, 1, 1},
                             {22, "144 MHz Spring Sprint", Family::SpringSprints, 2, 2, 2},
                             {23, "222 MHz Spring Sprint", Family::SpringSprints, 3, 3, 3},
                             {24, "432 MHz Spring Sprint", Family::SpringSprints, 4, 4, 4},
                             {25, "Microwave Spring Sprint", Family::SpringSprints, 5, 13, 5},
                             {26, "50 MHz Fall Sprint", Family::FallSprints, 1, 1, 1},
                             {27, "144 MHz Fall Sprint", Family::FallSprints, 2, 2, 2},
                             {28, "222 MHz Fall Sprint", Family::FallSprints, 3, 3, 3},
                             {29, "432 MHz Fall Sprint", Family::FallSprints, 4, 4, 4},
                             {30, "Microwave Fall Sprint", Family::FallSprints, 5, 13, 0},
                             {31, "CQ WW VHF Contest", Family::TopLevel, 1, 2, 1}};

TEST(ContestTable, HoldsThirtyOneContests) {
    ASSERT_EQ(kRows.size(), 31u);
    for (const Row& row : kRows) {
        const contest::Contest* const entry = contest::contestOf(row.number);
        ASSERT_NE(entry, nullptr) << row.number;
        EXPECT_EQ(entry->number, row.number);
        EXPECT_EQ(entry->name, row.name);
        EXPECT_EQ(entry->family, row.family) << row.number;
        EXPECT_EQ(entry->startBand, row.startBand) << row.number;
    }
}

TEST(ContestTable, GivesTheBandsOfEachContestAscending) {
    for (const Row& row : kRows) {
        std::vector<int> bands;
        for (int band = row.firstBand; band <= row.lastBand && band != 0; ++band) bands.push_back(band);
        EXPECT_EQ(contest::bandsOf(row.number), bands) << row.number;
    }
}

TEST(ContestTable, HasNoOtherNumbers) {
    for (const int number : {-1, 0, 32, 99}) {
        EXPECT_EQ(contest::contestOf(number), nullptr) << number;
        EXPECT_TRUE(contest::bandsOf(number).empty()) << number;
    }
}

TEST(ContestTable, FindsTheNumberOfEachNameBehindTheYear) {
    for (const Row& row : kRows) {
        EXPECT_EQ(contest::numberOfName("2013 " + std::string(row.name), "2013"), row.number);
        EXPECT_EQ(contest::numberOfName("2013 " + std::string(row.name), "2014"), 0);
        EXPECT_EQ(contest::numberOfName(row.name, "2013"), 0);
    }
    EXPECT_EQ(contest::numberOfName("2013 arrl june qso party", "2013"), 0);
    EXPECT_EQ(contest::numberOfName("2013 ARRL Sprints", "2013"), 0);
    EXPECT_EQ(contest::numberOfName("", "2013"), 0);
}

TEST(ContestChoice, ListsTheTopLevelInItsOrder) {
    const std::vector<std::string> expected{
        "ARRL Jan. VHF Sweepstakes", "ARRL June QSO Party",       "ARRL UHF Contest", "ARRL Sept. QSO Party",
        "CQ WW VHF Contest",         "SVHFS Fall Sprints",        "Spring Sprints",   "ARRL Sprints",
        "Generic Sprints",           "RVHFG All Band Fall Sprint"};
    EXPECT_EQ(contest::topLevel(), expected);
}

std::vector<std::string> namesOf(const std::vector<int>& numbers) {
    std::vector<std::string> names;
    for (const int number : numbers) names.emplace_back(kRows[static_cast<std::size_t>(number - 1)].name);
    return names;
}

TEST(ContestChoice, ListsEachFamilyInItsOrder) {
    EXPECT_EQ(contest::sprintsOf("ARRL Sprints"), namesOf({5, 6, 7, 8, 13}));
    EXPECT_EQ(contest::sprintsOf("Generic Sprints"), namesOf({14, 15, 16, 17, 12, 19}));
    EXPECT_EQ(contest::sprintsOf("Spring Sprints"), namesOf({21, 22, 23, 24, 25}));
    EXPECT_EQ(contest::sprintsOf("SVHFS Fall Sprints"), namesOf({26, 27, 28, 29, 30}));
}

TEST(ContestChoice, AContestIsNoFamily) {
    for (const Row& row : kRows) EXPECT_TRUE(contest::sprintsOf(row.name).empty()) << row.name;
    EXPECT_TRUE(contest::sprintsOf("").empty());
}

TEST(ContestNumber, IsTheNumberOfItsText) {
    for (int number = 1; number <= 31; ++number) {
        EXPECT_EQ(contest::numberOf(std::to_string(number)), number);
    }
    EXPECT_EQ(contest::numberOf(""), 0);
    EXPECT_EQ(contest::numberOf(" "), 0);
    EXPECT_EQ(contest::numberOf("xx"), 0);
    EXPECT_EQ(contest::numberOf("-1"), 0);
}

TEST(ContestGroups, TakeInTheirNumbersAndNoOthers) {
    const std::set<int> startDate{1, 2, 3, 4, 31};
    const std::set<int> distance{21, 22, 23, 24, 25};
    const std::set<int> reopened{5, 6, 7, 8, 9, 10, 11, 14, 15, 16, 17};
    std::set<int> fresh = reopened;
    fresh.insert({21, 22, 23, 24, 26, 27, 28, 29});
    const std::set<int> noSummaryFile{12, 14, 15, 16, 17, 18, 19, 20};
    for (int number = 1; number <= 31; ++number) {
        EXPECT_EQ(contest::hasStartDate(number), startDate.count(number) == 1) << number;
        EXPECT_EQ(contest::scoresByDistance(number), distance.count(number) == 1) << number;
        EXPECT_EQ(contest::singleBandWhenReopened(number), reopened.count(number) == 1) << number;
        EXPECT_EQ(contest::singleBandWhenNew(number), fresh.count(number) == 1) << number;
        EXPECT_EQ(contest::hasSummaryFile(number), noSummaryFile.count(number) == 0) << number;
    }
}

// The rows of the list that the bands 1 to 13 select, in a list as long as the contest's bands.
std::vector<int> rowsIn(int number) {
    std::vector<int> rows;
    const int count = static_cast<int>(contest::bandsOf(number).size());
    for (int band = 1; band <= 13; ++band) rows.push_back(contest::rowOfBand(number, band, count));
    return rows;
}

TEST(BandRow, FollowsTheBandInContestsOfAllBands) {
    for (const int number : {1, 2, 4, 20}) {
        EXPECT_EQ(rowsIn(number), (std::vector<int>{0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12})) << number;
    }
}

TEST(BandRow, BeginsWithTwoTwentyTwoInTheUhfContest) {
    EXPECT_EQ(rowsIn(3), (std::vector<int>{0, 0, 0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10}));
}

TEST(BandRow, FallsBackToTheFirstOutsideTheMicrowaveBands) {
    EXPECT_EQ(rowsIn(13), (std::vector<int>{0, 0, 0, 0, 0, 1, 2, 0, 0, 0, 0, 0, 0}));
    EXPECT_EQ(rowsIn(18), (std::vector<int>{0, 0, 0, 0, 0, 1, 2, 0, 0, 0, 0, 0, 0}));
    EXPECT_EQ(rowsIn(19), (std::vector<int>{0, 0, 0, 0, 0, 1, 2, 3, 4, 0, 0, 0, 0}));
    EXPECT_EQ(rowsIn(25), (std::vector<int>{0, 0, 0, 0, 0, 1, 2, 3, 4, 5, 6, 7, 8}));
}

TEST(BandRow, FallsBackToTheFirstOutsideTheTwoBandsOfTheWorldWideContest) {
    EXPECT_EQ(rowsIn(31), (std::vector<int>{0, 1, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0}));
}

TEST(BandRow, IsTheFirstInAllOtherSprints) {
    const std::vector<int> first(13, 0);
    for (const int number : {5, 6, 7, 8, 9, 10, 11, 14, 15, 16, 17, 21, 22, 23, 24, 26, 27, 28, 29, 30}) {
        EXPECT_EQ(rowsIn(number), first) << number;
    }
}

TEST(BandRow, IsLeftAloneInTheContestWithoutBands) { EXPECT_EQ(rowsIn(12), std::vector<int>(13, -1)); }

}  // namespace
