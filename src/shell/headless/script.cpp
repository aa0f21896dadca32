// SPDX-License-Identifier: MIT
#include "shell/headless/script.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <utility>

#include "base/text.h"
#include "shell/headless/line_reader.h"
#include "shell/headless/run_ends.h"

namespace script {

namespace {

using forms::Key;
using forms::KeyStroke;

constexpr int kMost = std::numeric_limits<int>::max();
/// Thirty years, more than any session waits.
constexpr double kLongestWait = 1e9;
constexpr double kNanoseconds = 1e9;

template <typename Value, std::size_t count>
Value named(const std::array<std::pair<std::string_view, Value>, count>& names, const std::string& name) {
    const auto at =
        std::find_if(names.begin(), names.end(), [&](const auto& entry) { return entry.first == name; });
    if (at == names.end()) throw badScript("\"" + name + "\" can't stand here");
    return at->second;
}

constexpr std::array<std::pair<std::string_view, KeyStroke>, 27> kKeys = {{
    {"Space", {Key::Character, ' '}},
    {"Enter", {Key::Enter}},
    {"Esc", {Key::Esc}},
    {"Tab", {Key::Tab}},
    {"Backspace", {Key::Backspace}},
    {"Delete", {Key::Delete}},
    {"Up", {Key::Up}},
    {"Down", {Key::Down}},
    {"Left", {Key::Left}},
    {"Right", {Key::Right}},
    {"Home", {Key::Home}},
    {"End", {Key::End}},
    {"PageUp", {Key::PageUp}},
    {"PageDown", {Key::PageDown}},
    {"Ctrl", {Key::Ctrl}},
    {"F1", {Key::F1}},
    {"F2", {Key::F2}},
    {"F3", {Key::F3}},
    {"F4", {Key::F4}},
    {"F5", {Key::F5}},
    {"F6", {Key::F6}},
    {"F7", {Key::F7}},
    {"F8", {Key::F8}},
    {"F9", {Key::F9}},
    {"F10", {Key::F10}},
    {"F11", {Key::F11}},
    {"F12", {Key::F12}},
}};

constexpr std::array<std::pair<std::string_view, InputLine>, 4> kLines = {
    {{"DSR", InputLine::Dsr}, {"CTS", InputLine::Cts}, {"RI", InputLine::Ri}, {"DCD", InputLine::Dcd}}};

constexpr std::array<std::pair<std::string_view, Device>, 4> kDevices = {
    {{"port", Device::Port}, {"printer", Device::Printer}, {"sound", Device::Sound}, {"run", Device::Run}}};

constexpr std::array<std::pair<std::string_view, bool>, 2> kSwitch = {{{"on", true}, {"off", false}}};

std::optional<int> row(LineReader& line) {
    if (line.atEnd()) return std::nullopt;
    return line.wholeInt(-1, kMost);
}

Command failFile(FileFault::Kind kind, LineReader& line) {
    FileFault fault{kind, line.word(), 0, std::nullopt};
    std::replace(fault.pattern.begin(), fault.pattern.end(), '\\', '/');
    while (!line.atEnd()) {
        const std::string word = line.word();
        if (word == "times") {
            fault.times = line.wholeInt(1, kMost);
        } else if (word == "after" && kind == FileFault::Kind::Write) {
            fault.after = line.whole(0, std::numeric_limits<std::int64_t>::max());
        } else {
            throw badScript("\"" + word + "\" can't stand here");
        }
    }
    return FailFile{std::move(fault)};
}

Command fail(LineReader& line) {
    const std::string what = line.word();
    if (what == "open") return failFile(FileFault::Kind::Open, line);
    if (what == "write") return failFile(FileFault::Kind::Write, line);
    return FailDevice{named(kDevices, what)};
}

Command pump(LineReader& line) {
    const int number = line.wholeInt(1, kMost);
    const std::string inner = line.rest();
    if (!parse(inner)) throw badScript("the command to be played in the pump is missing");
    return Pump{number, inner};
}

/// The order of evaluation inside braces is that of the words in the line.
using Reader = Command (*)(LineReader&);

constexpr std::array<std::pair<std::string_view, Reader>, 23> kCommands = {{
    {"at", [](LineReader& line) -> Command { return At{line.moment()}; }},
    {"utc", [](LineReader& line) -> Command { return Utc{line.moment()}; }},
    {"unit", [](LineReader& line) -> Command { return Unit{line.decimal(kNanoseconds)}; }},
    {"wait",
     [](LineReader& line) -> Command {
         return Wait{std::llround(line.decimal(kLongestWait) * kNanoseconds)};
     }},
    {"start", [](LineReader&) -> Command { return Start{}; }},
    {"type", [](LineReader& line) -> Command { return Type{unescaped(line.rest())}; }},
    {"key", [](LineReader& line) -> Command { return Press{named(kKeys, line.word())}; }},
    {"focus", [](LineReader& line) -> Command { return Focus{line.word()}; }},
    {"set",
     [](LineReader& line) -> Command {
         return Set{line.word(), unescaped(line.rest())};
     }},
    {"choose",
     [](LineReader& line) -> Command {
         return Choose{line.word(), unescaped(line.rest())};
     }},
    {"click",
     [](LineReader& line) -> Command {
         return Click{line.word(), row(line)};
     }},
    {"dblclick",
     [](LineReader& line) -> Command {
         return DoubleClick{line.word(), row(line)};
     }},
    {"rightclick", [](LineReader& line) -> Command { return RightClick{line.word()}; }},
    {"close", [](LineReader& line) -> Command { return Close{line.word()}; }},
    {"reply",
     [](LineReader& line) -> Command {
         return Reply{line.spent() ? std::nullopt : std::optional(unescaped(line.rest()))};
     }},
    {"pump", pump},
    {"port",
     [](LineReader& line) -> Command {
         return Port{line.wholeInt(-32768, kMost), line.wholeInt(0, kMost)};
     }},
    {"line",
     [](LineReader& line) -> Command {
         return Line{named(kLines, line.word()), named(kSwitch, line.word())};
     }},
    {"fail", fail},
    {"mend", [](LineReader&) -> Command { return Mend{}; }},
    {"write",
     [](LineReader& line) -> Command {
         return Write{line.word(), unescaped(line.rest())};
     }},
    {"delete", [](LineReader& line) -> Command { return Delete{line.word()}; }},
    {"show", [](LineReader& line) -> Command { return Show{line.word()}; }},
}};

std::optional<char> hexadecimal(std::string_view figures) {
    int value = 0;
    for (const char figure : figures) {
        const std::size_t digit = std::string_view("0123456789ABCDEF").find(text::upper(figure));
        if (digit == std::string_view::npos) return std::nullopt;
        value = value * 16 + static_cast<int>(digit);
    }
    return figures.size() == 2 ? std::optional(static_cast<char>(value)) : std::nullopt;
}

/// What the escape at the start of `text` stands for, and how long it is; nothing where none stands there.
std::optional<std::pair<char, std::size_t>> escape(std::string_view text) {
    constexpr std::string_view kLetters = "rnts\\", kMeanings = "\r\n\t \\";
    if (text.size() < 2 || text[0] != '\\') return std::nullopt;
    const std::size_t at = kLetters.find(text[1]);
    if (at != std::string_view::npos) return std::pair(kMeanings[at], std::size_t{2});
    const auto byte = text[1] == 'x' ? hexadecimal(text.substr(2, 2)) : std::nullopt;
    return byte ? std::optional(std::pair(*byte, std::size_t{4})) : std::nullopt;
}

}  // namespace

std::string unescaped(std::string_view text) {
    std::string plain;
    while (!text.empty()) {
        const auto [byte, length] = escape(text).value_or(std::pair(text[0], std::size_t{1}));
        plain += byte;
        text.remove_prefix(length);
    }
    return plain;
}

KeyStroke keyOf(unsigned char character) {
    switch (character) {
        case '\r':
        case '\n':
            return {Key::Enter};
        case 8:
            return {Key::Backspace};
        case 27:
            return {Key::Esc};
        default:
            return {Key::Character, character};
    }
}

std::optional<Command> parse(std::string_view line) {
    if (text::endsWith(line, "\r")) line.remove_suffix(1);
    LineReader reader(line);
    if (reader.atEnd() || text::startsWith(text::trimLeft(line), "#")) return std::nullopt;
    const std::string verb = reader.word();
    const auto at =
        std::find_if(kCommands.begin(), kCommands.end(), [&](const auto& c) { return c.first == verb; });
    if (at == kCommands.end()) throw badScript("\"" + verb + "\" is no command");
    Command command = at->second(reader);
    reader.end();
    return command;
}

}  // namespace script
