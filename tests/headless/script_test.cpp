// SPDX-License-Identifier: MIT
#include "shell/headless/script.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>

#include "shell/headless/run_ends.h"

namespace {

using forms::Key;

/// The command of a line, which must be of that kind.
template <typename Kind>
Kind read(std::string_view line) {
    const auto command = script::parse(line);
    if (!command || !std::holds_alternative<Kind>(*command)) {
        ADD_FAILURE() << line << " is no such command";
        return Kind{};
    }
    return std::get<Kind>(*command);
}

/// The status with which a line ends the run, or 0 of a good line.
int statusOf(std::string_view line) {
    try {
        script::parse(line);
        return 0;
    } catch (const RunEnds& end) {
        return end.status;
    }
}

TEST(Script, PassesOverBlankLinesAndComments) {
    for (const char* const line : {"", "   ", "# at noon", "  # at noon", "\r", "#\r"}) {
        EXPECT_FALSE(script::parse(line).has_value()) << line;
    }
}

TEST(Script, TakesLinesThatEndInACarriageReturn) {
    EXPECT_EQ(read<script::Type>("type w1\r").text, "w1");
    EXPECT_TRUE(std::holds_alternative<script::Start>(*script::parse("start\r")));
}

TEST(Script, ReadsTheEscapesOfATextAndLeavesOtherBackslashes) {
    const std::array<std::pair<const char*, const char*>, 10> cases = {{
        {R"(a\r\nb\tc)", "a\r\nb\tc"},
        {R"(\sa\s)", " a "},
        {R"(\\n)", "\\n"},
        {R"(\x41\xe9\xFF)", "A\xE9\xFF"},
        {R"(\x4)", "\\x4"},
        {R"(\xG1)", "\\xG1"},
        {R"(C:\logs)", "C:\\logs"},
        {R"(end\)", "end\\"},
        {R"(\q)", "\\q"},
        {"", ""},
    }};
    for (const auto& [text, plain] : cases) EXPECT_EQ(script::unescaped(text), plain) << text;
    EXPECT_EQ(script::unescaped("\\x00"), std::string(1, '\0'));
}

TEST(Script, TakesATextAsItStandsBehindOneBlank) {
    EXPECT_EQ(read<script::Type>("type  a b ").text, " a b ");
    EXPECT_EQ(read<script::Type>("type").text, "");
    const auto set = read<script::Set>("set frmLog.CallS  W1 ");
    EXPECT_EQ(set.control, "frmLog.CallS");
    EXPECT_EQ(set.text, " W1 ");
    EXPECT_EQ(read<script::Set>("set frmLog.CallS").text, "");
    const auto write = read<script::Write>(R"(write A.DAT one,two\r\n)");
    EXPECT_EQ(write.name, "A.DAT");
    EXPECT_EQ(write.content, "one,two\r\n");
    EXPECT_EQ(read<script::Choose>("choose f.c(3) 1 2").entry, "1 2");
}

TEST(Script, TellsCancelFromAnEmptyReply) {
    EXPECT_EQ(read<script::Reply>("reply").answer, std::nullopt);
    EXPECT_EQ(read<script::Reply>("reply ").answer, "");
    EXPECT_EQ(read<script::Reply>("reply Yes").answer, "Yes");
}

TEST(Script, ReadsDatesAndTimes) {
    const DateTime moment = read<script::At>("at 2008-02-29 23:05:59").moment;
    EXPECT_EQ(moment.year, 2008);
    EXPECT_EQ(moment.month, 2);
    EXPECT_EQ(moment.day, 29);
    EXPECT_EQ(moment.hour, 23);
    EXPECT_EQ(moment.minute, 5);
    EXPECT_EQ(moment.second, 59);
    for (const char* const line :
         {"at 2007-02-29 00:00:00", "at 2007-13-01 00:00:00", "utc 2007-01-00 00:00:00",
          "at 2007-01-01 24:00:00", "at 2007-01-01 00:60:00", "at 2007-01-01 00:00:60",
          "at 2007-1-01 00:00:00", "at 2007/01/01 00:00:00", "at 2007-01-01", "at 2007-01-01 00:00", "at",
          "at 2007-01-01 00:00:00 x", "at 2007-01-01 0-:00:00"}) {
        EXPECT_EQ(statusOf(line), 2) << line;
    }
}

TEST(Script, ReadsSecondsWithDecimals) {
    EXPECT_EQ(read<script::Wait>("wait 2").nanoseconds, 2'000'000'000);
    EXPECT_EQ(read<script::Wait>("wait 0.25").nanoseconds, 250'000'000);
    EXPECT_EQ(read<script::Wait>("wait .001").nanoseconds, 1'000'000);
    for (const char* const line : {"wait", "wait -1", "wait x", "wait 1.2.3", "wait .", "wait 1e3",
                                   "wait 1 2", "wait 99999999999999999999999", "wait 10000000000"}) {
        EXPECT_EQ(statusOf(line), 2) << line;
    }
}

TEST(Script, KnowsTheNamesOfTheKeys) {
    EXPECT_EQ(read<script::Press>("key Enter").stroke.key, Key::Enter);
    EXPECT_EQ(read<script::Press>("key PageDown").stroke.key, Key::PageDown);
    EXPECT_EQ(read<script::Press>("key F1").stroke.key, Key::F1);
    EXPECT_EQ(read<script::Press>("key F12").stroke.key, Key::F12);
    EXPECT_EQ(read<script::Press>("key Ctrl").stroke.key, Key::Ctrl);
    const forms::KeyStroke space = read<script::Press>("key Space").stroke;
    EXPECT_EQ(space.key, Key::Character);
    EXPECT_EQ(space.character, ' ');
    for (const char* const line : {"key", "key enter", "key F13", "key Enter Enter", "key a"}) {
        EXPECT_EQ(statusOf(line), 2) << line;
    }
}

TEST(Script, TypesCharactersByTheirKeys) {
    EXPECT_EQ(script::keyOf('\r').key, Key::Enter);
    EXPECT_EQ(script::keyOf('\n').key, Key::Enter);
    EXPECT_EQ(script::keyOf(8).key, Key::Backspace);
    EXPECT_EQ(script::keyOf(27).key, Key::Esc);
    for (const int code : {9, 32, 97, 0xE9}) {
        const forms::KeyStroke stroke = script::keyOf(static_cast<unsigned char>(code));
        EXPECT_EQ(stroke.key, Key::Character);
        EXPECT_EQ(stroke.character, code);
    }
}

TEST(Script, ReadsClicksWithAndWithoutARow) {
    EXPECT_EQ(read<script::Click>("click frmLog.cmdExit").row, std::nullopt);
    EXPECT_EQ(read<script::Click>("click frmLog.QSOs 12").row, 12);
    EXPECT_EQ(read<script::DoubleClick>("dblclick frmSetup.logFile 0").row, 0);
    EXPECT_EQ(read<script::Click>("click frmLog").target, "frmLog");
    EXPECT_EQ(statusOf("click frmLog.QSOs x"), 2);
    EXPECT_EQ(statusOf("click frmLog.QSOs 1 2"), 2);
    EXPECT_EQ(statusOf("rightclick frmLog.QSOs 1"), 2);
}

TEST(Script, ReadsFileFaults) {
    const FileFault open = read<script::FailFile>("fail open *.lgg times 2").fault;
    EXPECT_EQ(open.kind, FileFault::Kind::Open);
    EXPECT_EQ(open.pattern, "*.lgg");
    EXPECT_EQ(open.times, 2);
    const FileFault write = read<script::FailFile>("fail write SUB\\*.txt after 10 times 3").fault;
    EXPECT_EQ(write.kind, FileFault::Kind::Write);
    EXPECT_EQ(write.pattern, "SUB/*.txt");
    EXPECT_EQ(write.after, 10);
    EXPECT_EQ(write.times, 3);
    EXPECT_EQ(read<script::FailFile>("fail write x").fault.times, std::nullopt);
    EXPECT_EQ(read<script::FailFile>("fail write x").fault.after, 0);
    for (const char* const line : {"fail", "fail open", "fail open x after 3", "fail write x after",
                                   "fail open x times 0", "fail open x 3", "fail disk", "fail port now"}) {
        EXPECT_EQ(statusOf(line), 2) << line;
    }
}

TEST(Script, ReadsDevicesPortsAndLines) {
    EXPECT_EQ(read<script::FailDevice>("fail printer").device, Device::Printer);
    EXPECT_EQ(read<script::FailDevice>("fail run").device, Device::Run);
    EXPECT_EQ(read<script::Port>("port 889 128").number, 889);
    EXPECT_EQ(read<script::Port>("port 889 128").value, 128);
    // The address of a register beyond 32767, as the program holds it.
    EXPECT_EQ(read<script::Port>("port -12270 5").number, -12270);
    EXPECT_EQ(read<script::Port>("port -12270 5").value, 5);
    EXPECT_EQ(read<script::Port>("port -32768 1").number, -32768);
    EXPECT_EQ(statusOf("port -32769 1"), 2);
    EXPECT_TRUE(read<script::Line>("line CTS on").on);
    EXPECT_FALSE(read<script::Line>("line DSR off").on);
    EXPECT_EQ(read<script::Unit>("unit 850.5").nanoseconds, 850.5);
    for (const char* const line :
         {"port 889", "port x 1", "line DTR on", "line CTS", "line CTS up", "unit x"}) {
        EXPECT_EQ(statusOf(line), 2) << line;
    }
}

TEST(Script, ChecksTheCommandOfAPumpAtOnce) {
    const auto pump = read<script::Pump>("pump 3 type  a");
    EXPECT_EQ(pump.number, 3);
    EXPECT_EQ(pump.line, "type  a");
    for (const char* const line :
         {"pump 0 key Esc", "pump 1", "pump 1 #", "pump 1 nothing", "pump x key Esc", "pump 1 key Nothing"}) {
        EXPECT_EQ(statusOf(line), 2) << line;
    }
}

TEST(Script, EndsTheRunForALineThatIsNoCommand) {
    for (const char* const line : {"begin", "Start", "start now", "mend all", "focus", "set", "close",
                                   "delete", "show", "show a b", "write"}) {
        EXPECT_EQ(statusOf(line), 2) << line;
    }
}

}  // namespace
