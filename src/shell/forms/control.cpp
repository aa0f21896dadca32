// SPDX-License-Identifier: MIT
#include "shell/forms/control.h"

#include "shell/forms/form.h"

namespace forms {

Control::Control(Form& form, std::string name) : form_(form), name_(std::move(name)) { form_.enrol(*this); }

void Control::setVisible(bool visible) {
    if (visible == visible_) return;
    visible_ = visible;
    changed(Property::Visible);
    if (!visible) form_.focusLeaves(*this);
}

void Control::setEnabled(bool enabled) {
    if (enabled == enabled_) return;
    enabled_ = enabled;
    changed(Property::Enabled);
    if (!enabled) form_.focusLeaves(*this);
}

void Control::setBackColour(Colour colour) {
    if (colour == backColour_) return;
    backColour_ = colour;
    changed(Property::Colours);
}

void Control::setForeColour(Colour colour) {
    if (colour == foreColour_) return;
    foreColour_ = colour;
    changed(Property::Colours);
}

void Control::setFontName(const std::string& name) {
    if (name == font_.name) return;
    font_.name = name;
    changed(Property::Font);
}

void Control::setFontSize(double points) {
    if (points == font_.size) return;
    font_.size = points;
    changed(Property::Font);
}

void Control::setFontBold(bool bold) {
    if (bold == font_.bold) return;
    font_.bold = bold;
    changed(Property::Font);
}

void Control::setToolTip(const std::string& tip) {
    toolTip_ = tip;
    changed(Property::ToolTip);
}

void Control::setLeft(int twips) {
    left_ = twips;
    changed(Property::Place);
}

void Control::setWidth(int twips) {
    width_ = twips;
    changed(Property::Place);
}

}  // namespace forms
