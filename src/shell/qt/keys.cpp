// SPDX-License-Identifier: MIT
#include "shell/qt/keys.h"

#include <algorithm>
#include <array>
#include <utility>

#include "shell/qt/codec.h"

namespace keys {
namespace {

using forms::Key;

constexpr std::array<std::pair<int, Key>, 28> kNamed{{
    {Qt::Key_Return, Key::Enter},  {Qt::Key_Enter, Key::Enter},     {Qt::Key_Escape, Key::Esc},
    {Qt::Key_Tab, Key::Tab},       {Qt::Key_Backtab, Key::BackTab}, {Qt::Key_Backspace, Key::Backspace},
    {Qt::Key_Delete, Key::Delete}, {Qt::Key_Up, Key::Up},           {Qt::Key_Down, Key::Down},
    {Qt::Key_Left, Key::Left},     {Qt::Key_Right, Key::Right},     {Qt::Key_Home, Key::Home},
    {Qt::Key_End, Key::End},       {Qt::Key_PageUp, Key::PageUp},   {Qt::Key_PageDown, Key::PageDown},
    {Qt::Key_Control, Key::Ctrl},  {Qt::Key_F1, Key::F1},           {Qt::Key_F2, Key::F2},
    {Qt::Key_F3, Key::F3},         {Qt::Key_F4, Key::F4},           {Qt::Key_F5, Key::F5},
    {Qt::Key_F6, Key::F6},         {Qt::Key_F7, Key::F7},           {Qt::Key_F8, Key::F8},
    {Qt::Key_F9, Key::F9},         {Qt::Key_F10, Key::F10},         {Qt::Key_F11, Key::F11},
    {Qt::Key_F12, Key::F12},
}};

bool isClipboard(const QKeyEvent& event) {
    constexpr std::array kClipboard = {QKeySequence::Copy, QKeySequence::Cut,  QKeySequence::Paste,
                                       QKeySequence::Undo, QKeySequence::Redo, QKeySequence::SelectAll};
    return std::any_of(kClipboard.begin(), kClipboard.end(),
                       [&](QKeySequence::StandardKey key) { return event.matches(key); });
}

bool selects(const QKeyEvent& event) {
    const int key = event.key();
    return (event.modifiers() & Qt::ShiftModifier) &&
           (key == Qt::Key_Left || key == Qt::Key_Right || key == Qt::Key_Home || key == Qt::Key_End);
}

}  // namespace

Road roadOf(const QKeyEvent& event, bool inField) {
    // An AltGr key comes as Ctrl and Alt together on some keyboards, and with a text: that is typing.
    const bool ctrl = event.modifiers() & Qt::ControlModifier, alt = event.modifiers() & Qt::AltModifier;
    const bool altGr = ctrl && alt && !event.text().isEmpty() && event.text().at(0).isPrint();
    if (altGr) return Road::Program;
    if (isClipboard(event)) return Road::Desktop;
    if (event.key() == Qt::Key_Alt || event.key() == Qt::Key_Menu) return Road::Desktop;
    if (alt || (event.modifiers() & Qt::MetaModifier)) return Road::Desktop;
    if (inField && selects(event)) return Road::Desktop;
    if (!strokeOf(event)) return Road::Nowhere;
    return ctrl && event.key() < Qt::Key_Escape ? Road::Nowhere : Road::Program;
}

std::optional<forms::KeyStroke> strokeOf(const QKeyEvent& event) {
    const auto named = std::find_if(kNamed.begin(), kNamed.end(), [&](const std::pair<int, Key>& pair) {
        return pair.first == event.key();
    });
    if (named != kNamed.end()) return forms::KeyStroke{named->second};
    const auto strokes = strokesOf(event.text());
    return strokes.empty() ? std::nullopt : std::optional(strokes.front());
}

std::vector<forms::KeyStroke> strokesOf(const QString& text) {
    std::vector<forms::KeyStroke> strokes;
    for (const QChar character : text) {
        const auto byte = codec::byteOf(character);
        if (byte && *byte >= ' ' && *byte != 0x7F) strokes.push_back({Key::Character, *byte});
    }
    return strokes;
}

}  // namespace keys
