// SPDX-License-Identifier: MIT
#include "shell/linux/posix_files.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <csignal>

#include "base/run_time_error.h"
#include "support/temp_folder.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// Acts as an ordinary user while it lives: to the administrator no folder is read-only.
class OrdinaryUser {
public:
    OrdinaryUser() : was_(::geteuid()) {
        if (was_ == 0 && ::seteuid(65534) != 0) throw std::runtime_error("cannot act as another user");
    }
    ~OrdinaryUser() {
        if (was_ == 0 && ::seteuid(0) != 0) std::abort();
    }
    OrdinaryUser(const OrdinaryUser&) = delete;
    OrdinaryUser& operator=(const OrdinaryUser&) = delete;

private:
    uid_t was_;
};

/// Lets no file grow past a size while it lives, as a full disk would.
class SmallDisk {
public:
    explicit SmallDisk(rlim_t size) : handler_(::signal(SIGXFSZ, SIG_IGN)) {
        ::getrlimit(RLIMIT_FSIZE, &was_);
        const rlimit limit{size, was_.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~SmallDisk() {
        ::setrlimit(RLIMIT_FSIZE, &was_);
        ::signal(SIGXFSZ, handler_);
    }
    SmallDisk(const SmallDisk&) = delete;
    SmallDisk& operator=(const SmallDisk&) = delete;

private:
    rlimit was_{};
    void (*handler_)(int);
};

class PosixFilesTest : public testing::Test {
protected:
    template <typename Action>
    std::string faultOf(Action action) {
        try {
            action();
        } catch (const FileError& error) {
            return error.what();
        }
        return "none";
    }
    mode_t modeOf(const std::string& name) const {
        struct stat status {};
        return ::stat((folder / name).c_str(), &status) == 0 ? status.st_mode & 07777 : 0;
    }
    std::string put(const std::string& name, const std::string& content) {
        const auto file = files.append(name);
        file->write(content);
        file->close();
        return name;
    }

    TempFolder folder;
    PosixFiles files{folder.path()};
};

TEST_F(PosixFilesTest, FindNamesWithoutRegardToCase) {
    folder.write("Sub/Name.Dat", "content");
    EXPECT_EQ(files.read("sub\\NAME.DAT"), "content");
    EXPECT_EQ(files.read("SUB/name.dat"), "content");
    EXPECT_TRUE(files.exists("sub/name.dat"));
    put("sub/name.dat", "+");
    EXPECT_EQ(folder.read("Sub/Name.Dat"), "content+");
    EXPECT_THAT(folder.entries(), ElementsAre("Sub"));
}

TEST_F(PosixFilesTest, PreferTheExactNameAndElseTheFirstInOrder) {
    folder.write("name", "small");
    folder.write("NAME", "large");
    EXPECT_EQ(files.read("name"), "small");
    EXPECT_EQ(files.read("NAME"), "large");
    EXPECT_EQ(files.read("Name"), "large");
}

TEST_F(PosixFilesTest, MakeNewNamesAsTheyAreWritten) {
    std::filesystem::create_directory(folder / "sub");
    put("SUB\\New.TXT", "x");
    EXPECT_EQ(folder.read("sub/New.TXT"), "x");
}

TEST_F(PosixFilesTest, TakeNamesThatBeginWithASlashAsFullPaths) {
    folder.write("Sub/x", "content");
    EXPECT_EQ(files.read(folder.path() + "\\SUB\\X"), "content");
    EXPECT_EQ(files.path(folder.path() + "/sub/x"), folder.path() + "/Sub/x");
    EXPECT_EQ(files.path(""), folder.path());
}

TEST_F(PosixFilesTest, TakeADriveLetterForAFolderThatIsNormallyNotThere) {
    EXPECT_EQ(faultOf([&] { files.append("A:\\x.bak"); }), "Path not found");
    EXPECT_EQ(faultOf([&] { files.replace("a:x.bak", ""); }), "Path not found");
    EXPECT_FALSE(files.exists("A:\\"));
    EXPECT_THAT(folder.entries(), IsEmpty());
    std::filesystem::create_directory(folder / "a:");
    put("A:\\x.bak", "x");
    put("A:y.bak", "y");
    EXPECT_EQ(folder.read("a:/x.bak"), "x");
    EXPECT_EQ(folder.read("a:/y.bak"), "y");
}

TEST_F(PosixFilesTest, WriteNamesOnTheDiskInUtf8) {
    put("caf\xE9.txt", "x");
    EXPECT_TRUE(folder.has("caf\xC3\xA9.txt"));
    EXPECT_TRUE(files.exists("CAF\xC9.TXT"));
    EXPECT_THAT(files.list("*"), ElementsAre("caf\xE9.txt"));
    EXPECT_EQ(files.path("caf\xE9.txt"), folder.path() + "/caf\xE9.txt");
}

TEST_F(PosixFilesTest, KnowNamesFromADiskOfTheOldCodePage) {
    folder.write("caf\xE9.txt", "x");
    EXPECT_EQ(files.read("CAF\xC9.txt"), "x");
    EXPECT_THAT(files.list("*.txt"), ElementsAre("caf\xE9.txt"));
}

TEST_F(PosixFilesTest, PassOverNamesThatHaveNoCharactersForThem) {
    folder.write("\xCE\xA9.txt", "x");
    EXPECT_THAT(files.list("*"), IsEmpty());
}

TEST_F(PosixFilesTest, AppendBehindWhatIsThere) {
    put("a", "1");
    const auto file = files.append("a");
    EXPECT_EQ(file->length(), 1);
    file->write("23");
    file->sync();
    EXPECT_EQ(file->length(), 3);
    EXPECT_EQ(folder.read("a"), "123");
}

TEST_F(PosixFilesTest, MakeAFileByOpeningIt) {
    touch(files, "new");
    EXPECT_EQ(folder.read("new"), "");
    folder.write("old", "x");
    touch(files, "old");
    EXPECT_EQ(folder.read("old"), "x");
}

TEST_F(PosixFilesTest, CreateFromScratch) {
    folder.write("a", "old content");
    const auto file = files.create("A");
    file->write("new");
    EXPECT_EQ(folder.read("a"), "new");
}

TEST_F(PosixFilesTest, TellTheLastByteOfAFile) {
    const auto file = files.append("a");
    EXPECT_EQ(file->lastByte(), -1);
    file->write("x\n");
    EXPECT_EQ(file->lastByte(), '\n');
    file->write("\xFF");
    EXPECT_EQ(file->lastByte(), 255);
}

TEST_F(PosixFilesTest, CutAFileBackAndGoOnWritingThere) {
    for (const bool fresh : {false, true}) {
        const auto file = fresh ? files.create("a") : files.append("a");
        file->write("12345");
        file->cutTo(2);
        file->write("x");
        EXPECT_EQ(folder.read("a"), "12x");
        file->cutTo(100);
        EXPECT_EQ(file->length(), 3);
    }
}

TEST_F(PosixFilesTest, CloseTwiceWithoutHarm) {
    const auto file = files.append("a");
    file->close();
    file->close();
    EXPECT_NE(faultOf([&] { file->write("x"); }), "none");
}

TEST_F(PosixFilesTest, ReplaceAFileWholeAndLeaveNothingBeside) {
    folder.write("Log.lgg", "old and longer");
    files.replace("LOG.LGG", "new");
    EXPECT_EQ(folder.read("Log.lgg"), "new");
    files.replace("other", "");
    EXPECT_THAT(folder.entries(), ElementsAre("Log.lgg", "other"));
}

TEST_F(PosixFilesTest, ReplaceWithTheSamePermissions) {
    folder.write("a", "old");
    ASSERT_EQ(::chmod((folder / "a").c_str(), 0640), 0);
    files.replace("a", "new");
    EXPECT_EQ(modeOf("a"), 0640u);
}

TEST_F(PosixFilesTest, ReplaceTheFileThatALinkLeadsTo) {
    folder.write("sub/a", "old");
    std::filesystem::create_symlink("sub/a", folder / "link");
    files.replace("link", "new");
    EXPECT_TRUE(std::filesystem::is_symlink(folder / "link"));
    EXPECT_EQ(folder.read("sub/a"), "new");
}

TEST_F(PosixFilesTest, ReplaceOverWhatACrashLeftBeside) {
    folder.write(".a.new", "half");
    files.replace("a", "whole");
    EXPECT_EQ(folder.read("a"), "whole");
    EXPECT_THAT(folder.entries(), ElementsAre("a"));
}

TEST_F(PosixFilesTest, KeepTheOldContentWhenTheDiskIsFull) {
    folder.write("a", "old");
    std::string fault;
    {
        const SmallDisk small(100);
        fault = faultOf([&] { files.replace("a", std::string(200, 'x')); });
    }
    EXPECT_EQ(fault, "Disk full");
    EXPECT_EQ(folder.read("a"), "old");
    EXPECT_THAT(folder.entries(), ElementsAre("a"));
}

TEST_F(PosixFilesTest, WriteWhatGoesInBeforeTheDiskIsFull) {
    const auto file = files.append("a");
    std::string fault;
    {
        const SmallDisk small(100);
        fault = faultOf([&] { file->write(std::string(200, 'x')); });
    }
    EXPECT_EQ(fault, "Disk full");
    EXPECT_EQ(file->length(), 100);
}

TEST_F(PosixFilesTest, RefuseAReadOnlyFolderAndLeaveItAsItIs) {
    folder.write("a", "old");
    ASSERT_EQ(::chmod((folder / "a").c_str(), 0666), 0);
    ASSERT_EQ(::chmod(folder.path().c_str(), 0555), 0);
    std::string made, replaced, removed;
    {
        const OrdinaryUser user;
        made = faultOf([&] { files.append("new"); });
        replaced = faultOf([&] { files.replace("a", "new"); });
        removed = faultOf([&] { files.remove("a"); });
    }
    ASSERT_EQ(::chmod(folder.path().c_str(), 0755), 0);
    EXPECT_EQ(made, "Path/File access error");
    EXPECT_EQ(replaced, "Path/File access error");
    EXPECT_EQ(removed, "Path/File access error");
    EXPECT_EQ(folder.read("a"), "old");
    EXPECT_THAT(folder.entries(), ElementsAre("a"));
}

TEST_F(PosixFilesTest, RefuseToReplaceAReadOnlyFile) {
    folder.write("a", "old");
    ASSERT_EQ(::chmod((folder / "a").c_str(), 0444), 0);
    ASSERT_EQ(::chmod(folder.path().c_str(), 0777), 0);
    std::string replaced, read;
    {
        const OrdinaryUser user;
        replaced = faultOf([&] { files.replace("a", "new"); });
        read = files.read("a");
    }
    EXPECT_EQ(replaced, "Path/File access error");
    EXPECT_EQ(read, "old");
}

TEST_F(PosixFilesTest, RefuseFoldersAndPipesWithoutWaiting) {
    std::filesystem::create_directory(folder / "sub");
    ASSERT_EQ(::mkfifo((folder / "pipe").c_str(), 0666), 0);
    for (const char* const name : {"sub", "sub/", "", "pipe"}) {
        EXPECT_NE(faultOf([&] { files.read(name); }), "none") << name;
        EXPECT_NE(faultOf([&] { files.append(name); }), "none") << name;
        EXPECT_NE(faultOf([&] { files.create(name); }), "none") << name;
        EXPECT_NE(faultOf([&] { files.replace(name, "x"); }), "none") << name;
    }
    EXPECT_THAT(folder.entries(), ElementsAre("pipe", "sub"));
    EXPECT_FALSE(files.exists("sub"));
}

TEST_F(PosixFilesTest, TellPathAndReasonOfAFault) {
    try {
        files.read("missing.txt");
        FAIL();
    } catch (const FileError& error) {
        EXPECT_STREQ(error.what(), "File not found");
        EXPECT_EQ(error.path, folder.path() + "/missing.txt");
        EXPECT_EQ(error.reason, "No such file or directory");
    }
    EXPECT_EQ(faultOf([&] { files.read("missing/x"); }), "Path not found");
    EXPECT_EQ(faultOf([&] { files.remove("missing.txt"); }), "File not found");
    EXPECT_EQ(faultOf([&] { files.append(std::string(300, 'x')); }), "Bad file name or number");
    EXPECT_EQ(faultOf([&] { files.append(std::string("a\0b", 3)); }), "Bad file name or number");
    EXPECT_EQ(faultOf([&] { files.remove(std::string("a\0b", 3)); }), "Bad file name or number");
    EXPECT_EQ(faultOf([&] { files.replace(std::string("a\0b", 3), ""); }), "Bad file name or number");
}

TEST_F(PosixFilesTest, RemoveAFileByAnyCase) {
    folder.write("Name", "");
    files.remove("NAME");
    EXPECT_FALSE(folder.has("Name"));
}

TEST_F(PosixFilesTest, ListPlainFilesInOrderOfNameWithoutRegardToCase) {
    for (const char* const name : {"b.lgg", "A.LGG", "C.lgg", "_.lgg", "a.txt", ".x.lgg.new", ".x.lgg"}) {
        folder.write(name, "");
    }
    std::filesystem::create_directory(folder / "d.lgg");
    EXPECT_THAT(files.list("*.lgg"), ElementsAre("_.lgg", "A.LGG", "b.lgg", "C.lgg"));
    EXPECT_THAT(files.list(".*"), ElementsAre(".x.lgg", ".x.lgg.new"));
    EXPECT_THAT(files.list("?.txt"), ElementsAre("a.txt"));
    EXPECT_THAT(files.list("*.none"), IsEmpty());
}

}  // namespace
