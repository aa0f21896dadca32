// SPDX-License-Identifier: MIT
// Colours and fonts of the forms in those of the desktop, readable on a light theme and on a dark one.
// Leans on the forms' values alone; the views of the controls call it.
#pragma once

#include <QColor>
#include <QFont>
#include <QPalette>

#include "shell/forms/control.h"

namespace look {

/// The colour of a form's control; kDefaultColour is none and gives an invalid one.
QColor colourOf(forms::Colour colour);
/// How well one colour is read on another, from 1 (not at all) to 21 (black on white).
double contrast(const QColor& one, const QColor& other);
/// Black or white, whichever is read better on a ground.
QColor inkFor(const QColor& ground);
/// A colour moved towards black or white until it is read well on a ground.
QColor readable(const QColor& ink, const QColor& ground);
/// `usual` with the colours that a control asks for in the two roles of its ground and its ink.
QPalette paletteOf(const QPalette& usual, const forms::Control& control, QPalette::ColorRole ground,
                   QPalette::ColorRole ink);
/// The font of a control: what the layout gives it, changed as far as the control asks for another one.
QFont fontOf(const QFont& layout, const forms::Font& font);

}  // namespace look
