// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "desk.h"
#include "shell/qt/layouts.h"

namespace {

struct TrialForm : forms::Form {
    explicit TrialForm(forms::Screen& screen) : Form(screen, "frmTrial", "Trial") {}
    forms::TextBox Text1{*this, "Text1"};
    forms::Timer Timer1{*this, "Timer1", 1000};
};

class NoEntrance : public Entrance {
public:
    void enter(const std::function<void(forms::Screen&)>&) override {}
};

template <typename W>
void add(QWidget& window, const char* name) {
    auto* const widget = new W(&window);
    widget->setObjectName(name);
}

std::string errorOf(const std::function<void(QWidget&)>& fill) {
    forms::Screen screen;
    TrialForm form(screen);
    NoEntrance entrance;
    auto window = std::make_unique<QWidget>();
    fill(*window);
    try {
        const FormWindow bound(form, std::move(window), entrance);
    } catch (const LayoutError& error) {
        return error.what();
    }
    return "";
}

}  // namespace

TEST(Layout, OneThatFitsItsFormIsTaken) {
    EXPECT_EQ(errorOf([](QWidget& window) { add<QLineEdit>(window, "Text1"); }), "");
}

TEST(Layout, ControlWithoutAWidgetIsToldByName) {
    EXPECT_EQ(errorOf([](QWidget& window) { add<QLineEdit>(window, "Text2"); }),
              "The control frmTrial.Text1 has no widget.");
}

TEST(Layout, WidgetWithoutAControlIsToldByName) {
    EXPECT_EQ(errorOf([](QWidget& window) {
                  add<QLineEdit>(window, "Text1");
                  add<QPushButton>(window, "Command1");
              }),
              "The widget frmTrial.Command1 has no control.");
}

TEST(Layout, DecorationNeedsNoControl) {
    EXPECT_EQ(errorOf([](QWidget& window) {
                  add<QLineEdit>(window, "Text1");
                  add<QLabel>(window, "decoText1");
              }),
              "");
}

TEST(Layout, WidgetOfAWrongKindIsTold) {
    EXPECT_EQ(errorOf([](QWidget& window) { add<QLabel>(window, "Text1"); }),
              "The widget of frmTrial.Text1 is of a wrong kind: QLabel");
}

TEST(Layout, FormWithoutALayoutIsTold) {
    forms::Screen screen;
    TrialForm form(screen);
    NoEntrance entrance;
    EXPECT_THROW(FormWindow(form, layoutOf("frmTrial"), entrance), LayoutError);
}

TEST(Layout, EveryFormOfTheProgramFitsItsLayout) {
    Desk desk;
    for (const forms::Form* const form : desk.forms.screen.forms()) {
        EXPECT_NO_THROW(desk.front.find(form->name())) << form->name();
    }
}

TEST(Layout, EveryWindowIsMadeSoonAfterTheFirst) {
    Desk desk;
    EXPECT_TRUE(QApplication::topLevelWidgets().isEmpty());
    desk.show(desk.forms.frmStart);
    const auto wanted = std::ssize(desk.forms.screen.forms());
    EXPECT_TRUE(QTest::qWaitFor([&] { return QApplication::topLevelWidgets().size() >= wanted; }));
}

TEST(Layout, HiddenControlKeepsItsPlace) {
    Desk desk;
    auto& log = desk.forms.frmLog;
    desk.show(log);
    QTest::qWait(50);
    const QRect before = desk.widget(log.Combo3).geometry(), entry = desk.widget(log.QSOs).geometry();
    for (forms::Control* const control :
         std::initializer_list<forms::Control*>{&log.Query, &log.cUpdate, &log.Heading}) {
        control->show();
    }
    QTest::qWait(50);
    EXPECT_EQ(desk.widget(log.Combo3).geometry(), before);
    EXPECT_EQ(desk.widget(log.QSOs).geometry(), entry);
}

TEST(Layout, ListsOverTheLogLieOnItsLeftPart) {
    Desk desk;
    auto& log = desk.forms.frmLog;
    desk.show(log);
    for (forms::ListBox* const list : {&log.PCalls, &log.PLogSort, &log.QSummary, &log.CList}) list->show();
    desk.front.find("frmLog")->window().resize(1300, 760);
    QTest::qWait(50);
    const QRect below = desk.widget(log.QSOs).geometry();
    for (forms::ListBox* const list : {&log.PCalls, &log.PLogSort, &log.QSummary, &log.CList}) {
        const QRect above = desk.widget(*list).geometry();
        EXPECT_EQ(above.topLeft(), below.topLeft()) << list->name();
        EXPECT_EQ(above.height(), below.height()) << list->name();
        EXPECT_LT(above.width(), below.width()) << list->name();
        EXPECT_GT(above.width(), below.width() / 3) << list->name();
    }
}
