// SPDX-License-Identifier: MIT
// What the clock picks up from others, and what an emptied offset leads to at the next start.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "base/text.h"
#include "support/played_station.h"

namespace {

using testing::ElementsAre;
using testing::HasSubstr;

std::string logOf(int qsos) {
    std::string file = "2007 ARRL Jan. VHF Sweepstakes\r\nv2.0        W1ABC           1\r\n";
    for (int qso = 1; qso <= qsos; ++qso) {
        file +=
            "50    PH  01/20/07  1435  W" + std::to_string(qso) + "AA         FN20jk FN31            1 \r\n";
    }
    return file;
}

class ClockRequests : public testing::Test {
protected:
    ClockRequests() : files_(folder.path()) {
        folder.write("Name.dat", personalData());
        folder.write("JAN.lgg", logOf(1));
        played.emplace(files_);
    }
    Session& session() { return played->station().session; }
    void open() {
        ASSERT_TRUE(played->play(startOfOldLog() + "wait 1\n")) << played->reason();
        played->transcript();
    }
    void restart() { played.emplace(files_); }
    TempFolder folder;
    std::optional<PlayedStation> played;

private:
    PosixFiles files_;
};

TEST_F(ClockRequests, ARefreshAskedForIsDoneAndEventsAreServedBeforeTheClockIsRead) {
    ASSERT_NO_FATAL_FAILURE(open());
    folder.write("JAN.lgg", logOf(2));
    session().RefreshRequest = "Refresh";
    ASSERT_TRUE(
        played->play("at 2007-01-20 14:44:00\npump 1 show RefreshRequest\npump 1 show LogLineCount\n"
                     "pump 1 show frmLog.UTCTime\npump 2 show frmLog.UTCTime\nwait 1\n"))
        << played->reason();
    EXPECT_THAT(text::lines(played->transcript()),
                ElementsAre("RefreshRequest \"\"", "LogLineCount 4", "frmLog.UTCTime \"14:35\"",
                            "frmLog.UTCTime \"14:44\""));
}

TEST_F(ClockRequests, ARefreshIsDoneOnceAndForNoOtherWord) {
    ASSERT_NO_FATAL_FAILURE(open());
    session().RefreshRequest = "Refresh";
    ASSERT_TRUE(played->play("wait 1\n"));
    folder.write("JAN.lgg", logOf(2));
    ASSERT_TRUE(played->play("wait 5\n"));
    EXPECT_EQ(session().LogLineCount, 3);
    session().RefreshRequest = "refresh";
    ASSERT_TRUE(played->play("wait 5\n"));
    EXPECT_EQ(session().LogLineCount, 3);
    EXPECT_EQ(session().RefreshRequest, "refresh");
}

TEST_F(ClockRequests, AnEmptiedOffsetIsNoneForThisRunAndFourHoursForTheNext) {
    ASSERT_TRUE(played->play(
        "start\nclick frmSetup.Label16\nset UTCfrm.Offset 7\nset UTCfrm.Offset\nclick UTCfrm.Command1\n"))
        << played->reason();
    EXPECT_EQ(played->station().ControlValues(setting::UtcOffset), "");
    EXPECT_EQ(session().UtcOffsetHours, 0);
    EXPECT_THAT(folder.read("TARQEN32Control.Ini"), HasSubstr("[UTC offset hrs]\r\n\r\n"));
    restart();
    ASSERT_TRUE(played->play("at 2007-01-20 14:35:00\nutc 2007-01-20 18:35:00\nstart\n")) << played->reason();
    EXPECT_FALSE(text::contains(played->transcript(), "message")) << "four hours are what the machine says";
    EXPECT_EQ(played->station().ControlValues(setting::UtcOffset), "4");
    EXPECT_EQ(session().UtcOffsetHours, 4);
}

}  // namespace
