// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "lookup/lookups.h"
#include "support/played_station.h"

namespace {

void put(Session& session, int entry, const char* call, const char* grid) {
    session.SixDigitTable(entry)(0) = call;
    session.SixDigitTable(entry)(1) = grid;
}

TEST(SixDigitList, GivesTheGridOfTheFirstEntryOfACall) {
    Session session;
    put(session, 1, "K3ABC", "FN20JK");
    put(session, 2, "W1XYZ", "FN31PR");
    put(session, 3, "W1XYZ", "FN42AA");
    session.SixDigitCount = 3;
    EXPECT_EQ(sixDigitGridOf(session, "W1XYZ"), "FN31PR");
    EXPECT_EQ(sixDigitGridOf(session, "K3ABC"), "FN20JK");
}

TEST(SixDigitList, KnowsNoOtherCall) {
    Session session;
    EXPECT_EQ(sixDigitGridOf(session, "K3ABC"), std::nullopt);
    put(session, 1, "K3ABC", "FN20JK");
    put(session, 2, "W1XYZ", "FN31PR");
    session.SixDigitCount = 1;
    EXPECT_EQ(sixDigitGridOf(session, "W1XYZ"), std::nullopt);
    EXPECT_EQ(sixDigitGridOf(session, "K3AB"), std::nullopt);
    EXPECT_EQ(sixDigitGridOf(session, "K3ABC/R"), std::nullopt);
}

TEST(SixDigitList, MayKnowACallWithoutItsGrid) {
    Session session;
    put(session, 1, "K3ABC", "");
    session.SixDigitCount = 1;
    EXPECT_EQ(sixDigitGridOf(session, "K3ABC"), "");
}

TEST(SixDigitList, HoldsFiveHundredEntries) {
    Session session;
    session.SixDigitCount = 500;
    put(session, 500, "W1XYZ", "FN31PR");
    EXPECT_EQ(sixDigitGridOf(session, "W1XYZ"), "FN31PR");
}

TEST(SixDigitList, IsNotLookedAtWhereTheRoverSettingSaysNo) {
    const TempFolder folder;
    folder.write("Name.dat", personalData());
    folder.write("SIXDIGIT.DAT", "W1XYZ,FN31pr\r\n");
    folder.write("JAN.lgg",
                 "2007 ARRL Jan. VHF Sweepstakes\r\nv2.0        W1ABC           1\r\n"
                 "50    PH  01/20/07  1435  W1AA         FN20jk FN31   1-50     1 \r\n");
    PosixFiles files(folder.path());
    PlayedStation played(files);
    ASSERT_TRUE(played.play(startOfOldLog())) << played.reason();
    Station& station = played.station();
    ASSERT_EQ(station.ControlValues(setting::SixDigit), "Six-Digit");
    const auto gridOf = [&](const char* settingOfRovers) {
        station.ControlValues(setting::RoverPrompts) = settingOfRovers;
        EXPECT_TRUE(played.play("key Esc\ntype w1xyz\nkey Enter\n")) << played.reason();
        return station.forms.frmLog.tGrid.text();
    };
    EXPECT_EQ(gridOf("No"), "");
    EXPECT_EQ(gridOf("Yes"), "FN31pr");
    EXPECT_EQ(gridOf("no"), "FN31pr") << "an unknown word is no refusal";
}

}  // namespace
