// SPDX-License-Identifier: MIT
// The summary sheet of an entry, for the operator's own use, as a pure function from figures to lines.
// Leans on base and the session; the routine `mWriteSum_Click` writes what comes of it.
#pragma once

#include <string>
#include <string_view>

#include "core/session.h"
#include "core/settings.h"

namespace exporting {

/// Contests that are entered with a Cabrillo file and ask for no summary.
bool summaryNotRequired(int number);

/// The whole sheet, each line with its end, from the sums that the session holds. `today` is MM/DD/YY.
/// Contest 19 has neither totals nor a claimed score, for each of its bands stands alone.
std::string summarySheet(const Session& session, const Personal& data, std::string_view today);

}  // namespace exporting
