// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <QAccessible>
#include <set>

#include "desk.h"

namespace {

/// What a reader of the screen is told of a control, or nothing where Qt has nothing to tell.
std::string heardOf(QWidget& widget) {
    const QAccessibleInterface* const face = QAccessible::queryAccessibleInterface(&widget);
    return face == nullptr ? std::string() : codec::fromQt(face->text(QAccessible::Name));
}

std::string nameOf(const forms::Control& control) {
    if (!control.accessibleName().empty()) return control.accessibleName();
    const bool captioned = dynamic_cast<const forms::Captioned*>(&control) != nullptr;
    return captioned && !control.content().empty() ? control.content() : control.name();
}

}  // namespace

TEST(Accessibility, EveryControlHasItsName) {
    Desk desk;
    int controls = 0;
    for (const forms::Form* const form : desk.forms.screen.forms()) {
        for (const auto& view : desk.front.find(form->name())->views()) {
            EXPECT_EQ(heardOf(view->widget()), nameOf(view->control()))
                << form->name() << "." << view->control().name();
            ++controls;
        }
    }
    EXPECT_GT(controls, 100);
}

TEST(Accessibility, FieldsOfAFormHaveDifferentNames) {
    Desk desk;
    for (const forms::Form* const form : desk.forms.screen.forms()) {
        std::set<std::string> names;
        for (const auto& view : desk.front.find(form->name())->views()) {
            if (!view->control().canTakeFocus()) continue;
            EXPECT_TRUE(names.insert(heardOf(view->widget())).second)
                << form->name() << "." << view->control().name();
        }
    }
}

TEST(Accessibility, EveryMenuItemHasItsCaption) {
    Desk desk;
    const FormWindow& window = *desk.front.find("frmLog");
    int items = 0;
    for (const forms::Control* const control : desk.forms.frmLog.controls()) {
        const auto* const item = dynamic_cast<const forms::MenuItem*>(control);
        if (item == nullptr || item->caption() == "-") continue;
        EXPECT_EQ(codec::fromQt(window.menu()
                                    ->actionOf(*item)
                                    ->text()
                                    .replace("&&", "\x01")
                                    .remove('&')
                                    .replace("\x01", "&")),
                  item->caption());
        ++items;
    }
    EXPECT_GT(items, 60);
}

TEST(Accessibility, NewCaptionIsTold) {
    Desk desk;
    auto& log = desk.forms.frmLog;
    log.fPrinter.setCaption("Printer ON");
    EXPECT_EQ(heardOf(desk.widget(log.fPrinter)), "Printer ON");
    log.UTCTime.setCaption("14:35:07");
    EXPECT_EQ(heardOf(desk.widget(log.UTCTime)), "UTC time");
    EXPECT_EQ(
        QAccessible::queryAccessibleInterface(&desk.widget(log.UTCTime))->text(QAccessible::Description),
        "14:35:07");
}

TEST(Accessibility, ReaderOfTheScreenMovesTheFocus) {
    Desk desk;
    auto& log = desk.forms.frmLog;
    desk.show(log);
    desk.widget(log.tGrid).setFocus(Qt::OtherFocusReason);
    EXPECT_EQ(log.focused(), &log.tGrid);
}
