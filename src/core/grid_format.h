// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

#include "core/station.h"

/// Whether the first four characters are two letters and two digits, in any case.
bool looksLikeGrid(std::string_view grid);
/// Looks at the grid in `tGrid` before a QSO is accepted; false after a fault that the operator was told of.
/// A length other than 4 or 6 passes without a word, with the focus put back on the field.
bool CheckGridFormat(Station& s);
