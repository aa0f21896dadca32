// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/sample_form.h"

namespace {

using forms::Key;
using forms::KeyPress;
using forms::KeyStroke;
using testing::ElementsAre;
using testing::IsEmpty;

class Keys : public testing::Test {
protected:
    Keys() { form.show(); }
    void press(Key key, unsigned char character = 0) { screen.press({key, character}); }
    void type(const std::string& text) {
        for (const char c : text) press(Key::Character, static_cast<unsigned char>(c));
    }

    forms::Screen screen;
    SampleForm form{screen};
    Events events;
};

TEST_F(Keys, GoThroughTheFormThenTheControlThenItsOwnAction) {
    form.onKeyDown = [this](KeyStroke&) { events.push_back("form '" + form.first.text() + "'"); };
    form.first.onKeyPress = [this](KeyPress& press) {
        events.push_back("control " + std::to_string(press.code) + " '" + form.first.text() + "'");
    };
    form.first.onChange = [this] { events.push_back("change '" + form.first.text() + "'"); };
    type("a");
    EXPECT_THAT(events, ElementsAre("form ''", "control 97 ''", "change 'a'"));
}

TEST_F(Keys, GoNoFurtherThanAFormThatSwallowsThem) {
    form.onKeyDown = [](KeyStroke& stroke) { stroke.swallowed = true; };
    form.first.onKeyPress = [this](KeyPress&) { events.push_back("control"); };
    type("a");
    press(Key::Tab);
    EXPECT_THAT(events, IsEmpty());
    EXPECT_EQ(form.first.text(), "");
    EXPECT_EQ(form.focused(), &form.first);
}

TEST_F(Keys, DoNothingInAControlWhoseHandlerSwallowsThem) {
    form.first.onKeyPress = [](KeyPress& press) { press.swallowed = press.code == 'a'; };
    type("abab");
    EXPECT_EQ(form.first.text(), "bb");
}

TEST_F(Keys, CarryTheirCodesIntoTheControl) {
    form.first.onKeyPress = [this](KeyPress& press) { events.push_back(std::to_string(press.code)); };
    press(Key::Enter);
    press(Key::Esc);
    press(Key::Backspace);
    press(Key::Character, ' ');
    press(Key::Character, 9);
    press(Key::Character, 0xE9);
    EXPECT_THAT(events, ElementsAre("13", "27", "8", "32", "9", "233"));
}

TEST_F(Keys, WithoutACodeReachTheFormAlone) {
    form.onKeyDown = [this](KeyStroke&) { events.push_back("form"); };
    form.first.onKeyPress = [this](KeyPress&) { events.push_back("control"); };
    for (const Key key : {Key::F1, Key::F12, Key::PageUp, Key::Ctrl, Key::Left, Key::Delete}) press(key);
    EXPECT_EQ(events, Events(6, "form"));
}

TEST_F(Keys, GoOnToTheControlToWhichTheFormSentTheFocus) {
    form.onKeyDown = [this](KeyStroke&) { form.focus(form.second); };
    type("a");
    EXPECT_EQ(form.second.text(), "a");
    EXPECT_EQ(form.first.text(), "");
}

TEST_F(Keys, StayInTheControlThatHadTheFocusWhenTheyReachedIt) {
    form.first.onKeyPress = [this](KeyPress&) { form.focus(form.second); };
    type("a");
    EXPECT_EQ(form.first.text(), "a");
    EXPECT_EQ(form.second.text(), "");
}

TEST_F(Keys, ReachTheFormInFrontAlone) {
    SampleForm other(screen, "Other");
    other.show();
    type("a");
    EXPECT_EQ(other.first.text(), "a");
    EXPECT_EQ(form.first.text(), "");
}

TEST_F(Keys, ReachNobodyWhereNoFormIsShown) {
    form.hide();
    EXPECT_FALSE(screen.press({Key::Enter}));
}

TEST_F(Keys, PressAButtonWithEnterAndSpace) {
    form.button.onClick = [this] { events.push_back("click"); };
    form.focus(form.button);
    press(Key::Enter);
    type(" a");
    EXPECT_EQ(events.size(), 2u);
}

TEST_F(Keys, TurnACheckBoxWithSpaceAlone) {
    form.focus(form.box);
    type(" ");
    EXPECT_TRUE(form.box.checked());
    press(Key::Enter);
    EXPECT_TRUE(form.box.checked());
    type(" ");
    EXPECT_FALSE(form.box.checked());
}

TEST_F(Keys, WalkAListAndClickEachRowOnce) {
    form.list.setItems({"a", "b", "c"});
    form.list.onClick = [this] { events.push_back(form.list.content()); };
    form.focus(form.list);
    for (const Key key :
         {Key::Down, Key::Down, Key::Down, Key::Down, Key::Up, Key::Home, Key::Home, Key::End}) {
        press(key);
    }
    EXPECT_THAT(events, ElementsAre("a", "b", "c", "b", "a", "c"));
}

TEST_F(Keys, WalkAComboBoxByItsPicks) {
    for (const char* const item : {"a", "b"}) form.combo.add(item);
    form.combo.onClick = [this] { events.push_back(form.combo.text()); };
    form.combo.onChange = [this] { events.push_back("change"); };
    form.focus(form.combo);
    for (const Key key : {Key::Down, Key::Down, Key::Down, Key::Up}) press(key);
    EXPECT_THAT(events, ElementsAre("a", "b", "a"));
}

TEST_F(Keys, EditALineOfText) {
    type("acd");
    press(Key::Home);
    press(Key::Right);
    type("b");
    EXPECT_EQ(form.first.text(), "abcd");
    press(Key::End);
    press(Key::Backspace);
    EXPECT_EQ(form.first.text(), "abc");
    press(Key::Left);
    press(Key::Left);
    press(Key::Delete);
    EXPECT_EQ(form.first.text(), "ac");
    EXPECT_EQ(form.first.caret(), 1);
}

TEST_F(Keys, ReplaceAndEraseWhatIsSelected) {
    form.first.setText("abcd");
    form.first.select(1, 3);
    type("x");
    EXPECT_EQ(form.first.text(), "axd");
    form.first.select(3, 1);
    press(Key::Backspace);
    EXPECT_EQ(form.first.text(), "a");
}

TEST_F(Keys, ErasingAtAnEndChangesNothing) {
    form.first.setText("a");
    form.first.onChange = [this] { events.push_back("change"); };
    press(Key::Delete);
    press(Key::Home);
    press(Key::Backspace);
    press(Key::Left);
    EXPECT_EQ(form.first.text(), "a");
    EXPECT_THAT(events, IsEmpty());
}

TEST_F(Keys, ThatAreNoTextPutNothingIn) {
    press(Key::Character, 9);
    press(Key::Character, 1);
    press(Key::Enter);
    press(Key::Esc);
    EXPECT_EQ(form.first.text(), "");
}

TEST_F(Keys, GoThroughTheFormsOwnCharactersAheadOfTheControl) {
    form.onKeyPress = [this](KeyPress& press) {
        events.push_back("form " + std::to_string(press.code));
        press.swallowed = press.code == 'b';
    };
    form.first.onKeyPress = [this](KeyPress& press) {
        events.push_back("control " + std::to_string(press.code));
    };
    type("ab");
    press(Key::F1);
    EXPECT_THAT(events, ElementsAre("form 97", "control 97", "form 98"));
    EXPECT_EQ(form.first.text(), "a");
}

}  // namespace
