// SPDX-License-Identifier: MIT
#include "base/number.h"

#include <gtest/gtest.h>

#include "base/run_time_error.h"

namespace {

std::string faultOf(const std::string& value) {
    try {
        number::valueOf(value);
    } catch (const RunTimeError& error) {
        return error.what();
    }
    return "none";
}

struct Reading {
    const char* text;
    double value;
};

TEST(NumberValue, IsTheNumberAtTheStartOfAText) {
    const Reading cases[] = {
        {"", 0},       {" 12", 12},    {"12", 12},   {"12abc", 12},
        {"abc12", 0},  {"-12", -12},   {"+12", 12},  {"--1", 0},
        {"-.5", -0.5}, {"5.", 5},      {".", 0},     {"+", 0},
        {"-", 0},      {"1.5.2", 1.5}, {"1,234", 1}, {"144.200 MHz", 144.2},
        {"0012", 12},
    };
    for (const Reading& c : cases) EXPECT_EQ(number::valueOf(c.text), c.value) << c.text;
}

TEST(NumberValue, PassesOverBlanksTabsAndLineEnds) {
    const Reading cases[] = {{"1 2", 12}, {"1\t2\r\n3", 123}, {" - 5", -5}, {"1 e 2", 100}};
    for (const Reading& c : cases) EXPECT_EQ(number::valueOf(c.text), c.value) << c.text;
}

TEST(NumberValue, TakesAnExponentWhereDigitsFollow) {
    const Reading cases[] = {
        {"1e3", 1000}, {"1E3", 1000}, {"1d3", 1000}, {"1D-1", 0.1}, {"1e+2", 100},
        {"1e", 1},     {"1e+", 1},    {"1ex", 1},    {"e3", 0},     {".e3", 0},
    };
    for (const Reading& c : cases) EXPECT_EQ(number::valueOf(c.text), c.value) << c.text;
}

TEST(NumberValue, ReadsHexadecimalFiguresWithTheSignOfTheirWidth) {
    const Reading cases[] = {
        {"&H378", 888},     {"&h378", 888},
        {" &H3 7 8", 888},  {"&H7FFF", 32767},
        {"&H8000", -32768}, {"&HFFFF", -1},
        {"&H0FFFF", 65535}, {"&H10000", 65536},
        {"&HFFFFFFFF", -1}, {"&H7FFFFFFF", 2147483647.0},
        {"&H", 0},          {"&HG", 0},
        {"&H12G", 18},      {"&", 0},
        {"&O17", 0},
    };
    for (const Reading& c : cases) EXPECT_EQ(number::valueOf(c.text), c.value) << c.text;
}

TEST(NumberValue, OverflowsPastTheLargestAndVanishesBelowTheSmallest) {
    EXPECT_EQ(faultOf("1e308"), "none");
    EXPECT_EQ(faultOf("1e309"), "Overflow");
    EXPECT_EQ(faultOf("-1e999"), "Overflow");
    EXPECT_EQ(faultOf(std::string(400, '9')), "Overflow");
    EXPECT_EQ(number::valueOf("1e-999"), 0);
    EXPECT_EQ(number::valueOf("." + std::string(400, '0') + "1"), 0);
}

TEST(NumberWhole, RoundsHalfToEven) {
    const std::pair<const char*, int> cases[] = {{"0.5", 0},   {"1.5", 2},  {"2.5", 2},  {"-0.5", 0},
                                                 {"-1.5", -2}, {"2.51", 3}, {"2.49", 2}, {"", 0}};
    for (const auto& [text, value] : cases) EXPECT_EQ(number::wholeOf(text), value) << text;
}

TEST(NumberWhole, OverflowsOutsideThirtyTwoBits) {
    EXPECT_EQ(number::wholeOf("2147483647.4"), 2147483647);
    EXPECT_EQ(number::wholeOf("-2147483648.4"), -2147483647 - 1);
    EXPECT_THROW(number::wholeOf("2147483647.6"), RunTimeError);
    EXPECT_THROW(number::wholeOf("-2147483649"), RunTimeError);
    EXPECT_THROW(number::rounded(1e300), RunTimeError);
}

TEST(NumberText, OfADoubleHasFifteenSignificantDigits) {
    const std::pair<double, const char*> cases[] = {
        {0, "0"},
        {-0.0, "0"},
        {3, "3"},
        {-3, "-3"},
        {100, "100"},
        {0.1, "0.1"},
        {-0.5, "-0.5"},
        {10.0 / 3, "3.33333333333333"},
        {2.0 / 3, "0.666666666666667"},
        {0.1 + 0.2, "0.3"},
        {144.2, "144.2"},
        {1e14, "100000000000000"},
        {1e15, "1E+15"},
        {1e20, "1E+20"},
        {1.25e-7, "1.25E-07"},
        {1e100, "1E+100"},
        {123456.789, "123456.789"},
        {999999999999999.9, "1E+15"},
    };
    for (const auto& [value, text] : cases) EXPECT_EQ(number::toText(value), text);
}

TEST(NumberText, OfASingleHasSevenSignificantDigits) {
    const std::pair<float, const char*> cases[] = {
        {0.1f, "0.1"},   {10.0f / 3, "3.333333"}, {1234567.0f, "1234567"},
        {1e7f, "1E+07"}, {8.25f, "8.25"},         {-2.5f, "-2.5"},
    };
    for (const auto& [value, text] : cases) EXPECT_EQ(number::toText(value), text);
}

TEST(NumberText, OfAWholeNumberHasAllItsDigits) {
    EXPECT_EQ(number::toText(-2147483647 - 1), "-2147483648");
    EXPECT_EQ(number::toText(std::int64_t{9007199254740993}), "9007199254740993");
}

TEST(NumberGrouped, HasCommasBetweenThousands) {
    const std::pair<double, const char*> cases[] = {
        {1, "1"},          {999, "999"},        {1000, "1,000"},
        {-1000, "-1,000"}, {123456, "123,456"}, {1234567, "1,234,567"},
        {1234.4, "1,234"}, {-999, "-999"},
    };
    for (const auto& [value, text] : cases) EXPECT_EQ(number::grouped(value), text);
}

TEST(NumberGrouped, IsEmptyForWhatRoundsToNothing) {
    EXPECT_EQ(number::grouped(0), "");
    EXPECT_EQ(number::grouped(0.4), "");
    EXPECT_EQ(number::grouped(-0.4), "");
}

TEST(NumberGrouped, WritesEveryDigitOfAVeryLargeNumber) {
    // 309 digits and 102 commas.
    EXPECT_EQ(number::grouped(1e308).size(), 309u + 102u);
}

}  // namespace
