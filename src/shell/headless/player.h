// SPDX-License-Identifier: MIT
// Plays a script on a program that runs on a headless machine, and tells how the run ended.
// Leans on script.h for the commands and on headless_machine.h for what they set; main.cpp gives it the
// program.
#pragma once

#include <functional>
#include <istream>
#include <ostream>
#include <string>

#include "shell/headless/headless_machine.h"
#include "shell/headless/inspection.h"
#include "shell/headless/script.h"

/// What of a program the player needs.
struct Played {
    forms::Screen& screen;
    /// Starts the program; returns when it waits for the operator.
    std::function<void()> start;
    FieldLookup fields;
};

class Player {
public:
    Player(HeadlessMachine& machine, Played program);
    Player(const Player&) = delete;
    Player& operator=(const Player&) = delete;

    /// Plays until the script or the program ends. Returns the exit status; the reason of a bad one goes to
    /// `errors`.
    int play(std::istream& lines, std::ostream& errors);

private:
    void playLine(const std::string& line, int number);

    void run(const script::At& command) { machine_.clock.setLocal(command.moment); }
    void run(const script::Utc& command) { machine_.clock.setUtc(command.moment); }
    void run(const script::Unit& command) { machine_.hardware.unitNanoseconds = command.nanoseconds; }
    void run(const script::Wait& command);
    void run(const script::Start& command);
    void run(const script::Type& command);
    void run(const script::Press& command) { press(command.stroke); }
    void run(const script::Focus& command);
    void run(const script::Set& command);
    void run(const script::Choose& command);
    void run(const script::Click& command);
    void run(const script::DoubleClick& command);
    void run(const script::RightClick& command);
    void run(const script::Close& command);
    void run(const script::Reply& command) { machine_.dialogs.queue(command.answer); }
    void run(const script::Pump& command);
    void run(const script::Port& command) { machine_.hardware.ports[command.number] = command.value; }
    void run(const script::Line& command);
    void run(const script::FailFile& command) { machine_.faults.add(command.fault); }
    void run(const script::FailDevice& command) { machine_.faults.fail(command.device); }
    void run(const script::Mend&) { machine_.faults.mend(); }
    void run(const script::Write& command);
    void run(const script::Delete& command);
    void run(const script::Show& command);

    void press(const forms::KeyStroke& stroke);
    /// Brings a control's form to the front and the focus to the control, as far as both can be.
    void moveFocus(forms::Control& control);
    /// Tells of an event that reached nothing. Returns `reached`.
    bool told(bool reached, const std::string& target);

    HeadlessMachine& machine_;
    Played program_;
    forms::Screen& screen_;
    bool started_ = false;
    /// The line of the script in play.
    int line_ = 0;
};
