// SPDX-License-Identifier: MIT
#include "shell/qt/control_view.h"

#include <QTextDocument>

#include "shell/qt/codec.h"
#include "shell/qt/look.h"

namespace {

/// A twip is a twentieth of a point, and the forms were measured on a screen of 96 dots an inch.
int pixelsOf(int twips) { return twips / 15; }

}  // namespace

ControlView::ControlView(forms::Control& control, QWidget& widget, Entrance& entrance)
    : control_(control), widget_(widget), entrance_(entrance), layoutFont_(widget.font()) {
    // A hidden widget keeps its place, so that nothing jumps while the operator types.
    QSizePolicy policy = widget_.sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    widget_.setSizePolicy(policy);
    // The forms move the focus; a click of the mouse must not do it before they have been asked.
    widget_.setFocusPolicy(control_.canTakeFocus() ? Qt::TabFocus : Qt::NoFocus);
    nameForReaders();
    control_.watcher = [this](forms::Property property) { mirrorGuarded(property); };
}

ControlView::~ControlView() { control_.watcher = nullptr; }

void ControlView::nameForReaders() {
    const bool field = dynamic_cast<forms::Captioned*>(&control_) == nullptr;
    const std::string& named = control_.accessibleName();
    const std::string caption = field ? std::string() : control_.content();
    widget_.setAccessibleName(codec::toQt(!named.empty()     ? named
                                          : !caption.empty() ? caption
                                                             : control_.name()));
    // What a named label or button shows is told behind its name.
    if (!named.empty() && !field) widget_.setAccessibleDescription(codec::toQt(caption));
}

void ControlView::mirrorAll() {
    using enum forms::Property;
    for (const auto property :
         {Items, Text, Caret, Selection, Checked, Font, Colours, ToolTip, Place, Enabled, Visible}) {
        mirrorGuarded(property);
    }
}

void ControlView::mirrorGuarded(forms::Property property) {
    ++mirroring_;
    mirror(property);
    --mirroring_;
}

void ControlView::mirror(forms::Property property) {
    switch (property) {
        case forms::Property::Text:
            nameForReaders();
            break;
        case forms::Property::Visible:
            // Qt lays a form out anew even for a widget that is shown already.
            if (widget_.isHidden() == control_.visible()) widget_.setVisible(control_.visible());
            break;
        case forms::Property::Enabled:
            widget_.setEnabled(control_.enabled());
            break;
        case forms::Property::Colours:
            widget_.setPalette(look::paletteOf(QPalette(), control_, ground(), ink()));
            // A label without a colour of its own shows the window through.
            if (ground() == QPalette::Window) {
                widget_.setAutoFillBackground(control_.backColour() != forms::kDefaultColour);
            }
            break;
        case forms::Property::Font:
            widget_.setFont(look::fontOf(layoutFont_, control_.font()));
            break;
        case forms::Property::ToolTip: {
            const QString tip = codec::toQt(control_.toolTip()).trimmed();
            widget_.setToolTip(tip.isEmpty() ? tip : Qt::convertFromPlainText(tip));
            break;
        }
        case forms::Property::Place:
            if (control_.width() > 0) widget_.setMinimumWidth(pixelsOf(control_.width()));
            break;
        default:
            break;
    }
}

bool ControlView::rightReleased() {
    if (!control_.onRightClick) return false;
    entrance_.enter([this](forms::Screen& screen) { screen.rightClick(control_); });
    return true;
}

void ControlView::click(int row) {
    entrance_.enter([this, row](forms::Screen& screen) { screen.click(control_, row); });
}

void ControlView::doubleClick(int row) {
    entrance_.enter([this, row](forms::Screen& screen) { screen.doubleClick(control_, row); });
}

void ControlView::focus() {
    if (!control_.usable()) return;
    entrance_.enter([this](forms::Screen& screen) {
        screen.dispatch([&] {
            screen.bringToFront(control_.form());
            control_.form().focus(control_);
        });
    });
}
