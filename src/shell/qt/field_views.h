// SPDX-License-Identifier: MIT
#pragma once

#include <QComboBox>
#include <QLineEdit>

#include "shell/qt/control_view.h"
#include "shell/qt/line_mirror.h"

/// A text box in a line edit.
class TextBoxView : public ControlView {
    Q_OBJECT
public:
    TextBoxView(forms::TextBox& box, QLineEdit& edit, Entrance& entrance);
    bool pressed(const QMouseEvent& event, QWidget& on) override;
    bool doubleClicked(const QMouseEvent& event, QWidget& on) override;

protected:
    void mirror(forms::Property property) override;
    QPalette::ColorRole ground() const override { return QPalette::Base; }
    QPalette::ColorRole ink() const override { return QPalette::Text; }

private:
    LineMirror line_;
};

/// A combo box in an editable one of Qt, whose pop-up picks as the operator's click does.
class ComboBoxView : public ControlView {
    Q_OBJECT
public:
    ComboBoxView(forms::ComboBox& box, QComboBox& combo, Entrance& entrance);
    bool pressed(const QMouseEvent& event, QWidget& on) override;

protected:
    void mirror(forms::Property property) override;
    QPalette::ColorRole ground() const override { return QPalette::Base; }
    QPalette::ColorRole ink() const override { return QPalette::Text; }

private:
    void showItems();
    void picked(int index);
    forms::ComboBox& box_;
    QComboBox& combo_;
    std::unique_ptr<LineMirror> line_;
};
