// SPDX-License-Identifier: MIT
#include "shell/qt/field_views.h"

#include <QCompleter>
#include <QSignalBlocker>

#include "shell/qt/codec.h"

TextBoxView::TextBoxView(forms::TextBox& box, QLineEdit& edit, Entrance& entrance)
    : ControlView(box, edit, entrance), line_(box, edit, entrance, &QLineEdit::textChanged) {}

bool TextBoxView::pressed(const QMouseEvent&, QWidget&) {
    click();
    // Qt goes on and places the caret, in the text that the click has left.
    return !control().usable();
}

bool TextBoxView::doubleClicked(const QMouseEvent&, QWidget&) {
    doubleClick();
    return !control().usable();
}

void TextBoxView::mirror(forms::Property property) {
    if (property == forms::Property::Text) line_.showText();
    if (property == forms::Property::Caret) line_.showCaret();
    ControlView::mirror(property);
}

namespace {

/// Gives a combo box a line to type in, without the completer and the list that Qt would make with it at once
/// and that cost more than all else of the box.
void makeEditable(QComboBox& combo) {
    QCompleter none;
    auto* const line = new QLineEdit(&combo);
    line->setCompleter(&none);
    combo.setLineEdit(line);
    combo.setCompleter(nullptr);
}

}  // namespace

ComboBoxView::ComboBoxView(forms::ComboBox& box, QComboBox& combo, Entrance& entrance)
    : ControlView(box, combo, entrance), box_(box), combo_(combo) {
    makeEditable(combo_);
    combo_.setInsertPolicy(QComboBox::NoInsert);
    // Qt takes a text that equals an item for a pick as soon as the focus leaves; nobody has picked anything.
    QObject::disconnect(combo_.lineEdit(), &QLineEdit::editingFinished, &combo_, nullptr);
    combo_.lineEdit()->setAccessibleName(combo_.accessibleName());
    line_ = std::make_unique<LineMirror>(box, *combo_.lineEdit(), entrance, &QLineEdit::textEdited);
    connect(&combo_, &QComboBox::activated, this, &ComboBoxView::picked);
}

bool ComboBoxView::pressed(const QMouseEvent&, QWidget&) {
    // The click of a combo box is the pick from its list, so the button going down only moves the focus.
    focus();
    return !control().usable();
}

void ComboBoxView::mirror(forms::Property property) {
    switch (property) {
        case forms::Property::Items:
            showItems();
            break;
        case forms::Property::Text:
            line_->showText();
            break;
        case forms::Property::Caret:
            line_->showCaret();
            break;
        default:
            ControlView::mirror(property);
    }
}

void ComboBoxView::showItems() {
    {
        const QSignalBlocker quiet(combo_);
        const QSignalBlocker quietLine(combo_.lineEdit());
        combo_.clear();
        for (const std::string& item : box_.items()) combo_.addItem(codec::toQt(item));
        combo_.setCurrentIndex(-1);
    }
    line_->showText();
}

void ComboBoxView::picked(int index) {
    if (mirroring() || index < 0 || index >= static_cast<int>(box_.items().size())) return;
    focus();
    entrance().enter([&](forms::Screen& screen) { screen.dispatch([&] { box_.choose(index); }); });
    line_->showText();
}
