// SPDX-License-Identifier: MIT
#include "core/rate.h"

#include "base/number.h"
#include "core/qso_line.h"

int UpdateQSORate(const Session& session) {
    if (session.LogLineCount <= 11) return 0;
    const auto minutes = [&](int line) { return number::valueOf(qso::time(session.LogLines(line))); };
    const double span = minutes(session.LogLineCount) - minutes(session.LogLineCount - 10);
    return span > 0 ? static_cast<int>(60 / span) * 10 : 0;
}
