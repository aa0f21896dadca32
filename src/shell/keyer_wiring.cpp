// SPDX-License-Identifier: MIT
#include "shell/keyer_wiring.h"

#include "bandsw/band_encoder.h"
#include "keyer/calibration.h"
#include "keyer/cw_setup.h"
#include "keyer/keyboard.h"
#include "keyer/messages.h"
#include "keyer/port_settings.h"
#include "shell/wiring.h"

namespace {

void wireTransmitForms(Station& s) {
    TransmitForm& message = s.forms.frmTX;
    message.onKeyDown = [&s](forms::KeyStroke& stroke) { frmTX_KeyDown(s, stroke); };
    message.onKeyPress = [&s](forms::KeyPress& key) { frmTX_KeyPress(s, key); };
    message.onDeactivate = runs(s, frmTX_Deactivate);
    message.onQueryClose = [&s](bool& refuse) {
        refuse = true;
        frmTX_Deactivate(s);
    };
    KeyboardForm& keyboard = s.forms.frmCWTX;
    keyboard.onKeyDown = [&s](forms::KeyStroke& stroke) { frmCWTX_KeyDown(s, stroke); };
    keyboard.onKeyPress = [&s](forms::KeyPress& key) { frmCWTX_KeyPress(s, key); };
    keyboard.onDeactivate = runs(s, frmCWTX_Deactivate);
    keyboard.onQueryClose = [&s](bool& refuse) { frmCWTX_QueryClose(s, refuse); };
}

void wireMessages(Station& s) {
    CwSetupForm& form = s.forms.CWSetup;
    const auto asks = [&s](StoredMessage which) { return [&s, which] { askMessage(s, which); }; };
    form.Label21.onClick = asks(StoredMessage::F1);
    form.Label3.onClick = asks(StoredMessage::F3);
    form.Label4.onClick = asks(StoredMessage::F4);
    form.Label6.onClick = asks(StoredMessage::F6);
    form.Label14.onClick = asks(StoredMessage::F7);
}

void wireSetup(Station& s) {
    CwSetupForm& form = s.forms.CWSetup;
    form.onLoad = runs(s, CWSetup_Load);
    form.onQueryClose = [&s](bool& refuse) { CWSetup_QueryClose(s, refuse); };
    form.cmdSpeed.onClick = runs(s, cmdSpeed_Click);
    form.cmdWeight.onClick = runs(s, cmdWeight_Click);
    form.Command2.onClick = runs(s, CWSetup_Command2_Click);
    form.SpConstant.onChange = runs(s, SpConstant_Change);
    form.SpConstant.onClick = runs(s, SpConstant_Change);
    form.repeatDelay.onChange = runs(s, repeatDelay_Change);
    form.Check3D2.onClick = runs(s, Check3D2_Click);
    form.CWCall.onClick = [&s] { chooseF1(s, true); };
    form.IncSer.onClick = [&s] { chooseF1(s, false); };
    form.cmdCom.onClick = runs(s, cmdCom_Click);
    form.cmdTest.onClick = runs(s, cmdTest_Click);
    form.cmdCal.onClick = runs(s, cmdCal_Click);
    form.cmdOK.onClick = runs(s, CWSetup_cmdOK_Click);
    form.File1.onClick = runs(s, File1_Click);
    form.Command1.onClick = runs(s, CWSetup_Command1_Click);
    wireMessages(s);
}

void wirePort(Station& s) {
    PortForm& form = s.forms.ConfigScrn;
    form.onLoad = runs(s, ConfigScrn_Load);
    for (int port = 1; port <= static_cast<int>(form.ports.size()); ++port) {
        form.comPort(port).onClick = [&s, port] { ComPort_Click(s, port); };
    }
    form.SwapCom.onClick = runs(s, SwapCom_Click);
    form.otherPortName.onChange = runs(s, otherPortName_Change);
    form.otherPortName.onClick = runs(s, otherPortName_Click);
    form.otherPortAddress.onChange = runs(s, otherPortAddress_Change);
    form.otherPortAddress.onClick = runs(s, otherPortAddress_Change);
    form.OKButton.onClick = runs(s, OKButton_Click);
    form.Command1.onClick = runs(s, ConfigScrn_Command1_Click);
}

void wireDecoder(Station& s) {
    BandSwForm& form = s.forms.BandSw;
    form.onLoad = runs(s, BandSw_Load);
    form.onQueryClose = [&form](bool& refuse) {
        refuse = true;
        form.hide();
    };
    form.LPT1.onClick = runs(s, LPT1_Click);
    form.Addres.onChange = runs(s, Addres_Change);
    form.Addres.onLostFocus = runs(s, Addres_LostFocus);
    form.Start50.onClick = runs(s, Start50_Click);
    form.Start144.onClick = runs(s, Start144_Click);
    form.Command2.onClick = runs(s, BandSw_Command2_Click);
    form.CWLPT1.onClick = runs(s, CWLPT1_Click);
    form.PTTLPT.onClick = runs(s, PTTLPT_Click);
    form.Command1.onClick = runs(s, BandSw_Command1_Click);
}

}  // namespace

void wireKeyer(Station& s) {
    LogForm& log = s.forms.frmLog;
    wireTransmitForms(s);
    wireSetup(s);
    wirePort(s);
    wireDecoder(s);
    log.tBand.onChange = runs(s, tBand_Change);
    log.cmdCkOK.onClick = runs(s, cmdCkOK_Click);
    log.menu.mCWSet.onClick = [&s] { s.forms.CWSetup.show(); };
    log.menu.mBands.onClick = [&s] { s.forms.BandSw.show(); };
}
