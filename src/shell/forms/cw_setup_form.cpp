// SPDX-License-Identifier: MIT
#include "shell/forms/cw_setup_form.h"

CwSetupForm::CwSetupForm(forms::Screen& screen) : Form(screen, "CWSetup", "TARQEN - CW setup") {
    setHome(cmdOK);
    repeatDelay.named("Pause between repeated CQs, seconds");
    SpConstant.named("Calibration constant");
    File1.named("CW setup files");
    Label15.named("Speed, words a minute");
    Label20.named("Weight");
    Label16.named("Keying port");
    Label19.named("CW setup file in use");
    Label21.named("Change the message of F1");
    Label22.named("Message of F1");
    Label7.named("Message of F2");
    Label3.named("Change the message of F3");
    Label9.named("Message of F3");
    Label4.named("Change the message of F4");
    Label10.named("Message of F4");
    Label11.named("Message of F5");
    Label6.named("Change the message of F6");
    Label12.named("Message of F6");
    Label14.named("Change the message of F7");
    Label13.named("Message of F7");
    for (const char* const constant : {"100", "200", "500", "750", "1000"}) SpConstant.add(constant);
}
