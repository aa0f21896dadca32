// SPDX-License-Identifier: MIT
#pragma once

#include "shell/forms/controls.h"
#include "shell/forms/form.h"

/// The band decoder on a parallel port, and Morse on the same port.
struct BandSwForm : forms::Form {
    explicit BandSwForm(forms::Screen& screen) : Form(screen, "BandSw", "TARQEN - Band decoder") {
        setHome(Command1);
        Addres.named("Address of the parallel port");
        Label7.named("About the band decoder");
        Start144.setChecked(true);
        for (forms::Control* const control :
             std::initializer_list<forms::Control*>{&CWLPT1, &PTTLPT, &Command2}) {
            control->setEnabled(false);
        }
    }
    forms::CheckBox LPT1{*this, "LPT1", " LPT disabled"};
    forms::TextBox Addres{*this, "Addres"};
    forms::OptionButton Start50{*this, "Start50", "Start at 50"};
    forms::OptionButton Start144{*this, "Start144", "Start at 144"};
    forms::Button Command2{*this, "Command2", "Test 222 (80m) Band Position"};
    forms::CheckBox CWLPT1{*this, "CWLPT1", " CW on COM port"};
    forms::CheckBox PTTLPT{*this, "PTTLPT", "PTT on LPT port"};
    forms::Button Command1{*this, "Command1", "OK"};
    forms::Label Label7{*this, "Label7"};
};
