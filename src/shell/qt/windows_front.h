// SPDX-License-Identifier: MIT
// The windows of all forms, and the operator in front of them: keys, mouse, time and the closing of windows.
// Leans on form_window.h and the screen of the forms; main.cpp makes one over a program and starts it; the
// services of the platform (qt_platform.h) ask it for windows. Every event takes the way of enter().
#pragma once

#include <QTimer>
#include <memory>
#include <vector>

#include "shell/forms/screen.h"
#include "shell/platform/clock.h"
#include "shell/qt/entrance.h"
#include "shell/qt/form_window.h"

class WindowsFront : public QObject, public Entrance {
    Q_OBJECT
public:
    /// A window is made when its form is shown or asked for, and the others one by one soon after the first,
    /// so that the operator neither waits for all of them at the start nor for one later. A layout that
    /// doesn't fit its form ends the program as a fault of a routine does.
    WindowsFront(forms::Screen& screen, Clock& clock);
    ~WindowsFront() override;

    void enter(const std::function<void(forms::Screen&)>& event) override;
    /// Runs the timers that are due, and goes on waiting for the next.
    void runTimers();
    forms::Screen& screen() const { return screen_; }
    /// The window of a form, made where it wasn't yet; null where there is no such form.
    FormWindow* find(const std::string& name);
    FormWindow* of(const QWidget& widget) const;
    /// The window in front, over which a dialog opens; null where none is shown.
    QWidget* frontWindow() const;

    /// Called after the event with which the program has ended.
    std::function<void()> onEnded;

    /// While one lives, no event and no timer reaches the program.
    class Hold {
    public:
        explicit Hold(WindowsFront* front) : front_(front) {
            if (front_) ++front_->held_;
        }
        ~Hold() {
            if (front_) --front_->held_;
        }
        Hold(const Hold&) = delete;
        Hold& operator=(const Hold&) = delete;

    private:
        WindowsFront* front_;
    };

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool keyPressed(FormWindow& window, QWidget& on, QKeyEvent& event);
    bool composed(QWidget& on, QInputMethodEvent& event);
    bool mousePressed(FormWindow& window, QWidget& on, const QMouseEvent& event);
    bool mouseDoubleClicked(FormWindow& window, QWidget& on, const QMouseEvent& event);
    bool mouseReleased(FormWindow& window, QWidget& on, const QMouseEvent& event);
    void focusArrived(FormWindow& window, const QWidget& on, const QFocusEvent& event);
    void activated(FormWindow& window);
    bool handle(FormWindow& window, QWidget& on, QEvent& event);
    bool handleWindow(FormWindow& window, QEvent& event);
    void rearm();
    void awaitFirstShow(forms::Form& form);
    FormWindow& make(forms::Form& form);
    FormWindow* made(const forms::Form& form) const;
    void makeNext();

    forms::Screen& screen_;
    Clock& clock_;
    std::vector<std::unique_ptr<FormWindow>> windows_;
    QTimer poll_, spare_;
    /// The form that the program brought to the front last and whose window the desktop has still to
    /// activate.
    const forms::Form* awaited_ = nullptr;
    int held_ = 0;
};
