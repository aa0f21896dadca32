// SPDX-License-Identifier: MIT
// The place on the disk that a name of the program stands for, whatever the case of the name and the kind of
// its slashes.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace path_lookup {

/// The name of a folder's entry as the program knows it, or nothing for one that it has no characters for. An
/// entry that is no UTF-8 comes from a disk that was written in the program's own code page.
std::optional<std::string> nameOfEntry(const std::string& entry);

/// The path, in the bytes of the disk, of a name relative to `folder`. A component that isn't there stands as
/// written.
std::string find(const std::string& folder, std::string_view name);

}  // namespace path_lookup
