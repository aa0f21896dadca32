// SPDX-License-Identifier: MIT
#include "keyer/cw_config.h"

#include <gtest/gtest.h>

namespace {

keyer::CwConfig sample() {
    keyer::CwConfig config;
    config.speed = 24;
    config.f3 = "THREE";
    config.f6 = "SIX";
    config.f7 = "SEVEN";
    config.weight = 0.95F;
    config.loopConstant = 1987;
    config.port = 2;
    config.f1 = "ONE, <CALL> 5NN";
    config.ptt = 1;
    config.f1Normal = 1;
    config.f4 = "FOUR \\AR";
    return config;
}

constexpr const char* kSample =
    "24\r\n\"THREE\"\r\n\"SIX\"\r\n\"SEVEN\"\r\n0.95\r\n1987\r\n2\r\n\"ONE, <CALL> 5NN\"\r\n1\r\n1\r\n"
    "\"FOUR \\AR\"\r\n\"spare\"\r\n";

}  // namespace

TEST(CwConfig, TheLinesAreInTheOrderOfTheFile) { EXPECT_EQ(keyer::compose(sample()), kSample); }

TEST(CwConfig, TheValuesOfANewSetup) {
    EXPECT_EQ(keyer::compose({}),
              "20\r\n\"\"\r\n\"\"\r\n\"\"\r\n1.1\r\n2000\r\n1\r\n\"\"\r\n0\r\n0\r\n\"\"\r\n\"spare\"\r\n");
}

TEST(CwConfig, WhatIsWrittenIsRead) { EXPECT_EQ(keyer::compose(keyer::parse(kSample, {})), kSample); }

TEST(CwConfig, MissingLinesLeaveWhatWasThere) {
    EXPECT_EQ(keyer::compose(keyer::parse("", sample())), kSample);
    const keyer::CwConfig config = keyer::parse("30\r\n\"NEW\"\r\n", sample());
    EXPECT_EQ(config.speed, 30);
    EXPECT_EQ(config.f3, "NEW");
    EXPECT_EQ(config.f6, "SIX");
    EXPECT_EQ(config.f4, "FOUR \\AR");
}

TEST(CwConfig, AQuoteInAMessageEndsItThere) {
    keyer::CwConfig config;
    config.f3 = "SAY \"HI\"";
    EXPECT_EQ(keyer::compose(config).substr(4, 12), "\"SAY \"HI\"\"\r\n");
    EXPECT_EQ(keyer::parse(keyer::compose(config), {}).f3, "SAY ");
}

TEST(CwConfig, NumbersBeyondTheirWidthAreFaults) {
    EXPECT_THROW(keyer::parse("32768", {}), RunTimeError);
    EXPECT_EQ(keyer::parse("32767", {}).speed, 32767);
    EXPECT_THROW(keyer::parse("1,a,b,c,1e39", {}), RunTimeError);
}

TEST(CwConfig, TheLoopConstantIsAtLeastOne) {
    EXPECT_EQ(keyer::parse("1,a,b,c,1,0", {}).loopConstant, 1);
    EXPECT_EQ(keyer::parse("1,a,b,c,1,-5", {}).loopConstant, 1);
}

TEST(CwConfig, ThePointerHoldsANameInQuotes) {
    EXPECT_EQ(keyer::pointerTo("test.cfg"), "\"test.cfg\"\r\n");
    EXPECT_EQ(keyer::namePointedTo("\"test.cfg\"\r\n"), "test.cfg");
    EXPECT_EQ(keyer::namePointedTo(""), "");
}
