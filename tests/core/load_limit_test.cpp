// SPDX-License-Identifier: MIT
// A log of 2500 QSOs loads whole; what is beyond is told and left alone. Entry goes on until memory is full.
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

namespace {

/// The keys of one contact with a station that no loaded log holds.
std::string keysOfNewStation(int number) {
    return "type k" + std::to_string(number % 10) + "a" + static_cast<char>('a' + number / 10 % 26) +
           static_cast<char>('a' + number / 260) + "\nkey Space\ntype fn42\nkey Enter\nkey Enter\n";
}

}  // namespace

TEST_F(Limit, EntryGoesOnToTheLastLineOfMemoryAndEndsBeyond) {
    load(2500);
    std::string keys;
    for (int number = 0; number < 499; ++number) keys += keysOfNewStation(number);
    ASSERT_TRUE(station.play(keys)) << station.reason();
    EXPECT_EQ(station.transcript(), "");
    ASSERT_EQ(station.station().session.LogLineCount, 3001);
    const std::string full = folder.read("JAN.lgg");
    EXPECT_EQ(text::lines(full).size(), 3001u);
    ASSERT_TRUE(station.play(keysOfNewStation(499))) << station.reason();
    EXPECT_EQ(station.transcript(), "error \"Subscript out of range\"\nend\n");
    EXPECT_TRUE(station.ended());
    EXPECT_EQ(folder.read("JAN.lgg"), full) << "nothing of the QSO too many is in the file";
}

TEST_F(Limit, ALogWindowThatCannotBeFilledIsToldAndEndsTheProgram) {
    load(1);
    station.station().session.LogLineCount = 3002;
    ASSERT_TRUE(station.play("click frmLog.LogWindow\n")) << station.reason();
    EXPECT_EQ(station.transcript(),
              R"(message "Check the .LGG file format...\n    Is it a TARQEN v2.0 or higher log file ?")"
              " title \"\" icon exclamation buttons OK default OK -> OK (unasked)\nend\n");
    EXPECT_TRUE(station.ended());
    EXPECT_EQ(folder.read("JAN.lgg"), logOf(1));
}
