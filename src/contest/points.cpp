// SPDX-License-Identifier: MIT
#include "contest/points.h"

#include <array>

namespace contest {

namespace {

constexpr int kUntouched = -1;

// Points on 50, 144, 222, 432, 903, 1296, 2304, 3456 and 5760, and 10368 with all above it.
using Rates = std::array<int, 9>;

struct RateRow {
    std::array<int, 4> contests;
    Rates rates;
};

constexpr int X = kUntouched;

constexpr std::array<RateRow, 18> kRates{{
    {{1, 20, 0, 0}, {1, 1, 2, 2, 4, 4, 8, 8, 8}},
    {{2, 4, 0, 0}, {1, 1, 2, 2, 3, 3, 4, 4, 4}},
    {{3, 0, 0, 0}, {X, X, 3, 3, 6, 6, 12, 12, 12}},
    {{5, 14, 21, 26}, {1, X, X, X, X, X, X, X, X}},
    {{6, 15, 22, 27}, {X, 1, X, X, X, X, X, X, X}},
    {{7, 16, 23, 0}, {X, X, 1, X, X, X, X, X, X}},
    {{28, 0, 0, 0}, {X, X, 2, X, X, X, X, X, X}},
    {{8, 17, 24, 0}, {X, X, X, 1, X, X, X, X, X}},
    {{29, 0, 0, 0}, {X, X, X, 2, X, X, X, X, X}},
    {{9, 0, 0, 0}, {X, X, X, X, 1, X, X, X, X}},
    {{10, 0, 0, 0}, {X, X, X, X, X, 1, X, X, X}},
    {{11, 0, 0, 0}, {X, X, X, X, X, X, 1, X, X}},
    {{12, 25, 0, 0}, {X, X, X, X, 1, 1, 1, 1, 1}},
    {{13, 18, 0, 0}, {X, X, X, X, 1, 1, 1, X, X}},
    {{19, 0, 0, 0}, {X, X, X, X, 1, 1, 1, 1, X}},
    {{30, 0, 0, 0}, {X, X, X, X, 3, 3, 4, 4, 4}},
    {{31, 0, 0, 0}, {1, 2, X, X, X, X, X, X, X}},
    {{0, 0, 0, 0}, {X, X, X, X, X, X, X, X, X}},
}};

std::size_t columnOf(int band) {
    if (band <= 7) return static_cast<std::size_t>(band - 1);
    return band <= 9 ? 7 : 8;
}

}  // namespace

std::optional<int> pointsOn(int number, int band) {
    if (band < kFirstBand || band > kLastBand || number < 1) return std::nullopt;
    for (const RateRow& row : kRates) {
        for (const int contest : row.contests) {
            if (contest != number) continue;
            const int points = row.rates[columnOf(band)];
            return points == kUntouched ? std::nullopt : std::optional(points);
        }
    }
    return std::nullopt;
}

Sums sumsOf(const PerBand<Int16>& points, const PerBand<Int16>& qsos, const PerBand<Int16>& grids) {
    Sums sums;
    for (int band = kFirstBand; band <= kLastBand; ++band) {
        const Int16 earned = std::int64_t{points(band)} * qsos(band);
        sums.qsoPoints(band) = earned;
        sums.score(band) = std::int64_t{earned} * grids(band);
        sums.qsos += std::int64_t{qsos(band)};
        sums.totalQsoPoints += earned;
        sums.grids += grids(band);
    }
    sums.total = static_cast<float>(std::int64_t{sums.totalQsoPoints} * sums.grids);
    return sums;
}

}  // namespace contest
