// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>

#include <chrono>
#include <thread>

#include "shell/linux/code_page.h"
#include "shell/linux/command_line.h"
#include "shell/linux/instance_lock.h"
#include "shell/linux/program_starter.h"
#include "shell/linux/system_clock.h"
#include "support/temp_folder.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(CodePage, BringsEachByteBack) {
    std::string all;
    for (int code = 0; code < 256; ++code) all += static_cast<char>(code);
    EXPECT_EQ(code_page::fromUtf8(code_page::toUtf8(all)), all);
    EXPECT_TRUE(code_page::isUtf8(code_page::toUtf8(all)));
}

TEST(CodePage, KnowsTheCharactersInTheMiddle) {
    EXPECT_EQ(code_page::toUtf8("\x80\x93\xE9\xFF"), "\xE2\x82\xAC\xE2\x80\x9C\xC3\xA9\xC3\xBF");
}

TEST(CodePage, HasNoBytesForOtherCharactersAndForNoUtf8) {
    for (const char* const text : {"\xCE\xA9", "\xF0\x9F\x98\x80", "\xE9", "\xC3", "\xC0\x80", "\xED\xA0\x80",
                                   "\xF5\x80\x80\x80", "\xE2\x28\xA1", "\x80"}) {
        EXPECT_EQ(code_page::fromUtf8(text), std::nullopt);
    }
}

TEST(CommandLine, PartsWordsAtBlanksOutsideQuotes) {
    EXPECT_THAT(command_line::words("  a  b "), ElementsAre("a", "b"));
    EXPECT_THAT(command_line::words("a \"b c\" d"), ElementsAre("a", "b c", "d"));
    EXPECT_THAT(command_line::words("a\"b c\"d"), ElementsAre("ab cd"));
    EXPECT_THAT(command_line::words("\"\" \"x"), ElementsAre("", "x"));
    EXPECT_THAT(command_line::words(""), IsEmpty());
}

TEST(CommandLine, TakesTheShortestStartThatIsAProgram) {
    const auto search = [](const std::string& name) -> std::optional<std::string> {
        if (name == "edit" || name == "/my logs/edit") return "<" + name + ">";
        return std::nullopt;
    };
    const auto plain = command_line::split("edit a.txt \"b c\"", search);
    ASSERT_TRUE(plain);
    EXPECT_EQ(plain->program, "<edit>");
    EXPECT_THAT(plain->arguments, ElementsAre("a.txt", "b c"));
    const auto blanks = command_line::split("/my logs/edit a.txt", search);
    ASSERT_TRUE(blanks);
    EXPECT_EQ(blanks->program, "</my logs/edit>");
    EXPECT_THAT(blanks->arguments, ElementsAre("a.txt"));
    const auto inQuotes = command_line::split(" \"/my logs/edit\"", search);
    ASSERT_TRUE(inQuotes);
    EXPECT_THAT(inQuotes->arguments, IsEmpty());
    for (const char* const line : {"other a.txt", "", "\"edit a.txt\"", "\""}) {
        EXPECT_FALSE(command_line::split(line, search)) << line;
    }
}

class Starter : public testing::Test {
protected:
    void makeProgram(const std::string& name, const std::string& text) const {
        folder.write(name, "#!/bin/sh\n" + text);
        ASSERT_EQ(::chmod((folder / name).c_str(), 0755), 0);
    }
    /// Waits for a file that a started program makes as its last act.
    bool appears(const std::string& name) const {
        for (int i = 0; i < 1000 && !folder.has(name); ++i) {
            std::this_thread::sleep_for(std::chrono::milliseconds(10));
        }
        return folder.has(name);
    }
    TempFolder folder;
    ProgramStarter starter{folder.path()};
};

TEST_F(Starter, RunsAProgramOfTheFolderInTheFolderWithItsArguments) {
    makeProgram("NotePad.exe", "printf '%s|' \"$@\" >out.new\nmv out.new out\n");
    EXPECT_TRUE(starter.start("NOTEPAD.EXE dupe.txt \"b c\" caf\xE9"));
    ASSERT_TRUE(appears("out"));
    EXPECT_EQ(folder.read("out"), "dupe.txt|b c|caf\xC3\xA9|");
}

TEST_F(Starter, RunsAProgramByItsFullPathWithBackslashes) {
    // The program starts in the folder, not in its own.
    makeProgram("sub/edit", "echo x >out.new\nmv out.new out\n");
    EXPECT_TRUE(starter.start(folder.path() + "\\SUB\\Edit a.txt"));
    EXPECT_TRUE(appears("out"));
}

TEST_F(Starter, FindsProgramsOfTheSystem) {
    EXPECT_TRUE(starter.find("sh").has_value());
    EXPECT_FALSE(starter.find("sub/sh").has_value());
}

TEST_F(Starter, TellsWhatCannotBeStarted) {
    folder.write("plain.exe", "not to be run");
    makeProgram("broken.exe", "");
    folder.write("broken.exe", "#!/no/such/interpreter\n");
    std::filesystem::create_directory(folder / "folder.exe");
    for (const char* const line : {"missing.exe a.txt", "plain.exe", "broken.exe", "folder.exe", ""}) {
        EXPECT_FALSE(starter.start(line)) << line;
    }
}

TEST_F(Starter, LeavesNoChildBehind) {
    makeProgram("quick", "echo x >out\n");
    ASSERT_TRUE(starter.start("quick"));
    ASSERT_TRUE(appears("out"));
    EXPECT_EQ(::waitpid(-1, nullptr, WNOHANG), -1);
}

TEST(InstanceLock, KnowsAnotherInTheSameFolderWhileItRuns) {
    const TempFolder folder, other;
    {
        const InstanceLock first(folder.path());
        EXPECT_FALSE(first.heldByAnother());
        EXPECT_TRUE(InstanceLock(folder.path()).heldByAnother());
        EXPECT_FALSE(InstanceLock(other.path()).heldByAnother());
    }
    EXPECT_FALSE(InstanceLock(folder.path()).heldByAnother());
}

TEST(InstanceLock, CountsAsTheOnlyOneWhereNoMarkCanBeMade) {
    EXPECT_FALSE(InstanceLock("/no/such/folder").heldByAnother());
}

TEST(SystemClock, NeverCountsBackwardsAndStaysWithinTheDay) {
    SystemClock clock;
    const std::int64_t before = clock.milliseconds();
    clock.idle(0.002);
    EXPECT_GE(clock.milliseconds(), before + 1);
    EXPECT_GE(clock.secondsSinceMidnight(), 0);
    EXPECT_LT(clock.secondsSinceMidnight(), 86400);
    for (const DateTime& time : {clock.local(), clock.utc()}) {
        EXPECT_TRUE(time.month >= 1 && time.month <= 12 && time.day >= 1 && time.day <= 31);
        EXPECT_TRUE(time.hour >= 0 && time.hour <= 23 && time.minute <= 59 && time.second <= 59);
    }
}

}  // namespace
