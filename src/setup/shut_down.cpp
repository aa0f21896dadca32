// SPDX-License-Identifier: MIT
#include "setup/shut_down.h"

#include "bandsw/band_encoder.h"
#include "core/accept_prompt.h"
#include "core/log_file.h"
#include "core/say.h"
#include "setup/control_file.h"

namespace {

void storeMenuMarks(Station& s) {
    const LogMenu& menu = s.forms.frmLog.menu;
    // The next session begins in real time.
    if (menu.mPost.checked() && autoAccept(s)) s.ControlValues(setting::AcceptMode) = kEnterKey;
    s.ControlValues(setting::PrintLine1) = menu.m1Blank.checked() ? "print1line" : "0";
    s.ControlValues(setting::PrintLine2) = menu.m2Blank.checked() ? "print2lines" : "0";
}

/// The end may come while a message goes out; what follows asks the operator, and the transmitter must not
/// stay on meanwhile.
void releasePorts(Station& s) {
    if (s.platform.ports.commOpen()) s.platform.ports.closeComm();
    stopBandEncoder(s);
    s.platform.ports.dropLines();
}

bool logHoldsQsos(Station& s) {
    Files& files = s.platform.files;
    // What is in the file decides, not what was read of it: a log that holds more than headers is never taken
    // away.
    if (s.session.LogLineCount < kFirstQsoLine) {
        return files.exists(s.session.LogFileName) && !holdsNoQso(files, s.session.LogFileName);
    }
    try {
        return !files.read(s.session.LogFileName).empty();
    } catch (const FileError&) {
        return files.exists(s.session.LogFileName);
    }
}

void removeQuietly(Files& files, const std::string& name) {
    try {
        if (holdsNoQso(files, name)) files.remove(name);
    } catch (const FileError&) {
        // A file without a QSO that can't be removed does no harm.
    }
}

void dropLogWithoutQsos(Station& s) {
    const std::string& name = s.session.LogFileName;
    warn(s,
         "You started a log file, then exited the\nlogger before entering any QSOs.\n\n     [ " + name +
             " ] file will be deleted...",
         " Log has no QSOs...");
    removeQuietly(s.platform.files, name);
    if (backupOn(s)) removeQuietly(s.platform.files, backupName(s));
}

}  // namespace

void cmdExit_Click(Station& s) {
    storeMenuMarks(s);
    s.platform.windows.saveSize(s.forms.frmLog.name());
    releasePorts(s);
    WriteControlFile(s);
    if (!logHoldsQsos(s)) dropLogWithoutQsos(s);
    endProgram();
}

void frmLog_QueryClose(Station& s, bool& refuse) {
    refuse = true;
    s.platform.windows.saveSize(s.forms.frmLog.name());
    const Answer answer =
        s.platform.dialogs.message({std::string(" Click <OK> to quit TARQEN32.") + kCrLf + kCrLf +
                                        "Otherwise - <Space> or <Enter> as default.",
                                    " Quit software...", Icon::None, Buttons::OkCancel, Answer::Cancel});
    if (answer == Answer::Ok) cmdExit_Click(s);
}
