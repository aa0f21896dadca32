// SPDX-License-Identifier: MIT
#pragma once

#include "shell/forms/controls.h"
#include "shell/forms/form.h"

/// The station, its helpers and the log file to be used.
struct SetupForm : forms::Form {
    explicit SetupForm(forms::Screen& screen);

    forms::ComboBox Combo4{*this, "Combo4"};
    forms::ComboBox Combo3{*this, "Combo3"};
    forms::ComboBox Combo5{*this, "Combo5"};
    forms::ComboBox Combo6{*this, "Combo6"};
    forms::ComboBox Combo7{*this, "Combo7"};
    forms::ComboBox Combo8{*this, "Combo8"};
    forms::ComboBox Combo9{*this, "Combo9"};
    forms::ComboBox Combo10{*this, "Combo10"};
    forms::ComboBox Power{*this, "Power"};
    forms::ComboBox Combo2{*this, "Combo2"};
    forms::ComboBox Combo13{*this, "Combo13"};
    forms::Label Label14{*this, "Label14", "Operators"};
    forms::ComboBox Combo11{*this, "Combo11"};
    forms::Label Label15{*this, "Label15", "More OPs"};
    forms::ComboBox Combo12{*this, "Combo12"};
    forms::ComboBox Combo1{*this, "Combo1"};
    forms::ComboBox Combo14{*this, "Combo14"};
    forms::ComboBox Combo15{*this, "Combo15"};
    forms::ComboBox Combo17{*this, "Combo17"};
    forms::ComboBox Combo19{*this, "Combo19"};
    forms::ComboBox Combo20{*this, "Combo20"};
    forms::FileListBox logFile{*this, "logFile"};
    forms::Button cmdDone{*this, "cmdDone", "Continue"};
    forms::Button cmdQuit{*this, "cmdQuit", "Quit"};
    forms::Label Label1{*this, "Label1", "<Click> Enter filename"};
    forms::Label Label2{*this, "Label2", "Log file"};
    forms::Label Label4{*this, "Label4", "To start a new contest"};
    forms::Label fName{*this, "fName"};
    forms::Label Label25{*this, "Label25"};
    forms::Label Label16{*this, "Label16", "UTC Offset"};
    forms::Label Label17{*this, "Label17", "Local"};
    forms::Label Label26{*this, "Label26", "Set UTC"};
    forms::Label UTC_2{*this, "UTC_2", "Local"};
    forms::Label Label20{*this, "Label20"};
    forms::Label Label35{*this, "Label35", "No Quotes"};
    forms::Timer Timer1{*this, "Timer1", 1000};
    forms::Timer Timer2{*this, "Timer2", 2000};
    forms::Timer Timer3{*this, "Timer3", 1000, false};
    forms::Timer Timer4{*this, "Timer4", 10000};
};
