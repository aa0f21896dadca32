// SPDX-License-Identifier: MIT
// The kinds of controls that the forms are made of.
#pragma once

#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

#include "shell/forms/control.h"

namespace forms {

/// A control whose face is a caption.
class Captioned : public Control {
public:
    Captioned(Form& form, std::string name, std::string caption = {})
        : Control(form, std::move(name)), caption_(std::move(caption)) {}
    std::string content() const override { return caption_; }
    const std::string& caption() const { return caption_; }
    void setCaption(std::string_view caption);

private:
    std::string caption_;
};

class Label : public Captioned {
public:
    using Captioned::Captioned;
};

class Button : public Captioned {
public:
    using Captioned::Captioned;
    bool canTakeFocus() const override { return true; }
    /// Enter and the space bar press it.
    bool defaultKey(const KeyStroke& stroke) override;
};

/// A box with a mark: a click turns it over. Setting the mark from a routine raises nothing.
class CheckBox : public Captioned {
public:
    using Captioned::Captioned;
    bool canTakeFocus() const override { return true; }
    bool checked() const { return checked_; }
    void setChecked(bool checked);
    void click() override;
    bool defaultKey(const KeyStroke& stroke) override;

private:
    bool checked_ = false;
};

/// One of several boxes of a form of which a click marks one; the form's routine clears the others.
class OptionButton : public CheckBox {
public:
    using CheckBox::CheckBox;
    void click() override;
};

/// What a line of text with a caret does with the keys of editing. Positions count from 0, between
/// characters.
class TextLine : public Control {
public:
    using Control::Control;
    std::string content() const override { return text_; }
    const std::string& text() const { return text_; }
    bool canTakeFocus() const override { return true; }
    /// As any change of the text: raises onChange once, here, unless the text stays the same. The caret goes
    /// to the end.
    void setText(std::string_view text);
    /// Shows a text that was read from a file; nobody has changed anything, so nothing is raised.
    void present(std::string_view text);
    int caret() const { return caret_; }
    int anchor() const { return anchor_; }
    /// The selection lies between anchor and caret.
    void select(int anchor, int caret);
    bool defaultKey(const KeyStroke& stroke) override;

protected:
    bool moveCaret(Key key);

private:
    void put(std::string text, int caret);
    void erase(bool before);
    std::string text_;
    int caret_ = 0, anchor_ = 0;
};

class TextBox : public TextLine {
public:
    using TextLine::TextLine;
};

/// A field with a list behind it; any text may be typed.
class ComboBox : public TextLine {
public:
    using TextLine::TextLine;
    const std::vector<std::string>& items() const { return items_; }
    /// The item picked, or -1 where none is, or another text stands in the field by now.
    int listIndex() const;
    void add(std::string_view item);
    void clear();
    /// Reached by the keyboard, the whole text is selected, so that typing replaces it.
    void selectAll() { select(0, static_cast<int>(text().size())); }
    /// The operator's pick: the text becomes the item's, then onClick is raised, and no onChange.
    void choose(int index);
    /// Up and Down walk the list as a pick does.
    bool defaultKey(const KeyStroke& stroke) override;

private:
    std::vector<std::string> items_;
    int listIndex_ = -1;
};

class ListBox : public Control {
public:
    using Control::Control;
    bool canTakeFocus() const override { return true; }
    std::string content() const override;
    const std::vector<std::string>& items() const { return items_; }
    int listCount() const { return static_cast<int>(items_.size()); }
    int listIndex() const { return listIndex_; }
    void add(std::string_view item);
    void remove(int index);
    void clear();
    void setItems(std::vector<std::string> items);
    /// Selects a row, or none with -1, and raises nothing. A row that isn't there raises a fault.
    void select(int index);
    /// The operator's click on a row: selects it, then raises onClick. A click beside the rows selects
    /// nothing new.
    void clickRow(int index);
    void doubleClickRow(int index);
    bool defaultKey(const KeyStroke& stroke) override;

private:
    std::vector<std::string> items_;
    int listIndex_ = -1;
};

/// The files of a pattern; the form's routine fills it.
class FileListBox : public ListBox {
public:
    using ListBox::ListBox;
};

/// A clock of the form. Its time runs from the moment it is enabled.
class Timer : public Control {
public:
    Timer(Form& form, std::string name, int milliseconds, bool running = true);
    int interval() const { return interval_; }
    void setInterval(int milliseconds);
    /// Starts the interval anew where the timer stood still.
    void start();
    void stop() { setEnabled(false); }
    /// How often the timer has been started, for the one who keeps its due time.
    int starts() const { return starts_; }
    std::function<void()> onTimer;

private:
    int interval_;
    int starts_ = 0;
};

/// An item of the menu bar; a parent of null is the bar itself. A caption of "-" is a separator.
class MenuItem : public Captioned {
public:
    MenuItem(Form& form, std::string name, MenuItem* parent, std::string caption);
    MenuItem* parent() const { return parent_; }
    const std::vector<MenuItem*>& children() const { return children_; }
    bool checked() const { return checked_; }
    void setChecked(bool checked);
    /// Usable, and so is every menu above it. A pop-up menu's items are usable while it is open.
    bool reachable() const;
    /// Whether this menu, hidden from the bar or not, lies open at the pointer (see Screen::openPopUp).
    bool popUpOpen() const { return popUpOpen_; }
    void setPopUpOpen(bool open) { popUpOpen_ = open; }

private:
    MenuItem* parent_;
    std::vector<MenuItem*> children_;
    bool checked_ = false, popUpOpen_ = false;
};

}  // namespace forms
