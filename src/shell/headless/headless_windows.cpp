// SPDX-License-Identifier: MIT
#include "shell/headless/headless_windows.h"

#include <algorithm>
#include <stdexcept>

namespace {

constexpr std::int64_t kPumpNanoseconds = 10'000'000;

}  // namespace

void HeadlessWindows::pump() {
    clock_.advance(kPumpNanoseconds);
    const std::int64_t number = ++pumps_;
    while (!screen_->ended()) {
        // Looked up anew each time: a command can queue others, and pump itself.
        const auto at =
            std::find_if(queue_.begin(), queue_.end(), [&](const Waiting& w) { return w.pump == number; });
        if (at == queue_.end()) break;
        const Queued command = std::move(at->command);
        queue_.erase(at);
        onQueued(command);
    }
    screen_->runTimers(clock_.milliseconds());
    screen_->endIfEnded();
}

void HeadlessWindows::popUp(const std::string& form, const std::string& menu) {
    const forms::Form* const owner = screen_->find(form);
    auto* const item = owner ? dynamic_cast<forms::MenuItem*>(owner->find(menu)) : nullptr;
    if (item == nullptr) throw std::logic_error("no menu " + form + "." + menu);
    screen_->openPopUp(*item);
}
