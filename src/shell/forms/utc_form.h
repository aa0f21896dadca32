// SPDX-License-Identifier: MIT
#pragma once

#include "shell/forms/controls.h"
#include "shell/forms/form.h"

/// The offset from local time to UTC.
struct UtcForm : forms::Form {
    explicit UtcForm(forms::Screen& screen) : Form(screen, "UTCfrm", "TARQEN - UTC offset") {
        Offset.present("0");
        Offset.named("UTC offset in hours");
    }
    forms::TextBox Offset{*this, "Offset"};
    forms::Button Command1{*this, "Command1", "Done"};
    forms::Label LocalTime{*this, "LocalTime"};
    forms::Label UTCTime{*this, "UTCTime"};
    forms::Label UTCDate{*this, "UTCDate"};
    forms::Label Label3{*this, "Label3", "Help"};
    forms::Timer Timer{*this, "Timer", 1000};
};
