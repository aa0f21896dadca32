// SPDX-License-Identifier: MIT
#include "shell/headless/player.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "base/run_time_error.h"
#include "support/sample_desk.h"

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class PlayerTest : public testing::Test {
protected:
    /// The transcript of a script behind the line of the form that `start` shows.
    std::vector<std::string> play(const std::string& script) {
        outcome = desk.play("start\n" + script);
        std::vector<std::string> lines = outcome.lines;
        if (!lines.empty()) lines.erase(lines.begin());
        return lines;
    }
    void sayOnClick(forms::Control& control) {
        control.onClick = [this, &control] { desk.say("clicked " + control.name()); };
    }

    SampleDesk desk;
    SampleForm& form = desk.form;
    HeadlessMachine& machine = desk.machine;
    Outcome outcome;
};

TEST_F(PlayerTest, StartsTheProgram) {
    EXPECT_THAT(desk.play("start\n").lines, ElementsAre("form Sample shown"));
}

TEST_F(PlayerTest, TypesIntoTheControlWithTheFocus) {
    EXPECT_THAT(
        play("type a b\nkey Tab\ntype c\nkey Backspace\ntype d\nshow Sample.first\nshow Sample.second\n"),
        ElementsAre("Sample.first \"a b\"", "Sample.second \"d\""));
}

TEST_F(PlayerTest, MovesTheFocusWithItsEvents) {
    form.first.onLostFocus = [this] { desk.say("first lost"); };
    form.second.onGotFocus = [this] { desk.say("second got"); };
    EXPECT_THAT(play("focus Sample.second\nshow focus\nfocus Sample.label\nshow focus\n"),
                ElementsAre("first lost", "second got", "focus Sample.second", "focus Sample.second"));
}

TEST_F(PlayerTest, SetsAWholeTextAsOneChangeWhereTheFocusIsMoved) {
    form.first.setText("old");
    form.first.onChange = [this] { desk.say("changed to " + form.first.text()); };
    EXPECT_THAT(
        play("set Sample.combo x\nshow focus\nset Sample.first new text\nshow focus\nset Sample.first\n"),
        ElementsAre("focus Sample.combo", "changed to new text", "focus Sample.first", "changed to "));
}

TEST_F(PlayerTest, SetsATextWhereTheFocusCannotGo) {
    form.second.setEnabled(false);
    EXPECT_THAT(play("set Sample.second x\nshow Sample.second\nshow focus\n"),
                ElementsAre("Sample.second \"x\"", "focus Sample.first"));
}

TEST_F(PlayerTest, ChoosesEntriesAsClicks) {
    form.combo.add("one");
    form.combo.add("two");
    form.list.setItems({"a", "b"});
    sayOnClick(form.combo);
    sayOnClick(form.list);
    EXPECT_THAT(play("choose Sample.combo two\nshow Sample.combo\nshow focus\nchoose Sample.list b\nshow "
                     "Sample.list\n"),
                ElementsAre("clicked combo", "Sample.combo \"two\"", "focus Sample.combo", "clicked list",
                            "Sample.list \"b\""));
}

TEST_F(PlayerTest, ClicksControlsRowsAndForms) {
    form.list.setItems({"a", "b"});
    form.onClick = [this] { desk.say("form"); };
    form.onRightClick = [this] { desk.say("right on form"); };
    form.label.onRightClick = [this] { desk.say("right on label"); };
    form.list.onClick = [this] { desk.say("row " + std::to_string(form.list.listIndex())); };
    form.list.onDoubleClick = [this] { desk.say("double " + std::to_string(form.list.listIndex())); };
    sayOnClick(form.button);
    EXPECT_THAT(
        play("click Sample.button(3)\nclick Sample.list 1\nclick Sample.list\ndblclick Sample.list 0\n"
             "click Sample\nrightclick Sample\nrightclick Sample.label\n"),
        ElementsAre("clicked button(3)", "row 1", "row 1", "row 0", "double 0", "form", "right on form",
                    "right on label"));
}

