// SPDX-License-Identifier: MIT
#include "keyer/calibration.h"

#include <gtest/gtest.h>

TEST(Calibration, TheEndsOfTheBandAreOutside) {
    EXPECT_FALSE(keyer::isCalibrated(0.96));
    EXPECT_TRUE(keyer::isCalibrated(0.9601));
    EXPECT_TRUE(keyer::isCalibrated(1.0399));
    EXPECT_FALSE(keyer::isCalibrated(1.04));
}

TEST(Calibration, TheConstantFollowsTheRatioAndIsAtLeastOne) {
    EXPECT_EQ(keyer::calibratedConstant(2000, 2), 1000);
    EXPECT_EQ(keyer::calibratedConstant(2000, 0.3), 6666);
    EXPECT_EQ(keyer::calibratedConstant(1, 4), 1);
    // The clock has passed midnight.
    EXPECT_EQ(keyer::calibratedConstant(2000, -1), 1);
    EXPECT_THROW(keyer::calibratedConstant(2000000000, 0.1), RunTimeError);
}

TEST(Calibration, TheDeviationIsCutToHundredths) {
    EXPECT_EQ(keyer::deviationPercent(0.5), 50);
    EXPECT_EQ(keyer::deviationPercent(0.99994), 0);
    EXPECT_EQ(keyer::deviationPercent(1.00001), -0.01);
}
