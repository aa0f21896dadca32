// SPDX-License-Identifier: MIT
#include "shell/qt/windows_front.h"

#include <QApplication>
#include <algorithm>

#include "base/run_time_error.h"

WindowsFront::WindowsFront(forms::Screen& screen, Clock& clock) : screen_(screen), clock_(clock) {
    for (forms::Form* const form : screen_.forms()) {
        windows_.push_back(std::make_unique<FormWindow>(*form, loadLayout(*form), *this));
    }
    poll_.setSingleShot(true);
    poll_.setTimerType(Qt::PreciseTimer);
    connect(&poll_, &QTimer::timeout, this, &WindowsFront::runTimers);
    qApp->installEventFilter(this);
}

WindowsFront::~WindowsFront() { qApp->removeEventFilter(this); }

void WindowsFront::enter(const std::function<void(forms::Screen&)>& event) {
    if (held_ > 0 || screen_.ended()) return;
    const forms::Form* const before = screen_.active();
    try {
        event(screen_);
    } catch (const std::exception& error) {
        // Whatever else goes wrong is told and ends the program as a fault of a routine does.
        const std::string text = error.what();
        screen_.dispatch([&text] { throw RunTimeError(text); });
    }
    if (screen_.active() != before) awaited_ = screen_.active();
    if (screen_.ended()) {
        if (onEnded) onEnded();
    } else {
        rearm();
    }
}

void WindowsFront::runTimers() {
    enter([this](forms::Screen& screen) { screen.runTimers(clock_.milliseconds()); });
}

void WindowsFront::rearm() {
    const std::int64_t now = clock_.milliseconds(), next = screen_.nextDue(now);
    if (next < 0) {
        poll_.stop();
    } else {
        poll_.start(static_cast<int>(std::max<std::int64_t>(next - now, 0)));
    }
}

FormWindow* WindowsFront::find(const std::string& form) const {
    const auto at = std::find_if(windows_.begin(), windows_.end(),
                                 [&](const auto& window) { return window->form().name() == form; });
    return at == windows_.end() ? nullptr : at->get();
}

FormWindow* WindowsFront::of(const QWidget& widget) const {
    const QWidget* const top = widget.window();
    const auto at = std::find_if(windows_.begin(), windows_.end(),
                                 [&](const auto& window) { return &window->window() == top; });
    return at == windows_.end() ? nullptr : at->get();
}

QWidget* WindowsFront::frontWindow() const {
    const forms::Form* const form = screen_.active();
    const FormWindow* const window = form ? find(form->name()) : nullptr;
    return window && window->window().isVisible() ? &window->window() : nullptr;
}
