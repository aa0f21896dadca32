// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "base/run_time_error.h"
#include "support/sample_form.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class Changes : public testing::Test {
protected:
    Changes() { form.show(); }
    forms::Screen screen;
    SampleForm form{screen};
    Events events;
};

TEST_F(Changes, AreRaisedOnceAtTheAssignment) {
    form.first.onChange = [this] { events.push_back(form.first.text()); };
    form.first.setText("a");
    events.push_back("after");
    EXPECT_THAT(events, ElementsAre("a", "after"));
}

TEST_F(Changes, AreNoneWhereTheTextStaysTheSame) {
    form.first.setText("a");
    form.first.onChange = [this] { events.push_back("change"); };
    form.first.setText("a");
    EXPECT_THAT(events, IsEmpty());
}

TEST_F(Changes, OfAHandlersOwnControlAreRaisedWithinIt) {
    form.first.onChange = [this] {
        events.push_back("begin " + form.first.text());
        if (form.first.text() == "a") form.first.setText("A");
        events.push_back("end " + form.first.text());
    };
    screen.press({forms::Key::Character, 'a'});
    EXPECT_THAT(events, ElementsAre("begin a", "begin A", "end A", "end A"));
    EXPECT_EQ(form.first.caret(), 1);
}

TEST_F(Changes, AreNoneOfATextThatIsPresented) {
    form.first.onChange = [this] { events.push_back("change"); };
    form.first.present("from a file");
    EXPECT_EQ(form.first.text(), "from a file");
    EXPECT_THAT(events, IsEmpty());
}

TEST_F(Changes, OfAComboBoxArePicksWhenChosenAndChangesWhenSet) {
    form.combo.add("one");
    form.combo.add("two");
    form.combo.onClick = [this] { events.push_back("click " + form.combo.text()); };
    form.combo.onChange = [this] { events.push_back("change " + form.combo.text()); };
    form.combo.choose(1);
    form.combo.setText("three");
    EXPECT_THAT(events, ElementsAre("click two", "change three"));
}

TEST_F(Changes, OfAComboBoxsTextLeaveNoPickBehind) {
    form.combo.add("one");
    EXPECT_EQ(form.combo.listIndex(), -1);
    form.combo.choose(0);
    EXPECT_EQ(form.combo.listIndex(), 0);
    form.combo.setText("other");
    EXPECT_EQ(form.combo.listIndex(), -1);
    EXPECT_THROW(form.combo.choose(1), RunTimeError);
    EXPECT_THROW(form.combo.choose(-1), RunTimeError);
}

TEST_F(Changes, OfAListsSelectionRaiseNothingButFaults) {
    form.list.setItems({"a", "b"});
    form.list.onClick = [this] { events.push_back("click"); };
    form.list.select(1);
    EXPECT_EQ(form.list.content(), "b");
    form.list.select(-1);
    EXPECT_EQ(form.list.content(), "");
    EXPECT_THROW(form.list.select(2), RunTimeError);
    EXPECT_THROW(form.list.select(-2), RunTimeError);
    EXPECT_THAT(events, IsEmpty());
}

TEST_F(Changes, OfAListsItemsKeepTheSelectionInside) {
    form.list.setItems({"a", "b"});
    form.list.select(1);
    form.list.remove(1);
    EXPECT_EQ(form.list.listIndex(), 0);
    form.list.remove(0);
    EXPECT_EQ(form.list.listIndex(), -1);
    EXPECT_THROW(form.list.remove(0), RunTimeError);
}

TEST_F(Changes, OfAMarkAreAClickOnlyByTheOperator) {
    form.box.onClick = [this] { events.push_back(form.box.checked() ? "marked" : "clear"); };
    form.box.setChecked(true);
    EXPECT_THAT(events, IsEmpty());
    screen.click(form.box);
    EXPECT_THAT(events, ElementsAre("clear"));
}

TEST_F(Changes, OfAnOptionNeverClearIt) {
    screen.click(form.option);
    screen.click(form.option);
    EXPECT_TRUE(form.option.checked());
}

TEST_F(Changes, AreToldToTheOneWhoMirrorsBeforeTheHandlers) {
    form.first.watcher = [this](forms::Property property) {
        if (property == forms::Property::Text) events.push_back("mirror");
    };
    form.first.onChange = [this] { events.push_back("change"); };
    form.first.setText("a");
    EXPECT_THAT(events, ElementsAre("mirror", "change"));
}

}  // namespace
