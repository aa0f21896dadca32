// SPDX-License-Identifier: MIT
// What a QSO earns on each band, by contest, and the sums made of it.
// Leans on base; the routines of contest/scoring.h and the writers of summaries call it.
#pragma once

#include <optional>

#include "core/session.h"

namespace contest {

/// Points of one QSO on a band (1 to 13) in a contest (1 to 31); nothing where the contest leaves the band
/// alone.
std::optional<int> pointsOn(int number, int band);

/// What the counts of a log add up to.
struct Sums {
    PerBand<Int32> qsoPoints;
    PerBand<Int32> score;
    Int16 qsos;
    Int32 totalQsoPoints;
    Int16 grids;
    float total = 0;
};

/// Raises "Overflow" where a figure leaves its width: points times QSOs of a band 16 bits, the rest 32 bits.
Sums sumsOf(const PerBand<Int16>& points, const PerBand<Int16>& qsos, const PerBand<Int16>& grids);

}  // namespace contest
