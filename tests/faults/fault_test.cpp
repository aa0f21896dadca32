// SPDX-License-Identifier: MIT
// A file that can't be opened or written never costs a contact that is logged, and is always told.
#include <gtest/gtest.h>

#include "base/text.h"
#include "core/log_file.h"
#include "support/failing_files.h"
#include "support/played_station.h"

namespace {

constexpr const char* kLog = "JAN.lgg";
constexpr const char* kBackup = "BU/JAN.lgg";
constexpr const char* kBackupMessage =
    R"(message "Error. Check BU drive\\path: BU\\" title " Invalid drive\\path..." icon exclamation)";

struct Contact {
    const char* call;
    const char* grid;
};
constexpr Contact kContacts[] = {{"w1xyz", "fn31"}, {"k2abc/r", "fn20"}, {"wa3ddd", "fn31pr"}};
constexpr Contact kLast{"n8ee", "en82"};

/// A folder with a station that has its backup on, and one new log in it.
class Desk {
public:
    explicit Desk(const std::string& failing)
        : counter(failing), disk_(folder.path()), files_(disk_, counter) {
        std::filesystem::create_directory(folder / "BU");
        folder.write("TARQEN32Control.Ini", settingsWithBackup());
        folder.write("Name.dat", personalData());
        station.emplace(files_);
    }
    bool start() { return station->play(startOfNewLog("ARRL Jan. VHF Sweepstakes")) && !station->ended(); }
    int logged() { return std::max(0, station->station().session.LogLineCount - 2); }
    std::string call() { return station->station().forms.frmLog.CallS.text(); }
    std::string grid() { return station->station().forms.frmLog.tGrid.text(); }
    /// Types a contact and accepts it, again for as long as the program refuses it.
    void log(const Contact& contact);
    void restart() {
        station.emplace(files_);
        ASSERT_TRUE(station->play(startOfOldLog())) << station->reason();
    }

    TempFolder folder;
    CallCounter counter;
    std::optional<PlayedStation> station;
    /// All that was printed.
    std::string told;
    int refused = 0;

private:
    PosixFiles disk_;
    FailingFiles files_;
};

void Desk::log(const Contact& contact) {
    const int before = logged();
    const std::string file = contentOf(folder, kLog);
    std::string keys =
        std::string("type ") + contact.call + "\nkey Space\ntype " + contact.grid + "\nkey Enter\n";
    for (int attempt = 0; attempt < 5; ++attempt, keys.clear()) {
        ASSERT_TRUE(station->play(keys + "key Enter\n")) << station->reason();
        told += station->transcript();
        ASSERT_FALSE(station->ended()) << told;
        if (logged() != before) break;
        ++refused;
        EXPECT_EQ(contentOf(folder, kLog), file) << "what is refused leaves no trace in the file";
        EXPECT_EQ(wholeLog(station->station().session), file) << "nor in memory";
        EXPECT_EQ(call(), text::upper(contact.call)) << "the call stays";
        EXPECT_EQ(text::upper(grid()), text::upper(contact.grid)) << "the grid stays";
    }
    ASSERT_EQ(logged(), before + 1);
    EXPECT_EQ(call(), "");
    EXPECT_EQ(grid(), "");
    // What was there stands, and what was accepted is on the disk, as whole lines.
    const std::string after = contentOf(folder, kLog);
    EXPECT_TRUE(text::startsWith(after, file));
    EXPECT_TRUE(text::endsWith(after, "\r\n"));
    EXPECT_EQ(text::lines(after).size(), static_cast<std::size_t>(logged()) + 2);
}

/// What a session without a fault leaves behind, and how many calls its start and the whole of it make.
struct Reference {
    explicit Reference(const std::string& failing);
    int callsAtStart = 0, calls = 0;
    std::string log, backup, settings, personal, score;
};

std::string scoreOf(Desk& desk) { return desk.station->station().forms.frmLog.tScore.caption(); }

Reference::Reference(const std::string& failing) {
    Desk desk(failing);
    EXPECT_TRUE(desk.start());
    callsAtStart = desk.counter.calls();
    for (const Contact& contact : kContacts) desk.log(contact);
    calls = desk.counter.calls();
    desk.log(kLast);
    EXPECT_EQ(desk.refused, 0);
    log = contentOf(desk.folder, kLog);
    backup = contentOf(desk.folder, kBackup);
    personal = contentOf(desk.folder, "Name.dat");
    settings = contentOf(desk.folder, "TARQEN32Control.Ini");
    score = scoreOf(desk);
}

/// After the faults are over: one more contact brings both files to where they would be without them, and
/// the log counts the same when it is loaded again.
void expectMended(Desk& desk, const Reference& reference) {
    desk.counter.failFrom(0);
    desk.log(kLast);
    EXPECT_EQ(contentOf(desk.folder, kLog), reference.log);
    EXPECT_EQ(contentOf(desk.folder, kBackup), reference.backup);
    EXPECT_EQ(scoreOf(desk), reference.score);
    desk.restart();
    EXPECT_EQ(desk.logged(), 4);
    EXPECT_EQ(scoreOf(desk), reference.score);
}

struct Sweep {
    const char* file;
    int times;
};
std::ostream& operator<<(std::ostream& out, const Sweep& sweep) {
    return out << sweep.file << " " << sweep.times << " times";
}

class LogFault : public testing::TestWithParam<Sweep> {};

}  // namespace

