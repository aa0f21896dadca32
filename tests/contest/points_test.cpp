// SPDX-License-Identifier: MIT
#include "contest/points.h"

#include <gtest/gtest.h>

#include <array>
#include <optional>
#include <vector>

namespace {

constexpr std::optional<int> none = std::nullopt;

struct Rates {
    std::vector<int> contests;
    std::array<std::optional<int>, 13> points;
};

const std::vector<Rates> kTable{
    {{1, 20}, {1, 1, 2, 2, 4, 4, 8, 8, 8, 8, 8, 8, 8}},
    {{2, 4}, {1, 1, 2, 2, 3, 3, 4, 4, 4, 4, 4, 4, 4}},
    {{3}, {none, none, 3, 3, 6, 6, 12, 12, 12, 12, 12, 12, 12}},
    {{5, 14, 21, 26}, {1, none, none, none, none, none, none, none, none, none, none, none, none}},
    {{6, 15, 22, 27}, {none, 1, none, none, none, none, none, none, none, none, none, none, none}},
    {{7, 16, 23}, {none, none, 1, none, none, none, none, none, none, none, none, none, none}},
    {{28}, {none, none, 2, none, none, none, none, none, none, none, none, none, none}},
    {{8, 17, 24}, {none, none, none, 1, none, none, none, none, none, none, none, none, none}},
    {{29}, {none, none, none, 2, none, none, none, none, none, none, none, none, none}},
    {{9}, {none, none, none, none, 1, none, none, none, none, none, none, none, none}},
    {{10}, {none, none, none, none, none, 1, none, none, none, none, none, none, none}},
    {{11}, {none, none, none, none, none, none, 1, none, none, none, none, none, none}},
    {{12, 25}, {none, none, none, none, 1, 1, 1, 1, 1, 1, 1, 1, 1}},
    {{13, 18}, {none, none, none, none, 1, 1, 1, none, none, none, none, none, none}},
    {{19}, {none, none, none, none, 1, 1, 1, 1, 1, none, none, none, none}},
    {{30}, {none, none, none, none, 3, 3, 4, 4, 4, 4, 4, 4, 4}},
    {{31}, {1, 2, none, none, none, none, none, none, none, none, none, none, none}}};

TEST(Points, AreThoseOfEachContestAndBand) {
    int contests = 0;
    for (const Rates& rates : kTable) {
        for (const int number : rates.contests) {
            ++contests;
            for (int band = 1; band <= 13; ++band) {
                EXPECT_EQ(contest::pointsOn(number, band), rates.points[static_cast<std::size_t>(band - 1)])
                    << "contest " << number << " band " << band;
            }
        }
    }
    EXPECT_EQ(contests, 31);
}

TEST(Points, AreNothingOutsideTheTable) {
    for (const int band : {-1, 0, 14}) EXPECT_EQ(contest::pointsOn(1, band), none) << band;
    for (const int number : {-1, 0, 32}) {
        for (int band = 1; band <= 13; ++band) EXPECT_EQ(contest::pointsOn(number, band), none) << number;
    }
}

struct Counts {
    PerBand<Int16> points, qsos, grids;
};

TEST(Score, IsTheSumOfThePointsTimesTheSumOfTheGrids) {
    Counts counts;
    for (int band = 1; band <= 13; ++band) counts.points(band) = *contest::pointsOn(2, band);
    counts.qsos(1) = 10;
    counts.grids(1) = 5;
    counts.qsos(6) = 2;
    counts.grids(6) = 2;
    const contest::Sums sums = contest::sumsOf(counts.points, counts.qsos, counts.grids);
    EXPECT_EQ(sums.totalQsoPoints, 16);
    EXPECT_EQ(sums.grids, 7);
    EXPECT_EQ(sums.total, 112.0F);
    EXPECT_EQ(sums.qsos, 12);
    EXPECT_EQ(sums.qsoPoints(1), 10);
    EXPECT_EQ(sums.score(1), 50);
    EXPECT_EQ(sums.qsoPoints(6), 6);
    EXPECT_EQ(sums.score(6), 12);
    EXPECT_EQ(sums.qsoPoints(2), 0);
    EXPECT_EQ(sums.score(2), 0);
}

TEST(Score, TakesInTheFirstAndTheLastBandAndNoIndexBeyond) {
    Counts counts;
    for (int band = 0; band <= 14; ++band) {
        counts.points(band) = 2;
        counts.qsos(band) = 3;
        counts.grids(band) = 1;
    }
    const contest::Sums sums = contest::sumsOf(counts.points, counts.qsos, counts.grids);
    EXPECT_EQ(sums.qsos, 39);
    EXPECT_EQ(sums.totalQsoPoints, 78);
    EXPECT_EQ(sums.grids, 13);
    EXPECT_EQ(sums.total, 1014.0F);
}

TEST(Score, OfNothingIsNothing) {
    const contest::Sums sums = contest::sumsOf({}, {}, {});
    EXPECT_EQ(sums.totalQsoPoints, 0);
    EXPECT_EQ(sums.grids, 0);
    EXPECT_EQ(sums.total, 0.0F);
}

TEST(Score, OfABandHoldsSixteenBits) {
    Counts counts;
    counts.points(7) = 7;
    counts.qsos(7) = 4681;  // 7 x 4681 = 32767
    EXPECT_EQ(contest::sumsOf(counts.points, counts.qsos, counts.grids).qsoPoints(7), 32767);
    counts.qsos(7) = 4682;
    EXPECT_THROW(contest::sumsOf(counts.points, counts.qsos, counts.grids), RunTimeError);
}

TEST(Score, OfAllBandsIsWiderThanSixteenBits) {
    Counts counts;
    for (int band = 1; band <= 13; ++band) {
        counts.points(band) = 12;
        counts.qsos(band) = 2500;
        counts.grids(band) = 1000;
    }
    const contest::Sums sums = contest::sumsOf(counts.points, counts.qsos, counts.grids);
    EXPECT_EQ(sums.totalQsoPoints, 390000);
    EXPECT_EQ(sums.score(13), 30000000);
    EXPECT_EQ(sums.grids, 13000);
    EXPECT_EQ(sums.total, 5070000000.0F);
}

}  // namespace
