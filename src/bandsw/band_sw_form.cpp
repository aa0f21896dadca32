// SPDX-License-Identifier: MIT
#include <initializer_list>

#include "bandsw/band_code.h"
#include "bandsw/band_encoder.h"
#include "base/number.h"
#include "base/text.h"
#include "core/say.h"
#include "keyer/key_bytes.h"

namespace {

std::string& value(Station& s, int index) { return s.ControlValues(index); }

bool pttOnLpt(Station& s) { return text::upper(value(s, setting::PttOnLpt)) == "YES"; }

void takeAddress(Station& s) { s.session.LPTAddress = keyer::portAddress(s.forms.BandSw.Addres.text()); }

void highlight(forms::CheckBox& box, bool on) {
    box.setChecked(on);
    box.setBackColour(on ? forms::kLight : forms::kDefaultColour);
}

void writeByte(Station& s, int byte) {
    s.session.PortByte = byte;
    s.platform.ports.write(s.session.LPTAddress, byte);
}

void showDecoder(Station& s, bool on) {
    BandSwForm& form = s.forms.BandSw;
    form.LPT1.setCaption(on ? " LPT activated" : " LPT disabled");
    highlight(form.LPT1, on);
    for (forms::Control* const control :
         std::initializer_list<forms::Control*>{&form.CWLPT1, &form.PTTLPT, &form.Command2}) {
        control->setEnabled(on);
    }
}

void showStart(Station& s, bool at144) {
    BandSwForm& form = s.forms.BandSw;
    highlight(form.Start144, at144);
    highlight(form.Start50, !at144);
    form.Command2.setCaption(at144 ? "Test 222 (80m) Band Position" : "Test 222 (40m) Band Position");
}

void chooseStart(Station& s, bool at144) {
    value(s, setting::EncoderStart) = at144 ? "1" : "0";
    showStart(s, at144);
    s.session.PortByte = testCode(at144);
    if (s.forms.BandSw.LPT1.checked()) writeByte(s, testCode(at144));
}

void writeTestCode(Station& s) { writeByte(s, testCode(!s.forms.BandSw.Start50.checked())); }

void keyOnLpt(Station& s) {
    Session& session = s.session;
    value(s, setting::CwOnLpt) = "LPT CW";
    session.COMPortIndex = number::wholeOf(value(s, setting::CwPort));
    s.forms.BandSw.CWLPT1.setCaption(" CW on LPT port");
    s.forms.CWSetup.Label16.setCaption("LPT");
    const auto bytes = keyer::lptBytes(pttOnLpt(s));
    session.KeyUpByte = bytes.up;
    session.KeyDownByte = bytes.down;
    if (bytes.ptt) session.PTTByte = *bytes.ptt;
}

/// Back to the serial port push-to-talk is on.
void keyOnCom(Station& s) {
    CwSetupForm& setup = s.forms.CWSetup;
    s.forms.BandSw.CWLPT1.setCaption(" CW on COM port");
    value(s, setting::CwOnLpt) = "no LPT CW";
    const bool other = value(s, setting::CwPort) == "5";
    setup.Label16.setCaption("COM" + value(s, other ? setting::OtherPortId : setting::CwPort));
    setup.Check3D2.setEnabled(true);
    highlight(setup.Check3D2, true);
    s.session.PTTEnabled = 1;
}

void storePtt(Station& s, bool onLpt) {
    value(s, setting::PttOnLpt) = onLpt ? "Yes" : "No";
    value(s, setting::DvkPtt) = onLpt ? "DVK PTT" : "no DVK PTT";
}

/// Nothing can be keyed on a port that isn't used: both choices go as if they had been clicked.
void switchOff(Station& s) {
    BandSwForm& form = s.forms.BandSw;
    if (form.CWLPT1.checked()) keyOnCom(s);
    form.CWLPT1.setChecked(false);
    value(s, setting::CwOnLpt) = "no CW LPT";
    if (form.PTTLPT.checked()) storePtt(s, false);
    form.PTTLPT.setChecked(false);
    showDecoder(s, false);
    s.platform.ports.write(s.session.LPTAddress, 0);
    s.platform.windows.pump();
}

}  // namespace

void BandSw_Load(Station& s) {
    BandSwForm& form = s.forms.BandSw;
    form.Label7.setCaption(
        "The band decoder is connected to an LPT port. If using a PCI LPT "
        "board, enter the Hex address of the port being used.");
    if (value(s, setting::LptAddress).empty()) value(s, setting::LptAddress) = "&H378";
    form.Addres.present(value(s, setting::LptAddress));
    takeAddress(s);
    showDecoder(s, value(s, setting::BandEncoder) == "1");
    const bool cw = value(s, setting::CwOnLpt) == "LPT CW";
    form.CWLPT1.setChecked(cw);
    form.CWLPT1.setCaption(cw ? " CW on LPT port" : " CW on COM port");
    form.PTTLPT.setChecked(value(s, setting::PttOnLpt) == "Yes");
    showStart(s, value(s, setting::EncoderStart) != "0");
}

void Addres_Change(Station& s) {
    takeAddress(s);
    value(s, setting::LptAddress) = s.forms.BandSw.Addres.text();
}

void Addres_LostFocus(Station& s) { takeAddress(s); }

void LPT1_Click(Station& s) {
    if (!s.forms.BandSw.LPT1.checked()) return switchOff(s);
    showDecoder(s, true);
    try {
        s.platform.ports.reach(s.session.LPTAddress);
    } catch (const PortError& error) {
        tell(s, error.what());
    }
    writeTestCode(s);
}

void Start144_Click(Station& s) { chooseStart(s, true); }

void Start50_Click(Station& s) { chooseStart(s, false); }

void BandSw_Command2_Click(Station& s) { writeTestCode(s); }

void CWLPT1_Click(Station& s) { s.forms.BandSw.CWLPT1.checked() ? keyOnLpt(s) : keyOnCom(s); }

void PTTLPT_Click(Station& s) {
    const bool on = s.forms.BandSw.PTTLPT.checked();
    storePtt(s, on);
    if (!on) return;
    const auto bytes = keyer::lptBytes(true);
    s.session.KeyUpByte = bytes.up;
    s.session.KeyDownByte = bytes.down;
    s.session.PTTByte = *bytes.ptt;
}

void BandSw_Command1_Click(Station& s) {
    BandSwForm& form = s.forms.BandSw;
    value(s, setting::LptAddress) = form.Addres.text();
    value(s, setting::BandEncoder) = form.LPT1.checked() ? "1" : "0";
    takeAddress(s);
    form.hide();
}
