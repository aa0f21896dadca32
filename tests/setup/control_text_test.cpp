// SPDX-License-Identifier: MIT
#include "setup/control_text.h"

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

namespace {

struct Row {
    const char* key;
    int index;
    /// The value of a new file; empty where there is none.
    const char* standard;
};

// In the order of the file.
const std::vector<Row> kRows{{"[Backup log file path with slash]", 1, "OFF"},
                             {"[Log window displayed by Band/Log]", 3, "Log"},
                             {"[Datafile for Bands to Work .dat]", 4, "LOGSORT"},
                             {"[Use/display LO offsets]", 5, "Use LO"},
                             {"[Use/display the 6-digit lookup file]", 7, "Six-Digit"},
                             {"[Manual/Auto QSO accept]", 8, "<Enter> key"},
                             {"[Display Jan SS activity hours]", 9, "Display"},
                             {"[6-digit distance mi/kM]", 10, "kM."},
                             {"[Display /R dupe prompts]", 12, "Yes"},
                             {"[UTC offset hrs]", 13, "0"},
                             {"[Log window font size]", 14, "10"},
                             {"[Log window font Bold/Normal]", 15, "Bold"},
                             {"[Printer active switch, 0=OFF 1=ON]", 17, "0"},
                             {"[CW selected or not]", 18, "no CW"},
                             {"[CW/PTT Com port index]", 19, "1"},
                             {"[DVK selected or not]", 20, "no DVK"},
                             {"[F9 DVK wave file]", 21, "none"},
                             {"[F10 DVK wave file]", 22, "none"},
                             {"[F11 DVK wave file]", 23, "none"},
                             {"[F12 DVK wave file]", 25, "none"},
                             {"[Use DVK PTT control]", 24, "no DVK PTT"},
                             {"[Use F12 DVK repeat]", 26, "no Repeat DVK"},
                             {"[DVK repeat time sec.]", 27, "5"},
                             {"[CW repeat time sec.]", 28, "0"},
                             {"[Reverse DTR/RTS at COM port, Swap=reverse]", 29, "no Swap"},
                             {"[Print 1st extra space in printout header, 0=No 1=Yes]", 30, "0"},
                             {"[Print 2nd extra space in printout header, 0=No 1=Yes]", 31, "0"},
                             {"[Send callsign in DVK message F9, 0=No 1=Yes]", 32, "0"},
                             {"[Display 6-digit recip heading]", 33, "no Recip"},
                             {"[Load last call when page Up/Down]", 34, "no Last Call"},
                             {"[Band encoder start point, 0=50 1=144]", 16, "1"},
                             {"[Use Band encoder on LPT, 0=No 1=Yes]", 35, "0"},
                             {"[Band encoder LPT address]", 36, "&H378"},
                             {"[CW on LPT]", 37, "no LPT CW"},
                             {"[PTT on LPT - Yes No]", 43, ""},
                             {"[CW calibration constant]", 38, "500"},
                             {"[Using a RIGblaster interface]", 39, "RIGblaster"},
                             {"[Insert rover`s last grid]", 41, ""},
                             {"[Grid map font size]", 42, ""},
                             {"[Last Grid map used]", 44, ""},
                             {"[NA Grid map font]", 45, ""},
                             {"[Use Master ADIF lookup]", 40, "Use Master file"},
                             {"[Master ADIF lookup file]", 47, ""},
                             {"[Select WinHelp32 or HTML (.chm) Help]", 48, ""},
                             {"[Use your bands lookup StationBands.txt]", 46, "Don`t use your Bands"},
                             {"[Use other COM port - Yes No]", 11, "-"},
                             {"[Other Com address format: &Hxxx]", 2, "-"},
                             {"[Other Com port id]", 6, "-"},
                             {"[Display clock in minutes or seconds]", 49, ""}};

constexpr int kMapPlace = 44;

std::string fileOf(const std::vector<std::string>& values) {
    std::string content = "//TARQEN32 Control Ini file\r\n";
    for (std::size_t place = 1; place <= kRows.size(); ++place) {
        if (place == kMapPlace) {
            content += "//WinHelp is the default, but may not open\r\n";
            content += "//in Vista or newer OS - use HTML help format\r\n";
        }
        content += std::string(kRows[place - 1].key) + "\r\n" + values[place - 1] + "\r\n";
    }
    return content + "--- End-of-File ---\r\n";
}

Settings parsed(const std::string& content, Settings values = {}) {
    control::parse(content, values, nullptr);
    return values;
}

TEST(ControlText, HoldsFortyNineKeysInTheirOrder) {
    Settings values;
    std::vector<std::string> expected;
    for (int index = 0; index <= 55; ++index) values(index) = "value " + std::to_string(index);
    for (const Row& row : kRows) expected.push_back("value " + std::to_string(row.index));
    ASSERT_EQ(kRows.size(), 49u);
    EXPECT_EQ(control::compose(values), fileOf(expected));
}

TEST(ControlText, OfANewFileHoldsTheDefaults) {
    Settings values;
    control::setDefaults(values);
    std::vector<std::string> expected;
    for (const Row& row : kRows) expected.emplace_back(row.standard);
    EXPECT_EQ(control::compose(values), fileOf(expected));
}

TEST(ControlDefaults, EmptyTheSettingsOfTheFileWithoutOne) {
    Settings values;
    for (int index = 0; index <= 55; ++index) values(index) = "before";
    control::setDefaults(values);
    std::set<int> inFile;
    for (const Row& row : kRows) {
        inFile.insert(row.index);
        EXPECT_EQ(values(row.index), row.standard) << row.key;
    }
    for (int index = 0; index <= 55; ++index) {
        if (inFile.count(index) == 0) {
            EXPECT_EQ(values(index), "before") << index;
        }
    }
}

TEST(ControlText, IsReadBackAsItWasWritten) {
    Settings values;
    for (const Row& row : kRows) values(row.index) = " value " + std::to_string(row.index) + " ";
    const Settings read = parsed(control::compose(values));
    for (int index = 0; index <= 55; ++index) EXPECT_EQ(read(index), values(index)) << index;
}

TEST(ControlText, TakesEachKeyByItself) {
    for (const Row& row : kRows) {
        const Settings read = parsed(std::string(row.key) + "\r\nv\r\n");
        for (int index = 0; index <= 55; ++index) {
            EXPECT_EQ(read(index), index == row.index ? "v" : "") << row.key << " " << index;
        }
    }
}

TEST(ControlText, TakesAKeyInAnyCase) {
    EXPECT_EQ(parsed("[UTC OFFSET HRS]\r\n5\r\n")(13), "5");
    EXPECT_EQ(parsed("[utc offset hrs]\r\n5\r\n")(13), "5");
}

TEST(ControlText, PassesOverAKeyWithABlankBehindIt) {
    EXPECT_EQ(parsed("[UTC offset hrs] \r\n5\r\n")(13), "");
    EXPECT_EQ(parsed(" [UTC offset hrs]\r\n5\r\n")(13), "");
    EXPECT_EQ(parsed("UTC offset hrs\r\n5\r\n")(13), "");
}

TEST(ControlText, PassesOverWhatItDoesNotKnow) {
    const Settings read = parsed(
        "//TARQEN32 Control Ini file\r\n\r\n[unknown]\r\nvalue\r\n// by hand\r\n"
        "[CW on LPT]\r\nLPT CW\r\n--- End-of-File ---\r\n");
    for (int index = 0; index <= 55; ++index) EXPECT_EQ(read(index), index == 37 ? "LPT CW" : "") << index;
}

TEST(ControlText, TakesAValueThatLooksLikeAKeyAsAValue) {
    const Settings read = parsed("[CW on LPT]\r\n[UTC offset hrs]\r\n5\r\n");
    EXPECT_EQ(read(37), "[UTC offset hrs]");
    EXPECT_EQ(read(13), "");
}

TEST(ControlText, TheLastOfAKeyWins) {
    EXPECT_EQ(parsed("[UTC offset hrs]\r\n5\r\n[CW on LPT]\r\nx\r\n[UTC offset hrs]\r\n6\r\n")(13), "6");
    EXPECT_EQ(parsed("[UTC offset hrs]\r\n5\r\n[UTC offset hrs]\r\n\r\n")(13), "");
}

TEST(ControlText, LeavesAnAbsentKeyAsItWas) {
    Settings before;
    before(13) = "4";
    before(1) = "OFF";
    const Settings read = parsed("[Log window font size]\r\n12\r\n", before);
    EXPECT_EQ(read(13), "4");
    EXPECT_EQ(read(1), "OFF");
    EXPECT_EQ(read(14), "12");
}

TEST(ControlText, AnEmptyValueEmptiesTheSetting) {
    Settings before;
    before(13) = "4";
    EXPECT_EQ(parsed("[UTC offset hrs]\r\n\r\n", before)(13), "");
}

TEST(ControlText, AKeyInTheLastLineChangesNothing) {
    Settings before;
    before(13) = "4";
    EXPECT_EQ(parsed("[UTC offset hrs]", before)(13), "4");
    EXPECT_EQ(parsed("[UTC offset hrs]\r\n", before)(13), "4");
    EXPECT_EQ(parsed("[UTC offset hrs]\r\n5", before)(13), "5");
}

TEST(ControlText, ReadsTheKeysOfOlderFiles) {
    EXPECT_EQ(parsed("[CW/PTT Com port]\r\n3\r\n")(19), "3");
    const Settings encoder = parsed("[Band encoder selector, 0=50 1=144]\r\n1\r\n");
    EXPECT_EQ(encoder(35), "1");
    EXPECT_EQ(encoder(16), "");
    EXPECT_EQ(parsed("[Other Com address format: &Hxxxx]\r\n&H3E8\r\n")(2), "&H3E8");
    EXPECT_EQ(parsed("[OTHER COM ADDRESS FORMAT: &HXXXX]\r\n&H3E8\r\n")(2), "&H3E8");
}

TEST(ControlText, IsWrittenWithoutTheOlderKeys) {
    const std::string written = control::compose(parsed("[CW/PTT Com port]\r\n3\r\n"));
    EXPECT_EQ(written.find("[CW/PTT Com port]\r\n"), std::string::npos);
    EXPECT_NE(written.find("[CW/PTT Com port index]\r\n3\r\n"), std::string::npos);
}

TEST(ControlText, TellsOfEachSettingInTheOrderOfTheFile) {
    Settings values;
    std::vector<std::string> told;
    control::parse("[CW on LPT]\r\na\r\n[unknown]\r\nb\r\n[Other Com port id]\r\nc\r\n[CW on LPT]\r\nd\r\n",
                   values, [&](int index) { told.push_back(std::to_string(index) + "=" + values(index)); });
    EXPECT_EQ(told, (std::vector<std::string>{"37=a", "6=c", "37=d"}));
}

TEST(ControlText, OfNothingChangesNothing) {
    const Settings read = parsed("");
    for (int index = 0; index <= 55; ++index) EXPECT_EQ(read(index), "");
}

}  // namespace
