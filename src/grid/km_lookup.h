// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

#include "core/station.h"

/// The points that a line of the per-band points file gives a band: its key is in columns 1 to 5, its points
/// are the last two characters. `points` stays where no line has the key; 1 is the least.
int pointsInList(std::string_view content, std::string_view band, int points);
/// The short form of a band's label in that file; any other label as it stands.
std::string shortBandForPoints(std::string_view band);
/// Looks a band up in "ARAM-bandas-km.dat", which is made where it is missing. `band` becomes its short form.
void fromKmLookUp(Station& s, std::string& band, int& points);
