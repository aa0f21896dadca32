// SPDX-License-Identifier: MIT
// The path computed a second time, by vectors in long double: angle and azimuth from cross products, and the
// radius of curvature from position and direction at the four points that lie on the great circle.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <random>
#include <string>

#include "grid/path.h"

namespace {

using Real = long double;
using Vector = std::array<Real, 3>;

const Real kPi = std::acos(Real{-1});
constexpr Real a = 6378.14L, b = 6356.755L;

Real dot(const Vector& u, const Vector& v) { return u[0] * v[0] + u[1] * v[1] + u[2] * v[2]; }
Vector cross(const Vector& u, const Vector& v) {
    return {u[1] * v[2] - u[2] * v[1], u[2] * v[0] - u[0] * v[2], u[0] * v[1] - u[1] * v[0]};
}
Real length(const Vector& v) { return std::sqrt(dot(v, v)); }
Vector sum(Real s, const Vector& u, Real t, const Vector& v) {
    return {s * u[0] + t * v[0], s * u[1] + t * v[1], s * u[2] + t * v[2]};
}

struct Point {
    Vector up, north, east;
};

Point pointAt(const grid::Position& position) {
    const Real p = Real{position.latitude} * kPi / 180, l = Real{position.longitude} * kPi / 180;
    return {{std::cos(p) * std::cos(l), std::cos(p) * std::sin(l), std::sin(p)},
            {-std::sin(p) * std::cos(l), -std::sin(p) * std::sin(l), std::cos(p)},
            {-std::sin(l), std::cos(l), 0}};
}

/// Between the radii at the equator and at the pole, by the cosine of twice the latitude.
Real between(Real atEquator, Real atPole, Real latitude) {
    return (atEquator + atPole) / 2 - (atPole - atEquator) / 2 * std::cos(2 * latitude);
}

/// Both radii weighed by the direction in which the path runs.
Real radiusAt(const Vector& up, const Vector& along) {
    const Real latitude = std::atan2(up[2], std::hypot(up[0], up[1]));
    const Real pole = a * a / b, cosine = std::hypot(up[0], up[1]);
    const Vector north{-up[2] * up[0] / cosine, -up[2] * up[1] / cosine, cosine};
    const Vector east{-up[1] / cosine, up[0] / cosine, 0};
    const Real azimuth = std::atan2(dot(along, east), dot(along, north));
    const Real meridian = between(b * b / a, pole, latitude), normal = between(a, pole, latitude);
    return meridian * std::pow(std::cos(azimuth), 2) + normal * std::pow(std::sin(azimuth), 2);
}

struct Opinion {
    Real angle, radius, distance, heading;
};

/// What the length loses near the antipode.
Real correction(Real angle, Real radius) {
    const Real mean = (b * b / a + a * a / b) / 2, first = kPi * (2 * mean / a - 1);
    const Real scale = std::pow(2 * kPi * (1 - mean / a), 2);
    Real lost = angle > first ? (radius - mean) * std::pow(angle - first, 2) / scale : 0;
    const Real swing = std::sin(kPi * (a - radius) / (a - mean)), second = first * (1 - 0.014L * swing);
    if (angle > second) lost += 1.8L * swing * std::sin(kPi * std::sqrt((kPi - angle) / (kPi - second)));
    return lost;
}

Opinion opinionOn(const grid::Position& from, const grid::Position& to) {
    const Point here = pointAt(from), there = pointAt(to);
    Opinion opinion{};
    opinion.angle = std::atan2(length(cross(here.up, there.up)), dot(here.up, there.up));
    opinion.heading = std::atan2(dot(there.up, here.east), dot(there.up, here.north)) * 180 / kPi;
    if (opinion.heading < 0) opinion.heading += 360;
    const Real d = opinion.angle, sine = std::sin(d);
    for (int stretch = 0; stretch < 4; ++stretch) {
        const Real at = d * (2 * stretch + 1) / 8;
        const Vector up = sum(std::sin(d - at) / sine, here.up, std::sin(at) / sine, there.up);
        const Vector along = sum(-std::cos(d - at) / sine, here.up, std::cos(at) / sine, there.up);
        opinion.radius += radiusAt(up, along) / 4;
    }
    opinion.distance = d * (opinion.radius - correction(d, opinion.radius));
    return opinion;
}

class Grids {
public:
    std::string next(int size) {
        std::string locator{letter(18), letter(18)};
        if (size > 2) locator += {digit(), digit()};
        if (size > 4) locator += {letter(24), letter(24)};
        return locator;
    }
    int below(int limit) { return static_cast<int>(random_() % static_cast<unsigned>(limit)); }

private:
    char letter(int count) { return static_cast<char>('A' + below(count)); }
    char digit() { return static_cast<char>('0' + below(10)); }
    std::mt19937 random_{20070120};
};

/// The difference of two headings, 0 and 360 being the same.
double turn(double one, Real other) {
    const double apart = std::fabs(one - static_cast<double>(other));
    return std::min(apart, 360 - apart);
}

bool onOneMeridian(const grid::Position& here, const grid::Position& there) {
    return std::fmod(here.longitude - there.longitude, 180) == 0;
}

/// The cosine of an azimuth is all that an arc cosine has to go by; on a short way it is a quotient of small
/// numbers, and loses digits by the square of the angle.
double cosineApart(double one, Real other) {
    return static_cast<double>(std::fabs(std::cos(one * kPi / 180) - std::cos(other * kPi / 180)));
}
double roundingOfCosine(Real angle) { return 2e-15 / static_cast<double>(std::pow(std::sin(angle), 2)); }

TEST(SecondOpinion, AgreesOnRandomPairsOutsideTheAntipodalCorrection) {
    Grids grids;
    int compared = 0;
    for (int pair = 0; pair < 12000; ++pair) {
        const std::string from = grids.next(grids.below(4) == 0 ? 4 : 6), to = grids.next(6);
        const grid::Position here = *grid::positionOf(from), there = *grid::positionOf(to);
        const Opinion opinion = opinionOn(here, there);
        // From here on the corrections set in; on one meridian an arc cosine has lost half of its digits.
        if (opinion.angle > 3.08L || onOneMeridian(here, there)) continue;
        ++compared;
        const grid::Path path = grid::pathBetween(here, there);
        const double apart = std::fabs(path.distance - static_cast<double>(opinion.distance));
        ASSERT_LT(apart, 1e-6) << from << " " << to;
        ASSERT_LT(turn(path.heading, opinion.heading), 1e-6) << from << " " << to;
    }
    EXPECT_GE(compared, 10000);
}

TEST(SecondOpinion, AgreesOnShortPaths) {
    Grids grids;
    for (int pair = 0; pair < 2000; ++pair) {
        const std::string square = grids.next(4);
        const std::string from = square + grids.next(2), to = square + grids.next(2);
        const grid::Position here = *grid::positionOf(from), there = *grid::positionOf(to);
        if (from == to) continue;
        const Opinion opinion = opinionOn(here, there);
        const grid::Path path = grid::pathBetween(here, there);
        ASSERT_NEAR(path.distance, static_cast<double>(opinion.distance), 1e-6) << from << " " << to;
        if (opinion.distance <= 0.5L) continue;
        ASSERT_LT(turn(path.heading, opinion.heading), 0.01) << from << " " << to;
        ASSERT_LT(cosineApart(path.heading, opinion.heading), roundingOfCosine(opinion.angle))
            << from << " " << to;
    }
}

TEST(SecondOpinion, AgreesOnOneMeridian) {
    Grids grids;
    for (int pair = 0; pair < 2000; ++pair) {
        const std::string from = grids.next(6);
        std::string to = grids.next(6);
        for (const std::size_t at : {0, 2, 4}) to[at] = from[at];
        if (from == to) continue;
        const grid::Position here = *grid::positionOf(from), there = *grid::positionOf(to);
        const Opinion opinion = opinionOn(here, there);
        const grid::Path path = grid::pathBetween(here, there);
        ASSERT_NEAR(path.distance, static_cast<double>(opinion.distance), 1e-6) << from << " " << to;
        if (opinion.distance <= 0.5L) continue;
        ASSERT_LT(turn(path.heading, opinion.heading), 0.01) << from << " " << to;
        ASSERT_LT(cosineApart(path.heading, opinion.heading), roundingOfCosine(opinion.angle))
            << from << " " << to;
    }
}

TEST(SecondOpinion, AgreesOnTheCorrectionsNearTheAntipode) {
    Grids grids;
    int first = 0, second = 0;
    for (int pair = 0; pair < 4000; ++pair) {
        const grid::Position here = *grid::positionOf(grids.next(6));
        const double north = (grids.below(801) - 400) / 100.0, east = (grids.below(801) - 400) / 100.0;
        const double longitude = here.longitude > 0 ? here.longitude - 180 : here.longitude + 180;
        const grid::Position there{-here.latitude + north, longitude + east};
        if (std::fabs(there.latitude) > 89 || (north == 0 && std::fabs(east) < 0.1)) continue;
        const Opinion opinion = opinionOn(here, there);
        first += opinion.angle > 3.1312L;
        second += opinion.angle > 3.09L && opinion.angle < 3.131L;
        const grid::Path path = grid::pathBetween(here, there);
        ASSERT_NEAR(path.distance, static_cast<double>(opinion.distance), 1e-6)
            << here.latitude << " " << here.longitude << " " << north << " " << east;
    }
    EXPECT_GT(first, 10);
    EXPECT_GT(second, 1000);
}

}  // namespace
