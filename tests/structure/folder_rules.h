// SPDX-License-Identifier: MIT
// The folder list of README.md: one sentence a folder.
#pragma once

#include "structure/source_tree.h"

namespace structure {

// Folders that the list must name: those at the top, and those under src/ that hold sources.
std::set<std::string> foldersToTell(const SourceTree& tree);

// A line of the list reads "- `src/core/`: What lies there." Told are folders without a line or with two,
// lines whose folder is not there, and lines that are not one sentence.
Faults folderFaults(const SourceTree& tree, const std::string& readme);

}  // namespace structure
