// SPDX-License-Identifier: MIT
#include "keyer/lines.h"

#include "keyer/key_bytes.h"

namespace {

enum class Line { Key, Ptt };

void writeByte(Station& s, int address, int byte) {
    s.session.PortByte = byte;
    s.platform.delay.settle();
    s.platform.ports.write(address, byte);
}

// On this path the key is DTR and push-to-talk RTS, the other way round than in the registers.
void setLine(Station& s, Line line, bool on) {
    const bool swapped = s.ControlValues(setting::SwapLines) == "Swap";
    s.platform.delay.settle();
    if ((line == Line::Key) != swapped) {
        s.platform.ports.setDtr(on);
    } else {
        s.platform.ports.setRts(on);
    }
}

}  // namespace

bool onUsbPath(const Station& s) {
    return s.session.COMPortIndex >= 5 && s.ControlValues(setting::OtherPortAddress) == "USB";
}

bool cwOnLpt(const Station& s) { return s.ControlValues(setting::CwOnLpt) == "LPT CW"; }

void useLptPort(Station& s) {
    s.session.LPTAddress = keyer::portAddress(s.forms.BandSw.Addres.text());
    s.session.PortAddress = s.session.LPTAddress + keyer::kLptControl;
}

void keyDownAt(Station& s, int address) {
    onUsbPath(s) ? setLine(s, Line::Key, true) : writeByte(s, address, s.session.KeyDownByte);
}

void keyUpAt(Station& s, int address) {
    onUsbPath(s) ? setLine(s, Line::Key, false) : writeByte(s, address, s.session.KeyUpByte);
}

void allOffAt(Station& s, int address) {
    if (!onUsbPath(s)) return writeByte(s, address, 0);
    s.platform.delay.settle();
    s.platform.ports.setRts(false);
    s.platform.ports.setDtr(false);
}

void KeyDown(Station& s) { keyDownAt(s, s.session.PortAddress); }

void KeyUp(Station& s) { keyUpAt(s, s.session.PortAddress); }

void PTTOn(Station& s) {
    onUsbPath(s) ? setLine(s, Line::Ptt, true) : writeByte(s, s.session.PortAddress, s.session.PTTByte);
}

void AllOff(Station& s) { allOffAt(s, s.session.PortAddress); }
