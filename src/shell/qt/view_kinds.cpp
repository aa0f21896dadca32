// SPDX-License-Identifier: MIT
#include <QCheckBox>
#include <QPushButton>
#include <QRadioButton>

#include "shell/qt/face_views.h"
#include "shell/qt/field_views.h"
#include "shell/qt/list_view.h"

namespace {

/// A view of kind View where the control is of kind C and its widget of kind W; null otherwise.
template <typename View, typename C, typename W>
std::unique_ptr<ControlView> viewOf(forms::Control& control, QWidget& widget, Entrance& entrance) {
    auto* const kind = dynamic_cast<C*>(&control);
    auto* const face = qobject_cast<W*>(&widget);
    if (kind == nullptr || face == nullptr) return nullptr;
    return std::make_unique<View>(*kind, *face, entrance);
}

}  // namespace

std::unique_ptr<ControlView> makeView(forms::Control& control, QWidget& widget, Entrance& entrance) {
    // An option is a check box too, so it comes before that.
    for (const auto make :
         {&viewOf<TextBoxView, forms::TextBox, QLineEdit>, &viewOf<ComboBoxView, forms::ComboBox, QComboBox>,
          &viewOf<ListBoxView, forms::ListBox, QListView>, &viewOf<LabelView, forms::Label, QLabel>,
          &viewOf<ButtonView, forms::Button, QPushButton>,
          &viewOf<ButtonView, forms::OptionButton, QRadioButton>,
          &viewOf<ButtonView, forms::CheckBox, QCheckBox>}) {
        if (auto view = make(control, widget, entrance)) return view;
    }
    return nullptr;
}
