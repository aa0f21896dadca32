// SPDX-License-Identifier: MIT
// The total of a summary is worked out anew, except where each band stands alone.
#include <gtest/gtest.h>

#include "base/text.h"
#include "support/played_station.h"

namespace {

constexpr float kStale = 999;

/// Writes the summary of a new log with one QSO, in a station whose total has been left behind.
class StaleTotal : public testing::Test {
protected:
    void write(const std::string& contest, const std::string& sprint) {
        folder.write("Name.dat", personalData());
        ASSERT_TRUE(station.play(startOfNewLog(contest, sprint) +
                                 "type w1xyz\nkey Space\ntype fn31pr\nkey Enter\nkey Enter\n"));
        station.station().session.TotalScore = kStale;
        ASSERT_TRUE(station.play("click frmLog.mWriteSum\n")) << station.reason();
    }
    TempFolder folder;
    PosixFiles files{folder.path()};
    PlayedStation station{files};
};

}  // namespace

TEST_F(StaleTotal, IsWorkedOutAnew) {
    write("Generic Sprints", "50 MHz Sprint");
    EXPECT_EQ(station.station().session.TotalScore, 1);
    const std::string sheet = folder.read("W1ABC.sum");
    EXPECT_TRUE(text::contains(sheet, "Claimed score =  1 \r\n")) << sheet;
    EXPECT_TRUE(text::contains(sheet, "    TOTALS     1             1             1             1 \r\n"))
        << sheet;
}

TEST_F(StaleTotal, StaysInContest19) {
    write("Generic Sprints", "903 to 5760 Sprints");
    EXPECT_EQ(station.station().session.TotalScore, kStale);
}
