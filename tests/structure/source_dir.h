// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>

namespace structure {

// The checkout the tests were built from.
std::filesystem::path sourceDir();

}  // namespace structure
