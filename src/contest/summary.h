// SPDX-License-Identifier: MIT
// The score summary, band by band.
// Leans on points.h and scoring.h; the button `cmdQSum` and the command SS call it.
#pragma once

#include <string>
#include <vector>

#include "core/station.h"

/// The lines of the summary from counts and sums; contest 19 has no line of totals, for each of its bands
/// stands alone.
std::vector<std::string> summaryLines(const Session& session);
/// After the button has been turned over: shows the summary or takes it away.
void cmdQSum_Click(Station& s);
