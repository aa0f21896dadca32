// SPDX-License-Identifier: MIT
// What may include what.
#pragma once

#include "structure/source_tree.h"

namespace structure {

// Includes that point up, that name no file, or that reach for Qt or the operating system from the wrong
// folder. Only files under src/ are bound.
Faults includeFaults(const std::vector<SourceFile>& files);

// Circles of includes, each told once as "a.h > b.h > a.h".
Faults includeCircles(const std::vector<SourceFile>& files);

}  // namespace structure
