// SPDX-License-Identifier: MIT
#include "keyer/cw_files.h"

#include <optional>

#include "base/number.h"
#include "core/say.h"
#include "keyer/cw_config.h"
#include "keyer/cw_texts.h"
#include "keyer/port_settings.h"

namespace {

constexpr const char* kPointerFile = "TQN_DEFA.ULT";
constexpr const char* kFirstConfigFile = "test.cfg";

keyer::CwConfig heldConfig(const Session& session) {
    keyer::CwConfig config;
    config.speed = session.CWSpeed;
    config.f3 = session.F3Message;
    config.f6 = session.F6Message;
    config.f7 = session.F7Message;
    config.weight = session.CWWeight;
    config.loopConstant = session.CWLoopConstant;
    config.port = session.COMPortIndex;
    config.f1 = session.F1Message;
    config.ptt = session.PTTEnabled;
    config.f1Normal = session.F1CallNormal;
    config.f4 = session.F4Message;
    return config;
}

void holdFirstEight(Session& session, const keyer::CwConfig& config) {
    session.CWSpeed = config.speed;
    session.F3Message = config.f3;
    session.F6Message = config.f6;
    session.F7Message = config.f7;
    session.CWWeight = config.weight;
    session.CWLoopConstant = config.loopConstant;
    session.COMPortIndex = config.port;
    session.F1Message = config.f1;
}

void holdAll(Session& session, const keyer::CwConfig& config) {
    holdFirstEight(session, config);
    session.PTTEnabled = config.ptt;
    session.F1CallNormal = config.f1Normal;
    session.F1CallKeyboard = config.f1Normal == 0 ? 1 : 0;
    session.F4Message = config.f4;
}

void notePort(Station& s) {
    s.ControlValues(setting::CwPort) = number::toText(std::int64_t{s.session.COMPortIndex});
}

/// The pointer file's folder may take no files; the start has told of that already.
void findCurrentFile(Station& s) {
    Files& files = s.platform.files;
    try {
        if (!files.exists(kPointerFile)) touch(files, kPointerFile);
        const std::string content = files.read(kPointerFile);
        if (!content.empty()) s.session.CWConfigFile = keyer::namePointedTo(content);
    } catch (const FileError&) {
        return;
    }
}

std::string contentOfCurrentFile(Station& s) {
    Files& files = s.platform.files;
    const std::string& name = s.session.CWConfigFile;
    if (!files.exists(name)) touch(files, name);
    return files.read(name);
}

/// What the current file holds; nothing where it is empty or can't be used, which is told.
std::optional<keyer::CwConfig> readCurrentFile(Station& s, bool tells) {
    try {
        const std::string content = contentOfCurrentFile(s);
        if (!content.empty()) return keyer::parse(content, heldConfig(s.session));
    } catch (const FileError& error) {
        if (tells)
            tellFileFault(s, "Error. The CW setup file can't be used:", error,
                          "The program goes on with the CW setup it has.");
    } catch (const RunTimeError& error) {
        if (tells)
            warn(s, "Error. The CW setup file " + s.session.CWConfigFile + " is damaged:" + kCrLf +
                        error.what());
    }
    return std::nullopt;
}

void writeCurrentFile(Station& s) {
    s.platform.files.replace(s.session.CWConfigFile, keyer::compose(heldConfig(s.session)));
}

void makeFirstSetup(Station& s) {
    s.session.CWConfigFile = kFirstConfigFile;
    keyer::CwConfig config;
    config.f4 = keyer::answerText(s.PersonalData(personal::Call));
    holdAll(s.session, config);
    try {
        s.platform.files.replace(kPointerFile, keyer::pointerTo(s.session.CWConfigFile));
        writeCurrentFile(s);
    } catch (const FileError&) {
        // A folder that takes no files has been told of; the values of a new setup hold all the same.
    }
    notePort(s);
    showCwSetup(s);
    s.forms.CWSetup.Label22.setCaption("CALL");
}

void highlight(forms::CheckBox& box, bool on) {
    box.setChecked(on);
    box.setBackColour(on ? forms::kLight : forms::kDefaultColour);
}

void showMessages(Station& s) {
    CwSetupForm& form = s.forms.CWSetup;
    const Session& session = s.session;
    form.Label22.setCaption(session.F1Message);
    form.Label9.setCaption(session.F3Message);
    form.Label10.setCaption(session.F4Message);
    form.Label12.setCaption(session.F6Message);
    form.Label13.setCaption(session.F7Message);
}

}  // namespace

void loadCwFile(Station& s) {
    findCurrentFile(s);
    if (s.session.CWConfigFile.empty()) return;
    // At the start the setup form reads the same file next, and tells of its faults.
    const bool tells = s.forms.CWSetup.loaded();
    if (const auto config = readCurrentFile(s, tells)) holdFirstEight(s.session, *config);
    notePort(s);
}

void loadCwSetup(Station& s) {
    findCurrentFile(s);
    if (s.session.CWConfigFile.empty()) return makeFirstSetup(s);
    takeCwFile(s);
}

void takeCwFile(Station& s) {
    s.forms.CWSetup.Label19.setCaption(s.session.CWConfigFile);
    const auto config = readCurrentFile(s, true);
    if (!config) return;
    holdAll(s.session, *config);
    notePort(s);
    setKeyBytes(s);
    showCwSetup(s);
}

void saveCwFile(Station& s) {
    try {
        writeCurrentFile(s);
    } catch (const FileError& error) {
        tellFileFault(s, "Error. The CW setup is not saved. The file can't be written:", error,
                      "The program goes on with the CW setup it has.");
    }
}

void pointToCwFile(Station& s) {
    try {
        s.platform.files.replace(kPointerFile, keyer::pointerTo(s.session.CWConfigFile));
    } catch (const FileError& error) {
        tellFileFault(s, "Error. The name of the CW setup file is not saved:", error,
                      "The next start takes the CW setup that was used before.");
    }
}

void showCwSetup(Station& s) {
    CwSetupForm& form = s.forms.CWSetup;
    const Session& session = s.session;
    form.Label15.setCaption(number::toText(std::int64_t{session.CWSpeed}));
    form.Label20.setCaption(number::toText(session.CWWeight));
    form.Label19.setCaption(session.CWConfigFile);
    showMessages(s);
    highlight(form.Check3D2, session.PTTEnabled == 1);
    highlight(form.CWCall, session.F1CallKeyboard == 1);
    highlight(form.IncSer, session.F1CallNormal == 1);
    showPort(s);
}
