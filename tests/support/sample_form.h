// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "shell/forms/controls.h"
#include "shell/forms/form.h"
#include "shell/forms/screen.h"

/// A form with a control of each kind, for tests that need one and none of the program's.
struct SampleForm : forms::Form {
    explicit SampleForm(forms::Screen& screen, const std::string& name = "Sample")
        : Form(screen, name, "A sample") {
        menu.hide();
    }
    forms::TextBox first{*this, "first"};
    forms::TextBox second{*this, "second"};
    forms::ComboBox combo{*this, "combo"};
    forms::ListBox list{*this, "list"};
    forms::Button button{*this, "button(3)", "Press"};
    forms::CheckBox box{*this, "box", "Mark"};
    forms::OptionButton option{*this, "option", "One of them"};
    forms::Label label{*this, "label", "Label"};
    forms::Timer slow{*this, "slow", 1000, false};
    forms::Timer fast{*this, "fast", 300, false};
    forms::MenuItem bar{*this, "bar", nullptr, "Bar"};
    forms::MenuItem item{*this, "item", &bar, "Item"};
    forms::MenuItem menu{*this, "menu", nullptr, "Pop-up"};
    forms::MenuItem popped{*this, "popped", &menu, "Popped"};
};

/// The events of a test in their order.
using Events = std::vector<std::string>;
