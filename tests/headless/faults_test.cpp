// SPDX-License-Identifier: MIT
#include "shell/headless/faults.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "base/run_time_error.h"
#include "shell/headless/headless_files.h"
#include "shell/linux/posix_files.h"
#include "support/temp_folder.h"

namespace {

using testing::ElementsAre;

class FileFaults : public testing::Test {
protected:
    /// The fault of an action, or "none".
    template <typename Action>
    std::string faultOf(Action action) {
        try {
            action();
        } catch (const FileError& error) {
            return error.what();
        }
        return "none";
    }
    std::string openFault(const std::string& name) {
        return faultOf([&] { files.append(name); });
    }
    std::string writeFault(const std::string& name, const std::string& text) {
        return faultOf([&] { files.append(name)->write(text); });
    }
    void failOpen(const std::string& pattern, std::optional<int> times = std::nullopt) {
        faults.add({FileFault::Kind::Open, pattern, 0, times});
    }
    void failWrite(const std::string& pattern, std::int64_t after = 0,
                   std::optional<int> times = std::nullopt) {
        faults.add({FileFault::Kind::Write, pattern, after, times});
    }

    TempFolder folder;
    PosixFiles disk{folder.path()};
    Faults faults;
    HeadlessFiles files{disk, faults};
};

TEST_F(FileFaults, OfOpeningLastUntilTheyAreMended) {
    failOpen("*.lgg");
    EXPECT_EQ(openFault("a.lgg"), "Path/File access error");
    EXPECT_EQ(openFault("A.LGG"), "Path/File access error");
    EXPECT_EQ(openFault("a.txt"), "none");
    faults.mend();
    EXPECT_EQ(openFault("a.lgg"), "none");
    EXPECT_THAT(folder.entries(), ElementsAre("a.lgg", "a.txt"));
}

TEST_F(FileFaults, OfOpeningLastSoManyTimes) {
    failOpen("a", 2);
    EXPECT_NE(openFault("a"), "none");
    EXPECT_NE(openFault("a"), "none");
    EXPECT_EQ(openFault("a"), "none");
}

TEST_F(FileFaults, OfOpeningConcernEveryWayToOpen) {
    folder.write("a", "old");
    failOpen("a", 4);
    EXPECT_NE(faultOf([&] { files.read("a"); }), "none");
    EXPECT_NE(faultOf([&] { files.create("a"); }), "none");
    EXPECT_NE(faultOf([&] { files.append("a"); }), "none");
    EXPECT_NE(faultOf([&] { files.replace("a", "new"); }), "none");
    EXPECT_EQ(files.read("a"), "old");
}

TEST_F(FileFaults, TellPathAndReason) {
    failOpen("a");
    failWrite("b");
    try {
        files.read("a");
        FAIL();
    } catch (const FileError& error) {
        EXPECT_EQ(error.path, folder.path() + "/a");
        EXPECT_EQ(error.reason, "Permission denied");
    }
    try {
        files.append("b")->write("x");
        FAIL();
    } catch (const FileError& error) {
        EXPECT_EQ(error.path, folder.path() + "/b");
        EXPECT_EQ(error.reason, "No space left on device");
    }
}

TEST_F(FileFaults, OfWritingComeAtOnceOrAfterSoManyBytes) {
    failWrite("a");
    failWrite("b", 5);
    EXPECT_EQ(writeFault("a", "123"), "Disk full");
    EXPECT_EQ(writeFault("b", "12345"), "none");
    EXPECT_EQ(writeFault("b", "6"), "Disk full");
    EXPECT_EQ(folder.read("a"), "");
    EXPECT_EQ(folder.read("b"), "12345");
}

TEST_F(FileFaults, OfWritingLetTheFirstBytesInAndShareThemOutAmongWrites) {
    failWrite("a", 5);
    EXPECT_EQ(writeFault("a", "123"), "none");
    EXPECT_EQ(writeFault("a", "45678"), "Disk full");
    EXPECT_EQ(folder.read("a"), "12345");
    EXPECT_EQ(writeFault("a", "6"), "Disk full");
    EXPECT_EQ(folder.read("a"), "12345");
}

TEST_F(FileFaults, OfWritingLastSoManyTimes) {
    failWrite("a", 1, 2);
    EXPECT_EQ(writeFault("a", "123"), "Disk full");
    EXPECT_EQ(writeFault("a", "456"), "Disk full");
    EXPECT_EQ(writeFault("a", "789"), "none");
    EXPECT_EQ(folder.read("a"), "1789");
}

TEST_F(FileFaults, OfWritingConcernAFileThatIsAlreadyOpen) {
    const auto file = files.append("a");
    file->write("1");
    failWrite("a");
    EXPECT_EQ(faultOf([&] { file->write("2"); }), "Disk full");
    faults.mend();
    file->write("3");
    EXPECT_EQ(folder.read("a"), "13");
}

TEST_F(FileFaults, LeaveTheOldContentOfAFileThatIsReplaced) {
    folder.write("a", "old");
    failWrite("a", 2);
    EXPECT_EQ(faultOf([&] { files.replace("a", "new content"); }), "Disk full");
    EXPECT_EQ(folder.read("a"), "old");
    EXPECT_THAT(folder.entries(), ElementsAre("a"));
    faults.mend();
    files.replace("a", "new content");
    EXPECT_EQ(folder.read("a"), "new content");
}

TEST_F(FileFaults, CountTheBytesOfAReplacedFile) {
    failWrite("a", 5);
    EXPECT_EQ(faultOf([&] { files.replace("a", "123"); }), "none");
    EXPECT_EQ(faultOf([&] { files.replace("a", "123"); }), "Disk full");
    EXPECT_EQ(folder.read("a"), "123");
}

TEST_F(FileFaults, HoldAPatternWithoutASlashAgainstTheBareName) {
    std::filesystem::create_directory(folder / "sub");
    failOpen("x.txt");
    EXPECT_NE(openFault("sub\\x.txt"), "none");
    EXPECT_NE(openFault("X.TXT"), "none");
    EXPECT_EQ(openFault("sub/xx.txt"), "none");
}

TEST_F(FileFaults, HoldAPatternWithASlashAgainstThePathFromTheFolder) {
    std::filesystem::create_directory(folder / "sub");
    failOpen("SUB/*.txt");
    EXPECT_NE(openFault("sub\\x.txt"), "none");
    EXPECT_NE(openFault("./sub/x.txt"), "none");
    EXPECT_NE(openFault(folder.path() + "\\sub\\x.txt"), "none");
    EXPECT_EQ(openFault("x.txt"), "none");
    EXPECT_EQ(openFault("sub/x.dat"), "none");
}

TEST_F(FileFaults, TouchNeitherListsNorOtherFiles) {
    folder.write("a", "");
    failOpen("a");
    EXPECT_TRUE(files.exists("a"));
    EXPECT_THAT(files.list("*"), ElementsAre("a"));
    files.remove("a");
    EXPECT_FALSE(folder.has("a"));
}

TEST(DeviceFaults, LastUntilTheyAreMended) {
    Faults faults;
    EXPECT_FALSE(faults.fails(Device::Run));
    faults.fail(Device::Run);
    EXPECT_TRUE(faults.fails(Device::Run));
    EXPECT_FALSE(faults.fails(Device::Sound));
    faults.mend();
    EXPECT_FALSE(faults.fails(Device::Run));
}

}  // namespace
