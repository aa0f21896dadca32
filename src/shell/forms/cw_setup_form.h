// SPDX-License-Identifier: MIT
#pragma once

#include "shell/forms/controls.h"
#include "shell/forms/form.h"

/// Speed, weight, messages, files and calibration of the Morse keyer. Its order is the tab order.
struct CwSetupForm : forms::Form {
    explicit CwSetupForm(forms::Screen& screen);

    forms::Button cmdSpeed{*this, "cmdSpeed", "Speed"};
    forms::Button cmdWeight{*this, "cmdWeight", "Weight"};
    forms::Button Command2{*this, "Command2", "Normal weight"};
    forms::ComboBox SpConstant{*this, "SpConstant"};
    forms::Button cmdCal{*this, "cmdCal", "Calibrate"};
    forms::TextBox repeatDelay{*this, "repeatDelay"};
    forms::FileListBox File1{*this, "File1"};
    forms::Button Command1{*this, "Command1", "Save under a new name"};
    forms::OptionButton CWCall{*this, "CWCall", "Call, then keyboard"};
    forms::OptionButton IncSer{*this, "IncSer", "Call within the F1 message"};
    forms::Button cmdCom{*this, "cmdCom", "Port"};
    forms::CheckBox Check3D2{*this, "Check3D2", "Use PTT"};
    forms::Button cmdTest{*this, "cmdTest", "Test"};
    forms::Button cmdOK{*this, "cmdOK", "OK"};

    forms::Label Label15{*this, "Label15"};
    forms::Label Label20{*this, "Label20"};
    forms::Label Label16{*this, "Label16", "COM1"};
    forms::Label Label19{*this, "Label19"};
    // A click on the name of a key asks for its message, which stands beside it.
    forms::Label Label21{*this, "Label21", "F1"};
    forms::Label Label22{*this, "Label22", "CALL"};
    forms::Label Label7{*this, "Label7"};
    forms::Label Label3{*this, "Label3", "F3"};
    forms::Label Label9{*this, "Label9"};
    forms::Label Label4{*this, "Label4", "F4"};
    forms::Label Label10{*this, "Label10"};
    forms::Label Label11{*this, "Label11", "Repeating F2 message (2 X 2 CQ)"};
    forms::Label Label6{*this, "Label6", "F6"};
    forms::Label Label12{*this, "Label12"};
    forms::Label Label14{*this, "Label14", "F7"};
    forms::Label Label13{*this, "Label13"};
};
