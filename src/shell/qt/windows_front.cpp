// SPDX-License-Identifier: MIT
#include "shell/qt/windows_front.h"

#include <QApplication>
#include <algorithm>

#include "base/run_time_error.h"
#include "shell/qt/layouts.h"

namespace {

/// Between two windows made ahead of their time the operator's keys come first.
constexpr int kSpareMilliseconds = 50;

}  // namespace

WindowsFront::WindowsFront(forms::Screen& screen, Clock& clock) : screen_(screen), clock_(clock) {
    for (forms::Form* const form : screen_.forms()) awaitFirstShow(*form);
    spare_.setInterval(kSpareMilliseconds);
    connect(&spare_, &QTimer::timeout, this, &WindowsFront::makeNext);
    poll_.setSingleShot(true);
    poll_.setTimerType(Qt::PreciseTimer);
    connect(&poll_, &QTimer::timeout, this, &WindowsFront::runTimers);
    qApp->installEventFilter(this);
}

WindowsFront::~WindowsFront() {
    qApp->removeEventFilter(this);
    for (forms::Form* const form : screen_.forms()) {
        if (made(*form) == nullptr) form->watcher = nullptr;
    }
}

void WindowsFront::awaitFirstShow(forms::Form& form) {
    form.watcher = [this, &form] {
        if (!form.visible()) return;
        // The window puts its own watcher in the place of this one, whose variables are gone then.
        WindowsFront* const front = this;
        front->make(form).follow();
    };
}

FormWindow& WindowsFront::make(forms::Form& form) {
    windows_.push_back(std::make_unique<FormWindow>(form, layoutOf(form.name()), *this));
    if (!spare_.isActive() && windows_.size() < screen_.forms().size()) spare_.start();
    return *windows_.back();
}

FormWindow* WindowsFront::made(const forms::Form& form) const {
    const auto at = std::find_if(windows_.begin(), windows_.end(),
                                 [&](const auto& window) { return &window->form() == &form; });
    return at == windows_.end() ? nullptr : at->get();
}

void WindowsFront::makeNext() {
    const auto& forms = screen_.forms();
    const auto next =
        std::find_if(forms.begin(), forms.end(), [this](const auto* form) { return made(*form) == nullptr; });
    if (next == forms.end()) {
        spare_.stop();
    } else {
        enter([&](forms::Screen&) { make(**next); });
    }
}

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

FormWindow* WindowsFront::find(const std::string& name) {
    const auto& forms = screen_.forms();
    const auto at =
        std::find_if(forms.begin(), forms.end(), [&](const auto* form) { return form->name() == name; });
    if (at == forms.end()) return nullptr;
    FormWindow* const window = made(**at);
    return window != nullptr ? window : &make(**at);
}

FormWindow* WindowsFront::of(const QWidget& widget) const {
    const QWidget* const top = widget.window();
    const auto at = std::find_if(windows_.begin(), windows_.end(),
                                 [&](const auto& window) { return &window->window() == top; });
    return at == windows_.end() ? nullptr : at->get();
}

QWidget* WindowsFront::frontWindow() const {
    const forms::Form* const form = screen_.active();
    const FormWindow* const window = form ? made(*form) : nullptr;
    return window && window->window().isVisible() ? &window->window() : nullptr;
}
