// SPDX-License-Identifier: MIT
#include "bandsw/band_encoder.h"

#include "bandsw/band_code.h"
#include "base/text.h"
#include "core/say.h"
#include "keyer/key_bytes.h"
#include "keyer/lines.h"

namespace {

constexpr int kFirstLpt = 888;

bool inUse(const Station& s) { return s.ControlValues(setting::BandEncoder) == "1"; }

/// Tells of a port that can't be used; the writes to it have no effect then.
void reachPort(Station& s) {
    try {
        s.platform.ports.reach(s.session.LPTAddress);
    } catch (const PortError& error) {
        tell(s, error.what());
    }
}

}  // namespace

void tBand_Change(Station& s) {
    Session& session = s.session;
    if (!inUse(s)) return;
    if (session.LPTAddress == 0) session.LPTAddress = kFirstLpt;
    session.PortByte = bandCode(s.forms.frmLog.tBand.text(), s.ControlValues(setting::EncoderStart) == "1");
    s.platform.ports.write(session.LPTAddress, session.PortByte);
}

void startBandEncoder(Station& s) {
    Session& session = s.session;
    s.forms.BandSw.load();
    if (!inUse(s)) return;
    reachPort(s);
    s.platform.ports.write(session.LPTAddress, 0);
    if (cwOnLpt(s)) {
        s.platform.ports.write(session.LPTAddress + keyer::kLptControl, 0);
        const auto bytes = keyer::lptBytes(text::upper(s.ControlValues(setting::PttOnLpt)) == "YES");
        session.KeyDownByte = bytes.down;
        session.KeyUpByte = bytes.up;
    }
    tBand_Change(s);
}

void stopBandEncoder(Station& s) {
    if (!inUse(s)) return;
    s.platform.ports.write(s.session.LPTAddress, 0);
    s.platform.ports.write(s.session.LPTAddress + keyer::kLptControl, 0);
}
