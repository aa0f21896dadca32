// SPDX-License-Identifier: MIT
#include "shell/forms/form.h"

#include <algorithm>

#include "shell/forms/controls.h"
#include "shell/forms/screen.h"

namespace forms {

namespace {

bool takesFocus(const Control& control) { return control.canTakeFocus() && control.usable(); }

/// The character code that a key carries into a control, or 0 of a key without one.
int codeOf(const KeyStroke& stroke) {
    switch (stroke.key) {
        case Key::Character:
            return stroke.character;
        case Key::Enter:
            return 13;
        case Key::Esc:
            return 27;
        case Key::Backspace:
            return 8;
        default:
            return 0;
    }
}

}  // namespace

Form::Form(Screen& screen, std::string name, std::string caption)
    : screen_(screen), name_(std::move(name)), caption_(std::move(caption)) {
    screen_.enrol(*this);
}

void Form::setCaption(std::string_view caption) {
    caption_ = caption;
    if (watcher) watcher();
}

void Form::load() {
    if (loaded_) return;
    loaded_ = true;
    if (onLoad) onLoad();
}

void Form::show() {
    load();
    if (!visible_) {
        visible_ = true;
        screen_.formShown(*this);
        if (watcher) watcher();
    }
    screen_.bringToFront(*this);
}

void Form::hide() {
    if (!visible_) return;
    visible_ = false;
    screen_.formHidden(*this);
    if (watcher) watcher();
}

void Form::unload() {
    if (!loaded_) return;
    if (onUnload) onUnload();
    hide();
    loaded_ = false;
    focused_ = nullptr;
}

void Form::close() {
    bool refuse = false;
    if (onQueryClose) onQueryClose(refuse);
    if (!refuse) unload();
}

Control* Form::find(std::string_view name) const {
    const auto at =
        std::find_if(controls_.begin(), controls_.end(), [&](Control* c) { return c->name() == name; });
    return at == controls_.end() ? nullptr : *at;
}

void Form::focus(Control& control) {
    if (!takesFocus(control)) return;
    if (focused_ == &control) {
        if (focusWatcher) focusWatcher();
        return;
    }
    Control* const old = focused_;
    focused_ = &control;
    if (focusWatcher) focusWatcher();
    if (old) Control::raise(old->onLostFocus);
    // The old control's handler may have sent the focus elsewhere; then this move is over.
    if (focused_ == &control) Control::raise(control.onGotFocus);
}

void Form::activate() {
    if (focused_ == nullptr) {
        const auto first = std::find_if(controls_.begin(), controls_.end(),
                                        [](Control* c) { return c->tabStop() && c->usable(); });
        if (first != controls_.end()) focusByKey(**first);
    } else if (focusWatcher) {
        focusWatcher();
    }
    if (onActivate) onActivate();
}

void Form::focusLeaves(Control& control) {
    if (focused_ != &control) return;
    focused_ = nullptr;
    if (home_ && home_ != &control && takesFocus(*home_)) {
        focus(*home_);
    } else if (focusWatcher) {
        focusWatcher();
    }
}

void Form::focusByKey(Control& control) {
    focus(control);
    auto* const box = dynamic_cast<ComboBox*>(&control);
    if (box && focused_ == box) box->selectAll();
}

void Form::tab(bool forward) {
    std::vector<Control*> stops;
    std::copy_if(controls_.begin(), controls_.end(), std::back_inserter(stops),
                 [&](Control* c) { return c == focused_ || (c->tabStop() && c->usable()); });
    if (stops.empty()) return;
    const auto at = std::find(stops.begin(), stops.end(), focused_);
    if (at == stops.end()) return focusByKey(**stops.begin());
    const auto count = stops.size();
    const auto here = static_cast<std::size_t>(at - stops.begin());
    focusByKey(*stops[(here + (forward ? 1 : count - 1)) % count]);
}

void Form::press(KeyStroke stroke) {
    if (onKeyDown) onKeyDown(stroke);
    if (stroke.swallowed) return;
    if (stroke.key == Key::Tab || stroke.key == Key::BackTab) return tab(stroke.key == Key::Tab);
    Control* const target = focused_;
    KeyPress pressed{codeOf(stroke)};
    if (pressed.code != 0 && onKeyPress) {
        onKeyPress(pressed);
        if (pressed.swallowed) return;
    }
    if (target == nullptr) return;
    if (pressed.code != 0 && target->onKeyPress) {
        target->onKeyPress(pressed);
        if (pressed.swallowed) return;
    }
    target->defaultKey(stroke);
}

}  // namespace forms
