// SPDX-License-Identifier: MIT
// Helpers of the window tests: a clock that stands still, the forms in their windows, and a hand on keys and
// mouse.
#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QListView>
#include <QTest>
#include <string>

#include "shell/forms/all_forms.h"
#include "shell/qt/codec.h"
#include "shell/qt/windows_front.h"

class StillClock : public Clock {
public:
    DateTime local() override { return {}; }
    DateTime utc() override { return {}; }
    double secondsSinceMidnight() override { return 0; }
    std::int64_t milliseconds() override { return now; }
    void idle(double) override {}
    std::int64_t now = 1000;
};

/// The forms of the program without its routines, in their windows.
struct Desk {
    explicit Desk(forms::Form& shown) : Desk() { show(shown); }
    Desk() {
        forms.screen.onFault = [this](const std::string& text) { fault = text; };
    }

    void show(forms::Form& form) {
        form.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&front.find(form.name())->window()));
    }
    template <typename W = QWidget>
    W& widget(const forms::Control& control) {
        return *front.find(control.form().name())->window().findChild<W*>(codec::toQt(control.name()));
    }
    QWidget& keyboard(const forms::Form& form) {
        QWidget& window = front.find(form.name())->window();
        return window.focusWidget() ? *window.focusWidget() : window;
    }
    void click(forms::Control& control) { QTest::mouseClick(&widget(control), Qt::LeftButton); }
    void clickRow(forms::ListBox& list, int row, Qt::MouseButton button = Qt::LeftButton) {
        auto& view = widget<QListView>(list);
        const QPoint place = view.visualRect(view.model()->index(row, 0)).center();
        QTest::mouseClick(view.viewport(), button, {}, place);
    }
    void type(const forms::Form& form, const char* text) {
        for (const char* at = text; *at != 0; ++at) QTest::keyClick(&keyboard(form), *at);
    }
    void key(const forms::Form& form, Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(&keyboard(form), key, modifiers);
    }

    Forms forms;
    StillClock clock;
    WindowsFront front{forms.screen, clock};
    std::string fault;
};
