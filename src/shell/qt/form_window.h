// SPDX-License-Identifier: MIT
// The window of one form: its layout, and a view for each of its controls.
// Leans on the views; windows_front.h makes one for each form. A control without its widget, or a widget
// without its control, is an error at start.
#pragma once

#include <QWidget>
#include <map>
#include <memory>
#include <stdexcept>
#include <vector>

#include "shell/forms/form.h"
#include "shell/qt/control_view.h"
#include "shell/qt/menu_view.h"

/// A layout that doesn't fit its form.
struct LayoutError : std::runtime_error {
    using std::runtime_error::runtime_error;
};

class FormWindow : public QObject {
    Q_OBJECT
public:
    /// `layout` is a window as the designer made it, not shown yet. Raises LayoutError where it doesn't fit.
    FormWindow(forms::Form& form, std::unique_ptr<QWidget> layout, Entrance& entrance);
    ~FormWindow() override;

    forms::Form& form() const { return form_; }
    QWidget& window() const { return *window_; }
    MenuView* menu() const { return menu_.get(); }
    const std::vector<std::unique_ptr<ControlView>>& views() const { return views_; }
    /// The view to which a widget belongs, itself or as a part; null for the bare surface.
    ControlView* viewOf(const QWidget& widget) const;
    /// Whether a widget is the bare surface of the form: no control, no menu bar, no frame of a scroll area.
    bool isSurface(const QWidget& widget) const;
    /// Shows, hides and names the window as the form is, and gives it the focus that the form says.
    void follow();
    void followFocus();
    bool mirroring() const;
    /// Lays the lists that lie over a widget where that one is now.
    void placeOverlays(const QWidget& below);

private:
    void bind(Entrance& entrance);
    void refuseStrangers() const;
    void findOverlays();
    void centre();
    forms::Form& form_;
    std::unique_ptr<QWidget> window_;
    std::vector<std::unique_ptr<ControlView>> views_;
    std::map<const QWidget*, ControlView*> byWidget_;
    std::unique_ptr<MenuView> menu_;
    /// Each widget that lies over another one, with that other one.
    std::vector<std::pair<QWidget*, const QWidget*>> overlays_;
    bool focusing_ = false;
};
