// SPDX-License-Identifier: MIT
#include "base/text.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(TextColumns, CountFromOneAndIncludeBoth) {
    EXPECT_EQ(text::columns("ABCDEF", 1, 1), "A");
    EXPECT_EQ(text::columns("ABCDEF", 2, 4), "BCD");
    EXPECT_EQ(text::columns("ABCDEF", 6, 6), "F");
}

TEST(TextColumns, BeyondTheEndAreLeftOut) {
    EXPECT_EQ(text::columns("ABCDEF", 5, 9), "EF");
    EXPECT_EQ(text::columns("ABCDEF", 7, 9), "");
    EXPECT_EQ(text::columns("", 1, 3), "");
}

TEST(TextColumns, BeforeTheFirstStartAtTheFirst) {
    EXPECT_EQ(text::columns("ABCDEF", 0, 2), "AB");
    EXPECT_EQ(text::columns("ABCDEF", -3, 2), "AB");
}

TEST(TextColumns, InTheWrongOrderAreNone) {
    EXPECT_EQ(text::columns("ABCDEF", 4, 3), "");
    EXPECT_EQ(text::columns("ABCDEF", 1, 0), "");
}

TEST(TextFrom, GivesAllFromAColumnOn) {
    EXPECT_EQ(text::from("ABCDEF", 1), "ABCDEF");
    EXPECT_EQ(text::from("ABCDEF", 6), "F");
    EXPECT_EQ(text::from("ABCDEF", 7), "");
}

TEST(TextEnds, GiveSoManyCharactersOrAllOfAShorterText) {
    EXPECT_EQ(text::left("ABC", 2), "AB");
    EXPECT_EQ(text::left("ABC", 4), "ABC");
    EXPECT_EQ(text::left("ABC", 0), "");
    EXPECT_EQ(text::left("ABC", -1), "");
    EXPECT_EQ(text::right("ABC", 2), "BC");
    EXPECT_EQ(text::right("ABC", 4), "ABC");
    EXPECT_EQ(text::right("ABC", 0), "");
    EXPECT_EQ(text::right("ABC", -1), "");
}

TEST(TextTrim, TakesBlanksAloneAndNoTabs) {
    EXPECT_EQ(text::trim("  A B  "), "A B");
    EXPECT_EQ(text::trimLeft("  A "), "A ");
    EXPECT_EQ(text::trimRight(" A  "), " A");
    EXPECT_EQ(text::trim("\tA\t"), "\tA\t");
    EXPECT_EQ(text::trim("   "), "");
    EXPECT_EQ(text::trim(""), "");
}

TEST(TextPad, FillsWithBlanksAndCutsWhatIsLonger) {
    EXPECT_EQ(text::pad("AB", 4), "AB  ");
    EXPECT_EQ(text::pad("AB", 2), "AB");
    EXPECT_EQ(text::pad("ABC", 2), "AB");
    EXPECT_EQ(text::pad("AB", 0), "");
    EXPECT_EQ(text::pad("AB", -1), "");
}

TEST(TextBlanks, AreNoneForACountBelowOne) {
    EXPECT_EQ(text::blanks(3), "   ");
    EXPECT_EQ(text::blanks(0), "");
    EXPECT_EQ(text::blanks(-2), "");
}

TEST(TextCase, CoversTheLettersOfTheCodePage) {
    // Plain letters, accented letters, and the five letters below 160 that have two cases.
    const std::string small = "az\xE0\xFE\x9A\x9C\x9E\xFF", large = "AZ\xC0\xDE\x8A\x8C\x8E\x9F";
    EXPECT_EQ(text::upper(small), large);
    EXPECT_EQ(text::lower(large), small);
    EXPECT_EQ(text::upper(large), large);
    EXPECT_EQ(text::lower(small), small);
}

TEST(TextCase, LeavesWhatIsNoLetter) {
    // The signs of multiplication and division and the sharp s stand among the accented letters.
    const std::string others = "@[`{09\x80\xD7\xF7";
    EXPECT_EQ(text::upper(others), others);
    EXPECT_EQ(text::lower(others), others);
    EXPECT_EQ(text::lower("\xDF"), "\xDF");
    EXPECT_EQ(text::upper("\xDF"), "\xDF");
}

TEST(TextCase, ComesBackFromTheOtherCase) {
    for (int code = 0; code < 256; ++code) {
        const char character = static_cast<char>(code);
        const char other = text::upper(character);
        if (other != character) {
            EXPECT_EQ(text::lower(other), character) << code;
        }
    }
}

TEST(TextSame, LooksAtNoCase) {
    EXPECT_TRUE(text::same("w1xyz\xE9", "W1XYZ\xC9"));
    EXPECT_FALSE(text::same("W1XYZ", "W1XY"));
    EXPECT_FALSE(text::same("W1XYZ", "W1XYA"));
    EXPECT_TRUE(text::same("", ""));
}

