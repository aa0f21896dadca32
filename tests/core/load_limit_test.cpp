// SPDX-License-Identifier: MIT
// A log of 2500 QSOs loads whole; what is beyond is told and left alone.
#include <gtest/gtest.h>

#include "base/text.h"
#include "support/played_station.h"

namespace {

constexpr const char* kLimitMessage =
    R"(message "Number of QSOs exceeds the 2500 limit...\r\n  Extra ignored..." title " 2500 QSO limit" icon exclamation)";

std::string logOf(int qsos) {
    std::string file = "2007 ARRL Jan. VHF Sweepstakes\r\nv2.0        W1ABC           1\r\n";
    for (int qso = 0; qso < qsos; ++qso) {
        const std::string call = "W" + std::to_string(qso % 10) +
                                 std::string(1, static_cast<char>('A' + qso % 26)) +
                                 static_cast<char>('A' + qso / 26 % 26) + static_cast<char>('A' + qso / 676);
        file += "50    PH  01/20/07  1435  " + text::pad(call, 13) + "FN20jk FN31            1 \r\n";
    }
    return file;
}

class Limit : public testing::Test {
protected:
    Limit() : files_(folder.path()), station(files_) { folder.write("Name.dat", personalData()); }
    std::string load(int qsos) {
        folder.write("JAN.lgg", logOf(qsos));
        EXPECT_TRUE(station.play(startOfOldLog())) << station.reason();
        return station.transcript();
    }
    TempFolder folder;

private:
    PosixFiles files_;

protected:
    PlayedStation station;
};

}  // namespace

TEST_F(Limit, ALogOfExactly2500LoadsWithoutAWord) {
    EXPECT_FALSE(text::contains(load(2500), "message"));
    EXPECT_EQ(station.station().session.LogLineCount, 2502);
    EXPECT_EQ(station.station().session.BandQSOs(1), 2500);
}

TEST_F(Limit, OneMoreIsToldAndIgnored) {
    const std::string told = load(2501);
    EXPECT_TRUE(text::contains(told, kLimitMessage)) << told;
    EXPECT_EQ(station.station().session.LogLineCount, 2502);
    EXPECT_EQ(station.station().session.BandQSOs(1), 2500);
    EXPECT_EQ(folder.read("JAN.lgg"), logOf(2501));
}

TEST_F(Limit, ARefreshCountsOneSlotMoreWithoutReadingIt) {
    load(2501);
    ASSERT_TRUE(station.play("type rf\nkey Enter\n"));
    EXPECT_FALSE(text::contains(station.transcript(), "message"));
    EXPECT_EQ(station.station().session.LogLineCount, 2503);
    EXPECT_EQ(station.station().session.BandQSOs(1), 2500);
}

TEST_F(Limit, NothingIsDeletedWhereTheFileHoldsMore) {
    load(2501);
    for (const char* const before : {"", "type rf\nkey Enter\n"}) {
        ASSERT_TRUE(station.play(std::string(before) + "reply OK\ntype dl\nkey Enter\n")) << station.reason();
        EXPECT_TRUE(text::contains(station.transcript(), "Nothing is deleted")) << station.transcript();
        EXPECT_EQ(folder.read("JAN.lgg"), logOf(2501));
        EXPECT_FALSE(folder.has("JAN.bu1"));
    }
}

TEST_F(Limit, TheLastQsoOfAFullLogIsDeleted) {
    load(2500);
    ASSERT_TRUE(station.play("reply OK\ntype dl\nkey Enter\n")) << station.reason();
    EXPECT_EQ(folder.read("JAN.lgg"), logOf(2499));
    EXPECT_EQ(folder.read("JAN.bu1"), logOf(2500));
}
