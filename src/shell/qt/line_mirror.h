// SPDX-License-Identifier: MIT
#pragma once

#include <QLineEdit>

#include "shell/forms/controls.h"
#include "shell/qt/entrance.h"

/// A line of text with its caret, both ways: the widget shows what the control holds, and an edit that Qt
/// made by itself (a paste, a cut, a drop) goes into the control as one change.
class LineMirror : public QObject {
    Q_OBJECT
public:
    LineMirror(forms::TextLine& line, QLineEdit& edit, Entrance& entrance);
    void showText();
    void showCaret();

private:
    void takeText();
    void takeCaret();
    forms::TextLine& line_;
    QLineEdit& edit_;
    Entrance& entrance_;
    bool showing_ = false;
};
