// SPDX-License-Identifier: MIT
#include "keyer/cw_setup.h"

#include <array>

#include "base/number.h"
#include "base/text.h"
#include "core/say.h"
#include "keyer/cw_config.h"
#include "keyer/cw_files.h"
#include "keyer/cw_texts.h"
#include "keyer/lines.h"
#include "keyer/messages.h"
#include "keyer/morse.h"
#include "keyer/port_settings.h"

namespace {

constexpr const char* kTitle = " TARQEN";
constexpr const char* kConfigPattern = "*.cfg";
constexpr float kNormalWeight = 1.1F;

std::string speedText(const Station& s) { return number::toText(std::int64_t{s.session.CWSpeed}); }

/// The operator's answer, empty where it is blank.
std::string ask(Station& s, const std::string& question, const std::string& title,
                const std::string& offered) {
    const std::string answer = s.platform.dialogs.prompt({question, title, offered}).value_or("");
    return text::trim(answer).empty() ? std::string() : answer;
}

/// A number too large to be held is told, and the old one stays.
template <typename Change>
bool changed(Station& s, const Change& change) {
    try {
        change();
        return true;
    } catch (const RunTimeError& error) {
        tell(s, error.what());
        return false;
    }
}

void listFiles(Station& s) { s.forms.CWSetup.File1.setItems(s.platform.files.list(kConfigPattern)); }

void highlight(forms::CheckBox& box, bool on) {
    box.setChecked(on);
    box.setBackColour(on ? forms::kLight : forms::kDefaultColour);
}

}  // namespace

void startKeyer(Station& s) {
    s.session.MorseTable = keyer::morseTable();
    changed(s, [&] { s.session.CWCalibration = number::wholeOf(s.ControlValues(setting::CwCalibration)); });
    loadCwFile(s);
    s.forms.CWSetup.load();
    if (s.ControlValues(setting::Cw) == "CW") preparePortOrTell(s);
}

void showCwSwitch(Station& s) {
    LogForm& form = s.forms.frmLog;
    const bool on = s.ControlValues(setting::Cw) == "CW";
    form.cmdCkOK.setChecked(on);
    form.cmdCkOK.setForeColour(on ? forms::kRed : forms::kBlack);
    form.menu.mCWSet.setEnabled(on);
    form.menu.mMorse.setEnabled(on);
}

void cmdCkOK_Click(Station& s) {
    LogForm& form = s.forms.frmLog;
    const bool on = form.cmdCkOK.checked();
    s.ControlValues(setting::Cw) = on ? "CW" : "no CW";
    showCwSwitch(s);
    if (on) {
        loadCwFile(s);
        preparePortOrTell(s);
    }
    form.focus(form.CallS);
}

void CWSetup_Load(Station& s) {
    CwSetupForm& form = s.forms.CWSetup;
    form.Label7.setCaption(keyer::cqLabel(s.PersonalData(personal::Call)));
    form.SpConstant.present(s.ControlValues(setting::CwCalibration));
    form.repeatDelay.present(s.ControlValues(setting::CwRepeatTime));
    showCwSetup(s);
    loadCwSetup(s);
    listFiles(s);
}

void CWSetup_QueryClose(Station& s, bool& refuse) {
    refuse = true;
    CWSetup_cmdOK_Click(s);
}

void CWSetup_cmdOK_Click(Station& s) {
    saveCwFile(s);
    s.forms.CWSetup.hide();
}

void cmdSpeed_Click(Station& s) {
    const std::string answer = ask(s, "Enter CW speed (5-60)", kTitle, speedText(s));
    if (answer.empty()) return;
    if (!changed(s, [&] { s.session.CWSpeed = number::wholeOf(answer); })) return;
    s.forms.CWSetup.Label15.setCaption(answer);
    saveCwFile(s);
}

void cmdWeight_Click(Station& s) {
    const std::string answer = ask(s,
                                   "Enter CW weight factor, (0.85 - 1.25)\nMake small (.05) changes while\n"
                                   "listening to the transceiver's sidetone.",
                                   "", number::toText(s.session.CWWeight));
    if (answer.empty()) return;
    if (!changed(s, [&] { s.session.CWWeight = keyer::weightOf(answer); })) return;
    s.forms.CWSetup.Label20.setCaption(answer);
    saveCwFile(s);
}

void CWSetup_Command2_Click(Station& s) {
    s.session.CWWeight = kNormalWeight;
    s.forms.CWSetup.Label20.setCaption(number::toText(kNormalWeight));
    saveCwFile(s);
}

