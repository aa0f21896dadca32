// SPDX-License-Identifier: MIT
#include "contest/activity.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

TEST(Timetable, BelongsToItsContest) {
    for (int number = 1; number <= 31; ++number) {
        std::string file = "ACTIVITY.DAT";
        if (number == 2) file = "June_ACTIVITY.DAT";
        if (number == 3) file = "UHF_ACTIVITY.DAT";
        if (number == 4) file = "Sept_ACTIVITY.DAT";
        EXPECT_EQ(activityFile(std::to_string(number)), file) << number;
    }
    EXPECT_EQ(activityFile(""), "ACTIVITY.DAT");
}

TEST(ContestDay, FollowsTheDayNumbers) {
    EXPECT_EQ(contestDay("01/20/07", "01/20/07"), 1);
    EXPECT_EQ(contestDay("01/21/07", "01/20/07"), 2);
    EXPECT_EQ(contestDay("01/22/07", "01/20/07"), 3);
    EXPECT_EQ(contestDay("01/23/07", "01/20/07"), 1);
    EXPECT_EQ(contestDay("01/19/07", "01/20/07"), 1);
}

TEST(ContestDay, StaysTheFirstAcrossTheEndOfAMonth) {
    EXPECT_EQ(contestDay("02/01/07", "01/31/07"), 1);
    EXPECT_EQ(contestDay("10/01/07", "09/30/07"), 1);
    EXPECT_EQ(contestDay("10/02/07", "09/30/07"), 1);
}

TEST(ContestDay, LooksAtNeitherMonthNorYear) {
    EXPECT_EQ(contestDay("06/21/09", "01/20/07"), 2);
    // The clock runs past the end of the month without changing it.
    EXPECT_EQ(contestDay("01/32/07", "01/31/07"), 2);
}

TEST(ContestDay, WithoutAStartDateTakesTheFirstAndSecondOfTheMonth) {
    EXPECT_EQ(contestDay("01/01/07", ""), 2);
    EXPECT_EQ(contestDay("01/02/07", ""), 3);
    EXPECT_EQ(contestDay("01/03/07", ""), 1);
    EXPECT_EQ(contestDay("01/20/07", ""), 1);
}

std::string after(const std::vector<std::string>& entries, int day, int hour, bool members = false,
                  const std::string& before = "Normal") {
    return activityCaption(entries, day, hour, members, before);
}

TEST(ActivityHour, ShowsABandWithItsUnit) {
    EXPECT_EQ(after({"0114144"}, 1, 14), "144 MHz");
    EXPECT_EQ(after({"03009 anything"}, 3, 0), "9 anything MHz");
}

TEST(ActivityHour, ShowsItsKeywordsInTheirOwnWords) {
    EXPECT_EQ(after({"0214FM bands"}, 2, 14), "FM Bands");
    EXPECT_EQ(after({"0114903 and up"}, 1, 14), "903 and up");
    EXPECT_EQ(after({"0114Check List"}, 1, 14), "Check List");
    EXPECT_EQ(after({"0114fm bands"}, 1, 14), "fm bands MHz");
}

TEST(ActivityHour, NeedsItsDayAndItsHour) {
    const std::vector<std::string> entries{"0214144"};
    EXPECT_EQ(after(entries, 2, 14), "144 MHz");
    EXPECT_EQ(after(entries, 1, 14), "Normal");
    EXPECT_EQ(after(entries, 3, 14), "Normal");
    EXPECT_EQ(after(entries, 2, 13), "Normal");
    EXPECT_EQ(after(entries, 2, 15), "Normal");
}

TEST(ActivityHour, ComparesDayAndHourAsNumbers) {
    EXPECT_EQ(after({" 1 4144"}, 1, 4), "144 MHz");
    EXPECT_EQ(after({"1 4 144"}, 1, 4), "144 MHz");
    EXPECT_EQ(after({"0104144"}, 1, 4), "144 MHz");
}

TEST(ActivityHour, TheLastEntryOfAnHourWins) {
    EXPECT_EQ(after({"011450", "0114144", "0115222"}, 1, 14), "144 MHz");
    EXPECT_EQ(after({"0114", "0114144"}, 1, 14), "144 MHz");
    EXPECT_EQ(after({"0114144", "0114"}, 1, 14), "Normal");
}

TEST(ActivityHour, WithoutATextIsNormalAgain) {
    EXPECT_EQ(after({"0114"}, 1, 14, false, "144 MHz"), "Normal");
    EXPECT_EQ(after({}, 1, 14, false, " MHz"), "Normal");
}

TEST(ActivityHour, WithoutAnEntryStaysAsItWas) {
    EXPECT_EQ(after({"0114144"}, 1, 15, false, "144 MHz"), "144 MHz");
    EXPECT_EQ(after({}, 1, 15, false, "FM Bands"), "FM Bands");
}

TEST(ActivityHour, LooksForTheClubsMembersOnlyInTheCheckListHour) {
    EXPECT_EQ(after({"0114Check List"}, 1, 14, true), "Look for Rats");
    EXPECT_EQ(after({"0114FM bands"}, 1, 14, true), "FM Bands");
    EXPECT_EQ(after({"0114144"}, 1, 14, true), "144 MHz");
}

TEST(ActivityHour, PassesOverEntriesThatAreShortOrBad) {
    EXPECT_EQ(after({"", "0", "01", "011", "xx14144", "01xx144"}, 1, 14), "Normal");
    EXPECT_EQ(after({"", "0", "01", "010", "01xx144", "01  144"}, 1, 0, false, "50 MHz"), "50 MHz");
    EXPECT_EQ(after({"0100144"}, 1, 0, false, "50 MHz"), "144 MHz");
}

}  // namespace
