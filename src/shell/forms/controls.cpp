// SPDX-License-Identifier: MIT
#include "shell/forms/controls.h"

#include <algorithm>

#include "base/run_time_error.h"
#include "base/text.h"
#include "shell/forms/form.h"

namespace forms {

namespace {

bool presses(const KeyStroke& stroke) { return stroke.key == Key::Character && stroke.character == ' '; }

/// The row that an arrow key leads to, or the same row where it leads nowhere.
int rowAfter(Key key, int row, int count) {
    if (count == 0) return row;
    switch (key) {
        case Key::Up:
            return std::max(row - 1, 0);
        case Key::Down:
            return std::min(row + 1, count - 1);
        case Key::Home:
            return 0;
        case Key::End:
            return count - 1;
        default:
            return row;
    }
}

bool walks(Key key) { return key == Key::Up || key == Key::Down || key == Key::Home || key == Key::End; }

}  // namespace

void Captioned::setCaption(std::string_view caption) {
    if (caption == caption_) return;
    caption_ = caption;
    changed(Property::Text);
}

bool Button::defaultKey(const KeyStroke& stroke) {
    if (stroke.key != Key::Enter && !presses(stroke)) return false;
    click();
    return true;
}

void CheckBox::setChecked(bool checked) {
    if (checked == checked_) return;
    checked_ = checked;
    changed(Property::Checked);
}

void CheckBox::click() {
    setChecked(!checked_);
    raise(onClick);
}

bool CheckBox::defaultKey(const KeyStroke& stroke) {
    if (!presses(stroke)) return false;
    click();
    return true;
}

void OptionButton::click() {
    setChecked(true);
    raise(onClick);
}

void TextLine::put(std::string text, int caret) {
    const bool differs = text != text_;
    text_ = std::move(text);
    caret_ = anchor_ = std::clamp(caret, 0, static_cast<int>(text_.size()));
    changed(differs ? Property::Text : Property::Caret);
    if (differs) raise(onChange);
}

void TextLine::setText(std::string_view text) { put(std::string(text), static_cast<int>(text.size())); }

void TextLine::present(std::string_view text) {
    text_ = text;
    caret_ = anchor_ = static_cast<int>(text_.size());
    changed(Property::Text);
}

void TextLine::select(int anchor, int caret) {
    const int end = static_cast<int>(text_.size());
    anchor_ = std::clamp(anchor, 0, end);
    caret_ = std::clamp(caret, 0, end);
    changed(Property::Caret);
}

void TextLine::erase(bool before) {
    int first = std::min(anchor_, caret_), last = std::max(anchor_, caret_);
    if (first == last) before ? --first : ++last;
    if (first < 0 || last > static_cast<int>(text_.size())) return;
    std::string rest = text_;
    rest.erase(static_cast<std::size_t>(first), static_cast<std::size_t>(last - first));
    put(std::move(rest), first);
}

bool TextLine::moveCaret(Key key) {
    int to = caret_;
    if (key == Key::Left) --to;
    if (key == Key::Right) ++to;
    if (key == Key::Home) to = 0;
    if (key == Key::End) to = static_cast<int>(text_.size());
    const bool moves = key == Key::Left || key == Key::Right || key == Key::Home || key == Key::End;
    if (moves) select(std::clamp(to, 0, static_cast<int>(text_.size())), to);
    return moves;
}

bool TextLine::defaultKey(const KeyStroke& stroke) {
    if (stroke.key == Key::Character && stroke.character >= 32) {
        const int first = std::min(anchor_, caret_), last = std::max(anchor_, caret_);
        std::string next = text_;
        next.replace(static_cast<std::size_t>(first), static_cast<std::size_t>(last - first), 1,
                     static_cast<char>(stroke.character));
        put(std::move(next), first + 1);
        return true;
    }
    if (stroke.key == Key::Backspace || stroke.key == Key::Delete) {
        erase(stroke.key == Key::Backspace);
        return true;
    }
    return moveCaret(stroke.key);
}

void ComboBox::add(std::string_view item) {
    items_.emplace_back(item);
    changed(Property::Items);
}

void ComboBox::clear() {
    items_.clear();
    listIndex_ = -1;
    changed(Property::Items);
}

int ComboBox::listIndex() const {
    const bool stands = listIndex_ >= 0 && items_[static_cast<std::size_t>(listIndex_)] == text();
    return stands ? listIndex_ : -1;
}

void ComboBox::choose(int index) {
    if (index < 0 || index >= static_cast<int>(items_.size())) throw subscriptError();
    listIndex_ = index;
    present(items_[static_cast<std::size_t>(index)]);
    raise(onClick);
}

bool ComboBox::defaultKey(const KeyStroke& stroke) {
    if (stroke.key != Key::Up && stroke.key != Key::Down) return TextLine::defaultKey(stroke);
    const auto at = std::find(items_.begin(), items_.end(), text());
    const int row = at == items_.end() ? -1 : static_cast<int>(at - items_.begin());
    const int next = rowAfter(stroke.key, row, static_cast<int>(items_.size()));
    if (next != row) choose(next);
    return true;
}

std::string ListBox::content() const {
    return listIndex_ < 0 ? std::string() : items_[static_cast<std::size_t>(listIndex_)];
}

void ListBox::add(std::string_view item) {
    items_.emplace_back(item);
    changed(Property::Items);
}

void ListBox::remove(int index) {
    if (index < 0 || index >= listCount()) throw badCallError();
    items_.erase(items_.begin() + index);
    listIndex_ = std::min(listIndex_, listCount() - 1);
    changed(Property::Items);
}

void ListBox::clear() { setItems({}); }

void ListBox::setItems(std::vector<std::string> items) {
    items_ = std::move(items);
    listIndex_ = -1;
    changed(Property::Items);
}

void ListBox::select(int index) {
    if (index < -1 || index >= listCount()) throw badCallError();
    listIndex_ = index;
    changed(Property::Selection);
}

void ListBox::clickRow(int index) {
    if (index >= 0 && index < listCount()) select(index);
    raise(onClick);
}

void ListBox::doubleClickRow(int index) {
    // A double click beside the rows is none on the row that happens to be selected.
    if (index < 0 || index >= listCount()) return;
    select(index);
    raise(onDoubleClick);
}

bool ListBox::defaultKey(const KeyStroke& stroke) {
    if ((stroke.key == Key::Enter || presses(stroke)) && listIndex_ >= 0) {
        clickRow(listIndex_);
        return true;
    }
    if (!walks(stroke.key)) return false;
    const int next = rowAfter(stroke.key, listIndex_, listCount());
    if (next != listIndex_) clickRow(next);
    return true;
}

Timer::Timer(Form& form, std::string name, int milliseconds, bool running)
    : Control(form, std::move(name)), interval_(milliseconds) {
    setEnabled(running);
}

void Timer::start() {
    if (!enabled()) ++starts_;
    setEnabled(true);
}

void Timer::setInterval(int milliseconds) { interval_ = milliseconds; }

MenuItem::MenuItem(Form& form, std::string name, MenuItem* parent, std::string caption)
    : Captioned(form, std::move(name), std::move(caption)), parent_(parent) {
    if (parent_) parent_->children_.push_back(this);
}

void MenuItem::setChecked(bool checked) {
    if (checked == checked_) return;
    checked_ = checked;
    changed(Property::Checked);
}

bool MenuItem::reachable() const {
    return usable() && (parent_ == nullptr || parent_->popUpOpen_ || parent_->reachable());
}

}  // namespace forms