void SpConstant_Change(Station& s) {
    const std::string& constant = s.forms.CWSetup.SpConstant.text();
    s.ControlValues(setting::CwCalibration) = constant;
    changed(s, [&] { s.session.CWCalibration = number::wholeOf(constant); });
}

void repeatDelay_Change(Station& s) {
    s.ControlValues(setting::CwRepeatTime) = s.forms.CWSetup.repeatDelay.text();
}

void Check3D2_Click(Station& s) {
    forms::CheckBox& box = s.forms.CWSetup.Check3D2;
    s.session.PTTEnabled = box.checked() ? 1 : 0;
    highlight(box, box.checked());
}

void chooseF1(Station& s, bool keyboard) {
    s.session.F1CallKeyboard = keyboard ? 1 : 0;
    s.session.F1CallNormal = keyboard ? 0 : 1;
    highlight(s.forms.CWSetup.CWCall, keyboard);
    highlight(s.forms.CWSetup.IncSer, !keyboard);
    saveCwFile(s);
}

void cmdCom_Click(Station& s) {
    if (cwOnLpt(s)) return tell(s, "You selected LPT for CW in the Band Switching setup...");
    try {
        if (s.platform.ports.commOpen()) s.platform.ports.closeComm();
        s.forms.ConfigScrn.show();
    } catch (const RunTimeError&) {
        tell(s, "That port is not available...");
    }
}

void cmdTest_Click(Station& s) {
    Session& session = s.session;
    TransmitForm& form = s.forms.frmTX;
    if (number::valueOf(s.ControlValues(setting::CwPort)) == 0) return;
    form.setCaption("TARQEN   CW");
    if (cwOnLpt(s)) {
        useLptPort(s);
    } else if (session.PTTEnabled == 1) {
        PTTOn(s);
    }
    session.CWMessageKey = "F1a";
    form.show();
    form.Frame3D1.setCaption("CW Test Transmission @ " + speedText(s) + " wpm");
    s.platform.windows.pump();
    CWSendMessage(s);
    form.hide();
    AllOff(s);
}

void File1_Click(Station& s) {
    const std::string name = s.forms.CWSetup.File1.content();
    if (name.empty()) return;
    s.session.CWConfigFile = name;
    s.forms.CWSetup.Label19.setCaption(name);
    pointToCwFile(s);
    takeCwFile(s);
}

void CWSetup_Command1_Click(Station& s) {
    const std::string answer =
        ask(s, "Enter CW Config filename, .cfg is assumed. ", kTitle, s.session.CWConfigFile);
    if (answer.empty()) return;
    const auto chosen = keyer::configName(answer);
    if (!chosen || !chosen->fits) return;
    s.session.CWConfigFile = chosen->name;
    saveCwFile(s);
    s.forms.CWSetup.Label19.setCaption(chosen->name);
    pointToCwFile(s);
    listFiles(s);
}

namespace {

struct Stored {
    std::string Session::*text;
    forms::Label CwSetupForm::*label;
    const char* key;
    const char* hint;
};

const Stored& storedOf(StoredMessage which) {
    static constexpr const char* kAnswer = "use \\AR (for example) to send as one character.";
    static constexpr const char* kEnd = "use \\SK (for example) to send as one character.";
    static constexpr std::array<Stored, 5> kStored{{
        {&Session::F1Message, &CwSetupForm::Label22, "<F1>",
         "The last station entered can be called with <F1>,\nfollowed by the keyboard CW sequence. Or if "
         "selected,\nthe normal <F1> message will follow the callsign.\nTo set this up, enter <CALL> where "
         "it "
         "will be inserted."},
        {&Session::F3Message, &CwSetupForm::Label9, "<F3>", kAnswer},
        {&Session::F4Message, &CwSetupForm::Label10, "<F4>", kAnswer},
        {&Session::F6Message, &CwSetupForm::Label12, "<F6>", kEnd},
        {&Session::F7Message, &CwSetupForm::Label13, "<F7>", kEnd},
    }};
    return kStored[static_cast<std::size_t>(which)];
}

}  // namespace

void askMessage(Station& s, StoredMessage which) {
    const Stored& stored = storedOf(which);
    std::string& message = s.session.*stored.text;
    const std::string answer =
        ask(s, std::string("Enter message for ") + stored.key + "\n" + stored.hint, "", message);
    if (answer.empty()) return;
    message = text::upper(answer);
    (s.forms.CWSetup.*stored.label).setCaption(message);
    saveCwFile(s);
}
