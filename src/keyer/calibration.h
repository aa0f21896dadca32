// SPDX-License-Identifier: MIT
#pragma once

#include "core/station.h"

/// The ratio of a word's length to what it should be, and the loop constant that follows from it.
namespace keyer {

/// Whether a ratio needs no further word. Both ends of the band are outside.
bool isCalibrated(double ratio);
/// At least 1. Raises "Overflow" beyond 32 bits.
int calibratedConstant(int loopConstant, double ratio);
/// The deviation as it is shown: hundredths of a percent, cut.
double deviationPercent(double ratio);

}  // namespace keyer

/// Sends a word at 30 words a minute, time and again, until its length is right.
void cmdCal_Click(Station& s);
