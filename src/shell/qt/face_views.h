// SPDX-License-Identifier: MIT
// Controls whose face is a caption: labels, buttons, boxes with a mark.
#pragma once

#include <QAbstractButton>
#include <QLabel>

#include "shell/qt/control_view.h"

class LabelView : public ControlView {
    Q_OBJECT
public:
    LabelView(forms::Label& label, QLabel& face, Entrance& entrance);
    bool pressed(const QMouseEvent& event, QWidget& on) override;
    bool doubleClicked(const QMouseEvent& event, QWidget& on) override;

protected:
    void mirror(forms::Property property) override;

private:
    forms::Label& label_;
    QLabel& face_;
};

/// A push button, a check box or an option: Qt shows the pressing, the control does what is pressed.
class ButtonView : public ControlView {
    Q_OBJECT
public:
    ButtonView(forms::Captioned& control, QAbstractButton& button, Entrance& entrance);

protected:
    void mirror(forms::Property property) override;
    QPalette::ColorRole ground() const override;
    QPalette::ColorRole ink() const override;

private:
    void clicked();
    void showMark();
    forms::Captioned& captioned_;
    QAbstractButton& button_;
};
