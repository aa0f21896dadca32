// SPDX-License-Identifier: MIT
#pragma once

#include <array>

#include "shell/forms/controls.h"
#include "shell/forms/form.h"

/// The serial port that keys Morse and push-to-talk.
struct PortForm : forms::Form {
    explicit PortForm(forms::Screen& screen);
    /// The option of a port, 1 to 5.
    forms::OptionButton& comPort(int port) { return *ports[static_cast<std::size_t>(port - 1)]; }

    forms::OptionButton ComPort1{*this, "ComPort(1)", "COM1"};
    forms::OptionButton ComPort2{*this, "ComPort(2)", "COM2"};
    forms::OptionButton ComPort3{*this, "ComPort(3)", "COM3"};
    forms::OptionButton ComPort4{*this, "ComPort(4)", "COM4"};
    forms::OptionButton ComPort5{*this, "ComPort(5)", "Other port"};
    forms::ComboBox otherPortName{*this, "otherPortName"};
    forms::ComboBox otherPortAddress{*this, "otherPortAddress"};
    forms::CheckBox SwapCom{*this, "SwapCom", "Swap DTR and RTS"};
    forms::Button OKButton{*this, "OKButton", "OK"};
    forms::Button Command1{*this, "Command1", "Help"};
    forms::Label otherNameLabel{*this, "otherNameLabel", "USB or other COM ports (newer PCs)"};
    forms::Label otherAddressLabel{*this, "otherAddressLabel",
                                   "Enter port number and USB or Hex address &Hxxx"};

    std::array<forms::OptionButton*, 5> ports{&ComPort1, &ComPort2, &ComPort3, &ComPort4, &ComPort5};
};
