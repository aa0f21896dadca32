// SPDX-License-Identifier: MIT
#include "keyer/keyboard.h"

#include "base/text.h"
#include "core/say.h"
#include "keyer/lines.h"
#include "keyer/messages.h"
#include "keyer/sender.h"

namespace {

constexpr int kBackspace = 8, kEnter = 13, kEsc = 27;
constexpr char kEndMark = '*';

forms::Label& queue(Station& s) { return s.forms.frmCWTX.Label2; }

void closeKeyboard(Station& s) {
    Session& session = s.session;
    session.CWCancel = 1;
    session.KeyTimingReady = 0;
    session.KeyDrainRunning = 0;
    AllOff(s);
    s.forms.frmCWTX.hide();
    session.TXActive = 0;
}

bool isIgnored(int code) { return code == ';' || code == '\'' || code == '`' || code == '[' || code == ']'; }

/// The two characters next in line can't be taken back: a Backspace there goes into the queue, where the
/// sender passes over it.
void join(std::string& buffer, int code) {
    if (code == kBackspace && buffer.size() >= 3) {
        buffer.pop_back();
    } else {
        buffer += code == kEnter ? kEndMark : text::upper(static_cast<char>(code));
    }
    // A prosign swallows the character behind it, and the end mark has to survive that.
    if (text::endsWith(buffer, "AR*") || text::endsWith(buffer, "SK*")) buffer += kEndMark;
}

/// A key that runs inside another one's pump may have ended the session, and its own loop may have taken the
/// cancel already.
bool isOver(const Station& s) {
    return s.session.CWCancel == 1 || s.forms.screen.active() != &s.forms.frmCWTX;
}

void stopLoop(Station& s) {
    s.session.CWCancel = 0;
    s.session.KeyDrainRunning = 0;
    AllOff(s);
}

/// A character that went out after the session was given up has left the lines up.
void drained(Station& s, bool sentTooLate) {
    s.session.KeyDrainRunning = 0;
    if (sentTooLate) AllOff(s);
}

void drain(Station& s) {
    Session& session = s.session;
    const Keying keying(s.platform.delay);
    Sending sending;
    sending.brackets = keyer::Brackets::AreSent;
    session.KeyDrainRunning = -1;
    queue(s).setCaption(session.CWBuffer);
    while (true) {
        sending.timing = CWTiming(s);
        if (isOver(s)) return stopLoop(s);
        if (session.CWBuffer == std::string(1, kEndMark)) return closeKeyboard(s);
        // Here the keys that were pressed meanwhile join the queue.
        s.platform.windows.pump();
        const bool over = isOver(s);
        if (session.CWBuffer.empty()) return drained(s, false);
        sending.address = session.PortAddress;
        CWSendChar(s, sending);
        dropSentCharacter(s, &queue(s));
        if (session.CWBuffer.empty()) return drained(s, over);
    }
}

void takeKey(Station& s, int code) {
    Session& session = s.session;
    CWTiming(s);
    session.KeyTimingReady = -1;
    join(session.CWBuffer, code);
    queue(s).setCaption(session.CWBuffer);
    s.platform.windows.pump();
    // The loop further down the stack takes it.
    if (session.KeyDrainRunning != 0) return;
    drain(s);
}

void leaveByKey(Station& s) {
    s.session.CWCancel = 1;
    if (cwOnLpt(s)) useLptPort(s);
    s.session.PortByte = 0;
    AllOff(s);
    s.forms.frmCWTX.hide();
    s.forms.frmLog.focus(s.forms.frmLog.CallS);
    s.forms.frmLog.Timer1.start();
    s.session.TXActive = 0;
    // An error leaves the mark of a loop behind, which must not silence the next session.
    s.session.KeyDrainRunning = 0;
}

}  // namespace

void openKeyboard(Station& s, bool ptt) {
    KeyboardForm& form = s.forms.frmCWTX;
    if (cwOnLpt(s)) useLptPort(s);
    form.show();
    s.session.CWCancel = 0;
    s.forms.frmLog.Timer1.stop();
    form.Label2.setCaption(s.session.CWBuffer);
    form.Label3.setCaption(ptt ? "w/PTT" : "w/VOX");
    if (ptt) PTTOn(s);
    s.platform.windows.pump();
}

void frmCWTX_KeyDown(Station& s, forms::KeyStroke& stroke) {
    using forms::Key;
    if (stroke.key == Key::Esc || stroke.key == Key::F8 || stroke.key == Key::Ctrl) return leaveByKey(s);
    if (stroke.key != Key::Up && stroke.key != Key::Down) return;
    stepSpeed(s, stroke.key == Key::Up ? 1 : -1);
    showKeyboardSpeed(s);
    s.platform.windows.pump();
}

void frmCWTX_KeyPress(Station& s, const forms::KeyPress& key) {
    if (key.code == 0) return;
    if (key.code == kEsc || (key.code == kEnter && s.session.CWBuffer.empty())) return closeKeyboard(s);
    if (isIgnored(key.code)) return;
    try {
        takeKey(s, key.code);
    } catch (const RunTimeError& error) {
        // The box may stand for hours, and the transmitter must not.
        s.platform.ports.dropLines();
        tell(s, error.what());
    }
}

void frmCWTX_Deactivate(Station& s) {
    s.session.CWCancel = 1;
    if (cwOnLpt(s)) useLptPort(s);
    AllOff(s);
    s.forms.frmLog.Timer1.start();
}

void frmCWTX_QueryClose(Station& s, bool& refuse) {
    refuse = true;
    frmCWTX_Deactivate(s);
    s.forms.frmCWTX.hide();
    s.session.TXActive = 0;
    s.session.KeyDrainRunning = 0;
}
