// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "grid/path.h"

namespace {

struct Case {
    const char* locator;
    double latitude, longitude;
};

TEST(Locator, IsTheMiddleOfItsFieldSquareOrSubsquare) {
    const std::vector<Case> cases{{"AA", -85, -170},
                                  {"RR", 85, 170},
                                  {"JJ", 5, 10},
                                  {"JJ00", 0.5, 1},
                                  {"FN20", 40.5, -75},
                                  {"AA00", -89.5, -179},
                                  {"RR99", 89.5, 179},
                                  {"JJ00AA", 0.5 / 24, 0.5 / 12},
                                  {"FN20AA", 40 + 0.5 / 24, -76 + 0.5 / 12},
                                  {"FN20XX", 41 - 0.5 / 24, -74 - 0.5 / 12},
                                  {"FN31PR", 41 + 17.5 / 24, -74 + 15.5 / 12},
                                  {"AA00AA", -90 + 0.5 / 24, -180 + 0.5 / 12},
                                  {"RR99XX", 90 - 0.5 / 24, 180 - 0.5 / 12}};
    for (const Case& c : cases) {
        const auto position = grid::positionOf(c.locator);
        ASSERT_TRUE(position.has_value()) << c.locator;
        EXPECT_NEAR(position->latitude, c.latitude, 1e-12) << c.locator;
        EXPECT_NEAR(position->longitude, c.longitude, 1e-12) << c.locator;
    }
}

TEST(Locator, TakesEveryLetterAndDigitOfItsRange) {
    for (char c = 'A'; c <= 'R'; ++c) {
        const auto east = grid::positionOf(std::string{c, 'J'});
        const auto north = grid::positionOf(std::string{'J', c});
        ASSERT_TRUE(east && north) << c;
        EXPECT_NEAR(east->longitude, -170 + 20.0 * (c - 'A'), 1e-12);
        EXPECT_NEAR(north->latitude, -85 + 10.0 * (c - 'A'), 1e-12);
    }
    for (char c = '0'; c <= '9'; ++c) {
        EXPECT_NEAR(grid::positionOf(std::string{'J', 'J', c, '0'})->longitude, 1 + 2.0 * (c - '0'), 1e-12);
        EXPECT_NEAR(grid::positionOf(std::string{'J', 'J', '0', c})->latitude, 0.5 + (c - '0'), 1e-12);
    }
    for (char c = 'A'; c <= 'X'; ++c) {
        EXPECT_NEAR(grid::positionOf(std::string("JJ00") + c + 'A')->longitude, (c - 'A' + 0.5) / 12, 1e-12);
        EXPECT_NEAR(grid::positionOf(std::string("JJ00A") + c)->latitude, (c - 'A' + 0.5) / 24, 1e-12);
    }
}

TEST(Locator, OfAnotherLengthIsNone) {
    for (const char* const text : {"", "F", "FN2", "FN20A", "FN20ABC", "FN20AB12", "FN20AB1"}) {
        EXPECT_FALSE(grid::positionOf(text).has_value()) << text;
    }
}

TEST(Locator, WithACharacterOutOfRangeIsNone) {
    for (const char* const text : {"SS",
                                   "SA",
                                   "AS",
                                   "@A",
                                   "A@",
                                   "fn",
                                   "FN2A",
                                   "FNA2",
                                   "FN:0",
                                   "FN0:",
                                   "FN/0",
                                   "FN0/",
                                   "RR99YY",
                                   "RR99YX",
                                   "RR99XY",
                                   "RR99@A",
                                   "RR99A@",
                                   "FN20vg",
                                   "FN20  ",
                                   "  20AA",
                                   "FN  AA",
                                   "\xC6N20",
                                   "FN20\xC6"
                                   "A"}) {
        EXPECT_FALSE(grid::positionOf(text).has_value()) << text;
    }
}

}  // namespace
