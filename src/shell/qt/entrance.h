// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

#include "shell/forms/screen.h"

/// The one way by which the operator's doings reach the program. No exception leaves it, for Qt stands above
/// it.
class Entrance {
public:
    virtual ~Entrance() = default;
    /// Runs one event: a call of the screen that dispatches.
    virtual void enter(const std::function<void(forms::Screen&)>& event) = 0;
};
