// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

/// The code that a band decoder on a parallel port takes for a band, by its label; 0, which switches all off,
/// for a label that the decoder has no position for.
int bandCode(std::string_view label, bool from144);
/// The code of 222 MHz, which tries the decoder out.
int testCode(bool from144);
