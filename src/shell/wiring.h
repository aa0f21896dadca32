// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

#include "core/station.h"

using Routine = void (*)(Station&);

/// A handler of a control that runs a routine on the station.
inline std::function<void()> runs(Station& s, Routine routine) {
    return [&s, routine] { routine(s); };
}
