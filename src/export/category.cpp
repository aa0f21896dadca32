// SPDX-License-Identifier: MIT
#include "export/category.h"

#include "base/text.h"

namespace exporting {

bool isRover(std::string_view category) { return text::same(text::left(category, 5), "ROVER"); }
bool isMultiOperator(std::string_view category) { return text::same(text::left(category, 4), "MULT"); }

}  // namespace exporting
