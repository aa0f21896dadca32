// SPDX-License-Identifier: MIT
#pragma once

#include "core/station.h"

/// Wires the forms of the Morse keyer and of the band decoder, and their menus.
void wireKeyer(Station& s);
