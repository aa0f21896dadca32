// SPDX-License-Identifier: MIT
#pragma once

#include "shell/forms/controls.h"
#include "shell/forms/form.h"

/// What is being sent, and how to stop it.
struct TransmitForm : forms::Form {
    explicit TransmitForm(forms::Screen& screen) : Form(screen, "frmTX", "TARQEN   CW") {
        Frame3D1.named("Transmission");
        Label2.named("Text to be sent");
        Label3.named("Message");
    }
    forms::Label Frame3D1{*this, "Frame3D1"};
    forms::Label Label2{*this, "Label2"};
    forms::Label Label3{*this, "Label3"};
};

/// The keyboard as a keyer: what is typed waits here until it has gone.
struct KeyboardForm : forms::Form {
    explicit KeyboardForm(forms::Screen& screen) : Form(screen, "frmCWTX", "TARQEN   CW") {
        Frame3D1.named("Keyboard transmission");
        Label2.named("Text to be sent");
        Label3.named("Transmitter control");
    }
    forms::Label Frame3D1{*this, "Frame3D1"};
    forms::Label Label2{*this, "Label2"};
    forms::Label Label3{*this, "Label3"};
};
