// SPDX-License-Identifier: MIT
#include "structure/source_dir.h"

namespace structure {

std::filesystem::path sourceDir() { return TARQEN_SOURCE_DIR; }

}  // namespace structure
