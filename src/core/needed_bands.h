// SPDX-License-Identifier: MIT
#pragma once

#include "core/station.h"

/// After an accept: the band moves from the needed to the worked ones of the station.
void bandWorkedNow(Station& s);
/// Whether the operator's own list of bands limits what is shown as needed.
bool usesOwnBands(const Station& s);
/// The band labels of "StationBands.txt", 20 at most; none where the file can't be read.
std::vector<std::string> ownBands(Station& s);
