// SPDX-License-Identifier: MIT
// The personal data of a station, for the tests of the files of an entry.
#pragma once

#include "core/station.h"

inline Personal sampleStation() {
    Personal data;
    data(personal::Call) = "K3ABC";
    data(personal::Name) = "Pat Operator";
    data(personal::Address) = "1 Hill Road";
    data(personal::City) = "Town, PA 19000";
    data(personal::Grid) = "FN20AB";
    data(personal::Club) = "Warminster ARC";
    data(personal::Section) = "EPA";
    data(personal::OperatorCategory) = "SINGLE-OP";
    data(personal::Operators) = "W1AW K2DEF";
    data(personal::MoreOperators) = "N3GHI";
    data(personal::Power) = "LOW";
    data(personal::StationCategory) = "FIXED";
    data(personal::Transmitter) = "ONE";
    data(personal::BandCategory) = "144";
    return data;
}
