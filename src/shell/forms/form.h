// SPDX-License-Identifier: MIT
// A form: its controls by name, its focus and tab order, and the road of a key through it.
// Leans on control.h; the forms of the program derive from it; the screen (screen.h) shows them and sends
// them keys.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "shell/forms/control.h"

namespace forms {

class Screen;

class Form {
public:
    /// `popUp` forms and dialogs of their own kind use the same class.
    Form(Screen& screen, std::string name, std::string caption);
    virtual ~Form() = default;
    Form(const Form&) = delete;
    Form& operator=(const Form&) = delete;

    const std::string& name() const { return name_; }
    const std::string& caption() const { return caption_; }
    void setCaption(std::string_view caption);
    bool visible() const { return visible_; }
    bool loaded() const { return loaded_; }
    Screen& screen() const { return screen_; }
    Colour backColour() const { return backColour_; }
    void setBackColour(Colour colour) { backColour_ = colour; }
    double fontSize() const { return fontSize_; }
    void setFontSize(double points) { fontSize_ = points; }

    /// The distance from the upper edge of the screen in twips; 0 leaves it to the desktop.
    int top() const { return top_; }
    void setTop(int twips) { top_ = twips; }

    /// Runs onLoad, once until the form is unloaded.
    void load();
    /// Loads the form where that is still to be done, then shows it in front of the others.
    void show();
    void hide();
    /// Hides the form, stops its timers and lets it load anew.
    void unload();
    /// The operator closes the window by its frame: onQueryClose may refuse.
    void close();

    const std::vector<Control*>& controls() const { return controls_; }
    /// The control of a name, case and all, or null.
    Control* find(std::string_view name) const;

    /// The control with the focus, or null.
    Control* focused() const { return focused_; }
    /// Moves the focus, with onLostFocus of the old control and then onGotFocus of the new one. Where the new
    /// one can't take it (hidden, disabled, no field), nothing happens.
    void focus(Control& control);
    /// Where the focus goes when the control that has it goes away, so that no key is lost.
    void setHome(Control& control) { home_ = &control; }
    /// Called when the form comes to the front: a form without a focus gives it to its first field.
    void activate();

    /// The road of a key: onKeyDown, then, of a key with a character, onKeyPress of the form and of the
    /// control with the focus, then that control's default action.
    void press(KeyStroke stroke);

    std::function<void()> onLoad, onUnload, onClick, onRightClick, onActivate;
    /// Another form has come to the front, or this one is hidden.
    std::function<void()> onDeactivate;
    std::function<void(KeyStroke&)> onKeyDown;
    std::function<void(KeyPress&)> onKeyPress;
    /// Set the argument to true to keep the window open.
    std::function<void(bool&)> onQueryClose;
    /// The one who mirrors the form: called on show, hide and a new caption, and when the focus has moved.
    std::function<void()> watcher, focusWatcher;

private:
    friend class Control;
    void enrol(Control& control) { controls_.push_back(&control); }
    void focusLeaves(Control& control);
    void focusByKey(Control& control);
    void tab(bool forward);

    Screen& screen_;
    std::string name_, caption_;
    std::vector<Control*> controls_;
    Control* focused_ = nullptr;
    Control* home_ = nullptr;
    bool visible_ = false, loaded_ = false;
    int top_ = 0;
    Colour backColour_ = kDefaultColour;
    double fontSize_ = 8.25;
};

}  // namespace forms
