// SPDX-License-Identifier: MIT
// No grid leads to a fault of the arithmetic, but a contest's number does that is beyond all numbers.
#include <gtest/gtest.h>

#include "grid/heading.h"
#include "support/played_station.h"

namespace {

constexpr const char* kBeyondAllNumbers = "1E999";
constexpr const char* kTold =
    "message \"Calculation error, check grid!\" title \"\" icon none buttons OK default OK -> OK (unasked)\n";

class CalculationFault : public testing::Test {
protected:
    CalculationFault() : files_(folder.path()), played(files_) { folder.write("Name.dat", personalData()); }
    void SetUp() override {
        ASSERT_TRUE(played.play(startOfNewLog("ARRL Jan. VHF Sweepstakes") + "type ~fn31\nkey Enter\n"));
        played.transcript();
        station().session.ContestNumber = kBeyondAllNumbers;
        heading = station().forms.frmLog.Heading.caption();
    }
    Station& station() { return played.station(); }
    TempFolder folder;
    std::string heading;

private:
    PosixFiles files_;

protected:
    PlayedStation played;
};

TEST_F(CalculationFault, IsToldAndEndsTheHeading) {
    ASSERT_TRUE(played.play("type ~fn42\nkey Enter\n")) << played.reason();
    EXPECT_EQ(played.transcript(), kTold);
    EXPECT_FALSE(played.ended());
    EXPECT_EQ(station().forms.frmLog.Heading.caption(), heading);
}

TEST_F(CalculationFault, IsToldAndEndsTheDistanceOfAnAccept) {
    station().session.QSOPoints = "5";
    CalcSixDigit2(station(), "FN42");
    EXPECT_EQ(played.transcript(), kTold);
    EXPECT_EQ(station().session.QSOPoints, "5");
}

}  // namespace
