// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>

/// The program's folder: the current one, or, where that is the home folder or the root as under a desktop
/// launcher, the folder TARQEN at home, filled with the sample data when it is new.
std::filesystem::path stationFolder(const std::filesystem::path& current, const std::filesystem::path& home,
                                    const std::filesystem::path& samples);
