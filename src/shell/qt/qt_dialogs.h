// SPDX-License-Identifier: MIT
#pragma once

#include "shell/platform/dialogs.h"
#include "shell/qt/windows_front.h"

/// The program's boxes as dialogs of the desktop. Timers wait while one is open.
class QtDialogs : public Dialogs {
public:
    /// The windows over which the boxes open; before that they stand alone.
    void attach(WindowsFront* front) { front_ = front; }
    Answer message(const Message& message) override;
    std::optional<std::string> prompt(const Prompt& prompt) override;
    void beep() override;
    void pointer(Pointer pointer) override;
    void fault(const std::string& text) override;

private:
    WindowsFront* front_ = nullptr;
};

/// Keeps the timers waiting while it lives.
class DialogOpen {
public:
    explicit DialogOpen(WindowsFront* front) : front_(front) {
        if (front_) front_->screen().dialogOpens();
    }
    ~DialogOpen() {
        if (front_) front_->screen().dialogCloses();
    }
    DialogOpen(const DialogOpen&) = delete;
    DialogOpen& operator=(const DialogOpen&) = delete;

private:
    WindowsFront* front_;
};
