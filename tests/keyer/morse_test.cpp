// SPDX-License-Identifier: MIT
#include "keyer/morse.h"

#include <gtest/gtest.h>

#include <map>

#include "base/run_time_error.h"

namespace {

using keyer::Brackets;
using Kind = keyer::Outgoing::Kind;

const keyer::MorseTable& table() {
    static const keyer::MorseTable morse = keyer::morseTable();
    return morse;
}

struct Taken {
    Kind kind;
    std::string elements, left;
};

Taken take(std::string buffer, Brackets brackets = Brackets::ChangeSpeed) {
    const keyer::Outgoing next = keyer::nextOutgoing(buffer, table(), brackets);
    return {next.kind, next.elements, buffer};
}

}  // namespace

TEST(Morse, EveryCharacterHasItsElements) {
    const std::map<char, std::string> known{
        {'"', ".-..-."}, {'$', "...-..-"}, {'\'', ".----."}, {'(', "-.--."}, {')', "-.--.-"}, {',', "--..--"},
        {'-', "-...-"},  {'.', ".-.-.-"},  {'/', "-..-."},   {'0', "-----"}, {'1', ".----"},  {'2', "..---"},
        {'3', "...--"},  {'4', "....-"},   {'5', "....."},   {'6', "-...."}, {'7', "--..."},  {'8', "---.."},
        {'9', "----."},  {':', "---..."},  {';', "-.-.-."},  {'=', "-...-"}, {'?', "..--.."}, {'A', ".-"},
        {'B', "-..."},   {'C', "-.-."},    {'D', "-.."},     {'E', "."},     {'F', "..-."},   {'G', "--."},
        {'H', "...."},   {'I', ".."},      {'J', ".---"},    {'K', "-.-"},   {'L', ".-.."},   {'M', "--"},
        {'N', "-."},     {'O', "---"},     {'P', ".--."},    {'Q', "--.-"},  {'R', ".-."},    {'S', "..."},
        {'T', "-"},      {'U', "..-"},     {'V', "...-"},    {'W', ".--"},   {'X', "-..-"},   {'Y', "-.--"},
        {'Z', "--.."}};
    for (int code = 32; code <= 92; ++code) {
        const auto at = known.find(static_cast<char>(code));
        EXPECT_EQ(table()(code - 32), at == known.end() ? "" : at->second) << static_cast<char>(code);
    }
}

TEST(Morse, TheHyphenIsTheBreakSign) { EXPECT_EQ(table()('-' - 32), table()('=' - 32)); }

TEST(Morse, ACharacterStaysInTheBuffer) {
    const Taken taken = take("AB");
    EXPECT_EQ(taken.kind, Kind::Elements);
    EXPECT_EQ(taken.elements, ".-");
    EXPECT_EQ(taken.left, "AB");
}

TEST(Morse, ABlankIsAWordGap) { EXPECT_EQ(take(" ").kind, Kind::WordGap); }

TEST(Morse, ControlCharactersAreNothing) {
    EXPECT_EQ(take("\b").kind, Kind::Nothing);
    EXPECT_EQ(take("\x1F").kind, Kind::Nothing);
    EXPECT_EQ(take("").kind, Kind::Nothing);
}

TEST(Morse, ACharacterWithoutElementsIsALetterOfNone) {
    for (const char* const character : {"!", "#", "%", "&", "*", "+", "<", ">", "@"}) {
        EXPECT_EQ(take(character).kind, Kind::Elements) << character;
        EXPECT_EQ(take(character).elements, "") << character;
    }
}

TEST(Morse, BracketsChangeTheSpeedOfAMessageAndAreSentFromTheKeyboard) {
    EXPECT_EQ(take("(").kind, Kind::OtherSpeed);
    EXPECT_EQ(take(")").kind, Kind::FormerSpeed);
    EXPECT_EQ(take("(", Brackets::AreSent).elements, "-.--.");
    EXPECT_EQ(take(")", Brackets::AreSent).elements, "-.--.-");
}

TEST(Morse, AProsignTakesTwoCharactersAndLeavesTheNextInFront) {
    const Taken taken = take("\\AR K");
    EXPECT_EQ(taken.elements, ".-.-.");
    EXPECT_EQ(taken.left, " K");
    EXPECT_EQ(take("\\SK").elements, "...-.-");
    EXPECT_EQ(take("\\SK").left, "");
}

TEST(Morse, AnyCodeAboveZLeadsAProsignIn) {
    for (const char* const buffer : {"aSK", "[SK", "]SK", "^SK", "_SK", "`SK", "~SK", "\xE4SK"}) {
        EXPECT_EQ(take(buffer).elements, "...-.-") << buffer;
    }
    EXPECT_EQ(take("ZSK").elements, "--..");
}

TEST(Morse, AProsignThatIsCutShortIsAFault) {
    for (const char* const buffer : {"\\", "\\A"}) {
        EXPECT_THROW(take(buffer), RunTimeError) << buffer;
        try {
            take(buffer);
        } catch (const RunTimeError& error) {
            EXPECT_STREQ(error.what(), "Invalid procedure call or argument");
        }
    }
}

TEST(Morse, AProsignBeyondTheTableIsAFault) {
    EXPECT_THROW(take("\\ar"), RunTimeError);
    EXPECT_THROW(take("\\A\b"), RunTimeError);
    EXPECT_EQ(take("\\\\A").elements, ".-");
}
