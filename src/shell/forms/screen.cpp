// SPDX-License-Identifier: MIT
#include "shell/forms/screen.h"

#include <algorithm>

#include "base/run_time_error.h"

namespace forms {

Form* Screen::find(std::string_view name) const {
    const auto at = std::find_if(forms_.begin(), forms_.end(), [&](Form* f) { return f->name() == name; });
    return at == forms_.end() ? nullptr : *at;
}

void Screen::bringToFront(Form& form) {
    if (!form.visible()) return;
    Form* const before = active();
    if (before != &form) {
        order_.erase(std::remove(order_.begin(), order_.end(), &form), order_.end());
        order_.push_back(&form);
        if (before) Control::raise(before->onDeactivate);
    }
    form.activate();
}

void Screen::formShown(Form& form) {
    Form* const before = active();
    order_.push_back(&form);
    if (onShown) onShown(form);
    if (before) Control::raise(before->onDeactivate);
}

void Screen::formHidden(Form& form) {
    const bool wasActive = active() == &form;
    order_.erase(std::remove(order_.begin(), order_.end(), &form), order_.end());
    if (onHidden) onHidden(form);
    if (wasActive) Control::raise(form.onDeactivate);
}

bool Screen::dispatch(const std::function<void()>& event) {
    if (ended_) return false;
    try {
        event();
    } catch (const ProgramEnd&) {
        ended_ = true;
    } catch (const RunTimeError& error) {
        // Ended first, so that nothing runs behind the box that tells of the fault.
        ended_ = true;
        if (onFault) onFault(error.what());
    }
    return !ended_;
}

bool Screen::press(const KeyStroke& stroke) {
    Form* const form = active();
    if (form == nullptr) return false;
    closePopUp();
    dispatch([&] { form->press(stroke); });
    return true;
}

bool Screen::reachable(const Control& control) const {
    if (!control.form().visible()) return false;
    if (const auto* item = dynamic_cast<const MenuItem*>(&control)) return item->reachable();
    return control.usable();
}

bool Screen::click(Control& control, int row) {
    const bool reached = reachable(control);
    closePopUp();
    if (!reached) return false;
    dispatch([&] {
        bringToFront(control.form());
        control.form().focus(control);
        if (auto* list = dynamic_cast<ListBox*>(&control)) {
            list->clickRow(row);
        } else {
            control.click();
        }
    });
    return true;
}

bool Screen::doubleClick(Control& control, int row) {
    const bool reached = reachable(control);
    closePopUp();
    if (!reached) return false;
    dispatch([&] {
        if (auto* list = dynamic_cast<ListBox*>(&control)) {
            list->doubleClickRow(row);
        } else {
            control.doubleClick();
        }
    });
    return true;
}

bool Screen::rightClick(Control& control) {
    const bool reached = reachable(control);
    closePopUp();
    if (!reached) return false;
    dispatch([&] {
        if (control.onRightClick) control.onRightClick();
    });
    return true;
}

bool Screen::click(Form& form) {
    closePopUp();
    if (!form.visible()) return false;
    dispatch([&] {
        bringToFront(form);
        if (form.onClick) form.onClick();
    });
    return true;
}

bool Screen::rightClick(Form& form) {
    closePopUp();
    if (!form.visible()) return false;
    dispatch([&] {
        if (form.onRightClick) form.onRightClick();
    });
    return true;
}

void Screen::openPopUp(MenuItem& menu) {
    closePopUp();
    popUp_ = &menu;
    menu.setPopUpOpen(true);
}

void Screen::closePopUp() {
    if (popUp_) popUp_->setPopUpOpen(false);
    popUp_ = nullptr;
}

void Screen::schedule(std::int64_t now) {
    if (clocked_.empty()) {
        for (Form* const form : forms_) {
            for (Control* const control : form->controls()) {
                if (auto* timer = dynamic_cast<Timer*>(control)) clocked_.push_back({timer});
            }
        }
    }
    for (Clocked& clocked : clocked_) {
        const bool runs =
            clocked.timer->enabled() && clocked.timer->interval() > 0 && clocked.timer->form().loaded();
        const bool begins = !clocked.running || clocked.starts != clocked.timer->starts();
        if (runs && begins) clocked.due = now + clocked.timer->interval();
        clocked.running = runs;
        clocked.starts = clocked.timer->starts();
    }
}

std::int64_t Screen::nextDue(std::int64_t now) {
    if (ended_ || dialogOpen()) return -1;
    schedule(now);
    std::int64_t next = -1;
    for (const Clocked& clocked : clocked_) {
        if (clocked.running && (next < 0 || clocked.due < next)) next = clocked.due;
    }
    return next;
}

void Screen::runTimers(std::int64_t now) {
    while (true) {
        const std::int64_t next = nextDue(now);
        if (next < 0 || next > now) return;
        const auto at = std::find_if(clocked_.begin(), clocked_.end(),
                                     [&](const Clocked& c) { return c.running && c.due == next; });
        // The next due time counts from now: ticks that nobody could take are passed over, as a late clock
        // does.
        at->due = now + at->timer->interval();
        Timer* const timer = at->timer;
        dispatch([&] {
            if (timer->onTimer) timer->onTimer();
        });
    }
}

}  // namespace forms
