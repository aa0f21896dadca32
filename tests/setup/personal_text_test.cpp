// SPDX-License-Identifier: MIT
#include "setup/personal_text.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

Personal parsed(const std::string& content) {
    Personal data;
    personal::parse(content, data);
    return data;
}

/// Elements 1 to `count` of what a content is read as.
std::vector<std::string> elements(const std::string& content, int count) {
    const Personal data = parsed(content);
    std::vector<std::string> result;
    for (int element = 1; element <= count; ++element) result.push_back(data(element));
    return result;
}

using Elements = std::vector<std::string>;

TEST(PersonalText, IsFourteenQuotedLines) {
    Personal data;
    std::string expected;
    for (int element = 0; element <= 20; ++element) data(element) = "element " + std::to_string(element);
    for (int element = 1; element <= 14; ++element) {
        expected += "\"element " + std::to_string(element) + "\"\r\n";
    }
    EXPECT_EQ(personal::compose(data), expected);
}

TEST(PersonalText, WritesAnEmptyElementAsTwoQuotes) {
    std::string expected;
    for (int line = 1; line <= 14; ++line) expected += "\"\"\r\n";
    EXPECT_EQ(personal::compose({}), expected);
}

TEST(PersonalText, DoesNotEscapeQuotes) {
    Personal data;
    data(1) = "a\"b";
    EXPECT_EQ(personal::compose(data).substr(0, 7), "\"a\"b\"\r\n");
}

TEST(PersonalText, IsReadBackAsItWasWritten) {
    Personal data;
    for (int element = 1; element <= 14; ++element) data(element) = " a, b " + std::to_string(element) + " ";
    data(9) = "";
    const Personal read = parsed(personal::compose(data));
    for (int element = 0; element <= 20; ++element) EXPECT_EQ(read(element), data(element)) << element;
}

TEST(PersonalDefaults, AreThoseOfAStationThatHasEnteredNone) {
    Personal data;
    data(9) = "K1AA";
    data(10) = "K1AB";
    data(6) = "a club";
    personal::setDefaults(data);
    const Elements expected{"urCALL",    "Name", "Address", "City, ST Zip", "FN20jk", "",    "EPA",
                            "SINGLE-OP", "K1AA", "K1AB",    "LOW",          "FIXED",  "ONE", "ALL"};
    for (int element = 1; element <= 14; ++element) {
        EXPECT_EQ(data(element), expected[static_cast<std::size_t>(element - 1)]) << element;
    }
}

TEST(PersonalText, KeepsCommasAndBlanksInQuotes) {
    EXPECT_EQ(elements("\"City, ST Zip\"\r\n\"  x \"\r\n", 3), (Elements{"City, ST Zip", "  x ", ""}));
}

TEST(PersonalText, DropsWhatFollowsAClosingQuote) {
    EXPECT_EQ(elements("\"a\"b c\r\n\"d\" ,\"e\"x,f\r\n", 5), (Elements{"a", "d", "e", "f", ""}));
}

TEST(PersonalText, SeparatesByCommasAndLineEndsAlike) {
    EXPECT_EQ(elements("a,b\r\nc,d\r\n", 5), (Elements{"a", "b", "c", "d", ""}));
    EXPECT_EQ(elements("\"a\",\"b\"\r\n\"c\"\r\n", 4), (Elements{"a", "b", "c", ""}));
    EXPECT_EQ(elements("a\nb\rc", 4), (Elements{"a", "b", "c", ""}));
}

TEST(PersonalText, UnquotedLosesTheBlanksAround) {
    EXPECT_EQ(elements("  W1XYZ  ,  two words \r\n", 3), (Elements{"W1XYZ", "two words", ""}));
    EXPECT_EQ(elements("a\"b\"c\r\n", 2), (Elements{"a\"b\"c", ""}));
}

TEST(PersonalText, AQuoteThatIsNeverClosedTakesTheRest) {
    EXPECT_EQ(elements("\"a,b\r\nc", 2), (Elements{"a,b\r\nc", ""}));
}

TEST(PersonalText, OfThirteenLinesLeavesTheLastElementEmpty) {
    std::string content;
    for (int line = 1; line <= 13; ++line) content += "\"" + std::to_string(line) + "\"\r\n";
    const Personal data = parsed(content);
    EXPECT_EQ(data(13), "13");
    EXPECT_EQ(data(14), "");
}

TEST(PersonalText, HoldsTwentyFields) {
    std::string content;
    for (int field = 1; field <= 20; ++field) content += std::to_string(field) + "\r\n";
    const Personal data = parsed(content);
    EXPECT_EQ(data(0), "");
    for (int field = 1; field <= 20; ++field) EXPECT_EQ(data(field), std::to_string(field));
}

TEST(PersonalText, OfMoreThanTwentyFieldsIsAFault) {
    std::string content;
    for (int field = 1; field <= 21; ++field) content += std::to_string(field) + "\r\n";
    Personal data;
    EXPECT_THROW(personal::parse(content, data), RunTimeError);
    EXPECT_EQ(data(20), "20");
}

TEST(PersonalText, OfNothingLeavesAllElementsAlone) {
    Personal data;
    data(1) = "K3ABC";
    personal::parse("", data);
    EXPECT_EQ(data(1), "K3ABC");
}

}  // namespace
