// SPDX-License-Identifier: MIT
// An export that can't be written ends in order: what was written stays, the log is as it was, and the
// operator is told where he is to be told.
#include <gtest/gtest.h>

#include <optional>

#include "base/text.h"
#include "core/log_file.h"
#include "support/failing_files.h"
#include "support/played_station.h"

namespace {

constexpr const char* kTold =
    R"(message "Error occurred, file write not completed!" title "" icon none buttons OK default OK -> OK)";
constexpr const char* kOldContent = "An older file.\r\n";

struct Export {
    const char *item, *file;
    /// What is picked for the contest.
    const char *contest, *sprint;
    /// What answers the export's own boxes, in a run without a fault.
    const char* reply;
    bool hourglass, told;
};
std::ostream& operator<<(std::ostream& out, const Export& what) { return out << what.item; }

constexpr const char* kJanuary = "ARRL Jan. VHF Sweepstakes";
const Export kExports[] = {
    {"mCabrillo", "W1ABC.log", kJanuary, "", "", false, true},
    {"mnonARRL", "W1ABC.log", "Generic Sprints", "50 MHz Sprint", "", false, false},
    {"mWriteSum", "W1ABC.sum", kJanuary, "", "reply OK\n", true, false},
    {"mWritegrids", "2007grid.txt", kJanuary, "", "", true, false},
    {"mADIF", "JAN.ADI", kJanuary, "", "reply jan\n", true, false},
};

/// A station with two QSOs, whose calls to the export's file are counted.
class Desk {
public:
    explicit Desk(const Export& what)
        : what_(what), counter(what.file), disk_(folder.path()), files_(disk_, counter) {
        folder.write("Name.dat", personalData());
        station.emplace(files_);
        EXPECT_TRUE(station->play(startOfNewLog(what.contest, what.sprint) +
                                  "type w1xyz\nkey Space\ntype fn31pr\nkey Enter\nkey Enter\n"
                                  "type k2def\nkey Space\ntype fn21\nkey Enter\nkey Enter\n"))
            << station->reason();
        log_ = contentOf(folder, "JAN.lgg");
        station->transcript();
    }
    /// Clicks on the item; `reply` queues what answers its box.
    std::string run(const std::string& reply) {
        EXPECT_TRUE(station->play(reply + "click frmLog." + what_.item + "\n")) << station->reason();
        return station->transcript();
    }
    std::string written() const { return contentOf(folder, what_.file); }
    void expectLogAsItWas() {
        EXPECT_FALSE(station->ended());
        EXPECT_EQ(contentOf(folder, "JAN.lgg"), log_);
        EXPECT_EQ(wholeLog(station->station().session), log_);
    }

private:
    const Export& what_;

public:
    TempFolder folder;
    CallCounter counter;
    std::optional<PlayedStation> station;

private:
    PosixFiles disk_;
    FailingFiles files_;
    std::string log_;
};

/// What answers the boxes of a run with a fault: the summary's own one comes after its file, and so not at
/// all.
std::string replyToFault(const Export& what) {
    if (what.told) return "reply OK\n";
    return text::contains(what.reply, "jan") ? what.reply : "";
}

void expectEndedInOrder(const Export& what, const std::string& transcript) {
    EXPECT_EQ(text::contains(transcript, kTold), what.told) << transcript;
    EXPECT_EQ(text::contains(transcript, "message"), what.told) << transcript;
    EXPECT_FALSE(text::contains(transcript, "run ")) << transcript;
    EXPECT_EQ(text::contains(transcript, "pointer hourglass\npointer normal\n"), what.hourglass)
        << transcript;
}

class ExportFault : public testing::TestWithParam<Export> {};

}  // namespace

TEST_P(ExportFault, EachCallMayFailAndTheNextExportIsWhole) {
    const Export& what = GetParam();
    Desk reference(what);
    const std::string told = reference.run(what.reply);
    const std::string whole = reference.written();
    ASSERT_GT(whole.size(), 100u);
    ASSERT_TRUE(text::contains(told, "NOTEPAD.exe")) << told;
    ASSERT_EQ(reference.counter.calls(), 3) << "open, write, close";
    for (int call = 1; call <= 3; ++call) {
        SCOPED_TRACE("call " + std::to_string(call));
        Desk desk(what);
        desk.folder.write(what.file, kOldContent);
        desk.counter.failFrom(call);
        expectEndedInOrder(what, desk.run(replyToFault(what)));
        EXPECT_TRUE(desk.counter.hasFailed());
        const std::string expected[] = {kOldContent, whole.substr(0, whole.size() / 2), whole};
        EXPECT_EQ(desk.written(), expected[call - 1]);
        desk.expectLogAsItWas();
        desk.counter.failFrom(0);
        desk.run(what.reply);
        EXPECT_EQ(desk.written(), whole);
    }
}

TEST_P(ExportFault, AFullDiskKeepsWhatFittedAtEachByte) {
    const Export& what = GetParam();
    Desk desk(what);
    desk.run(what.reply);
    const std::string whole = desk.written();
    for (std::size_t after = 0; after < whole.size(); after += after + 60 < whole.size() ? 7 : 1) {
        SCOPED_TRACE("full after " + std::to_string(after));
        desk.station->play(std::string("fail write ") + what.file + " after " + std::to_string(after) +
                           " times 1\n");
        expectEndedInOrder(what, desk.run(replyToFault(what)));
        EXPECT_EQ(desk.written(), whole.substr(0, after));
    }
    desk.expectLogAsItWas();
    desk.run(what.reply);
    EXPECT_EQ(desk.written(), whole);
}

TEST_P(ExportFault, AFolderInThePlaceOfTheFileIsNoFile) {
    const Export& what = GetParam();
    Desk desk(what);
    std::filesystem::create_directory(desk.folder / what.file);
    expectEndedInOrder(what, desk.run(replyToFault(what)));
    desk.expectLogAsItWas();
}

INSTANTIATE_TEST_SUITE_P(Faults, ExportFault, testing::ValuesIn(kExports));
