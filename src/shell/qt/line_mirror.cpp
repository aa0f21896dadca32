// SPDX-License-Identifier: MIT
#include "shell/qt/line_mirror.h"

#include <QScopedValueRollback>

#include "shell/qt/codec.h"

LineMirror::LineMirror(forms::TextLine& line, QLineEdit& edit, Entrance& entrance, Signal edited)
    : line_(line), edit_(edit), entrance_(entrance) {
    connect(&edit_, edited, this, &LineMirror::takeText);
    connect(&edit_, &QLineEdit::selectionChanged, this, &LineMirror::takeCaret);
    connect(&edit_, &QLineEdit::cursorPositionChanged, this, &LineMirror::takeCaret);
}

void LineMirror::showText() {
    const QScopedValueRollback guard(showing_, true);
    const QString text = codec::toQt(line_.text());
    // Setting the same text again would throw away what Qt can undo.
    if (edit_.text() != text) edit_.setText(text);
    showCaret();
}

void LineMirror::showCaret() {
    const QScopedValueRollback guard(showing_, true);
    if (line_.anchor() != line_.caret()) {
        edit_.setSelection(line_.anchor(), line_.caret() - line_.anchor());
    } else {
        edit_.setCursorPosition(line_.caret());
        edit_.deselect();
    }
}

void LineMirror::takeText() {
    if (showing_) return;
    const std::string text = codec::fromQt(edit_.text());
    const int caret = edit_.cursorPosition();
    entrance_.enter([&](forms::Screen& screen) {
        screen.dispatch([&] {
            line_.setText(text);
            // A handler may have put another text there, which then keeps its own caret.
            if (line_.text() == text) line_.select(caret, caret);
        });
    });
    showText();
}

void LineMirror::takeCaret() {
    if (showing_ || codec::fromQt(edit_.text()) != line_.text()) return;
    const int caret = edit_.cursorPosition();
    int anchor = caret;
    if (edit_.hasSelectedText()) {
        anchor = edit_.selectionStart() == caret ? edit_.selectionEnd() : edit_.selectionStart();
    }
    if (anchor != line_.anchor() || caret != line_.caret()) line_.select(anchor, caret);
}
