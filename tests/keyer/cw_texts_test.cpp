// SPDX-License-Identifier: MIT
#include "keyer/cw_texts.h"

#include <gtest/gtest.h>

TEST(CwTexts, TheCqs) {
    EXPECT_EQ(keyer::cqText("W1ABC"), "CQ CQ DE W1ABC W1ABC K ");
    EXPECT_EQ(keyer::repeatedCqText("W1ABC", true), "CQ CQ DE W1ABC W1ABC  ");
    EXPECT_EQ(keyer::repeatedCqText("W1ABC", false), "CQ CQ DE W1ABC W1ABC K ");
    EXPECT_EQ(keyer::testText("W1ABC"), " TEST DE W1ABC \\AR");
    EXPECT_EQ(keyer::answerText("W1ABC"), "QRZ? DE W1ABC \\AR");
}

TEST(CwTexts, OnlyTheLabelShowsAPortableSignsHyphenAsASlash) {
    EXPECT_EQ(keyer::cqLabel("W1-AB-C"), "CQ CQ DE W1/AB-C W1/AB-C K");
    EXPECT_EQ(keyer::cqText("W1-P"), "CQ CQ DE W1-P W1-P K ");
}

TEST(CwTexts, ARoversGridIsNotSent) {
    EXPECT_EQ(keyer::sentCall("W1ABC/FN42"), "W1ABC");
    EXPECT_EQ(keyer::sentCall("W1ABC/R"), "W1ABC/R");
    // Eight characters are too few to hold a grid.
    EXPECT_EQ(keyer::sentCall("W1A/FN42"), "W1A/FN42");
    EXPECT_EQ(keyer::sentCall("W1AB/FN42"), "W1AB");
    EXPECT_EQ(keyer::sentCall("VE3/W1ABCD"), "VE3/W1ABCD");
    EXPECT_EQ(keyer::sentCall(""), "");
}

TEST(CwTexts, TheCharacterBehindATagIsDropped) {
    const auto place = keyer::tagPlace("HI <CALL> 5NN <CALL> K");
    ASSERT_TRUE(place);
    EXPECT_EQ(place->before, "HI ");
    ASSERT_TRUE(place->after);
    EXPECT_EQ(*place->after, "5NN <CALL> K");
    EXPECT_EQ(*keyer::tagPlace("<CALL>.")->after, "");
    EXPECT_FALSE(keyer::tagPlace("5NN <CALL>")->after);
    EXPECT_FALSE(keyer::tagPlace("5NN CALL"));
}

TEST(CwTexts, EveryKeyHasItsRunningName) {
    const std::pair<const char*, const char*> names[] = {
        {"F1", "mem F1"}, {"F2", "CQ"},     {"F3", "mem F3"}, {"F4", "mem F4"}, {"F5", "RCQ"},
        {"F6", "mem F6"}, {"F7", "mem F7"}, {"F8", "mem F1"}, {"F1a", "Test"},  {"", ""}};
    for (const auto& [key, running] : names) EXPECT_EQ(keyer::runningName(key), running);
    EXPECT_EQ(keyer::shownName("CQ"), "2 X 2 CQ");
    EXPECT_EQ(keyer::shownName("RCQ"), "Repeat CQ");
    EXPECT_EQ(keyer::shownName("mem F3"), "mem F3");
}

TEST(CwTexts, SecondsHaveTwoDigitsAtLeast) {
    EXPECT_EQ(keyer::twoDigitSeconds(4.51), "05");
    EXPECT_EQ(keyer::twoDigitSeconds(0.2), "00");
    EXPECT_EQ(keyer::twoDigitSeconds(12), "12");
    EXPECT_EQ(keyer::twoDigitSeconds(120), "120");
}

TEST(CwTexts, AFileNameIsEightAndThree) {
    EXPECT_EQ(keyer::configName("FIELD")->name, "FIELD.cfg");
    EXPECT_TRUE(keyer::configName("FIELDDAY")->fits);
    EXPECT_FALSE(keyer::configName("FIELDDAY1")->fits);
    EXPECT_EQ(keyer::configName("June.CFG")->name, "June.CFG");
    EXPECT_TRUE(keyer::configName("FIELDDAY.cfg")->fits);
    EXPECT_FALSE(keyer::configName("FIELDDAY1.Cfg"));
}
