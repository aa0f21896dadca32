// SPDX-License-Identifier: MIT
// The event pump of a machine without a screen: time passes in it, and the script's keys arrive.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "shell/forms/screen.h"
#include "shell/headless/headless_clock.h"
#include "shell/platform/windows.h"

class HeadlessWindows : public Windows {
public:
    explicit HeadlessWindows(HeadlessClock& clock) : clock_(clock) {}
    void attach(forms::Screen& screen) { screen_ = &screen; }

    /// A command of the script on its way to a pump, and the line it stands in.
    struct Queued {
        std::string command;
        int line = 0;
    };
    /// Plays a command in the pump that is the `number`-th from now.
    void queue(std::int64_t number, Queued command) {
        queue_.push_back({pumps_ + number, std::move(command)});
    }
    std::function<void(const Queued&)> onQueued;

    void pump() override;
    /// Time passes in the pump alone.
    void rest() override {}
    void saveSize(const std::string&) override {}
    void restoreSize(const std::string&) override {}
    void popUp(const std::string& form, const std::string& menu) override;

private:
    struct Waiting {
        std::int64_t pump = 0;
        Queued command;
    };
    HeadlessClock& clock_;
    forms::Screen* screen_ = nullptr;
    std::int64_t pumps_ = 0;
    std::vector<Waiting> queue_;
};
