// SPDX-License-Identifier: MIT
#include "grid/path.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

grid::Path between(const std::string& from, const std::string& to) {
    return grid::pathBetween(*grid::positionOf(from), *grid::positionOf(to));
}

struct Case {
    const char *from, *to;
    double distance;
    long kilometres;
    double heading;
    int degrees;
};

TEST(Path, HasTheLengthAndHeadingOfTheWorkedExamples) {
    const std::vector<Case> cases{
        {"FN20", "FN31", 201.606, 202, 55.822, 56},       {"FN20", "JO22", 5958.811, 5959, 48.275, 48},
        {"FN20", "FM19", 203.701, 204, 237.513, 238},     {"FN20VG", "FN31PR", 205.314, 205, 37.331, 37},
        {"FN20", "PF95", 16963.706, 16964, 271.619, 272}, {"JJ00AA", "JJ00AB", 4.607, 5, 0.000, 0},
        {"AA", "RR", 18903.720, 18904, 349.963, 350}};
    for (const Case& c : cases) {
        const grid::Path path = between(c.from, c.to);
        EXPECT_NEAR(path.distance, c.distance, 0.0005) << c.from << " " << c.to;
        EXPECT_NEAR(path.heading, c.heading, 0.0005) << c.from << " " << c.to;
        EXPECT_EQ(grid::wholeKilometres(path), c.kilometres) << c.from << " " << c.to;
        EXPECT_EQ(grid::wholeDegrees(path), c.degrees) << c.from << " " << c.to;
    }
}

TEST(Path, ToTheSameGridIsNothing) {
    for (const char* const locator : {"AA", "RR", "JJ00", "FN20", "FN20VG", "AA00AA", "RR99XX", "KP24XX"}) {
        const grid::Path path = between(locator, locator);
        EXPECT_NEAR(path.distance, 0, 0.001) << locator;
        EXPECT_EQ(path.heading, 0) << locator;
        EXPECT_EQ(grid::wholeKilometres(path), 0) << locator;
        EXPECT_EQ(grid::wholeDegrees(path), 0) << locator;
    }
}

// pi x the mean meridian radius, half of (c + c / r^3) with c = a x a / b and r = a / b.
constexpr double kHalfMeridian = 3.14159265358979323846 * 6367.519317;

TEST(Path, ToTheAntipodeIsHalfAMeridianWithoutAHeading) {
    const std::vector<std::pair<const char*, const char*>> pairs{
        {"FN20", "OE29"}, {"OE29", "FN20"}, {"JJ00", "AI09"}, {"AA00AA", "JR09AX"}, {"FN20VG", "OE29VR"}};
    for (const auto& [from, to] : pairs) {
        const grid::Position a = *grid::positionOf(from), b = *grid::positionOf(to);
        ASSERT_NEAR(a.latitude + b.latitude, 0, 1e-9) << from;
        ASSERT_NEAR(std::abs(a.longitude - b.longitude), 180, 1e-9) << from;
        const grid::Path path = grid::pathBetween(a, b);
        EXPECT_NEAR(path.distance, kHalfMeridian, 0.001) << from;
        EXPECT_EQ(path.heading, 0) << from;
    }
}

TEST(Path, ShorterThanHalfAKilometreHasNoHeading) {
    // 0.0040 degrees of latitude at the equator are 0.442 km, 0.0050 are 0.553 km.
    const grid::Path under = grid::pathBetween({0.0040, 0}, {0, 0});
    EXPECT_NEAR(under.distance, 0.4423, 0.0005);
    EXPECT_EQ(under.heading, 0);
    const grid::Path over = grid::pathBetween({0.0050, 0}, {0, 0});
    EXPECT_NEAR(over.distance, 0.5529, 0.0005);
    EXPECT_NEAR(over.heading, 180, 1e-3);
}

