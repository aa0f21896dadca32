// SPDX-License-Identifier: MIT
#include "keyer/function_keys.h"

#include <array>
#include <utility>

#include "base/text.h"
#include "core/say.h"
#include "keyer/cw_texts.h"
#include "keyer/keyboard.h"
#include "keyer/messages.h"

namespace {

using forms::Key;

void sendMessage(Station& s, const char* key) {
    s.session.TXActive = -1;
    CWShowCaptions(s);
    s.session.CWMessageKey = key;
    s.forms.frmTX.show();
    s.platform.windows.pump();
    CWSendMessage(s);
    CWEndMessage(s);
}

std::string callInField(const Station& s) { return text::upper(s.forms.frmLog.CallS.text()); }

/// A dupe that the operator has not chosen to work is not called.
bool isGuardedDupe(const Station& s, const std::string& call) {
    const LogForm& form = s.forms.frmLog;
    return !call.empty() && form.Label4.backColour() == forms::kRed && !form.Query.usable();
}

void callThenKeyboard(Station& s) {
    Session& session = s.session;
    const std::string call = callInField(s);
    session.TXActive = -1;
    CWShowCaptions(s);
    if (!text::startsWith(session.F1Message, keyer::kCallTag)) {
        session.CWBuffer = session.F1Message;
        return sendMessage(s, "F1");
    }
    if (call.empty()) return;
    session.CWMessageKey = "F1";
    if (isGuardedDupe(s, call)) return;
    session.CWMessageKey = "F8";
    session.CWBuffer = text::upper(keyer::sentCall(call)) + " ";
    openKeyboard(s, s.ControlValues(setting::CwOnLpt) != "LPT CW" && session.PTTEnabled == 1);
}

/// Puts the call in place of the first tag of the message. A tag at the very end has no character behind it
/// that could be dropped, which is a fault; the call goes out all the same.
void putCallIntoMessage(Station& s, const std::string& call) {
    Session& session = s.session;
    const std::string message = session.CWBuffer;
    const auto tag = keyer::tagPlace(message);
    if (!tag) return;
    inKeySequence(s, [&] {
        if (!tag->after) throw badCallError();
    });
    session.CWMessageKey = "F8";
    session.CWBuffer =
        std::string(tag->before) + call + " " + std::string(tag->after.value_or(std::string_view()));
}

void callInsideMessage(Station& s) {
    Session& session = s.session;
    LogForm& form = s.forms.frmLog;
    const std::string call = callInField(s);
    session.CWMessageKey = "F1";
    if (isGuardedDupe(s, call)) return;
    session.CWBuffer = session.F1Message;
    putCallIntoMessage(s, keyer::sentCall(call));
    const std::string key = session.CWMessageKey;
    sendMessage(s, key.c_str());
    form.Query.usable() ? form.focus(form.cUpdate) : form.focus(form.tGrid);
}

void openByKey(Station& s) {
    Session& session = s.session;
    session.CWMessageKey = "F8";
    CWShowCaptions(s);
    session.CWBuffer.clear();
    if (text::upper(s.ControlValues(setting::PttOnLpt)) == "YES") session.PTTByte = 4;
    openKeyboard(s, s.forms.BandSw.CWLPT1.checked() || session.PTTEnabled == 1);
}

constexpr std::array<std::pair<Key, const char*>, 6> kMessageKeys{
    {{Key::F2, "F2"}, {Key::F3, "F3"}, {Key::F4, "F4"}, {Key::F5, "F5"}, {Key::F6, "F6"}, {Key::F7, "F7"}}};

}  // namespace

void inKeySequence(Station& s, const std::function<void()>& statement) {
    try {
        statement();
    } catch (const RunTimeError&) {
        tell(s,
             std::string("There is some error in the sequence") + kCrLf +
                 "or the message you are trying to send.",
             " Click OK and continue");
    }
}

bool CWKeyDown(Station& s, const forms::KeyStroke& stroke) {
    s.session.CWMessageKey.clear();
    if (s.ControlValues(setting::Cw) != "CW") return false;
    for (const auto& [key, name] : kMessageKeys) {
        if (stroke.key != key) continue;
        sendMessage(s, name);
        return true;
    }
    if (stroke.key == Key::F1) {
        if (s.session.F1CallKeyboard == 1) {
            callThenKeyboard(s);
        } else if (s.session.F1CallNormal == 1) {
            callInsideMessage(s);
        }
        return true;
    }
    if (stroke.key != Key::F8 && stroke.key != Key::Ctrl) return false;
    openByKey(s);
    return true;
}
