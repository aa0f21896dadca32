// SPDX-License-Identifier: MIT
#include "keyer/sender.h"

#include "keyer/lines.h"

namespace {

/// A value that nothing ever gives: a message that asks for the other speed ends with a fault.
constexpr int kOtherSpeed = 0;
constexpr int kSlowestFormerSpeed = 10;

/// The timing is taken anew before each element, so that it is that of the speed which holds then.
void CWSendElements(Station& s, Sending& sending, const std::string& elements) {
    Delay& delay = s.platform.delay;
    for (const char element : elements) {
        sending.timing = CWTiming(s);
        keyDownAt(s, sending.address);
        delay.wait(element == '.' ? sending.timing.dotOn : sending.timing.dashOn);
        keyUpAt(s, sending.address);
        delay.wait(sending.timing.gap);
    }
    delay.wait(3 * sending.timing.dot);
}

void restoreSpeed(Session& session, int former) {
    session.CWSpeed = former < kSlowestFormerSpeed ? kOtherSpeed : former;
}

}  // namespace

keyer::Timing CWTiming(const Station& s) {
    const Session& session = s.session;
    return keyer::timingOf(session.CWSpeed, session.CWCalibration, session.CWLoopConstant, session.CWWeight);
}

void CWSendChar(Station& s, Sending& sending) {
    Session& session = s.session;
    const keyer::Outgoing next = keyer::nextOutgoing(session.CWBuffer, session.MorseTable, sending.brackets);
    switch (next.kind) {
        case keyer::Outgoing::Kind::Nothing:
            break;
        case keyer::Outgoing::Kind::WordGap:
            s.platform.delay.wait(4 * sending.timing.dot);
            break;
        case keyer::Outgoing::Kind::OtherSpeed:
            sending.formerSpeed = session.CWSpeed;
            session.CWSpeed = kOtherSpeed;
            break;
        case keyer::Outgoing::Kind::FormerSpeed:
            restoreSpeed(session, sending.formerSpeed);
            break;
        case keyer::Outgoing::Kind::Elements:
            CWSendElements(s, sending, next.elements);
            break;
    }
}

bool isAbandoned(const Station& s) { return !s.forms.frmTX.visible() && s.session.CWCancel == 0; }

Sent sendBuffer(Station& s, Sending& sending, forms::Label* shown) {
    Session& session = s.session;
    if (shown) shown->setCaption(session.CWBuffer);
    do {
        sending.timing = CWTiming(s);
        if (session.CWCancel == 1) {
            session.CWCancel = 0;
            allOffAt(s, sending.address);
            return Sent::Cancelled;
        }
        s.platform.windows.pump();
        if (isAbandoned(s)) return Sent::Cancelled;
        CWSendChar(s, sending);
        dropSentCharacter(s, shown);
        if (isAbandoned(s)) return Sent::Cancelled;
    } while (!session.CWBuffer.empty());
    return Sent::Whole;
}

void dropSentCharacter(Station& s, forms::Label* shown) {
    if (!s.session.CWBuffer.empty()) s.session.CWBuffer.erase(0, 1);
    if (shown) shown->setCaption(s.session.CWBuffer);
    s.platform.windows.pump();
}
