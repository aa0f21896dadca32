// SPDX-License-Identifier: MIT
#include "keyer/messages.h"

#include <algorithm>

#include "base/number.h"
#include "core/say.h"
#include "keyer/cw_texts.h"
#include "keyer/lines.h"
#include "keyer/sender.h"

namespace {

void showSpeed(Station& s) {
    s.forms.frmTX.Frame3D1.setCaption("CW Transmit @ " + number::toText(std::int64_t{s.session.CWSpeed}) +
                                      " wpm    {Space bar} to cancel");
}

const std::string& ownCall(const Station& s) { return s.PersonalData(personal::Call); }

Sent sendOut(Station& s, Sending& sending) {
    sending.address = s.session.PortAddress;
    return sendBuffer(s, sending, &s.forms.frmTX.Label2);
}

/// Sends a text that the operator has stored; one that is empty is skipped, with the clock left as it is.
void sendStored(Station& s, Sending& sending, const std::string& text, bool dropLines) {
    if (text.empty()) return;
    s.session.CWBuffer = text;
    s.forms.frmTX.Label3.setCaption(withControl(s, s.session.CWMessageKey));
    if (sendOut(s, sending) == Sent::Cancelled) return;
    if (dropLines) AllOff(s);
    s.forms.frmLog.Timer1.start();
}

/// Sends what the buffer holds already, or a text that is never empty.
void sendReady(Station& s, Sending& sending, std::string text) {
    s.session.CWBuffer = std::move(text);
    s.forms.frmTX.Label3.setCaption(withControl(s, keyer::shownName(s.session.CWMessageKey)));
    if (sendOut(s, sending) == Sent::Whole) s.forms.frmLog.Timer1.start();
}

double repeatSeconds(const Station& s) { return number::valueOf(s.ControlValues(setting::CwRepeatTime)); }

void sendCqs(Station& s, Sending& sending) {
    const bool repeats = s.session.CWMessageKey == "RCQ";
    while (true) {
        s.forms.frmLog.Timer1.stop();
        s.forms.frmTX.Label3.setCaption(withControl(s, keyer::shownName(s.session.CWMessageKey)));
        s.platform.windows.pump();
        if (isAbandoned(s)) return;
        // Without a pause nobody is invited to answer.
        const bool pauseless = s.ControlValues(setting::CwRepeatTime) == "0";
        s.session.CWBuffer =
            repeats ? keyer::repeatedCqText(ownCall(s), pauseless) : keyer::cqText(ownCall(s));
        if (sendOut(s, sending) == Sent::Cancelled) return;
        if (!repeats) break;
        if (repeatSeconds(s) != 0) CWRepeatPause(s);
    }
    s.forms.frmLog.Timer1.start();
}

void sendByKey(Station& s, Sending& sending) {
    Session& session = s.session;
    const std::string key = session.CWMessageKey;
    const std::string_view running = keyer::runningName(key);
    if (running.empty()) return;
    session.CWMessageKey = running;
    if (key == "F1") return sendStored(s, sending, session.F1Message, false);
    if (key == "F3") return sendStored(s, sending, session.F3Message, true);
    if (key == "F4") return sendStored(s, sending, session.F4Message, false);
    if (key == "F6") return sendStored(s, sending, session.F6Message, false);
    if (key == "F7") return sendStored(s, sending, session.F7Message, false);
    if (key == "F8") return sendReady(s, sending, session.CWBuffer);
    if (key == "F1a") return sendReady(s, sending, keyer::testText(ownCall(s)));
    sendCqs(s, sending);
}

void prepareLines(Station& s) {
    Session& session = s.session;
    if (cwOnLpt(s)) {
        useLptPort(s);
        session.KeyUpByte = 4;
        session.KeyDownByte = 5;
        session.PTTByte = 4;
    }
    if (session.PTTEnabled == 1) PTTOn(s);
}

float secondsNow(Station& s) { return static_cast<float>(s.platform.clock.secondsSinceMidnight()); }

}  // namespace

std::string withControl(const Station& s, std::string_view name) {
    return std::string(name) + (s.session.PTTEnabled == 1 ? " w/PTT" : " w/VOX");
}

