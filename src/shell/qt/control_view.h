// SPDX-License-Identifier: MIT
// One control of a form in its widget: the properties that all kinds share, and what the mouse does to it.
// Leans on look.h and entrance.h; the kinds (field_view.h, list_view.h, face_views.h) derive from it;
// form_window.h makes one for each control.
#pragma once

#include <QFont>
#include <QMouseEvent>
#include <QPalette>
#include <QWidget>
#include <memory>

#include "shell/forms/controls.h"
#include "shell/qt/entrance.h"

class ControlView : public QObject {
    Q_OBJECT
public:
    ControlView(forms::Control& control, QWidget& widget, Entrance& entrance);
    ~ControlView() override;

    forms::Control& control() const { return control_; }
    QWidget& widget() const { return widget_; }
    /// Shows all properties at once, when the view begins.
    void mirrorAll();
    /// Whether the widget follows the control at this moment, so that what Qt tells of it is no doing of the
    /// operator.
    bool mirroring() const { return mirroring_ > 0; }

    /// The left button goes down on a widget of the view. True where Qt must not hear of it.
    virtual bool pressed(const QMouseEvent&, QWidget&) { return false; }
    virtual bool doubleClicked(const QMouseEvent&, QWidget&) { return false; }
    bool rightReleased();

protected:
    virtual void mirror(forms::Property property);
    /// The roles in which the widget's style paints the ground and the ink.
    virtual QPalette::ColorRole ground() const { return QPalette::Window; }
    virtual QPalette::ColorRole ink() const { return QPalette::WindowText; }
    void click(int row = -1);
    void doubleClick(int row = -1);
    void focus();
    Entrance& entrance() const { return entrance_; }

private:
    void mirrorGuarded(forms::Property property);
    void nameForReaders();
    forms::Control& control_;
    QWidget& widget_;
    Entrance& entrance_;
    QFont layoutFont_;
    int mirroring_ = 0;
};

/// The view of a control in the widget that bears its name; null where the widget is of a wrong kind.
std::unique_ptr<ControlView> makeView(forms::Control& control, QWidget& widget, Entrance& entrance);
