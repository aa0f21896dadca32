// SPDX-License-Identifier: MIT
// What the operator category of the personal data means to an entry.
#pragma once

#include <string_view>

namespace exporting {

/// A rover's entry is put together by other means, and no Cabrillo file is written for it.
bool isRover(std::string_view category);
/// Several operators, who are named in the entry.
bool isMultiOperator(std::string_view category);

}  // namespace exporting
