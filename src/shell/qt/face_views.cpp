// SPDX-License-Identifier: MIT
#include "shell/qt/face_views.h"

#include "shell/qt/codec.h"

LabelView::LabelView(forms::Label& label, QLabel& face, Entrance& entrance)
    : ControlView(label, face, entrance), label_(label), face_(face) {
    face_.setTextFormat(Qt::PlainText);
    face_.setTextInteractionFlags(Qt::NoTextInteraction);
    face_.setFocusPolicy(Qt::NoFocus);
}

bool LabelView::pressed(const QMouseEvent&, QWidget&) {
    click();
    return true;
}

bool LabelView::doubleClicked(const QMouseEvent&, QWidget&) {
    doubleClick();
    return true;
}

void LabelView::mirror(forms::Property property) {
    if (property == forms::Property::Text) face_.setText(codec::toQt(label_.caption()));
    ControlView::mirror(property);
}

ButtonView::ButtonView(forms::Captioned& control, QAbstractButton& button, Entrance& entrance)
    : ControlView(control, button, entrance), captioned_(control), button_(button) {
    // The form's routine clears the other options, as it does everywhere.
    button_.setAutoExclusive(false);
    // A box or an option has the window for its ground, and not the face of a button as Qt would have it.
    if (button_.isCheckable()) button_.setBackgroundRole(QPalette::Window);
    connect(&button_, &QAbstractButton::clicked, this, &ButtonView::clicked);
}

QPalette::ColorRole ButtonView::ground() const {
    return button_.isCheckable() ? QPalette::Window : QPalette::Button;
}

QPalette::ColorRole ButtonView::ink() const {
    return button_.isCheckable() ? QPalette::WindowText : QPalette::ButtonText;
}

void ButtonView::clicked() {
    // Qt has turned the mark over by itself; the control decides anew.
    showMark();
    click();
}

void ButtonView::showMark() {
    if (const auto* box = dynamic_cast<const forms::CheckBox*>(&captioned_))
        button_.setChecked(box->checked());
}

void ButtonView::mirror(forms::Property property) {
    switch (property) {
        case forms::Property::Text:
            button_.setText(codec::toQt(captioned_.caption()).replace('&', "&&"));
            break;
        case forms::Property::Checked:
            showMark();
            break;
        default:
            break;
    }
    ControlView::mirror(property);
}
