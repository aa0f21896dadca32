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
    using Signal = void (QLineEdit::*)(const QString&);
    /// `edited` is what tells of an edit that Qt made: a plain field's text changes for no other reason, a
    /// combo box changes it for a pick too, which is told otherwise.
    LineMirror(forms::TextLine& line, QLineEdit& edit, Entrance& entrance, Signal edited);
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
