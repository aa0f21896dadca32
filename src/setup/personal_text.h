// SPDX-License-Identifier: MIT
// The station's personal data as text: fourteen quoted lines.
// Leans on base; setup/setup_screen.h reads and writes "Name.dat" with it.
#pragma once

#include <string>
#include <string_view>

#include "core/settings.h"

namespace personal {

/// The lines of the file, elements 1 to 14.
std::string compose(const Personal& data);
/// The data of a station that has entered none yet.
void setDefaults(Personal& data);
/// Fields in quotes or without, into elements 1, 2, 3 and so on. More than the 20 that fit raise a fault.
void parse(std::string_view content, Personal& data);

}  // namespace personal
