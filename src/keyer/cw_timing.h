// SPDX-License-Identifier: MIT
// How long the elements of Morse last, in units of the delay primitive.
// Leans on base alone; the sending routines ask it before every character and every element.
#pragma once

#include <cstdint>

namespace keyer {

/// All in units of the delay. A dot is `dotOn` and a dash `dashOn`, each with `gap` behind it, so that weight
/// moves the edge between on and off and leaves the length as it is; letters are 3 `dot` apart beyond that,
/// words 4 more.
struct Timing {
    std::int64_t dot = 0, dotOn = 0, gap = 0, dashOn = 0;
};

/// `speed` in words a minute; `calibration` and `loopConstant` scale it, 500 and 2000 on the standard unit;
/// `weight` is 1.1 unless the operator says otherwise. Raises "Division by zero" where speed or calibration
/// is 0, and "Overflow" for a dot beyond all counting.
Timing timingOf(int speed, int calibration, int loopConstant, float weight);

}  // namespace keyer