TEST_F(PlayerTest, TellsOfClicksThatReachNothing) {
    form.button.setEnabled(false);
    form.label.hide();
    form.bar.setEnabled(false);
    form.combo.add("one");
    form.combo.setEnabled(false);
    EXPECT_THAT(
        play("click Sample.button(3)\ndblclick Sample.button(3)\nrightclick Sample.label\nclick Sample.item\n"
             "choose Sample.combo one\nclose Sample\nclick Sample\nclick Sample.first\nclose Sample\n"),
        ElementsAre("ignored Sample.button(3)", "ignored Sample.button(3)", "ignored Sample.label",
                    "ignored Sample.item", "ignored Sample.combo", "form Sample hidden", "ignored Sample",
                    "ignored Sample.first", "ignored Sample"));
}

TEST_F(PlayerTest, OpensAPopUpMenuForOneClick) {
    form.label.onRightClick = [this] { machine.windows.popUp("Sample", "menu"); };
    sayOnClick(form.popped);
    EXPECT_THAT(
        play("click Sample.popped\nrightclick Sample.label\nclick Sample.popped\nclick Sample.popped\n"
             "rightclick Sample.label\nfocus Sample.second\nclick Sample.popped\n"
             "rightclick Sample.label\nshow Sample.popped.Enabled\nclick Sample.popped\n"),
        ElementsAre("ignored Sample.popped", "clicked popped", "ignored Sample.popped",
                    "ignored Sample.popped", "Sample.popped.Enabled yes", "clicked popped"));
}

TEST_F(PlayerTest, FiresTimersWhileItWaits) {
    form.fast.onTimer = [this] { desk.say("tick " + std::to_string(machine.clock.milliseconds())); };
    form.slow.onTimer = [this] { desk.say("tock " + std::to_string(machine.clock.milliseconds())); };
    form.fast.start();
    form.slow.start();
    EXPECT_THAT(play("wait 0.5\nat 2007-01-20 18:00:00\nwait 0.55\n"),
                ElementsAre("tick 300", "tick 600", "tick 900", "tock 1000"));
    EXPECT_EQ(machine.clock.milliseconds(), 1050);
}

TEST_F(PlayerTest, CountsATimerFromTheCommandThatStartedIt) {
    form.fast.onTimer = [this] { desk.say("tick " + std::to_string(machine.clock.milliseconds())); };
    form.button.onClick = [this] { form.fast.start(); };
    EXPECT_THAT(play("wait 0.1\nclick Sample.button(3)\nwait 0.35\n"), ElementsAre("tick 400"));
}

TEST_F(PlayerTest, LetsNoTimePassBetweenCommands) {
    play("type abc\nclick Sample.button(3)\nreply OK\nshow focus\n");
    EXPECT_EQ(machine.clock.nanoseconds(), 0);
}

TEST_F(PlayerTest, PlaysQueuedCommandsInTheirPumps) {
    form.button.onClick = [this] {
        for (int i = 1; i <= 4; ++i) {
            desk.say("before " + std::to_string(i));
            machine.windows.pump();
        }
        desk.say("after at " + std::to_string(machine.clock.milliseconds()));
    };
    EXPECT_THAT(play("pump 3 show Sample.second\npump 2 type a\npump 2 show Sample.first\npump 9 type never\n"
                     "focus Sample.first\nclick Sample.button(3)\nshow Sample.first\n"),
                ElementsAre("before 1", "before 2", "Sample.first \"\"", "before 3", "Sample.second \"\"",
                            "before 4", "after at 40", "Sample.first \"\""));
    EXPECT_EQ(outcome.status, 0);
}

