// SPDX-License-Identifier: MIT
#include "shell/qt/look.h"

#include <algorithm>
#include <cmath>

#include "base/text.h"
#include "shell/qt/codec.h"

namespace look {
namespace {

/// What normal text needs to be read with ease.
constexpr double kEnoughContrast = 4.5;

double linear(double channel) {
    return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

double luminance(const QColor& colour) {
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
           0.0722 * linear(colour.blueF());
}

QColor mixed(const QColor& one, const QColor& other, double part) {
    const auto mix = [part](float a, float b) { return static_cast<float>(a + (b - a) * part); };
    return QColor::fromRgbF(mix(one.redF(), other.redF()), mix(one.greenF(), other.greenF()),
                            mix(one.blueF(), other.blueF()));
}

QString familyOf(const std::string& name) {
    if (text::same(name, "Arial Narrow")) return "Liberation Sans Narrow";
    if (text::same(name, "Courier New") || text::same(name, "COURIER")) return "Liberation Mono";
    return codec::toQt(name);
}

}  // namespace

QColor colourOf(forms::Colour colour) {
    if (colour == forms::kDefaultColour) return {};
    return QColor(colour & 0xFF, colour >> 8 & 0xFF, colour >> 16 & 0xFF);
}

double contrast(const QColor& one, const QColor& other) {
    const double a = luminance(one), b = luminance(other);
    return (std::max(a, b) + 0.05) / (std::min(a, b) + 0.05);
}

QColor inkFor(const QColor& ground) {
    const QColor black(Qt::black), white(Qt::white);
    return contrast(black, ground) >= contrast(white, ground) ? black : white;
}

QColor readable(const QColor& ink, const QColor& ground) {
    const QColor end = inkFor(ground);
    QColor result = ink;
    for (int tenth = 1; tenth <= 10 && contrast(result, ground) < kEnoughContrast; ++tenth) {
        result = mixed(ink, end, tenth / 10.0);
    }
    return result;
}

QPalette paletteOf(const QPalette& usual, const forms::Control& control, QPalette::ColorRole ground,
                   QPalette::ColorRole ink) {
    QPalette result = usual;
    const QColor back = colourOf(control.backColour()), fore = colourOf(control.foreColour());
    if (back.isValid()) result.setColor(ground, back);
    const QColor behind = result.color(QPalette::Active, ground);
    if (fore.isValid()) {
        result.setColor(ink, readable(fore, behind));
    } else if (back.isValid()) {
        result.setColor(ink, inkFor(behind));
    }
    return result;
}

QFont fontOf(const QFont& layout, const forms::Font& font) {
    const forms::Font usual;
    QFont result = layout;
    if (font.name != usual.name) result.setFamily(familyOf(font.name));
    if (font.size != usual.size) result.setPointSizeF(layout.pointSizeF() * font.size / usual.size);
    if (font.bold) result.setBold(true);
    return result;
}

}  // namespace look
