// SPDX-License-Identifier: MIT
// What every source file owes its reader.
#pragma once

#include "structure/source_tree.h"

namespace structure {

// A source longer than this is two files.
inline constexpr int kMostLines = 500;

// Files without a licence line near their top, headers without #pragma once, sources that are too long.
Faults fileFaults(const std::vector<SourceFile>& files);

}  // namespace structure
