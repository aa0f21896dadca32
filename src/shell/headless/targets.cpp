// SPDX-License-Identifier: MIT
#include "shell/headless/targets.h"

#include <string>

#include "shell/headless/run_ends.h"

namespace targets {

forms::Form* formNamed(const forms::Screen& screen, std::string_view name) { return screen.find(name); }

forms::Control* controlNamed(const forms::Screen& screen, std::string_view name) {
    const std::size_t dot = name.find('.');
    if (dot == std::string_view::npos) return nullptr;
    const forms::Form* const owner = screen.find(name.substr(0, dot));
    return owner ? owner->find(name.substr(dot + 1)) : nullptr;
}

forms::Form& form(const forms::Screen& screen, std::string_view name) {
    if (auto* const found = formNamed(screen, name)) return *found;
    throw badScript(std::string(name) + " is no form");
}

forms::Control& control(const forms::Screen& screen, std::string_view name) {
    if (auto* const found = controlNamed(screen, name)) return *found;
    throw badScript(std::string(name) + " is no control");
}

std::string nameOf(const forms::Control& control) { return control.form().name() + "." + control.name(); }

}  // namespace targets
