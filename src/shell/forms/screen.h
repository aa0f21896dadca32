// SPDX-License-Identifier: MIT
// All forms of one running program: which are shown and in which order, the timers, and the dispatch of
// events. Leans on form.h; the platform's front (headless or Qt) feeds it keys, clicks and time; the forms
// register with it. Every event enters here, so that a fault which no routine traps is told once and ends the
// program in order.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "shell/forms/controls.h"
#include "shell/forms/form.h"

namespace forms {

/// Thrown to end the program from wherever a routine stands. Not a fault: no error trap catches it.
struct ProgramEnd {};

class Screen {
public:
    Screen() = default;
    Screen(const Screen&) = delete;
    Screen& operator=(const Screen&) = delete;

    const std::vector<Form*>& forms() const { return forms_; }
    Form* find(std::string_view name) const;
    /// The form in front, which gets the keys, or null.
    Form* active() const { return order_.empty() ? nullptr : order_.back(); }
    /// The visible forms, the one in front last.
    const std::vector<Form*>& order() const { return order_; }
    void bringToFront(Form& form);

    /// Runs one event of the operator or of a timer. Faults are told through `onFault` and end the program.
    /// Inside a pump the end goes on to the routine that pumps (`endIfEnded`). Returns false once the program
    /// has ended.
    bool dispatch(const std::function<void()>& event);
    bool ended() const { return ended_; }
    void endIfEnded() const {
        if (ended_) throw ProgramEnd{};
    }

    /// A key to the form in front; false where there is none.
    bool press(const KeyStroke& stroke);
    /// A left click on a control: its form comes to the front, the focus moves there where it can, then the
    /// click. A list gets the click on a row (counted from 0). False where the control is disabled or hidden.
    bool click(Control& control, int row = -1);
    bool doubleClick(Control& control, int row = -1);
    bool rightClick(Control& control);
    /// Clicks on the bare surface of a form; false where the form is hidden.
    bool click(Form& form);
    bool rightClick(Form& form);
    /// Whether a click on the control would reach it: it and its form are to be seen, and it is enabled.
    bool reachable(const Control& control) const;

    /// Opens a pop-up menu. It closes with the next click or key, wherever that goes.
    void openPopUp(MenuItem& menu);
    void closePopUp();

    /// Fires the timers that are due, the longest due first, each once. `now` is the platform's count of
    /// milliseconds. Nothing fires while a dialog is open.
    void runTimers(std::int64_t now);
    /// The count at which the next timer is due, or -1 of none. New timers count from `now`.
    std::int64_t nextDue(std::int64_t now);
    void dialogOpens() { ++dialogs_; }
    void dialogCloses() { --dialogs_; }
    bool dialogOpen() const { return dialogs_ > 0; }

    std::function<void(const std::string&)> onFault;
    std::function<void(Form&)> onShown, onHidden;

private:
    friend class Form;
    struct Clocked {
        Timer* timer;
        bool running = false;
        int starts = 0;
        std::int64_t due = 0;
    };
    void enrol(Form& form) { forms_.push_back(&form); }
    void formShown(Form& form);
    void formHidden(Form& form);
    void schedule(std::int64_t now);

    std::vector<Form*> forms_;
    std::vector<Form*> order_;
    std::vector<Clocked> clocked_;
    MenuItem* popUp_ = nullptr;
    int dialogs_ = 0;
    bool ended_ = false;
};

}  // namespace forms
