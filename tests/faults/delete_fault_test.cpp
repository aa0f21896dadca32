// SPDX-License-Identifier: MIT
// Taking the last contact back where files fail: it is either gone everywhere or nowhere, and the operator is
// told.
#include <gtest/gtest.h>

#include "base/text.h"
#include "core/log_file.h"
#include "support/failing_files.h"
#include "support/played_station.h"

namespace {

constexpr const char* kEntries =
    "type w1xyz\nkey Space\ntype fn31\nkey Enter\nkey Enter\n"
    "type k2abc\nkey Space\ntype fn20\nkey Enter\nkey Enter\n"
    "type n8ee\nkey Space\ntype en82\nkey Enter\nkey Enter\n";
constexpr const char* kDelete = "reply OK\nclick frmLog.DeleteQSO\n";

class DeleteFault : public testing::TestWithParam<const char*> {
protected:
    DeleteFault() {
        std::filesystem::create_directory(folder / "BU");
        folder.write("TARQEN32Control.Ini", settingsWithBackup());
        folder.write("Name.dat", personalData());
    }
    TempFolder folder;
};

}  // namespace

TEST_P(DeleteFault, EachCallMayFailOnceAndTheLogIsOneOrTheOtherEverywhere) {
    for (int call = 1; call <= 8; ++call) {
        SCOPED_TRACE("call " + std::to_string(call));
        for (const char* const name : {"JAN.lgg", "JAN.bu1", "BU/JAN.lgg"})
            std::filesystem::remove(folder.path() + "/" + name);
        CallCounter counter(GetParam());
        PosixFiles disk(folder.path());
        FailingFiles files(disk, counter);
        PlayedStation station(files);
        ASSERT_TRUE(station.play(startOfNewLog("ARRL Jan. VHF Sweepstakes") + kEntries)) << station.reason();
        const std::string before = contentOf(folder, "JAN.lgg");
        const std::string without = before.substr(0, before.size() - 66);
        station.transcript();
        counter.failFrom(counter.calls() + call);
        ASSERT_TRUE(station.play(kDelete)) << station.reason();
        const std::string told = station.transcript();
        ASSERT_FALSE(station.ended());
        const std::string after = contentOf(folder, "JAN.lgg");
        EXPECT_TRUE(after == before || after == without) << after;
        EXPECT_EQ(wholeLog(station.station().session), after);
        EXPECT_EQ(station.station().forms.frmLog.QSOs.listCount(), after == before ? 3 : 2);
        if (counter.hasFailed()) {
            const bool path = text::contains(told, folder.path() + "/" + GetParam());
            EXPECT_TRUE(path || text::contains(told, "Error. Check BU drive\\\\path: BU\\\\")) << told;
        } else {
            EXPECT_EQ(after, without);
        }
        counter.failFrom(0);
        const bool again = after != before || station.play(kDelete);
        ASSERT_TRUE(again) << station.reason();
        EXPECT_EQ(contentOf(folder, "JAN.lgg"), without);
        EXPECT_EQ(contentOf(folder, "BU/JAN.lgg"), without);
        EXPECT_EQ(contentOf(folder, "JAN.bu1"), before);
        EXPECT_EQ(station.station().session.BandQSOs(1), 2);
        EXPECT_EQ(station.station().forms.frmLog.tScore.caption(), "4");
    }
}

INSTANTIATE_TEST_SUITE_P(Faults, DeleteFault, testing::Values("JAN.lgg", "JAN.bu1", "BU/JAN.lgg"));
