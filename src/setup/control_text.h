// SPDX-License-Identifier: MIT
// The control file as text: each setting a line of its own behind a line that holds its key.
// Leans on base; setup/control_file.h reads and writes the file with it.
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "core/settings.h"

namespace control {

/// The whole file, in the fixed order of the keys.
std::string compose(const Settings& values);
/// The values of a new file; a setting without one is empty.
void setDefaults(Settings& values);
/// Takes the values of the keys that the content holds, in any case and any order; the last of a key wins,
/// everything else is passed over. `taken` is told each setting as it is read.
void parse(std::string_view content, Settings& values, const std::function<void(int setting)>& taken);

}  // namespace control
