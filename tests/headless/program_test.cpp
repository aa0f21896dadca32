// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/played.h"

namespace {

using testing::Contains;
using testing::ElementsAre;

const char* const kFirstLog =
    "at 2007-01-20 14:35:10\r\nutc 2007-01-20 19:35:10\r\nreply OK\r\nstart\r\nset frmSetup.Combo4 W1ABC\r\n"
    "set frmSetup.Combo7 FN20jk\r\nreply JAN07\r\nclick frmSetup.Label1\r\nclick frmContest.Contest 0\r\n"
    "click frmContest.cmdCont\r\nclick frmSetup.cmdDone\r\n";

TEST(ProgramPlayed, LogsAContactFromAnEmptyFolder) {
    const TempFolder folder;
    const Outcome outcome =
        playProgram(folder, std::string(kFirstLog) +
                                "type w1xyz\nkey Space\ntype fn31pr\nkey Enter\nkey Enter\n"
                                "show LogLineCount\nshow forms\nclick frmLog.cmdExit\n");
    EXPECT_EQ(outcome.status, 0) << outcome.errors;
    EXPECT_THAT(outcome.lines, Contains("LogLineCount 3"));
    EXPECT_THAT(outcome.lines, Contains("form frmLog"));
    ASSERT_FALSE(outcome.lines.empty());
    EXPECT_EQ(outcome.lines.back(), "end");
    EXPECT_THAT(folder.read("JAN07.lgg"), testing::HasSubstr("W1XYZ"));
}

TEST(ProgramPlayed, HasTwoStationsInOneProcess) {
    const TempFolder oneFolder, otherFolder;
    PlayedProgram one(oneFolder), other(otherFolder);
    one.play(kFirstLog);
    other.play(kFirstLog);
    one.play("type w1xyz\nkey Space\ntype fn31pr\nkey Enter\nkey Enter\n");
    EXPECT_THAT(one.play("show LogLineCount\n").lines, ElementsAre("LogLineCount 3"));
    EXPECT_THAT(other.play("show LogLineCount\nshow frmLog.CallS\n").lines,
                ElementsAre("LogLineCount 0", "frmLog.CallS \"\""));
    EXPECT_THAT(other.play("type w2xyz\nkey Space\ntype fn31pr\nkey Enter\nkey Enter\nshow LastCall\n").lines,
                Contains("LastCall \"W2XYZ\""));
    EXPECT_THAT(one.play("show LastCall\n").lines, ElementsAre("LastCall \"W1XYZ\""));
}

TEST(ProgramPlayed, HasNoWindowBeforeItStarts) {
    const TempFolder folder;
    const Outcome outcome =
        playProgram(folder, "show forms\nshow LogLineCount\nclick frmLog.cmdExit\nkey Enter\n");
    EXPECT_EQ(outcome.status, 2);
    EXPECT_THAT(outcome.lines, ElementsAre("LogLineCount 0", "ignored frmLog.cmdExit"));
    EXPECT_THAT(folder.entries(), testing::IsEmpty());
}

}  // namespace