void showKeyboardSpeed(Station& s) {
    s.forms.frmCWTX.Frame3D1.setCaption("Keyboard CW Transmit @ " +
                                        number::toText(std::int64_t{s.session.CWSpeed}) +
                                        " wpm     {Enter when done}");
}

void CWShowCaptions(Station& s) {
    Forms& forms = s.forms;
    showSpeed(s);
    forms.frmTX.setCaption("TARQEN   CW");
    showKeyboardSpeed(s);
    forms.frmCWTX.setCaption("TARQEN   CW");
}

void CWSendMessage(Station& s) {
    try {
        const Keying keying(s.platform.delay);
        s.session.CWCancel = 0;
        prepareLines(s);
        // No tick of the clock may stretch an element.
        s.forms.frmLog.Timer1.stop();
        Sending sending;
        sending.timing = CWTiming(s);
        sendByKey(s, sending);
    } catch (const RunTimeError& error) {
        s.session.CWCancel = 0;
        // The box may stand for hours, and the transmitter must not.
        s.platform.ports.dropLines();
        tell(s, error.what());
        s.forms.CWSetup.cmdOK.setEnabled(true);
        s.forms.frmTX.hide();
    }
}

void CWEndMessage(Station& s) {
    LogForm& log = s.forms.frmLog;
    s.forms.frmTX.hide();
    // A key inside the message has opened the keyboard, whose lines and clock are its own.
    if (s.forms.screen.active() == &s.forms.frmCWTX) return;
    AllOff(s);
    log.Timer4.stop();
    // A cancel in the pause between two CQs has hidden the form before the clock was stopped for the next
    // one; contacts must not go on with the time of that moment.
    log.Timer1.start();
    s.session.TXActive = 0;
}

void CWRepeatPause(Station& s) {
    TransmitForm& form = s.forms.frmTX;
    Windows& windows = s.platform.windows;
    const double pause = repeatSeconds(s);
    const Resting resting(s.platform.delay);
    if (cwOnLpt(s)) useLptPort(s);
    s.forms.frmLog.Timer1.start();
    AllOff(s);
    form.Label3.setCaption("RX mode");
    windows.pump();
    const float start = secondsNow(s);
    double elapsed = 0;
    while (true) {
        const std::string remaining = keyer::twoDigitSeconds(pause - elapsed);
        windows.pump();
        form.Frame3D1.setCaption("Pause in Repeating Transmit      restart in " + remaining + " sec.");
        windows.pump();
        windows.rest();
        elapsed = static_cast<double>(secondsNow(s) - start);
        // Midnight has passed.
        if (elapsed < 0) elapsed = pause;
        if (s.session.CWCancel == 1) {
            AllOff(s);
            s.forms.frmLog.Timer1.start();
            form.hide();
            return;
        }
        if (elapsed >= pause) break;
    }
    showSpeed(s);
    windows.pump();
}

void stepSpeed(Station& s, int step) {
    Int16& speed = s.session.CWSpeed;
    speed = step > 0 ? std::min(speed + step, 60) : std::max(speed + step, 5);
    s.forms.CWSetup.Label15.setCaption(number::toText(std::int64_t{speed}));
}

void frmTX_KeyDown(Station& s, forms::KeyStroke& stroke) {
    if (stroke.key == forms::Key::Esc) {
        s.session.CWCancel = 1;
        s.forms.frmLog.Timer1.start();
    }
    const bool up = stroke.key == forms::Key::Up, down = stroke.key == forms::Key::Down;
    if (!up && !down) return;
    stepSpeed(s, up ? 1 : -1);
    showSpeed(s);
    s.platform.windows.pump();
}

void frmTX_KeyPress(Station& s, const forms::KeyPress& key) {
    if (key.code != 13 && key.code != 32) return;
    s.session.CWCancel = 1;
    s.forms.CWSetup.cmdOK.setEnabled(true);
    s.forms.frmLog.Timer1.start();
}

void frmTX_Deactivate(Station& s) {
    s.session.CWCancel = 1;
    s.forms.frmLog.Timer1.start();
    if (cwOnLpt(s)) useLptPort(s);
    AllOff(s);
    s.forms.frmTX.hide();
    s.session.CWBuffer.clear();
}