TEST_F(PlayerTest, CountsPumpsWithinAPlayedCommand) {
    const auto pumpTwice = [this](const std::string& name) {
        desk.say(name + " begins");
        machine.windows.pump();
        machine.windows.pump();
        desk.say(name + " ends");
    };
    form.button.onClick = [pumpTwice] { pumpTwice("outer"); };
    form.label.onClick = [pumpTwice] { pumpTwice("inner"); };
    EXPECT_THAT(play("pump 1 click Sample.label\npump 3 show focus\npump 4 show Sample.label\nclick "
                     "Sample.button(3)\n"),
                ElementsAre("outer begins", "inner begins", "focus Sample.button(3)", "inner ends",
                            "Sample.label \"Label\"", "outer ends"));
}

TEST_F(PlayerTest, CountsAPumpQueuedInAPumpFromThere) {
    form.button.onClick = [this] {
        for (int i = 1; i <= 4; ++i) {
            machine.windows.pump();
            desk.say("pumped " + std::to_string(i));
        }
    };
    EXPECT_THAT(play("pump 2 pump 1 show focus\nclick Sample.button(3)\n"),
                ElementsAre("pumped 1", "pumped 2", "focus Sample.button(3)", "pumped 3", "pumped 4"));
}

TEST_F(PlayerTest, FiresTimersInAPumpBehindItsCommands) {
    form.fast.onTimer = [this] { desk.say("tick"); };
    form.button.onClick = [this] {
        machine.clock.advance(295'000'000);
        machine.windows.pump();
        desk.say("after");
    };
    form.fast.start();
    EXPECT_THAT(play("pump 1 show Sample.label\nclick Sample.button(3)\n"),
                ElementsAre("Sample.label \"Label\"", "tick", "after"));
}

TEST_F(PlayerTest, EndsARoutineWithTheCommandThatEndsTheProgramInItsPump) {
    form.label.onClick = [] { throw forms::ProgramEnd{}; };
    form.button.onClick = [this] {
        machine.windows.pump();
        desk.say("never");
    };
    EXPECT_THAT(play("pump 1 click Sample.label\npump 1 show focus\nclick Sample.button(3)\nshow focus\n"),
                ElementsAre("end"));
    EXPECT_EQ(outcome.status, 0);
}

TEST_F(PlayerTest, TellsOfAFaultAndTheEndAndPlaysNoMore) {
    form.button.onClick = [] { throw subscriptError(); };
    EXPECT_THAT(play("click Sample.button(3)\nno command at all\n"),
                ElementsAre("error \"Subscript out of range\"", "end"));
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.errors, "");
}

TEST_F(PlayerTest, EndsAtTheKeyThatEndsTheProgram) {
    form.first.onKeyPress = [](forms::KeyPress& press) {
        if (press.code == 'b') throw forms::ProgramEnd{};
    };
    EXPECT_THAT(play("type abc\n"), ElementsAre("end"));
    EXPECT_EQ(form.first.text(), "a");
}

TEST_F(PlayerTest, EndsInTheTimerThatEndsTheProgram) {
    form.fast.onTimer = [] { throw forms::ProgramEnd{}; };
    form.fast.start();
    EXPECT_THAT(play("wait 5\n"), ElementsAre("end"));
    EXPECT_EQ(machine.clock.milliseconds(), 300);
}

TEST_F(PlayerTest, EndsSilentlyWhenTheScriptRunsOut) {
    EXPECT_THAT(play("type a"), IsEmpty());
    EXPECT_EQ(outcome.status, 0);
}

TEST_F(PlayerTest, WritesAndDeletesFilesPastTheFaults) {
    EXPECT_THAT(play("fail open *\nfail write *\nwrite A.DAT one\\r\\ntwo\ndelete a.dat\nwrite B.DAT "
                     "x\ndelete missing\n"),
                IsEmpty());
    EXPECT_EQ(outcome.status, 0);
    EXPECT_FALSE(desk.folder.has("A.DAT"));
    EXPECT_EQ(desk.folder.read("B.DAT"), "x");
}

