// SPDX-License-Identifier: MIT
#include "keyer/port_settings.h"

#include <algorithm>

#include "base/number.h"
#include "base/text.h"
#include "core/say.h"
#include "keyer/cw_files.h"
#include "keyer/key_bytes.h"
#include "keyer/lines.h"

namespace {

constexpr int kOtherPort = 5;

std::string& value(Station& s, int index) { return s.ControlValues(index); }

int portIndex(const Station& s) { return std::max<int>(s.session.COMPortIndex, 1); }

bool usesUsbName(const Station& s) { return s.ControlValues(setting::OtherPortAddress) == "USB"; }

int chosenUart(Station& s) {
    if (portIndex(s) < kOtherPort) return keyer::uartBase(portIndex(s));
    return keyer::portAddress(value(s, setting::OtherPortAddress));
}

std::string chosenComm(Station& s) {
    if (portIndex(s) < kOtherPort) return number::toText(portIndex(s));
    const std::string port = keyer::commPort(value(s, setting::OtherPortId));
    if (number::valueOf(port) < 1 && !text::startsWith(port, "/"))
        throw PortError("There is no port \"" + value(s, setting::OtherPortId) + "\".");
    return port;
}

void prepareLpt(Station& s) {
    useLptPort(s);
    s.platform.ports.reach(s.session.PortAddress);
    s.platform.ports.write(s.session.PortAddress, s.session.PortByte);
}

void openComm(Station& s) {
    Ports& ports = s.platform.ports;
    if (ports.commOpen()) return;
    ports.openComm(chosenComm(s));
    if (!onUsbPath(s)) return ports.write(s.session.PortAddress, 0);
    ports.setDtr(false);
    ports.setRts(false);
}

void highlight(forms::Control& control, bool on) {
    control.setBackColour(on ? forms::kLight : forms::kDefaultColour);
}

}  // namespace

void setKeyBytes(Station& s) {
    Session& session = s.session;
    const bool swapped = value(s, setting::SwapLines) == "Swap";
    const keyer::KeyBytes bytes = cwOnLpt(s)
                                      ? keyer::lptBytes(text::upper(value(s, setting::PttOnLpt)) == "YES")
                                      : keyer::uartBytes(swapped, session.PTTEnabled == 1);
    session.KeyDownByte = bytes.down;
    session.KeyUpByte = bytes.up;
    if (bytes.ptt) session.PTTByte = *bytes.ptt;
}

void preparePort(Station& s) {
    Session& session = s.session;
    setKeyBytes(s);
    session.PortByte = 0;
    if (cwOnLpt(s)) return prepareLpt(s);
    if (!onUsbPath(s)) {
        const int base = chosenUart(s);
        s.platform.ports.commIsAt(base);
        session.PortAddress = base + keyer::kUartControl;
        s.platform.ports.write(session.PortAddress, session.PortByte);
    }
    openComm(s);
}

void preparePortOrTell(Station& s) {
    try {
        preparePort(s);
    } catch (const RunTimeError& error) {
        tell(s, error.what());
    }
}

void showPort(Station& s) {
    const bool other = s.session.COMPortIndex >= kOtherPort;
    std::string name = "COM" + (other ? value(s, setting::OtherPortId) : number::toText(portIndex(s)));
    if (other && usesUsbName(s)) name += " USB";
    s.forms.CWSetup.Label16.setCaption(cwOnLpt(s) ? "LPT" : name);
}

void showPortOfSettings(Station& s) {
    forms::Label& label = s.forms.CWSetup.Label16;
    if (text::lower(value(s, setting::OtherPort)) == "yes" && usesUsbName(s))
        return label.setCaption("COM" + value(s, setting::OtherPortId) + " USB");
    const bool other = number::valueOf(value(s, setting::CwPort)) >= kOtherPort;
    label.setCaption("COM" + value(s, other ? setting::OtherPortId : setting::CwPort));
}

void ConfigScrn_Load(Station& s) {
    PortForm& form = s.forms.ConfigScrn;
    const bool swapped = value(s, setting::SwapLines) == "Swap";
    form.SwapCom.setChecked(swapped);
    highlight(form.SwapCom, swapped);
    if (s.session.COMPortIndex == 0) s.session.COMPortIndex = 1;
    form.otherPortName.clear();
    for (const std::string& port : s.platform.ports.commPorts()) form.otherPortName.add(port);
    if (!value(s, setting::OtherPortId).empty()) form.otherPortName.present(value(s, setting::OtherPortId));
    if (value(s, setting::OtherPortAddress).empty()) value(s, setting::OtherPortAddress) = "USB";
    form.otherPortAddress.present(value(s, setting::OtherPortAddress));
    const bool other = value(s, setting::OtherPort) == "Yes";
    ComPort_Click(s, other ? kOtherPort : std::min(portIndex(s), kOtherPort));
}

void ComPort_Click(Station& s, int port) {
    PortForm& form = s.forms.ConfigScrn;
    s.session.COMPortIndex = port;
    for (int option = 1; option <= kOtherPort; ++option) {
        form.comPort(option).setChecked(option == port);
        highlight(form.comPort(option), option == port);
    }
    for (forms::Control* const control : std::initializer_list<forms::Control*>{
             &form.otherPortName, &form.otherPortAddress, &form.otherNameLabel, &form.otherAddressLabel}) {
        control->setEnabled(port == kOtherPort);
    }
    showPort(s);
}

void SwapCom_Click(Station& s) {
    forms::CheckBox& box = s.forms.ConfigScrn.SwapCom;
    value(s, setting::SwapLines) = box.checked() ? "Swap" : "no Swap";
    highlight(box, box.checked());
}

void otherPortName_Change(Station& s) {
    value(s, setting::OtherPortId) = s.forms.ConfigScrn.otherPortName.text();
    showPort(s);
}

void otherPortName_Click(Station& s) {
    forms::ComboBox& box = s.forms.ConfigScrn.otherPortName;
    box.present(box.text().substr(0, box.text().find(' ')));
    otherPortName_Change(s);
}

void otherPortAddress_Change(Station& s) {
    forms::ComboBox& box = s.forms.ConfigScrn.otherPortAddress;
    const std::string typed = text::upper(box.text());
    if (typed != box.text()) {
        const int caret = box.caret();
        box.present(typed);
        box.select(caret, caret);
    }
    value(s, setting::OtherPortAddress) = typed;
    showPort(s);
}

void OKButton_Click(Station& s) {
    PortForm& form = s.forms.ConfigScrn;
    value(s, setting::OtherPortAddress) = form.otherPortAddress.text();
    value(s, setting::OtherPortId) = form.otherPortName.text();
    value(s, setting::OtherPort) = s.session.COMPortIndex == kOtherPort ? "Yes" : "No";
    value(s, setting::CwPort) = number::toText(std::int64_t{s.session.COMPortIndex});
    try {
        preparePort(s);
    } catch (const RunTimeError& error) {
        return tell(s, error.what());
    }
    saveCwFile(s);
    form.unload();
}

void ConfigScrn_Command1_Click(Station& s) {
    const bool html = s.forms.frmLog.menu.mHelpSet.checked();
    s.platform.windows.pump();
    s.platform.programs.help(html ? s.session.AppPath + "\\TARQEN2.chm>Main" : "TARQEN2.HLP", "COM ports");
    s.platform.windows.pump();
}
