// SPDX-License-Identifier: MIT
// Message boxes and input boxes that a script answers.
#pragma once

#include <deque>
#include <functional>
#include <optional>
#include <string>

#include "shell/forms/screen.h"
#include "shell/headless/transcript.h"
#include "shell/platform/dialogs.h"

class HeadlessDialogs : public Dialogs {
public:
    explicit HeadlessDialogs(Transcript& transcript) : transcript_(transcript) {}
    /// Timers of this screen wait while a box is open.
    void attach(forms::Screen& screen) { screen_ = &screen; }
    /// Answers the next box that finds no earlier answer; nothing is Cancel.
    void queue(std::optional<std::string> reply) { replies_.push_back(std::move(reply)); }

    Answer message(const Message& message) override;
    std::optional<std::string> prompt(const Prompt& prompt) override;
    void beep() override;
    void pointer(Pointer pointer) override;
    void fault(const std::string& text) override;

private:
    /// Takes the next reply; nothing where none is queued.
    std::optional<std::optional<std::string>> takeReply();
    void tellBox(const std::string& line, bool asked);

    Transcript& transcript_;
    forms::Screen* screen_ = nullptr;
    std::deque<std::optional<std::string>> replies_;
    int unaskedInARow_ = 0;
};
