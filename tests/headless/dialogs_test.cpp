// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/sample_desk.h"

namespace {

using testing::ElementsAre;
using testing::HasSubstr;

class DialogsTest : public testing::Test {
protected:
    DialogsTest() {
        form.button.onClick = [this] {
            const Answer answer = desk.machine.platform.dialogs.message(box);
            answers.push_back(answer);
        };
        form.label.onClick = [this] {
            const auto answer = desk.machine.platform.dialogs.prompt({"Name?", "Title", "\"x\"\\"});
            desk.say(answer ? "got " + *answer : "nothing");
        };
    }
    std::vector<std::string> play(const std::string& script) {
        outcome = desk.play("start\n" + script);
        return {outcome.lines.begin() + 1, outcome.lines.end()};
    }

    SampleDesk desk;
    SampleForm& form = desk.form;
    Message box{"Sure?", "", Icon::Question, Buttons::YesNo, Answer::No};
    std::vector<Answer> answers;
    Outcome outcome;
};

TEST_F(DialogsTest, TakeTheRepliesInTheirOrder) {
    EXPECT_THAT(play("reply Yes\nreply No\nclick Sample.button(3)\nclick Sample.button(3)\n"),
                ElementsAre("message \"Sure?\" title \"\" icon question buttons YesNo default No -> Yes",
                            "message \"Sure?\" title \"\" icon question buttons YesNo default No -> No"));
    EXPECT_THAT(answers, ElementsAre(Answer::Yes, Answer::No));
}

TEST_F(DialogsTest, TakeTheirDefaultWithoutAReply) {
    EXPECT_THAT(
        play("click Sample.button(3)\n"),
        ElementsAre("message \"Sure?\" title \"\" icon question buttons YesNo default No -> No (unasked)"));
    EXPECT_THAT(answers, ElementsAre(Answer::No));
}

TEST_F(DialogsTest, HaveTheFirstButtonAsDefaultUnlessToldOtherwise) {
    box = {"a\r\nb", "T", Icon::Exclamation, Buttons::YesNo};
    EXPECT_THAT(
        play("click Sample.button(3)\n"),
        ElementsAre(
            R"(message "a\r\nb" title "T" icon exclamation buttons YesNo default Yes -> Yes (unasked))"));
}

TEST_F(DialogsTest, NameIconsAndButtons) {
    box = {"caf\xE9", "", Icon::None, Buttons::OkCancel};
    EXPECT_THAT(play("reply\nclick Sample.button(3)\n"),
                ElementsAre(R"(message "caf\xE9" title "" icon none buttons OKCancel default OK -> Cancel)"));
    EXPECT_THAT(answers, ElementsAre(Answer::Cancel));
}

TEST_F(DialogsTest, WithOneButtonHaveOnlyThat) {
    box = {"Done", "", Icon::Information, Buttons::Ok};
    EXPECT_THAT(play("reply OK\nclick Sample.button(3)\n"),
                ElementsAre(R"(message "Done" title "" icon information buttons OK default OK -> OK)"));
}

TEST_F(DialogsTest, EndTheRunForAReplyThatIsNoButton) {
    for (const char* const reply : {"reply Cancel", "reply", "reply OK", "reply yes", "reply "}) {
        SampleDesk fresh;
        fresh.form.button.onClick = [&] { fresh.machine.platform.dialogs.message(box); };
        const Outcome result =
            fresh.play(std::string("start\n") + reply + "\nclick Sample.button(3)\nshow focus\n");
        EXPECT_EQ(result.status, 3) << reply;
        EXPECT_THAT(result.errors, HasSubstr("line 3: ")) << reply;
        EXPECT_THAT(result.lines, ElementsAre("form Sample shown")) << reply;
    }
}

TEST_F(DialogsTest, PromptForATextOrCancel) {
    EXPECT_THAT(
        play("reply JAN07\nclick Sample.label\nreply\nclick Sample.label\nclick Sample.label\n"),
        ElementsAre(R"(prompt "Name?" title "Title" default "\"x\"\\" -> "JAN07")", "got JAN07",
                    R"(prompt "Name?" title "Title" default "\"x\"\\" -> Cancel)", "nothing",
                    R"(prompt "Name?" title "Title" default "\"x\"\\" -> Cancel (unasked))", "nothing"));
}

TEST_F(DialogsTest, EndTheRunAfterAHundredWithoutAReplyInARow) {
    int asked = 0;
    form.button.onClick = [&] {
        for (;; ++asked) desk.machine.platform.dialogs.message(box);
    };
    play("click Sample.button(3)\n");
    EXPECT_EQ(outcome.status, 3);
    EXPECT_EQ(outcome.lines.size(), 1u + 100u);
    EXPECT_EQ(asked, 99);
}

TEST_F(DialogsTest, CountAnewAfterAReply) {
    form.button.onClick = [&] {
        for (int i = 0; i < 99; ++i) desk.machine.platform.dialogs.message(box);
    };
    EXPECT_EQ(play("click Sample.button(3)\nreply x\nclick Sample.label\nclick Sample.button(3)\n").size(),
              99u + 2u + 99u);
    EXPECT_EQ(outcome.status, 0);
}

TEST_F(DialogsTest, AreOpenForTheScreenUntilTheyAreAnswered) {
    bool open = false;
    // The transcript is written while the box is open.
    struct Watch : std::stringbuf {
        std::function<void()> onSync;
        int sync() override {
            onSync();
            return 0;
        }
    } watch;
    watch.onSync = [&] { open = desk.screen.dialogOpen(); };
    std::ostream out(&watch);
    Transcript transcript(out);
    HeadlessDialogs dialogs(transcript);
    dialogs.attach(desk.screen);
    dialogs.message(box);
    EXPECT_TRUE(open);
    EXPECT_FALSE(desk.screen.dialogOpen());
}

TEST_F(DialogsTest, TellOfBeepsAndPointers) {
    form.button.onClick = [&] {
        Dialogs& dialogs = desk.machine.platform.dialogs;
        dialogs.beep();
        dialogs.pointer(Pointer::Hourglass);
        dialogs.pointer(Pointer::Normal);
    };
    EXPECT_THAT(play("click Sample.button(3)\n"), ElementsAre("beep", "pointer hourglass", "pointer normal"));
}

}  // namespace
