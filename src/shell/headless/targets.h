// SPDX-License-Identifier: MIT
// What a name in a script stands for on the screen.
#pragma once

#include <string_view>

#include "shell/forms/screen.h"

namespace targets {

/// The form of a name, or null.
forms::Form* formNamed(const forms::Screen& screen, std::string_view name);
/// The control of a name `form.control`, or null.
forms::Control* controlNamed(const forms::Screen& screen, std::string_view name);
/// The same, where a name that is none ends the run.
forms::Form& form(const forms::Screen& screen, std::string_view name);
forms::Control& control(const forms::Screen& screen, std::string_view name);
/// `form.control`
std::string nameOf(const forms::Control& control);

}  // namespace targets
