// SPDX-License-Identifier: MIT
#include "core/rate.h"

#include <algorithm>

#include "base/number.h"
#include "core/qso_line.h"

namespace {
constexpr double kMostPerMinute = 99999;
}

int UpdateQSORate(const Session& session) {
    if (session.LogLineCount <= 11) return 0;
    const auto minutes = [&](int line) { return number::valueOf(qso::time(session.LogLines(line))); };
    const double span = minutes(session.LogLineCount) - minutes(session.LogLineCount - 10);
    if (span <= 0) return 0;
    // Times that are no digits may lie a hair apart.
    return static_cast<int>(std::min(60 / span, kMostPerMinute)) * 10;
}
