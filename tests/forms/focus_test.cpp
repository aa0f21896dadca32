// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/sample_form.h"

namespace {

using forms::Key;
using testing::ElementsAre;
using testing::IsEmpty;

class Focus : public testing::Test {
protected:
    Focus() { form.show(); }
    void watch(forms::Control& control) {
        control.onGotFocus = [this, &control] { events.push_back("+" + control.name()); };
        control.onLostFocus = [this, &control] { events.push_back("-" + control.name()); };
    }
    void press(Key key) { screen.press({key}); }
    std::string focused() const { return form.focused() ? form.focused()->name() : "none"; }

    forms::Screen screen;
    SampleForm form{screen};
    Events events;
};

TEST_F(Focus, GoesToTheFirstFieldWhenTheFormIsShown) { EXPECT_EQ(focused(), "first"); }

TEST_F(Focus, LeavesTheOldControlBeforeItReachesTheNewOne) {
    watch(form.first);
    watch(form.second);
    form.focus(form.second);
    EXPECT_THAT(events, ElementsAre("-first", "+second"));
}

TEST_F(Focus, RaisesNothingWhereItIsAlready) {
    watch(form.first);
    form.focus(form.first);
    EXPECT_THAT(events, IsEmpty());
}

TEST_F(Focus, StaysWhereTheNewControlCannotTakeIt) {
    watch(form.first);
    form.second.hide();
    form.combo.setEnabled(false);
    for (forms::Control* const control : std::initializer_list<forms::Control*>{
             &form.second, &form.combo, &form.label, &form.slow, &form.item}) {
        form.focus(*control);
        EXPECT_EQ(focused(), "first") << control->name();
    }
    EXPECT_THAT(events, IsEmpty());
}

TEST_F(Focus, GoesWhereALeavingHandlerSendsIt) {
    watch(form.second);
    watch(form.combo);
    form.first.onLostFocus = [this] {
        events.push_back("-first");
        form.focus(form.combo);
    };
    form.focus(form.second);
    EXPECT_EQ(focused(), "combo");
    EXPECT_THAT(events, ElementsAre("-first", "-second", "+combo"));
}

TEST_F(Focus, GoesHomeWhenItsControlIsHidden) {
    form.setHome(form.first);
    form.focus(form.second);
    watch(form.first);
    form.second.hide();
    EXPECT_EQ(focused(), "first");
    EXPECT_THAT(events, ElementsAre("+first"));
}

TEST_F(Focus, GoesHomeWhenItsControlIsDisabled) {
    form.setHome(form.first);
    form.focus(form.second);
    form.second.setEnabled(false);
    EXPECT_EQ(focused(), "first");
}

TEST_F(Focus, IsNowhereWhenHomeItselfGoes) {
    form.setHome(form.first);
    form.first.hide();
    EXPECT_EQ(focused(), "none");
}

TEST_F(Focus, IsKeptWhenAnotherControlIsHidden) {
    form.setHome(form.second);
    form.combo.hide();
    EXPECT_EQ(focused(), "first");
}

TEST_F(Focus, TabsInTheOrderOfTheControlsAndRound) {
    Events order;
    for (int i = 0; i < 8; ++i) {
        order.push_back(focused());
        press(Key::Tab);
    }
    EXPECT_THAT(order,
                ElementsAre("first", "second", "combo", "list", "button(3)", "box", "option", "first"));
}

TEST_F(Focus, TabsBackwardsRoundTheStart) {
    press(Key::BackTab);
    EXPECT_EQ(focused(), "option");
    press(Key::BackTab);
    EXPECT_EQ(focused(), "box");
}

TEST_F(Focus, TabsPastWhatIsHiddenDisabledOrNoStop) {
    form.second.hide();
    form.combo.setEnabled(false);
    form.list.setTabStop(false);
    press(Key::Tab);
    EXPECT_EQ(focused(), "button(3)");
}

TEST_F(Focus, TabsOnFromAControlThatIsNoStop) {
    form.list.setTabStop(false);
    form.focus(form.list);
    press(Key::Tab);
    EXPECT_EQ(focused(), "button(3)");
}

TEST_F(Focus, FollowsAClick) {
    watch(form.button);
    form.button.onClick = [this] { events.push_back("click"); };
    EXPECT_TRUE(screen.click(form.button));
    EXPECT_THAT(events, ElementsAre("+button(3)", "click"));
}

TEST_F(Focus, StaysOnAClickOnALabel) {
    screen.click(form.label);
    EXPECT_EQ(focused(), "first");
}

TEST_F(Focus, OfEachFormIsItsOwn) {
    SampleForm other(screen, "Other");
    form.focus(form.second);
    other.show();
    EXPECT_EQ(other.focused(), &other.first);
    form.show();
    EXPECT_EQ(focused(), "second");
}

}  // namespace