TEST_P(LogFault, EachCallOfAnAcceptMayFailAndNothingIsLostOrCountedTwice) {
    const auto [file, times] = GetParam();
    const Reference reference(file);
    ASSERT_GT(reference.calls, reference.callsAtStart);
    for (int call = reference.callsAtStart + 1; call <= reference.calls; ++call) {
        SCOPED_TRACE("call " + std::to_string(call));
        Desk desk(file);
        ASSERT_TRUE(desk.start());
        desk.station->transcript();
        desk.counter.failFrom(call, times);
        for (const Contact& contact : kContacts) ASSERT_NO_FATAL_FAILURE(desk.log(contact));
        ASSERT_TRUE(desk.counter.hasFailed());
        if (desk.refused > 0) {
            EXPECT_TRUE(text::contains(desk.told, desk.folder.path() + "/" + kLog)) << desk.told;
            EXPECT_TRUE(text::contains(desk.told, kFaultReason)) << desk.told;
        }
        const std::string backup = contentOf(desk.folder, kBackup);
        if (backup != text::left(reference.backup, static_cast<int>(backup.size()))) {
            EXPECT_TRUE(text::contains(desk.told, kBackupMessage)) << desk.told;
        }
        expectMended(desk, reference);
    }
}

INSTANTIATE_TEST_SUITE_P(Faults, LogFault,
                         testing::Values(Sweep{kLog, 1}, Sweep{kLog, 2}, Sweep{kLog, 3}, Sweep{kBackup, 1},
                                         Sweep{kBackup, 2}, Sweep{kBackup, 3}));

namespace {

/// Plays a session in which writing breaks off once so many bytes are in.
void playFullDisk(const Reference& reference, const std::string& pattern, std::size_t contact,
                  std::size_t after) {
    SCOPED_TRACE(pattern + " full after " + std::to_string(after));
    Desk desk("none");
    ASSERT_TRUE(desk.start());
    desk.station->transcript();
    for (std::size_t at = 0; at < std::size(kContacts); ++at) {
        if (at == contact)
            desk.station->play("fail write " + pattern + " after " + std::to_string(after) + " times 1");
        ASSERT_NO_FATAL_FAILURE(desk.log(kContacts[at]));
    }
    if (pattern == kLog) {
        EXPECT_EQ(desk.refused, 1);
        EXPECT_TRUE(text::contains(desk.told, desk.folder.path() + "/" + kLog)) << desk.told;
        EXPECT_TRUE(text::contains(desk.told, "No space left on device")) << desk.told;
    } else {
        EXPECT_EQ(desk.refused, 0);
        EXPECT_TRUE(text::contains(desk.told, "Error. Check BU drive\\\\path: BU\\\\")) << desk.told;
    }
    desk.station->play("mend");
    expectMended(desk, reference);
}

constexpr std::size_t kLineLength = 66;

}  // namespace

