// SPDX-License-Identifier: MIT
// The commands of a script, and how a line becomes one.
// Leans on the kinds of keys and faults; the player (player.h) plays what comes out of it.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <variant>

#include "shell/forms/control.h"
#include "shell/headless/faults.h"
#include "shell/headless/hardware.h"
#include "shell/platform/clock.h"

namespace script {

struct At {
    DateTime moment;
};
struct Utc {
    DateTime moment;
};
struct Unit {
    double nanoseconds;
};
struct Wait {
    std::int64_t nanoseconds;
};
struct Start {};
struct Type {
    std::string text;
};
struct Press {
    forms::KeyStroke stroke;
};
struct Focus {
    std::string control;
};
struct Set {
    std::string control, text;
};
struct Choose {
    std::string control, entry;
};
/// A target is a control or a form.
struct Click {
    std::string target;
    std::optional<int> row;
};
struct DoubleClick {
    std::string control;
    std::optional<int> row;
};
struct RightClick {
    std::string target;
};
struct Close {
    std::string form;
};
/// Nothing is Cancel.
struct Reply {
    std::optional<std::string> answer;
};
/// The command of the line is known to be one.
struct Pump {
    int number;
    std::string line;
};
struct Port {
    int number, value;
};
struct Line {
    InputLine line;
    bool on;
};
struct FailFile {
    FileFault fault;
};
struct FailDevice {
    Device device;
};
struct Mend {};
struct Write {
    std::string name, content;
};
struct Delete {
    std::string name;
};
struct Show {
    std::string what;
};

using Command =
    std::variant<At, Utc, Unit, Wait, Start, Type, Press, Focus, Set, Choose, Click, DoubleClick, RightClick,
                 Close, Reply, Pump, Port, Line, FailFile, FailDevice, Mend, Write, Delete, Show>;

/// The command of a line, or nothing for a blank line or a comment. Throws RunEnds for a line that is no
/// command.
std::optional<Command> parse(std::string_view line);

/// Replaces the escapes \r \n \t \s \\ \xHH; any other backslash stands for itself.
std::string unescaped(std::string_view text);

/// The key that a character is typed with: line ends are Enter, 8 and 27 the keys of these codes.
forms::KeyStroke keyOf(unsigned char character);

}  // namespace script
