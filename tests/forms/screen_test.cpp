// SPDX-License-Identifier: MIT
#include "shell/forms/screen.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "base/run_time_error.h"
#include "support/sample_form.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class ScreenTest : public testing::Test {
protected:
    ScreenTest() {
        screen.onFault = [this](const std::string& text) { events.push_back("fault " + text); };
        form.show();
    }
    forms::Screen screen;
    SampleForm form{screen};
    SampleForm other{screen, "Other"};
    Events events;
};

TEST_F(ScreenTest, TellsAFaultOnceAndEnds) {
    form.button.onClick = [] { throw divisionByZeroError(); };
    screen.click(form.button);
    EXPECT_THAT(events, ElementsAre("fault Division by zero"));
    EXPECT_TRUE(screen.ended());
}

TEST_F(ScreenTest, HasEndedWhenTheFaultIsTold) {
    screen.onFault = [this](const std::string&) { events.push_back(screen.ended() ? "ended" : "runs"); };
    screen.dispatch([] { throw overflowError(); });
    EXPECT_THAT(events, ElementsAre("ended"));
}

TEST_F(ScreenTest, EndsTheOuterRoutineWithTheInnerOne) {
    // A pump lets another event run inside a routine, then asks whether that one ended the program.
    const auto pump = [this](const std::function<void()>& inner) {
        screen.dispatch(inner);
        screen.endIfEnded();
    };
    screen.dispatch([&] {
        pump([&] { events.push_back("inner"); });
        pump([] { throw badCallError(); });
        events.push_back("never");
    });
    EXPECT_THAT(events, ElementsAre("inner", "fault Invalid procedure call or argument"));
    EXPECT_TRUE(screen.ended());
}

TEST_F(ScreenTest, EndsWithoutAFaultWhereTheProgramWantsTo) {
    screen.dispatch([] { throw forms::ProgramEnd{}; });
    EXPECT_TRUE(screen.ended());
    EXPECT_THAT(events, IsEmpty());
}

TEST_F(ScreenTest, RunsNothingOnceItHasEnded) {
    screen.dispatch([] { throw forms::ProgramEnd{}; });
    EXPECT_FALSE(screen.dispatch([this] { events.push_back("ran"); }));
    EXPECT_THAT(events, IsEmpty());
}

TEST_F(ScreenTest, LetsNoErrorTrapCatchTheEnd) {
    screen.dispatch([] {
        try {
            throw forms::ProgramEnd{};
        } catch (const std::exception&) {
        }
    });
    EXPECT_TRUE(screen.ended());
}

TEST_F(ScreenTest, BringsAClickedFormToTheFront) {
    other.show();
    EXPECT_EQ(screen.active(), &other);
    EXPECT_TRUE(screen.click(form));
    EXPECT_EQ(screen.active(), &form);
    screen.click(other.label);
    EXPECT_THAT(screen.order(), ElementsAre(&form, &other));
}

TEST_F(ScreenTest, KeepsClicksFromWhatIsHiddenOrDisabled) {
    form.button.onClick = [this] { events.push_back("click"); };
    form.button.setEnabled(false);
    EXPECT_FALSE(screen.click(form.button));
    EXPECT_FALSE(screen.doubleClick(form.button));
    EXPECT_FALSE(screen.rightClick(form.button));
    form.button.setEnabled(true);
    form.button.hide();
    EXPECT_FALSE(screen.click(form.button));
    form.button.show();
    form.hide();
    EXPECT_FALSE(screen.click(form.button));
    EXPECT_FALSE(screen.click(form));
    EXPECT_FALSE(screen.rightClick(form));
    EXPECT_THAT(events, IsEmpty());
}

TEST_F(ScreenTest, KeepsClicksFromItemsUnderAMenuOutOfReach) {
    EXPECT_TRUE(screen.click(form.item));
    form.bar.setEnabled(false);
    EXPECT_FALSE(screen.click(form.item));
    form.bar.setEnabled(true);
    form.bar.hide();
    EXPECT_FALSE(screen.click(form.item));
}

TEST_F(ScreenTest, ReachesAPopUpMenuUntilTheNextClickOrKey) {
    EXPECT_FALSE(screen.click(form.popped));
    screen.openPopUp(form.menu);
    EXPECT_TRUE(screen.click(form.popped));
    EXPECT_FALSE(screen.click(form.popped));
    screen.openPopUp(form.menu);
    screen.press({forms::Key::Esc});
    EXPECT_FALSE(screen.click(form.popped));
    screen.openPopUp(form.menu);
    screen.click(form.label);
    EXPECT_FALSE(screen.click(form.popped));
    screen.openPopUp(form.menu);
    form.popped.setEnabled(false);
    EXPECT_FALSE(screen.click(form.popped));
}

TEST_F(ScreenTest, ClicksTheRowOfAList) {
    form.list.setItems({"a", "b"});
    form.list.onClick = [this] { events.push_back("click " + form.list.content()); };
    form.list.onDoubleClick = [this] { events.push_back("double " + form.list.content()); };
    screen.click(form.list, 1);
    screen.click(form.list, 7);
    screen.doubleClick(form.list, 0);
    EXPECT_THAT(events, ElementsAre("click b", "click b", "double a"));
}

TEST_F(ScreenTest, LoadsAFormOnceUntilItIsUnloaded) {
    other.onLoad = [this] { events.push_back("load"); };
    other.onUnload = [this] { events.push_back("unload"); };
    screen.onShown = [this](forms::Form& f) { events.push_back(f.name() + " shown"); };
    screen.onHidden = [this](forms::Form& f) { events.push_back(f.name() + " hidden"); };
    other.show();
    other.show();
    other.hide();
    other.show();
    other.unload();
    other.unload();
    other.show();
    EXPECT_THAT(events, ElementsAre("load", "Other shown", "Other hidden", "Other shown", "unload",
                                    "Other hidden", "load", "Other shown"));
}

TEST_F(ScreenTest, KeepsAFormOpenThatRefusesToClose) {
    form.onQueryClose = [](bool& refuse) { refuse = true; };
    form.close();
    EXPECT_TRUE(form.visible());
    form.onQueryClose = nullptr;
    form.close();
    EXPECT_FALSE(form.visible());
    EXPECT_FALSE(form.loaded());
}

TEST_F(ScreenTest, FindsFormsAndControlsByNameCaseAndAll) {
    EXPECT_EQ(screen.find("Other"), &other);
    EXPECT_EQ(screen.find("other"), nullptr);
    EXPECT_EQ(form.find("button(3)"), &form.button);
    EXPECT_EQ(form.find("Button(3)"), nullptr);
}

TEST_F(ScreenTest, TellsAFormThatItIsLeft) {
    form.onDeactivate = [this] { events.push_back("left"); };
    other.onDeactivate = [this] { events.push_back("other left"); };
    other.show();
    EXPECT_THAT(events, ElementsAre("left"));
    screen.click(form.button);
    screen.click(form.button);
    EXPECT_THAT(events, ElementsAre("left", "other left"));
    form.hide();
    EXPECT_THAT(events, ElementsAre("left", "other left", "left"));
    // The form behind was not in front, so nothing leaves it.
    form.show();
    events.clear();
    other.hide();
    EXPECT_THAT(events, IsEmpty());
}

}  // namespace
