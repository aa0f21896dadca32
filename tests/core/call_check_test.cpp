// SPDX-License-Identifier: MIT
#include "core/call_check.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

namespace {

struct BandTexts {
    int band;
    std::vector<std::string> texts;
};

const std::vector<BandTexts> kCommands{{1, {"50"}},           {2, {"144", "14"}},    {3, {"222", "22"}},
                                       {4, {"432", "43"}},    {5, {"903", "90"}},    {6, {"1296", "12"}},
                                       {7, {"2304", "23"}},   {8, {"3456", "34"}},   {9, {"5760", "57"}},
                                       {10, {"10368", "10"}}, {11, {"24000", "24"}}, {12, {"47000", "47"}},
                                       {13, {"LASER", "LA"}}};

bool isLowBand(const std::string& text) { return text == "50" || text == "144" || text == "14"; }

TEST(BandCommand, SelectsTheBandOfEachOfItsTexts) {
    for (int number = 1; number <= 31; ++number) {
        if (number == 3) continue;
        for (const auto& [band, texts] : kCommands) {
            for (const std::string& text : texts) {
                EXPECT_EQ(call::bandCommand(text, std::to_string(number)), band) << text << " in " << number;
            }
        }
    }
}

TEST(BandCommand, LeavesFiftyAndOneFortyFourOutInTheUhfContest) {
    for (const auto& [band, texts] : kCommands) {
        for (const std::string& text : texts) {
            EXPECT_EQ(call::bandCommand(text, "3"), isLowBand(text) ? 0 : band) << text;
        }
    }
}

TEST(BandCommand, IsNoOtherText) {
    for (const char* const text :
         {"",     "5",      "1",    "L",   "A",    "LAS", "LASE",  "Laser", "laser", "la",
          "51",   "145",    "1440", "14 ", " 14",  "129", "12960", "230",   "345",   "576",
          "1036", "103680", "2400", "240", "4700", "902", "220",   "430",   "33",    "44"}) {
        EXPECT_EQ(call::bandCommand(text, "1"), 0) << text;
        EXPECT_EQ(call::shortBandCommand(text, "1"), 0) << text;
        EXPECT_EQ(call::longBandCommand(text), 0) << text;
    }
}

TEST(BandCommand, OfTwoAndThreeCharactersReachesFromOneFortyFourToNineOhThree) {
    for (const auto& [band, texts] : kCommands) {
        const bool early = band >= 2 && band <= 5;
        for (const std::string& text : texts) {
            EXPECT_EQ(call::shortBandCommand(text, "1"), early ? band : 0) << text;
            EXPECT_EQ(call::shortBandCommand(text, "3"), early && !isLowBand(text) ? band : 0) << text;
            EXPECT_EQ(call::longBandCommand(text), band >= 6 ? band : 0) << text;
        }
    }
}

TEST(IfCommand, IsAnFInFrontOfDigits) {
    for (const char* const text : {"F125", "F12", "F00", "F999", "F12345", "F12AB", "F1234X", "F00000"}) {
        EXPECT_TRUE(call::isIfCommand(text)) << text;
    }
}

TEST(IfCommand, OfFourCharactersNeedsThreeDigits) {
    EXPECT_FALSE(call::isIfCommand("F12A"));
    EXPECT_FALSE(call::isIfCommand("F1A2"));
    EXPECT_TRUE(call::isIfCommand("F123"));
}

TEST(IfCommand, IsNoCallThatBeginsWithF) {
    for (const char* const text :
         {"", "F", "F1", "F1AB", "FA1B", "F1A", "FA12", "G125", "125", "1F25", "f125"}) {
        EXPECT_FALSE(call::isIfCommand(text)) << text;
    }
}

TEST(CallCheck, CountsPairsOfDigitsAtTheSecondAndThirdPosition) {
    struct Case {
        const char* text;
        int pairs;
    };
    const std::vector<Case> cases{{"K11A", 1},  {"K1A1", 0},  {"K111", 2},   {"KA11", 1},
                                  {"K111A", 2}, {"KA11B", 1}, {"KAB11", 0},  {"11AB", 0},
                                  {"111A", 1},  {"1111", 2},  {"K11", 0},    {"111", 0},
                                  {"W1XYZ", 0}, {"", 0},      {"2M0ABC", 0}, {"AB1234", 1}};
    for (const Case& c : cases) EXPECT_EQ(call::pairsOfDigits(c.text), c.pairs) << c.text;
}

TEST(CallCheck, NeedsANumeralFromTheSecondPositionOn) {
    for (const char* const text : {"W1A", "2M0ABC", "KA1", "ABCDEFG1", "11", "A0", "A9"}) {
        EXPECT_TRUE(call::hasNumeral(text)) << text;
    }
    for (const char* const text : {"", "1", "A", "ABCD", "2MABC", "9", "1ABC", "A/B", "A:B"}) {
        EXPECT_FALSE(call::hasNumeral(text)) << text;
    }
}

}  // namespace