TEST(FullDisk, ALogLineBreaksOffAtEachOfItsBytes) {
    const Reference reference("none");
    for (std::size_t after = 0; after < kLineLength; ++after) playFullDisk(reference, kLog, 2, after);
}

TEST(FullDisk, TheFirstLinesOfALogBreakOffAtEachOfTheirBytes) {
    const Reference reference("none");
    const std::size_t headers = reference.log.find("50    PH");
    for (std::size_t after = 0; after < headers + kLineLength; after += 7)
        playFullDisk(reference, kLog, 0, after);
}

TEST(FullDisk, ABackupLineBreaksOffAtEachOfItsBytes) {
    const Reference reference("none");
    for (std::size_t after = 0; after < kLineLength; ++after) playFullDisk(reference, kBackup, 2, after);
}

TEST(FullDisk, TheWholeCopyOfABackupBreaksOffAtEachOfItsBytes) {
    // The second contact finds a backup of one line and writes it whole.
    const Reference reference("none");
    const std::size_t copy = reference.log.find("50    PH") + kLineLength;
    for (std::size_t after = 0; after < copy; after += 5) playFullDisk(reference, kBackup, 1, after);
}

namespace {

/// Plays a whole session of which a call to the control file or the personal data fails. False where the
/// program has ended at once, told, with the file as it was.
bool playOwnFileFault(Desk& desk, const std::string& name) {
    const std::string before = contentOf(desk.folder, name);
    desk.station->play("start");
    if (desk.station->ended()) {
        desk.told = desk.station->transcript();
        EXPECT_EQ(contentOf(desk.folder, name), before);
        return false;
    }
    // Where the file could not be read, the operator enters what he sees missing.
    EXPECT_TRUE(
        desk.station->play("set frmSetup.Combo4 W1ABC\nset frmSetup.Combo7 FN20jk\n"
                           "choose frmSetup.Combo1 OFF\nset frmSetup.Combo1 BU\\\n"))
        << desk.station->reason();
    EXPECT_TRUE(desk.station->play(startOfNewLog("ARRL Jan. VHF Sweepstakes").substr(6)))
        << desk.station->reason();
    desk.told += desk.station->transcript();
    return true;
}

class OwnFileFault : public testing::TestWithParam<Sweep> {};

}  // namespace

TEST_P(OwnFileFault, EachCallMayFailAndNoContactIsLost) {
    const auto [name, times] = GetParam();
    const Reference reference(name);
    for (int call = 1; call <= reference.calls; ++call) {
        SCOPED_TRACE("call " + std::to_string(call));
        Desk desk(name);
        desk.counter.failFrom(call, times);
        const bool running = playOwnFileFault(desk, name);
        EXPECT_TRUE(text::contains(desk.told, desk.folder.path() + "/" + name)) << desk.told;
        EXPECT_TRUE(text::contains(desk.told, kFaultReason)) << desk.told;
        EXPECT_NE(contentOf(desk.folder, name), "") << "no file is left empty";
        if (!running) continue;
        for (const Contact& contact : kContacts) ASSERT_NO_FATAL_FAILURE(desk.log(contact));
        EXPECT_EQ(desk.refused, 0);
        desk.counter.failFrom(0);
        desk.log(kLast);
        EXPECT_EQ(contentOf(desk.folder, kLog), reference.log);
        desk.station->play("click frmLog.cmdExit");
        EXPECT_TRUE(desk.station->ended());
    }
}

INSTANTIATE_TEST_SUITE_P(Faults, OwnFileFault,
                         testing::Values(Sweep{"TARQEN32Control.Ini", 1}, Sweep{"TARQEN32Control.Ini", 2},
                                         Sweep{"TARQEN32Control.Ini", 3}, Sweep{"Name.dat", 1},
                                         Sweep{"Name.dat", 2}, Sweep{"Name.dat", 3}));
