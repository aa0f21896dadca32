// SPDX-License-Identifier: MIT
#include "shell/qt/qt_windows.h"

#include <QCoreApplication>
#include <QThread>

#include "shell/qt/codec.h"
#include "shell/qt/qt_dialogs.h"

namespace {

QString keyOf(const std::string& form, const char* what) { return codec::toQt(form) + "/" + what; }

}  // namespace

void QtWindows::pump() {
    if (front_ == nullptr) return;
    QCoreApplication::processEvents();
    front_->runTimers();
    front_->screen().endIfEnded();
}

void QtWindows::rest() { QThread::msleep(10); }

void QtWindows::saveSize(const std::string& form) {
    const FormWindow* const window = front_ ? front_->find(form) : nullptr;
    if (window == nullptr) return;
    settings_.setValue(keyOf(form, "maximised"), window->window().isMaximized());
    settings_.setValue(keyOf(form, "size"), window->window().normalGeometry().size());
}

void QtWindows::restoreSize(const std::string& form) {
    const FormWindow* const window = front_ ? front_->find(form) : nullptr;
    if (window == nullptr) return;
    const QSize size = settings_.value(keyOf(form, "size")).toSize();
    if (size.isValid()) window->window().resize(size);
    if (settings_.value(keyOf(form, "maximised")).toBool()) {
        window->window().setWindowState(window->window().windowState() | Qt::WindowMaximized);
    }
}

void QtWindows::popUp(const std::string& form, const std::string& menu) {
    const FormWindow* const window = front_ ? front_->find(form) : nullptr;
    auto* const item =
        window && window->menu() ? dynamic_cast<forms::MenuItem*>(window->form().find(menu)) : nullptr;
    if (item == nullptr) return;
    {
        // The item picked is clicked while the menu is still open, as an event inside this routine.
        const DialogOpen open(front_);
        front_->screen().openPopUp(*item);
        window->menu()->open(*item);
    }
    front_->screen().closePopUp();
    front_->screen().endIfEnded();
}