TEST(TextParts, AreFoundWithRegardToCase) {
    EXPECT_TRUE(text::startsWith("W1XYZ/R", "W1"));
    EXPECT_FALSE(text::startsWith("W1XYZ", "w1"));
    EXPECT_FALSE(text::startsWith("W", "W1"));
    EXPECT_TRUE(text::endsWith("W1XYZ/R", "/R"));
    EXPECT_FALSE(text::endsWith("R", "/R"));
    EXPECT_TRUE(text::contains("50 144 432", "144"));
    EXPECT_FALSE(text::contains("50 144 432", "222"));
}

TEST(TextDigit, IsOneOfTen) {
    EXPECT_TRUE(text::isDigit('0'));
    EXPECT_TRUE(text::isDigit('9'));
    EXPECT_FALSE(text::isDigit('/'));
    EXPECT_FALSE(text::isDigit(':'));
    EXPECT_FALSE(text::isDigit('\xB2'));
}

TEST(TextLines, EndWithAnyKindOfLineEnd) {
    EXPECT_THAT(text::lines("a\r\nb\r\n"), ElementsAre("a", "b"));
    EXPECT_THAT(text::lines("a\nb\n"), ElementsAre("a", "b"));
    EXPECT_THAT(text::lines("a\rb\r"), ElementsAre("a", "b"));
    EXPECT_THAT(text::lines("a\r\nb\nc\rd"), ElementsAre("a", "b", "c", "d"));
}

TEST(TextLines, CountALastOneWithoutAnEndAndEmptyOnesBetween) {
    EXPECT_THAT(text::lines("a\r\n\r\nb"), ElementsAre("a", "", "b"));
    EXPECT_THAT(text::lines("\n\r"), ElementsAre("", ""));
    EXPECT_THAT(text::lines("\r\n"), ElementsAre(""));
    EXPECT_THAT(text::lines(""), IsEmpty());
}

TEST(TextItems, ArePartedByCommasAndLineEnds) {
    EXPECT_THAT(text::items("W1XYZ,FN31\r\n50 144\r\n"), ElementsAre("W1XYZ", "FN31", "50 144"));
    EXPECT_THAT(text::items("a,,b"), ElementsAre("a", "", "b"));
    EXPECT_THAT(text::items("a\r\n\r\nb"), ElementsAre("a", "", "b"));
    EXPECT_THAT(text::items(""), IsEmpty());
}

TEST(TextItems, KeepCommasAndBlanksInQuotes) {
    EXPECT_THAT(text::items("\" a, b \",c"), ElementsAre(" a, b ", "c"));
    EXPECT_THAT(text::items("  \"a\"  ,b"), ElementsAre("a", "b"));
    EXPECT_THAT(text::items("\"\",b"), ElementsAre("", "b"));
}

TEST(TextItems, LoseTheBlanksAroundUnquotedOnes) {
    EXPECT_THAT(text::items("  a b  , c "), ElementsAre("a b", "c"));
}

TEST(TextItems, DropWhatFollowsAClosingQuote) {
    EXPECT_THAT(text::items("\"a\"xyz,b"), ElementsAre("a", "b"));
}

TEST(TextItems, RunToTheEndWhereAQuoteIsNotClosed) {
    EXPECT_THAT(text::items("a,\"b,c\r\nd"), ElementsAre("a", "b,c\r\nd"));
}

TEST(TextDigits, HaveLeadingZerosBehindTheSign) {
    EXPECT_EQ(text::digits(7, 2), "07");
    EXPECT_EQ(text::digits(0, 3), "000");
    EXPECT_EQ(text::digits(123, 2), "123");
    EXPECT_EQ(text::digits(-7, 2), "-07");
}

struct Match {
    const char* name;
    const char* pattern;
    bool matches;
};

TEST(TextMatches, StarsStandForAnyCharactersAndMarksForOne) {
    const Match cases[] = {
        {"JAN07.LGG", "*.lgg", true},
        {"jan07.lgg", "*.LGG", true},
        {"jan07.lgg.new", "*.lgg", false},
        {".lgg", "*.lgg", true},
        {"a.lgg", "?.lgg", true},
        {"ab.lgg", "?.lgg", false},
        {"", "", true},
        {"", "*", true},
        {"a", "", false},
        {"abcabd", "*abd", true},
        {"abcabd", "a*b*d", true},
        {"abc", "a*b", false},
        {"abc", "abc*", true},
        {"abc", "**c", true},
        {"a*c", "a?c", true},
        {"sub/x.txt", "sub/*.t?t", true},
        {"\xC9t\xE9", "\xE9T\xC9", true},
    };
    for (const Match& c : cases) {
        EXPECT_EQ(text::matches(c.name, c.pattern), c.matches) << c.name << " against " << c.pattern;
    }
}

}  // namespace
