// SPDX-License-Identifier: MIT
#include "shell/qt/form_window.h"

#include <QAbstractScrollArea>
#include <QComboBox>
#include <QMainWindow>
#include <QScopedValueRollback>
#include <QScreen>
#include <QScrollBar>
#include <algorithm>

#include "shell/qt/codec.h"

namespace {

/// On a screen of 96 dots an inch.
constexpr int kTwipsPerPixel = 15;

/// Names of widgets that stand for no control begin so.
constexpr auto kDecoration = "deco";

std::vector<forms::MenuItem*> menuItemsOf(const forms::Form& form) {
    std::vector<forms::MenuItem*> items;
    for (forms::Control* const control : form.controls()) {
        if (auto* item = dynamic_cast<forms::MenuItem*>(control)) items.push_back(item);
    }
    return items;
}

/// A timer is on no window, and the menus are no widgets of the layout.
bool hasWidget(const forms::Control& control) {
    return dynamic_cast<const forms::Timer*>(&control) == nullptr &&
           dynamic_cast<const forms::MenuItem*>(&control) == nullptr;
}

/// The widget of a control, which bears its name. An element of a control array has underscores for the
/// brackets in the layout, which wants names of C++.
QWidget* widgetOf(const QWidget& window, const std::string& control) {
    const QString name = codec::toQt(control);
    if (auto* const widget = window.findChild<QWidget*>(name)) return widget;
    auto* const element = window.findChild<QWidget*>(QString(name).replace('(', '_').replace(')', '_'));
    if (element) element->setObjectName(name);
    return element;
}

/// The parts that Qt makes inside its own widgets, and the frames of a window, have no control.
bool isQtsOwn(const QWidget& widget) {
    const QString name = widget.objectName();
    if (name.isEmpty() || name.startsWith("qt_") || name.startsWith(kDecoration)) return true;
    for (const QWidget* at = widget.parentWidget(); at && !at->isWindow(); at = at->parentWidget()) {
        if (qobject_cast<const QAbstractScrollArea*>(at) || qobject_cast<const QComboBox*>(at)) return true;
    }
    return false;
}

}  // namespace

FormWindow::FormWindow(forms::Form& form, std::unique_ptr<QWidget> layout, Entrance& entrance)
    : form_(form), window_(std::move(layout)) {
    if (window_ == nullptr) throw LayoutError("The form " + form_.name() + " has no layout.");
    if (window_->property("splash").toBool())
        window_->setWindowFlags(Qt::SplashScreen | Qt::FramelessWindowHint);
    window_->setFocusPolicy(Qt::NoFocus);
    bind(entrance);
    refuseStrangers();
    findOverlays();
    for (const auto& view : views_) view->mirrorAll();
    window_->setWindowTitle(codec::toQt(form_.caption()));
    form_.watcher = [this] { follow(); };
    form_.focusWatcher = [this] { followFocus(); };
}

FormWindow::~FormWindow() {
    form_.watcher = nullptr;
    form_.focusWatcher = nullptr;
}

void FormWindow::bind(Entrance& entrance) {
    for (forms::Control* const control : form_.controls()) {
        if (!hasWidget(*control)) continue;
        const std::string place = form_.name() + "." + control->name();
        QWidget* const widget = widgetOf(*window_, control->name());
        if (widget == nullptr) throw LayoutError("The control " + place + " has no widget.");
        auto view = makeView(*control, *widget, entrance);
        if (!view) {
            throw LayoutError("The widget of " + place +
                              " is of a wrong kind: " + widget->metaObject()->className());
        }
        byWidget_.emplace(widget, view.get());
        views_.push_back(std::move(view));
    }
    const auto items = menuItemsOf(form_);
    if (items.empty()) return;
    auto* const main = qobject_cast<QMainWindow*>(window_.get());
    if (main == nullptr) throw LayoutError("The layout of " + form_.name() + " has no menu bar.");
    menu_ = std::make_unique<MenuView>(items, *main->menuBar(), entrance);
}

void FormWindow::refuseStrangers() const {
    for (const QWidget* const widget : window_->findChildren<QWidget*>()) {
        if (byWidget_.contains(widget) || isQtsOwn(*widget)) continue;
        throw LayoutError("The widget " + form_.name() + "." + widget->objectName().toStdString() +
                          " has no control.");
    }
}

ControlView* FormWindow::viewOf(const QWidget& widget) const {
    for (const QWidget* at = &widget; at != nullptr && at != window_.get(); at = at->parentWidget()) {
        const auto found = byWidget_.find(at);
        if (found != byWidget_.end()) return found->second;
    }
    return nullptr;
}

bool FormWindow::isSurface(const QWidget& widget) const {
    return viewOf(widget) == nullptr && qobject_cast<const QMenuBar*>(&widget) == nullptr;
}

bool FormWindow::mirroring() const {
    return focusing_ ||
           std::any_of(views_.begin(), views_.end(), [](const auto& view) { return view->mirroring(); });
}

void FormWindow::centre() {
    const QRect room = window_->screen()->availableGeometry();
    // A size kept from a larger screen must not push the entry fields out of sight.
    window_->resize(window_->size().boundedTo(room.size()));
    QRect place = window_->geometry();
    place.moveCenter(room.center() - QPoint(0, window_->property("aboveCentre").toInt()));
    if (form_.top() > 0) place.moveTop(room.top() + form_.top() / kTwipsPerPixel);
    window_->move(place.topLeft());
}

void FormWindow::follow() {
    window_->setWindowTitle(codec::toQt(form_.caption()));
    if (form_.visible() == window_->isVisible()) return;
    if (form_.visible()) {
        centre();
        window_->show();
    } else {
        window_->hide();
    }
}

void FormWindow::followFocus() {
    const QScopedValueRollback guard(focusing_, true);
    if (form_.screen().active() == &form_ && window_->isVisible() && !window_->isActiveWindow()) {
        window_->raise();
        window_->activateWindow();
    }
    // The keyboard moves the focus of this program, so a button that has it shows so.
    window_->setAttribute(Qt::WA_KeyboardFocusChange);
    const forms::Control* const wanted = form_.focused();
    for (const auto& view : views_) {
        if (&view->control() != wanted) continue;
        if (!view->widget().hasFocus()) view->widget().setFocus(Qt::OtherFocusReason);
        return;
    }
    if (QWidget* const former = window_->focusWidget()) former->clearFocus();
}

void FormWindow::findOverlays() {
    for (const auto& view : views_) {
        const QString name = view->widget().property("over").toString();
        if (name.isEmpty()) continue;
        const auto* const below = window_->findChild<QWidget*>(name);
        if (below == nullptr || below->parentWidget() != view->widget().parentWidget()) {
            throw LayoutError("The widget " + form_.name() + "." + view->control().name() +
                              " lies over nothing.");
        }
        overlays_.emplace_back(&view->widget(), below);
        view->widget().raise();
    }
}

void FormWindow::placeOverlays(const QWidget& below) {
    for (const auto& [overlay, under] : overlays_) {
        if (under != &below) continue;
        QRect place = under->geometry();
        place.setWidth(place.width() * overlay->property("share").toInt() / 100);
        overlay->setGeometry(place);
    }
}
