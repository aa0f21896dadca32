// SPDX-License-Identifier: MIT
// What the operator does in the windows, on its way to the forms.
#include <QApplication>
#include <QFocusEvent>
#include <QInputMethodEvent>
#include <QMenuBar>

#include "shell/qt/keys.h"
#include "shell/qt/windows_front.h"

namespace {

/// Whether the form's control with the focus is a field that holds text.
bool isInField(const forms::Form& form) {
    return dynamic_cast<const forms::TextLine*>(form.focused()) != nullptr;
}

}  // namespace

bool WindowsFront::eventFilter(QObject* watched, QEvent* event) {
    auto* const widget = qobject_cast<QWidget*>(watched);
    FormWindow* const window = widget ? of(*widget) : nullptr;
    if (window == nullptr) return false;
    return &window->window() == widget && handleWindow(*window, *event) ? true
                                                                        : handle(*window, *widget, *event);
}

bool WindowsFront::handleWindow(FormWindow& window, QEvent& event) {
    switch (event.type()) {
        case QEvent::Close:
            // The form decides; its window goes when the form is hidden.
            event.ignore();
            enter([&](forms::Screen& screen) {
                screen.dispatch([&] {
                    // The desktop may close a window ahead of telling that it has come to the front.
                    screen.bringToFront(window.form());
                    window.form().close();
                });
            });
            return true;
        case QEvent::WindowActivate:
            activated(window);
            return false;
        default:
            return false;
    }
}

bool WindowsFront::handle(FormWindow& window, QWidget& on, QEvent& event) {
    switch (event.type()) {
        case QEvent::KeyPress:
            return keyPressed(window, on, static_cast<QKeyEvent&>(event));
        case QEvent::InputMethod:
            return composed(on, static_cast<QInputMethodEvent&>(event));
        case QEvent::MouseButtonPress:
            return mousePressed(window, on, static_cast<QMouseEvent&>(event));
        case QEvent::MouseButtonDblClick:
            return mouseDoubleClicked(window, on, static_cast<QMouseEvent&>(event));
        case QEvent::MouseButtonRelease:
            return mouseReleased(window, on, static_cast<QMouseEvent&>(event));
        case QEvent::FocusIn:
            focusArrived(window, on, static_cast<QFocusEvent&>(event));
            return false;
        case QEvent::ContextMenu: {
            // A control that does something with the right button has no menu of Qt's.
            const ControlView* const view = window.viewOf(on);
            return view != nullptr && view->control().onRightClick != nullptr;
        }
        case QEvent::Wheel: {
            // The wheel over a closed combo box would change an entry behind the operator's back.
            const ControlView* const view = window.viewOf(on);
            return view != nullptr && dynamic_cast<forms::ComboBox*>(&view->control()) != nullptr;
        }
        case QEvent::Resize:
        case QEvent::Move:
            window.placeOverlays(on);
            return false;
        default:
            return false;
    }
}

bool WindowsFront::keyPressed(FormWindow& window, QWidget& on, QKeyEvent& event) {
    if (QApplication::activePopupWidget() != nullptr || qobject_cast<QMenuBar*>(&on) != nullptr) return false;
    const keys::Road road = keys::roadOf(event, isInField(window.form()));
    if (road == keys::Road::Desktop) return false;
    event.accept();
    if (road == keys::Road::Nowhere) return true;
    const auto stroke = keys::strokeOf(event);
    enter([&](forms::Screen& screen) { screen.press(*stroke); });
    return true;
}

bool WindowsFront::composed(QWidget& on, QInputMethodEvent& event) {
    if (event.commitString().isEmpty()) return false;
    for (const forms::KeyStroke& stroke : keys::strokesOf(event.commitString())) {
        enter([&](forms::Screen& screen) { screen.press(stroke); });
    }
    // What was shown while it was being composed is over.
    QInputMethodEvent over;
    QCoreApplication::sendEvent(&on, &over);
    event.accept();
    return true;
}

bool WindowsFront::mousePressed(FormWindow& window, QWidget& on, const QMouseEvent& event) {
    awaited_ = nullptr;
    if (event.button() != Qt::LeftButton) return false;
    if (ControlView* const view = window.viewOf(on)) {
        return view->control().usable() ? view->pressed(event, on) : true;
    }
    if (!window.isSurface(on)) return false;
    forms::Form& form = window.form();
    enter([&](forms::Screen& screen) { screen.click(form); });
    return true;
}

bool WindowsFront::mouseDoubleClicked(FormWindow& window, QWidget& on, const QMouseEvent& event) {
    ControlView* const view = window.viewOf(on);
    if (view == nullptr || event.button() != Qt::LeftButton) return false;
    return view->control().usable() ? view->doubleClicked(event, on) : true;
}

bool WindowsFront::mouseReleased(FormWindow& window, QWidget& on, const QMouseEvent& event) {
    if (event.button() != Qt::RightButton) return false;
    if (ControlView* const view = window.viewOf(on)) return view->rightReleased();
    forms::Form& form = window.form();
    if (!window.isSurface(on) || !form.onRightClick) return false;
    enter([&](forms::Screen& screen) { screen.rightClick(form); });
    return true;
}

void WindowsFront::focusArrived(FormWindow& window, const QWidget& on, const QFocusEvent& event) {
    ControlView* const view = window.viewOf(on);
    forms::Form& form = window.form();
    if (window.mirroring() || view == nullptr || form.focused() == &view->control()) return;
    // A reader of the screen moves the focus so; all else is Qt's own choice, which the form doesn't share.
    if (event.reason() == Qt::OtherFocusReason) {
        enter([&](forms::Screen& screen) { screen.dispatch([&] { form.focus(view->control()); }); });
    }
    QMetaObject::invokeMethod(&window, &FormWindow::followFocus, Qt::QueuedConnection);
}

void WindowsFront::activated(FormWindow& window) {
    const forms::Form& form = window.form();
    if (awaited_ != nullptr) {
        // The desktop may still be activating windows that the program has since left behind.
        if (awaited_ == &form) awaited_ = nullptr;
        return;
    }
    if (screen_.active() == &form || screen_.dialogOpen()) return;
    enter([&](forms::Screen& screen) { screen.dispatch([&] { screen.bringToFront(window.form()); }); });
}
