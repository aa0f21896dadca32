// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <set>

/// The lines of the serial port that the machine reads.
enum class InputLine { Dsr, Cts, Ri, Dcd };

/// What the hardware of a scripted machine is set to.
struct Hardware {
    /// The length of one unit of a delay.
    double unitNanoseconds = 1200;
    std::map<int, int> ports;
    std::set<InputLine> linesOn;
};
