// SPDX-License-Identifier: MIT
#include "core/delete_qso.h"

#include "base/text.h"
#include "core/log_file.h"
#include "core/qso_line.h"
#include "core/say.h"
#include "core/search.h"

namespace {

std::string deleteQuestion(const Session& session) {
    const std::string& line = session.LogLines(session.LogLineCount);
    const std::string call(qso::call(line)), band(qso::band(line));
    const bool light = session.BandName(session.CurrentBand) == "Laser";
    return "Are you sure you want to delete\n      the last QSO entered ?\n\n" +
           (light ? call + "  on  Laser" : "     " + call + "  on  " + band + " MHz.");
}

bool operatorAgrees(Station& s) {
    return s.platform.dialogs.message({deleteQuestion(s.session), " Delete Last QSO", Icon::None,
                                       Buttons::OkCancel, Answer::Ok}) == Answer::Ok;
}

/// Beyond the limit of a load the file has lines that memory lacks; writing memory out would lose them.
bool fileHoldsMore(Station& s) {
    const Session& session = s.session;
    if (session.LogLineCount < kLogLineLimit) return false;
    if (session.LogLines(session.LogLineCount).empty()) return true;
    try {
        return static_cast<int>(text::lines(s.platform.files.read(session.LogFileName)).size()) >
               session.LogLineCount;
    } catch (const FileError&) {
        return false;
    }
}

void takeLastLineOff(Station& s) {
    Session& session = s.session;
    forms::ListBox& list = s.forms.frmLog.QSOs;
    // Ten points end in a nought as well; the recount that follows sets this right.
    if (text::endsWith(text::trimRight(session.LogLines(session.LogLineCount)), "0")) --session.DupeCount;
    session.LogLines(session.LogLineCount).clear();
    if (list.listCount() > 0) list.remove(list.listCount() - 1);
    --session.LogLineCount;
}

void rewriteBackup(Station& s) {
    while (backupOn(s)) {
        try {
            s.platform.files.replace(backupName(s), wholeLog(s.session));
            return;
        } catch (const FileError&) {
            beep(s);
            warn(s, "Error. Check BU drive\\path: " + s.ControlValues(setting::BackupPath));
        }
    }
}

}  // namespace

void DeleteQSO_Click(Station& s) {
    Session& session = s.session;
    LogForm& form = s.forms.frmLog;
    if (session.LogLineCount < kFirstQsoLine) {
        warn(s, "Nothing to delete...", " huh?");
        form.focus(form.CallS);
        return;
    }
    if (fileHoldsMore(s)) {
        warn(s,
             std::string("The log file holds more QSOs than the 2500 that fit.") + kCrLf +
                 "Nothing is deleted, so that none of them is lost.",
             " 2500 QSO limit");
        form.focus(form.CallS);
        return;
    }
    if (!operatorAgrees(s)) {
        form.focus(form.CallS);
        return;
    }
    try {
        s.platform.files.replace(besideLog(session, 4, ".bu1"), wholeLog(session));
        const std::string last = session.LogLines(session.LogLineCount);
        const Int16 dupes = session.DupeCount;
        takeLastLineOff(s);
        try {
            s.platform.files.replace(session.LogFileName, wholeLog(session));
        } catch (const FileError&) {
            ++session.LogLineCount;
            session.LogLines(session.LogLineCount) = last;
            session.DupeCount = dupes;
            RefillLogWindow(s);
            throw;
        }
    } catch (const FileError& error) {
        tellFileFault(s, "Error. The last QSO is not deleted. A file can't be written:", error,
                      "Make room on the disk or mend the folder, then delete it again.");
        form.focus(form.CallS);
        return;
    }
    rewriteBackup(s);
    Rfresh_Click(s);
    RefreshLogCount(s);
    form.focus(form.CallS);
}

void fBackup_Click(Station& s) {
    LogForm& form = s.forms.frmLog;
    try {
        s.platform.files.replace(besideLog(s.session, 3, "BAK"), wholeLog(s.session));
    } catch (const FileError&) {
        tell(s, "An error occurred. File not written....");
    }
    form.focus(form.CallS);
}

void showBackupPath(Station& s) {
    s.forms.frmLog.menu.mViewBU.setCaption("Backup drive\\path: " + s.ControlValues(setting::BackupPath));
}

namespace {

std::string askForBackupPath(Station& s) {
    const std::string& value = s.ControlValues(setting::BackupPath);
    std::string text = "<Enter> drive name\\path for auto back-up.";
    if (s.session.LogLineCount >= 4) text += std::string(kCrLf) + "QSOs made so far will be backed-up also.";
    text += std::string(kCrLf) + kCrLf + "Clicking Cancel turns OFF back-up.";
    const bool off = text::upper(text::right(value, 3)) == "OFF";
    const std::string title = off ? " No BU drive is selected..." : " Select BU drive...";
    return s.platform.dialogs.prompt({text, title, value}).value_or("");
}

/// The value that an answer leads to: the path in upper case, or "OFF" where it can't be written.
std::string triedPath(Station& s, std::string path) {
    if (path.empty() || text::upper(path) == "OFF") return "OFF";
    if (!text::endsWith(path, "\\") && !text::endsWith(path, "/")) path += "\\";
    try {
        touch(s.platform.files, path + s.session.LogFileName);
        if (!isLogItself(s, path + s.session.LogFileName)) return text::upper(path);
    } catch (const FileError&) {
        // Told below, as a path that leads to the log itself is.
    }
    tell(s, "Error. Check BU drive\\path: " + path, "Invalid drive and/or path...");
    return "OFF";
}

}  // namespace

void mViewBU_Click(Station& s) {
    s.ControlValues(setting::BackupPath) = triedPath(s, askForBackupPath(s));
    showBackupPath(s);
    s.forms.frmLog.focus(s.forms.frmLog.CallS);
}

void mWriteDupes_Click(Station& s) {
    std::string dupes;
    for (int line = 1; line <= s.session.LogLineCount; ++line) {
        const std::string& text = s.session.LogLines(line);
        if (text::trim(text::right(text, 2)) == "0") dupes += text + kCrLf;
    }
    try {
        const auto file = s.platform.files.create("dupefile.txt");
        file->write(dupes);
        file->close();
    } catch (const FileError&) {
        // The viewer then shows what is there.
    }
    if (!s.platform.programs.start("NOTEPAD.exe dupefile.txt"))
        s.platform.programs.start("EDITPAD.exe dupefile.txt");
    s.forms.frmLog.focus(s.forms.frmLog.CallS);
}