TEST(Path, RunsAlongTheEquatorAndTheMeridian) {
    const grid::Path east = grid::pathBetween({0, 0}, {0, 90});
    // Along the equator the radius is a, whatever the stretch.
    EXPECT_NEAR(east.distance, 6378.14 * 3.14159265358979323846 / 2, 1e-6);
    EXPECT_NEAR(east.heading, 90, 1e-6);
    EXPECT_NEAR(grid::pathBetween({0, 90}, {0, 0}).heading, 270, 1e-6);
    EXPECT_NEAR(grid::pathBetween({10, 20}, {60, 20}).heading, 0, 1e-5);
    EXPECT_NEAR(grid::pathBetween({60, 20}, {10, 20}).heading, 180, 1e-5);
    // A quarter of the meridian, over the pole and back to the equator, is half the half.
    EXPECT_NEAR(
        grid::pathBetween({-45, 20}, {45, 20}).distance + grid::pathBetween({45, 20}, {45, -160}).distance,
        kHalfMeridian, 0.001);
}

TEST(Path, TakesTheShorterWayAcrossTheDateLine) {
    EXPECT_NEAR(grid::pathBetween({0, 170}, {0, -170}).heading, 90, 1e-6);
    EXPECT_NEAR(grid::pathBetween({0, -170}, {0, 170}).heading, 270, 1e-6);
    EXPECT_NEAR(grid::pathBetween({0, 170}, {0, -170}).distance, 6378.14 * 3.14159265358979323846 / 9, 1e-6);
}

TEST(Path, FromTheCornersOfTheGridStaysInItsRange) {
    const std::vector<std::string> corners{"AA",     "AR",     "RA",     "RR",   "AA00AA",
                                           "AR09AX", "RA90XA", "RR99XX", "JI09", "JJ"};
    for (const std::string& from : corners) {
        for (const std::string& to : corners) {
            const grid::Path path = between(from, to);
            EXPECT_GE(path.distance, 0) << from << to;
            EXPECT_LE(path.distance, 20037.6) << from << to;
            EXPECT_GE(path.heading, 0) << from << to;
            EXPECT_LE(path.heading, 360) << from << to;
        }
    }
}

TEST(Path, CountsAHalfAsOneMore) {
    EXPECT_EQ(grid::wholeKilometres({201.5, 0}), 202);
    EXPECT_EQ(grid::wholeKilometres({201.499, 0}), 201);
    EXPECT_EQ(grid::wholeKilometres({0.499, 0}), 0);
    EXPECT_EQ(grid::wholeDegrees({1, 55.5}), 56);
    EXPECT_EQ(grid::wholeDegrees({1, 55.499}), 55);
    EXPECT_EQ(grid::wholeDegrees({1, 359.6}), 360);
    EXPECT_EQ(grid::wholeDegrees({1, 0.4}), 0);
}

TEST(HeadingText, TellsGridHeadingAndKilometres) {
    EXPECT_EQ(grid::headingText("JO22", between("FN20", "JO22"), false), "JO22   48\xB0   5959 kM.");
    EXPECT_EQ(grid::headingText("FN31PR", between("FN20VG", "FN31PR"), false), "FN31pr   37\xB0   205 kM.");
    EXPECT_EQ(grid::headingText("RR", between("AA", "RR"), false), "RR   350\xB0   18904 kM.");
}

TEST(HeadingText, TellsMilesOfTheWholeKilometres) {
    EXPECT_EQ(grid::headingText("JO22", between("FN20", "JO22"), true), "JO22   48\xB0   3703 Mi.");
    // 202 x 0.62138 = 125.52, where 201.606 would give 125.27.
    EXPECT_EQ(grid::headingText("FN31", between("FN20", "FN31"), true), "FN31   56\xB0   126 Mi.");
}

TEST(HeadingText, OfNoDistanceIsZero) {
    EXPECT_EQ(grid::headingText("FN20", {0, 0}, false), "FN20   0\xB0   0 kM.");
    EXPECT_EQ(grid::headingText("FN20", {0.4, 0}, true), "FN20   0\xB0   0 Mi.");
    EXPECT_EQ(grid::headingText("FN20", {1, 0}, true), "FN20   0\xB0   1 Mi.");
}

TEST(HeadingText, MayShowThreeHundredSixtyDegrees) {
    EXPECT_EQ(grid::headingText("FN20", {100, 359.6}, false), "FN20   360\xB0   100 kM.");
}

TEST(ShownLocator, HasItsSubsquareInLowerCase) {
    EXPECT_EQ(grid::shownLocator("FN20VG"), "FN20vg");
    EXPECT_EQ(grid::shownLocator("FN20"), "FN20");
    EXPECT_EQ(grid::shownLocator("FN"), "FN");
}

}  // namespace
