// SPDX-License-Identifier: MIT
// What a script can ask to be shown: controls, forms, the focus, and the fields of the program's state.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "shell/forms/screen.h"

/// The value of a field by name and indices, or nothing where there is none.
using FieldLookup = std::function<std::optional<std::string>(std::string_view, const std::vector<int>&)>;

/// The lines of the transcript that answer. Throws RunEnds for what can't be shown.
std::vector<std::string> inspect(const forms::Screen& screen, const FieldLookup& fields,
                                 const std::string& what);