TEST_F(PlayerTest, GivesTheFaultsToTheProgramsFiles) {
    form.button.onClick = [this] { machine.platform.files.append("a.lgg")->write("12345"); };
    EXPECT_THAT(play("fail write *.lgg after 3 times 1\nclick Sample.button(3)\n"),
                ElementsAre("error \"Disk full\"", "end"));
    EXPECT_EQ(desk.folder.read("a.lgg"), "123");
}

TEST_F(PlayerTest, TellsOfProgramsAndHelp) {
    form.button.onClick = [this] {
        desk.say(machine.platform.programs.start("NOTEPAD.exe \"a b\"") ? "started" : "not started");
    };
    form.label.onClick = [this] { machine.platform.programs.help("TARQEN2.HLP", "COM ports"); };
    EXPECT_THAT(
        play("click Sample.button(3)\nfail run\nclick Sample.button(3)\nmend\nclick Sample.button(3)\n"
             "click Sample.label\n"),
        ElementsAre(R"(run "NOTEPAD.exe \"a b\"")", "started", R"(run "NOTEPAD.exe \"a b\"" failed)",
                    "not started", R"(run "NOTEPAD.exe \"a b\"")", "started",
                    "help \"TARQEN2.HLP\" \"COM ports\""));
    EXPECT_FALSE(machine.platform.programs.previousInstance());
}

TEST_F(PlayerTest, KeepsTheSettingsOfTheHardware) {
    play("unit 900\nport 889 128\nline CTS on\nline DSR on\nline DSR off\nfail sound\n");
    EXPECT_EQ(machine.hardware.unitNanoseconds, 900);
    EXPECT_EQ(machine.hardware.ports[889], 128);
    EXPECT_EQ(machine.hardware.linesOn, std::set<InputLine>{InputLine::Cts});
    EXPECT_TRUE(machine.faults.fails(Device::Sound));
}

struct BadLine {
    const char* script;
    const char* reason;
};

TEST_F(PlayerTest, EndsTheRunAtABadLineWithItsNumber) {
    const BadLine cases[] = {
        {"nonsense", "no command"},
        {"click Sample.missing", "no control"},
        {"click Missing", "no control"},
        {"set Sample.list x", "takes no text"},
        {"set Sample.box x", "takes no text"},
        {"choose Sample.combo none", "no entry"},
        {"choose Sample.list none", "no entry"},
        {"choose Sample.first x", "no entries"},
        {"click Sample.combo 1", "no rows"},
        {"click Sample 1", "no rows"},
        {"close Sample.first", "no form"},
        {"start", "runs already"},
        {"show Sample.missing", "nothing that can be shown"},
        {"write missing/x y", "can't be written"},
    };
    for (const BadLine& c : cases) {
        SampleDesk fresh;
        const Outcome result = fresh.play(std::string("start\n\n") + c.script + "\nshow focus\n");
        EXPECT_EQ(result.status, 2) << c.script;
        EXPECT_THAT(result.errors, testing::StartsWith("line 3: ")) << c.script;
        EXPECT_THAT(result.errors, HasSubstr(c.reason)) << c.script;
        EXPECT_THAT(result.lines, ElementsAre("form Sample shown")) << c.script;
    }
}

TEST_F(PlayerTest, EndsTheRunForAKeyToNoWindow) {
    const Outcome result = desk.play("key Enter\nstart\n");
    EXPECT_EQ(result.status, 2);
    EXPECT_THAT(result.errors, testing::StartsWith("line 1: "));
}

TEST_F(PlayerTest, TellsTheLineOfACommandThatFailsInAPump) {
    form.button.onClick = [this] { machine.windows.pump(); };
    play("pump 1 click Sample.missing\nshow focus\nclick Sample.button(3)\n");
    EXPECT_EQ(outcome.status, 2);
    EXPECT_THAT(outcome.errors, testing::StartsWith("line 2: "));
}

}  // namespace
