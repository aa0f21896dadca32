// SPDX-License-Identifier: MIT
// The path between two Maidenhead locators on an ellipsoidal earth: heading and length.
// Leans on the standard library alone; grid/heading.h shows what it gives, scoring takes its kilometres.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace grid {

/// Degrees, east and north positive.
struct Position {
    double latitude = 0, longitude = 0;
};

/// The middle of a field, square or subsquare (2, 4 or 6 characters, upper case); nothing for any other text.
std::optional<Position> positionOf(std::string_view locator);

struct Path {
    /// Kilometres.
    double distance = 0;
    /// Degrees from north through east, 0 to 360; 0 outside the usable lengths of 0.5 to 20003.5 km.
    double heading = 0;
};

/// The great-circle angle times the mean radius of curvature, sampled at the middle of each of four equal
/// stretches of the path (Euler's formula over the meridian and normal radii of the ellipsoid a = 6378.14 km,
/// b = 6356.755 km, each expanded to its second harmonic in latitude); near the antipode the length is
/// corrected twice.
Path pathBetween(const Position& from, const Position& to);

/// Whole kilometres and whole degrees, a half counting as one more. 359.6 degrees are 360.
long wholeKilometres(const Path& path);
int wholeDegrees(const Path& path);

/// "FN20", "FN20vg": a locator as it is shown.
std::string shownLocator(std::string_view upperCase);
/// The line that is shown: locator, heading, distance in the unit asked for ("Mi." or kilometres).
std::string headingText(std::string_view upperCase, const Path& path, bool miles);

}  // namespace grid
