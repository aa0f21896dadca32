// SPDX-License-Identifier: MIT
#include "shell/headless/player.h"

#include <algorithm>

#include "base/run_time_error.h"
#include "shell/headless/run_ends.h"
#include "shell/headless/targets.h"

namespace {

using forms::Control;
using forms::Form;

void checkRow(const Control& control, const std::optional<int>& row) {
    if (row && dynamic_cast<const forms::ListBox*>(&control) == nullptr) {
        throw badScript(targets::nameOf(control) + " has no rows");
    }
}

int entryOf(const Control& control, const std::vector<std::string>& entries, const std::string& entry) {
    const auto at = std::find(entries.begin(), entries.end(), entry);
    if (at == entries.end()) throw badScript(targets::nameOf(control) + " has no entry \"" + entry + "\"");
    return static_cast<int>(at - entries.begin());
}

}  // namespace

Player::Player(HeadlessMachine& machine, Played program)
    : machine_(machine), program_(std::move(program)), screen_(program_.screen) {
    machine_.attach(screen_);
    machine_.windows.onQueued = [this](const HeadlessWindows::Queued& queued) {
        const int outer = line_;
        playLine(queued.command, queued.line);
        line_ = outer;
    };
}

int Player::play(std::istream& lines, std::ostream& errors) {
    try {
        int number = 0;
        for (std::string line; !screen_.ended() && std::getline(lines, line);) playLine(line, ++number);
        if (screen_.ended()) machine_.transcript.line("end");
    } catch (const RunEnds& end) {
        errors << "line " << end.line << ": " << end.reason << '\n';
        return end.status;
    }
    return 0;
}

void Player::playLine(const std::string& line, int number) {
    line_ = number;
    try {
        const auto command = script::parse(line);
        if (command) std::visit([this](const auto& chosen) { run(chosen); }, *command);
    } catch (RunEnds& end) {
        // The innermost line is the one that ended the run.
        if (end.line == 0) end.line = number;
        throw;
    }
    // A timer that the command started counts from now.
    screen_.nextDue(machine_.clock.milliseconds());
}

void Player::run(const script::Wait& command) {
    constexpr std::int64_t kMillisecond = 1'000'000;
    HeadlessClock& clock = machine_.clock;
    const std::int64_t end = clock.nanoseconds() + command.nanoseconds;
    while (!screen_.ended()) {
        const std::int64_t due = screen_.nextDue(clock.milliseconds());
        if (due < 0 || due * kMillisecond > end) break;
        clock.advanceTo(due * kMillisecond);
        screen_.runTimers(clock.milliseconds());
    }
    if (!screen_.ended()) clock.advanceTo(end);
}

void Player::run(const script::Start&) {
    if (started_) throw badScript("the program runs already");
    started_ = true;
    screen_.dispatch(program_.start);
}

void Player::press(const forms::KeyStroke& stroke) {
    if (!screen_.press(stroke)) throw badScript("no window is there to take the key");
}

void Player::run(const script::Type& command) {
    for (const char character : command.text) {
        if (screen_.ended()) return;
        press(script::keyOf(static_cast<unsigned char>(character)));
    }
}

void Player::moveFocus(Control& control) {
    screen_.closePopUp();
    if (!control.form().visible()) return;
    screen_.dispatch([&] {
        screen_.bringToFront(control.form());
        control.form().focus(control);
    });
}

void Player::run(const script::Focus& command) { moveFocus(targets::control(screen_, command.control)); }

void Player::run(const script::Set& command) {
    auto* const field = dynamic_cast<forms::TextLine*>(&targets::control(screen_, command.control));
    if (field == nullptr) throw badScript(command.control + " takes no text");
    moveFocus(*field);
    screen_.dispatch([&] { field->setText(command.text); });
}

void Player::run(const script::Choose& command) {
    Control& control = targets::control(screen_, command.control);
    if (auto* const list = dynamic_cast<forms::ListBox*>(&control)) {
        told(screen_.click(*list, entryOf(*list, list->items(), command.entry)), command.control);
    } else if (auto* const combo = dynamic_cast<forms::ComboBox*>(&control)) {
        const int index = entryOf(*combo, combo->items(), command.entry);
        if (!told(screen_.reachable(*combo), command.control)) return;
        moveFocus(*combo);
        screen_.dispatch([&] { combo->choose(index); });
    } else {
        throw badScript(command.control + " has no entries");
    }
}

void Player::run(const script::Click& command) {
    if (Form* const form = targets::formNamed(screen_, command.target)) {
        if (command.row) throw badScript(command.target + " has no rows");
        told(screen_.click(*form), command.target);
        return;
    }
    Control& control = targets::control(screen_, command.target);
    checkRow(control, command.row);
    told(screen_.click(control, command.row.value_or(-1)), command.target);
}

void Player::run(const script::DoubleClick& command) {
    Control& control = targets::control(screen_, command.control);
    checkRow(control, command.row);
    const int row = command.row.value_or(-1);
    if (!told(screen_.click(control, row), command.control) || screen_.ended()) return;
    told(screen_.doubleClick(control, row), command.control);
}

void Player::run(const script::RightClick& command) {
    if (Form* const form = targets::formNamed(screen_, command.target)) {
        told(screen_.rightClick(*form), command.target);
    } else {
        told(screen_.rightClick(targets::control(screen_, command.target)), command.target);
    }
}

void Player::run(const script::Close& command) {
    Form& form = targets::form(screen_, command.form);
    screen_.closePopUp();
    if (told(form.visible(), command.form)) screen_.dispatch([&] { form.close(); });
}

bool Player::told(bool reached, const std::string& target) {
    if (!reached) machine_.transcript.line("ignored " + target);
    return reached;
}

void Player::run(const script::Pump& command) {
    machine_.windows.queue(command.number, {command.line, line_});
}

void Player::run(const script::Line& command) {
    if (command.on) {
        machine_.hardware.linesOn.insert(command.line);
    } else {
        machine_.hardware.linesOn.erase(command.line);
    }
}

void Player::run(const script::Write& command) {
    try {
        const auto file = machine_.disk.create(command.name);
        file->write(command.content);
        file->close();
    } catch (const FileError& fault) {
        throw badScript(command.name + " can't be written: " + fault.reason);
    }
}

void Player::run(const script::Delete& command) {
    try {
        if (machine_.disk.exists(command.name)) machine_.disk.remove(command.name);
    } catch (const FileError& fault) {
        throw badScript(command.name + " can't be deleted: " + fault.reason);
    }
}

void Player::run(const script::Show& command) {
    for (const std::string& line : inspect(screen_, program_.fields, command.what))
        machine_.transcript.line(line);
}
