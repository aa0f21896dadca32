// SPDX-License-Identifier: MIT
// The master file of stations in ADIF, one a line, read by column.
// Leans on base and the platform's files; the searches of core/search.h call it.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/station.h"

namespace master {

/// The whole master file in upper case; empty where it can't be read.
std::string content(Station& s);
/// The rows of a search for a text at position 9 or later of a station's line: the call, padded to 15 in
/// front of the grid where the line has one. `content` in upper case.
std::vector<std::string> callRows(std::string_view content, std::string_view wanted);
/// The rows of a partial search, for a text at position 7 or later: call, five blanks, grid, cut by the
/// lengths that the line gives at position 7 and behind its next colon from position 20 on.
std::vector<std::string> partialRows(std::string_view content, std::string_view wanted);

}  // namespace master
