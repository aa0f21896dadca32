// SPDX-License-Identifier: MIT
// The named fields of the program's state, as text, for whoever asks by name.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/station.h"

/// The value of a field, or of one element of an indexed field (one index or two): texts in quotes with
/// escapes (see quotedText), numbers bare, flags as yes and no, floats in their shortest form. Nothing for a
/// name that is no field.
std::optional<std::string> fieldValue(const Station& station, std::string_view name,
                                      const std::vector<int>& indices);

/// A text in double quotes, with \" \\ \r \n \t, and \xHH for any other byte outside 32 to 126.
std::string quotedText(std::string_view text);
