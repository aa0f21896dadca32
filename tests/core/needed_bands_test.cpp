// SPDX-License-Identifier: MIT
#include "core/needed_bands.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "setup/control_text.h"
#include "support/played_station.h"

namespace {

using Labels = std::vector<std::string>;

class NeededBands : public testing::Test {
protected:
    NeededBands() : files_(folder_.path()), played_(files_) { folder_.write("Name.dat", personalData()); }
    /// Types a contact in a contest up to its accept, with `needed` offered by a lookup, and accepts it.
    void workWith(const std::vector<int>& needed, const std::string& contest = "ARRL Jan. VHF Sweepstakes") {
        ASSERT_TRUE(played_.play(startOfNewLog(contest) + "type w1xyz\nkey Space\ntype fn31\nkey Enter\n"))
            << played_.reason();
        for (const int band : needed) session().NeededBand(band) = session().BandName(band);
        ASSERT_TRUE(played_.play("key Enter\n")) << played_.reason();
        ASSERT_EQ(session().LogLineCount, 3);
    }
    void chooseOwnBands(const std::string& setting, const std::string& file) {
        Settings values;
        control::setDefaults(values);
        values(setting::YourBands) = setting;
        folder_.write("TARQEN32Control.Ini", control::compose(values));
        folder_.write("StationBands.txt", file);
    }
    Station& station() { return played_.station(); }
    Session& session() { return station().session; }
    Labels shown() { return station().forms.frmLog.NeedBands.items(); }
    Labels worked() { return station().forms.frmLog.Worked.items(); }

private:
    TempFolder folder_;
    PosixFiles files_;
    PlayedStation played_;
};

TEST_F(NeededBands, LoseTheBandOfAnAcceptToTheWorkedOnes) {
    workWith({1, 2, 4, 13});
    EXPECT_EQ(shown(), (Labels{"144", "432", "Laser"}));
    EXPECT_EQ(worked(), Labels{"50"});
    EXPECT_EQ(session().NeededBand(1), "");
    EXPECT_EQ(session().NeededBand(13), "Laser");
}

TEST_F(NeededBands, StandInTheOrderOfTheBands) {
    workWith({13, 10, 6, 3, 2});
    EXPECT_EQ(shown(), (Labels{"144", "222", "1296", "10368", "Laser"}));
}

TEST_F(NeededBands, AreLimitedToTheStationsOwnWhereThatIsChosen) {
    chooseOwnBands("uSe your Bands", "432,50\r\n\"Laser\"\r\n");
    workWith({1, 2, 4, 13});
    EXPECT_EQ(shown(), (Labels{"432", "Laser"}));
}

TEST_F(NeededBands, AreAllShownWhereTheOwnListIsNotChosen) {
    chooseOwnBands("Don`t use your Bands", "432\r\n");
    workWith({2, 4});
    EXPECT_EQ(shown(), (Labels{"144", "432"}));
}

TEST_F(NeededBands, AreAllShownWhereTheOwnListIsEmpty) {
    chooseOwnBands("Use your Bands", "");
    workWith({2, 4});
    EXPECT_EQ(shown(), (Labels{"144", "432"}));
}

TEST_F(NeededBands, TakeTwentyItemsOfTheOwnList) {
    std::string file;
    for (int item = 1; item <= 19; ++item) file += "50\r\n";
    chooseOwnBands("Use your Bands", file + "432\r\n144\r\n");
    workWith({2, 4});
    EXPECT_EQ(shown(), Labels{"432"});
}

TEST_F(NeededBands, AreBlankedFromTheThirdOnInTheContestThatStartsThere) {
    ASSERT_NO_FATAL_FAILURE(workWith({3, 4}, "ARRL UHF Contest"));
    EXPECT_EQ(shown(), Labels{"432"});
    // What stands below is not looked at, whatever its label.
    session().NeededBand(1) = session().NeededBand(2) = session().NeededBand(3) = "222";
    bandWorkedNow(station());
    EXPECT_EQ(shown(), (Labels{"222", "222", "432"}));
    EXPECT_EQ(session().NeededBand(3), "");
}

TEST_F(NeededBands, AreBlankedFromTheFirstOnInAnyOtherContest) {
    workWith({});
    session().NeededBand(1) = session().NeededBand(13) = "50";
    bandWorkedNow(station());
    EXPECT_EQ(shown(), Labels{});
}

}  // namespace
