// SPDX-License-Identifier: MIT
#include "shell/forms/setup_form.h"

SetupForm::SetupForm(forms::Screen& screen) : Form(screen, "frmSetup", "TARQEN - Setup") {
    Combo4.named("CALL");
    Combo3.named("Name");
    Combo5.named("Address");
    Combo6.named("City, ST Zip");
    Combo7.named("6-digit Grid");
    Combo8.named("Club Affil.");
    Combo9.named("ARRL Sec.");
    Combo10.named("Category-Operator");
    Combo11.named("Operators");
    Combo12.named("More OPs");
    Power.named("Category-Power");
    Combo2.named("Category-Station");
    Combo13.named("Category-Transmitter");
    Combo1.named("Save BU: drive");
    Combo14.named("Bands to Work");
    Combo15.named("Transv Offsets");
    Combo17.named("Headings");
    Combo19.named("Activity hours");
    Combo20.named("Miles / kM.");
    logFile.named("Log files");
    fName.named("Name of the log file");
    Label25.named("Contest");
    setHome(Combo4);
    Combo20.setEnabled(false);
    fName.hide();
    Label2.hide();
    Label25.hide();
    cmdDone.setEnabled(false);
    Combo1.setLeft(6480);
    Combo1.setWidth(972);
    Label35.setToolTip(" Do not use quotes in any data field ");
    Label1.setToolTip(" Click here and enter a new log filename - no slashes ");
    logFile.setToolTip(" Double-click to re-load existing file ");
}
