// SPDX-License-Identifier: MIT
// One control of a form, as a plain object: its properties, its events, and what a key does to it.
// Leans on base alone; forms register their controls by name; routines read and set them; shell/qt mirrors
// them in widgets; shell/headless addresses them by name.
#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace forms {

class Form;

/// red + 256 green + 65536 blue; kDefaultColour is the desktop's own.
using Colour = int;
constexpr Colour kDefaultColour = -1;
constexpr Colour kBlack = 0;
constexpr Colour kRed = 255;
/// The light ground of a choice that is on.
constexpr Colour kLight = 16777088;
constexpr Colour rgb(int red, int green, int blue) { return red + 256 * green + 65536 * blue; }

/// What of a control has changed, for the one who mirrors it.
enum class Property {
    Text,
    Caret,
    Visible,
    Enabled,
    Colours,
    Font,
    ToolTip,
    Items,
    Selection,
    Checked,
    Place
};

enum class Key {
    Character,
    Enter,
    Esc,
    Tab,
    BackTab,
    Backspace,
    Delete,
    Up,
    Down,
    Left,
    Right,
    Home,
    End,
    PageUp,
    PageDown,
    Ctrl,
    F1,
    F2,
    F3,
    F4,
    F5,
    F6,
    F7,
    F8,
    F9,
    F10,
    F11,
    F12
};

/// One key going down; `character` holds the single-byte character of a Key::Character, a blank included.
struct KeyStroke {
    Key key = Key::Character;
    unsigned char character = 0;
    /// Set by a handler to keep the key from going on.
    bool swallowed = false;
};

/// A key with a character code on its way into a control: 13 for Enter, 27 Esc, 8 Backspace, 9 a tab as text.
struct KeyPress {
    int code = 0;
    bool swallowed = false;
};

struct Font {
    std::string name = "MS Sans Serif";
    double size = 8.25;
    bool bold = false;
};

class Control {
public:
    Control(Form& form, std::string name);
    virtual ~Control() = default;
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;

    const std::string& name() const { return name_; }
    Form& form() const { return form_; }
    /// The text of a field, the caption of anything else; empty where the control has neither.
    virtual std::string content() const { return {}; }
    virtual bool canTakeFocus() const { return false; }
    /// Whether the Tab key stops here.
    bool tabStop() const { return tabStop_ && canTakeFocus(); }
    void setTabStop(bool stop) { tabStop_ = stop; }

    bool visible() const { return visible_; }
    bool enabled() const { return enabled_; }
    /// Visible and enabled: a hidden control counts as not enabled wherever that is asked.
    bool usable() const { return visible_ && enabled_; }
    void setVisible(bool visible);
    void setEnabled(bool enabled);
    void show() { setVisible(true); }
    void hide() { setVisible(false); }

    Colour backColour() const { return backColour_; }
    Colour foreColour() const { return foreColour_; }
    void setBackColour(Colour colour);
    void setForeColour(Colour colour);
    const Font& font() const { return font_; }
    void setFontName(const std::string& name);
    void setFontSize(double points);
    void setFontBold(bool bold);
    const std::string& toolTip() const { return toolTip_; }
    void setToolTip(const std::string& tip);
    /// In twips, a twentieth of a point.
    int left() const { return left_; }
    int width() const { return width_; }
    void setLeft(int twips);
    void setWidth(int twips);
    /// What a reader of the screen is told; the binder falls back on the control's text or name.
    const std::string& accessibleName() const { return accessibleName_; }
    Control& named(const std::string& accessibleName) {
        accessibleName_ = accessibleName;
        return *this;
    }

    /// What the control does with a key that no handler swallowed; false where it has no use for it.
    virtual bool defaultKey(const KeyStroke&) { return false; }
    /// A left click, focus already moved here: the control's own effect, then onClick.
    virtual void click() { raise(onClick); }
    virtual void doubleClick() { raise(onDoubleClick); }

    std::function<void()> onClick, onDoubleClick, onRightClick, onChange, onGotFocus, onLostFocus;
    std::function<void(KeyPress&)> onKeyPress;
    /// The one who mirrors the control on a screen.
    std::function<void(Property)> watcher;

    static void raise(const std::function<void()>& handler) {
        if (handler) handler();
    }

protected:
    void changed(Property property) {
        if (watcher) watcher(property);
    }

private:
    Form& form_;
    std::string name_;
    bool visible_ = true, enabled_ = true, tabStop_ = true;
    Colour backColour_ = kDefaultColour, foreColour_ = kDefaultColour;
    Font font_;
    std::string toolTip_, accessibleName_;
    int left_ = 0, width_ = 0;
};

}  // namespace forms
