// SPDX-License-Identifier: MIT
#include "setup/setup_screen.h"

#include <initializer_list>

#include "base/text.h"
#include "core/log_file.h"
#include "core/qso_line.h"
#include "core/say.h"
#include "setup/control_file.h"
#include "setup/personal_text.h"
#include "setup/utc_check.h"
#include "setup/utc_clock.h"

namespace {

constexpr const char* kPersonalFile = "Name.dat";

std::string personalContent(Station& s) {
    try {
        touch(s.platform.files, kPersonalFile);
        return s.platform.files.read(kPersonalFile);
    } catch (const FileError& error) {
        // Going on without it would put a new file over one that is there.
        tellFileFault(s, "Error. The program's folder can't be used:", error,
                      "Mend the rights of the folder or the disk, and run TARQEN again.");
        endProgram();
    }
}

void readPersonalData(Station& s) {
    const std::string content = personalContent(s);
    content.empty() ? personal::setDefaults(s.PersonalData) : personal::parse(content, s.PersonalData);
}

void showCategories(Station& s) {
    SetupForm& form = s.forms.frmSetup;
    const bool multi = text::upper(text::left(form.Combo10.text(), 5)) == "MULTI";
    if (multi) {
        form.Combo10.setText("MULTI-OP");
    } else {
        // A single operator has one transmitter, whatever the file held.
        form.Combo13.present("ONE");
        s.PersonalData(personal::Transmitter) = "ONE";
    }
}

void showOperators(Station& s) {
    SetupForm& form = s.forms.frmSetup;
    const bool multi = text::upper(text::left(s.PersonalData(personal::OperatorCategory), 4)) == "MULT";
    for (forms::Control* const control :
         std::initializer_list<forms::Control*>{&form.Label14, &form.Label15, &form.Combo11, &form.Combo12}) {
        control->setVisible(multi);
    }
}

}  // namespace

void LoadPersonalData(Station& s) {
    SetupForm& form = s.forms.frmSetup;
    Personal& data = s.PersonalData;
    readPersonalData(s);
    form.Combo4.present(data(personal::Call));
    form.Combo3.present(data(personal::Name));
    form.Combo5.present(data(personal::Address));
    form.Combo6.present(data(personal::City));
    form.Combo7.present(data(personal::Grid));
    form.Combo8.present(data(personal::Club));
    form.Combo9.present(data(personal::Section));
    form.Combo10.present(data(personal::OperatorCategory));
    form.Combo13.present(data(personal::Transmitter));
    showCategories(s);
    form.Combo11.present(data(personal::Operators));
    form.Combo12.present(data(personal::MoreOperators));
    if (data(personal::Power).empty()) data(personal::Power) = "LOW";
    form.Power.present(data(personal::Power));
    form.Combo2.present(data(personal::StationCategory));
    showOperators(s);
}

void CheckPrevInstance(Station& s) {
    if (!s.platform.programs.previousInstance()) return;
    warn(s, "TARQEN is already running! Find the\napplication and continue, or close it.");
    endProgram();
}

void FillSetupLists(Station& s) {
    SetupForm& form = s.forms.frmSetup;
    const auto fill = [](forms::ComboBox& box, std::initializer_list<const char*> items) {
        for (const char* const item : items) box.add(item);
    };
    s.session.AppPath = s.platform.files.path("");
    fill(form.Combo1, {"OFF", "A:\\", "B:\\", "C:\\", "D:\\", "E:\\", "F:\\"});
    fill(form.Combo8, {"Praituna VHF Radio Club", "North East Weak Signal Group", "Warminster ARC", "none"});
    fill(form.Combo9, {"EPA", "DE", "MDC", "WPA", "SNJ", "NNJ"});
    fill(form.Combo2, {"FIXED", "ROVER", "PORTABLE", "MOBILE"});
    fill(form.Combo10, {"SINGLE-OP", "MULTI-OP", "CHECKLOG"});
    fill(form.Combo13, {"ONE", "TWO", "LIMITED", "UNLIMITED"});
    fill(form.Combo14, {"CKLIST", "LOGSORT", "OFF"});
    fill(form.Combo15, {"Use LO", "OFF"});
    fill(form.Combo17, {"Six-Digit", "OFF"});
    fill(form.Combo19, {"Display", "OFF"});
    fill(form.Combo20, {"Mi.", "kM."});
    fill(form.Power, {"LOW", "HIGH", "QRP"});
    form.logFile.setItems(s.platform.files.list("*.lgg"));
}

void frmSetup_Load(Station& s) {
    SetupForm& form = s.forms.frmSetup;
    if (s.session.SetupLoaded != 0) return;
    CheckPrevInstance(s);
    LoadPersonalData(s);
    CheckUtcOffset(s);
    FillSetupLists(s);
    form.Label4.setToolTip(std::string("To start a new contest logfile, click here or the above label.") +
                           kCrLf + "Select a contest, then click `Continue`");
    form.Label16.setCaption(offsetCaption(s));
    form.Label20.setCaption(
        "While logging, please use <Enter> and <Space> keys to accept data. <Tab> is only used to move "
        "fields.");
    s.platform.windows.restoreSize(form.name());
    s.session.ProgramVersion = "v4.0";
}

void LoadFileHeader(Station& s) {
    Session& session = s.session;
    // The program's folder is the current one, so that the bare name is the whole way.
    touch(s.platform.files, session.LogFileName);
    const auto lines = text::lines(s.platform.files.read(session.LogFileName), 2);
    if (!lines.empty()) session.ContestName = lines[0];
    if (lines.size() > 1) session.CurrentCall = qso::headerCall(lines[1]);
    session.LogOpenMode = 1;
}

namespace {

void unpickLog(Station& s) {
    SetupForm& form = s.forms.frmSetup;
    s.session.LogFileName.clear();
    form.fName.hide();
    form.Label2.hide();
    form.Label25.hide();
    form.Label4.show();
    form.cmdDone.setEnabled(false);
}

}  // namespace

void logFile_Click(Station& s) {
    SetupForm& form = s.forms.frmSetup;
    if (form.logFile.listIndex() < 0) return;
    s.session.LogFileName = form.logFile.content();
    form.fName.setCaption(s.session.LogFileName);
    form.fName.show();
    form.Label2.show();
    form.Label4.hide();
    try {
        LoadFileHeader(s);
    } catch (const FileError& error) {
        tellFileFault(s, "Error. The log file can't be used:", error,
                      "Mend its rights, or pick another log.");
        unpickLog(s);
        return;
    }
    form.cmdDone.setEnabled(true);
    s.session.LogOpenMode = 1;
    form.Label25.setCaption(s.session.ContestName);
    form.Label25.show();
}

void logFile_DblClick(Station& s) {
    // The click that goes before has picked the file, unless the file could not be used.
    const SetupForm& form = s.forms.frmSetup;
    if (form.logFile.listIndex() >= 0 && form.cmdDone.enabled()) cmdDone_Click(s);
}

std::string AskNewLogFile(Station& s, const std::string& prompt) {
    SetupForm& form = s.forms.frmSetup;
    Session& session = s.session;
    session.LogFileName =
        text::trim(s.platform.dialogs.prompt({prompt, "  The extension .lgg is assumed", ""}).value_or(""));
    const std::string answer = session.LogFileName;
    if (answer.empty()) return answer;
    if (text::upper(text::right(answer, 4)) == ".LGG") {
        session.LogFileName = text::left(answer, static_cast<int>(answer.size()) - 4);
    }
    // An ending alone is no name.
    if (session.LogFileName.empty()) return {};
    form.fName.show();
    form.Label2.show();
    form.Label4.setCaption("New log filename to be used");
    session.LogFileName += ".lgg";
    form.fName.setCaption(session.LogFileName);
    session.LogOpenMode = 0;
    form.hide();
    s.forms.frmContest.show();
    form.cmdDone.setEnabled(true);
    return answer;
}

void startNewLog_Click(Station& s) {
    SetupForm& form = s.forms.frmSetup;
    form.fName.hide();
    form.Label2.hide();
    form.Label25.hide();
    form.cmdDone.setEnabled(false);
    AskNewLogFile(s, "To start a new contest log, enter a NEW filename.");
}

namespace {

bool callAndGridAreThere(Station& s) {
    const SetupForm& form = s.forms.frmSetup;
    const std::string call = text::upper(form.Combo4.text());
    if (!call.empty() && call != "CALL" && call != "URCALL" && !form.Combo7.text().empty()) return true;
    warn(s, "Enter Call and Grid !");
    return false;
}

void writePersonalData(Station& s) {
    for (const int element : {personal::Operators, personal::MoreOperators, personal::Power}) {
        s.PersonalData(element) = text::upper(s.PersonalData(element));
    }
    if (text::trim(s.PersonalData(personal::BandCategory)).empty())
        s.PersonalData(personal::BandCategory) = "ALL";
    try {
        s.platform.files.replace(kPersonalFile, personal::compose(s.PersonalData));
    } catch (const FileError& error) {
        tellFileFault(
            s, "Error. The personal data are not saved. The file can't be written:", error,
            "Make room on the disk or mend the folder. This session goes on with the data on the screen.");
    }
}

/// Makes the backup file where a backup is on; false where its path can't be written.
bool backupIsReady(Station& s) {
    const std::string& path = s.ControlValues(setting::BackupPath);
    if (text::lower(path) == "c:\\tarqen32" || text::upper(path) == "OFF") return true;
    try {
        touch(s.platform.files, path + s.session.LogFileName);
        if (!isLogItself(s, backupName(s))) return true;
    } catch (const FileError&) {
        // Told below, as a backup that is the log itself is.
    }
    beep(s);
    warn(s, "Error. Check BU drive\\path: " + path);
    return false;
}

}  // namespace

void cmdDone_Click(Station& s) {
    SetupForm& form = s.forms.frmSetup;
    s.forms.UTCfrm.unload();
    if (!callAndGridAreThere(s)) return;
    s.platform.windows.saveSize(form.name());
    writePersonalData(s);
    WriteControlFile(s);
    if (!backupIsReady(s)) return;
    form.Timer1.stop();
    form.unload();
    s.forms.frmLog.show();
    s.platform.windows.restoreSize(s.forms.frmLog.name());
    s.platform.windows.pump();
}

void frmSetup_QueryClose(Station& s, bool& refuse) {
    const std::string& call = s.PersonalData(personal::Call);
    if (call.empty() || s.session.LogFileName.empty() || text::lower(call) == "urcall") endProgram();
    refuse = true;
    SetupForm& form = s.forms.frmSetup;
    form.hide();
    cmdDone_Click(s);
    // Where "Continue" found fault, the operator gets the screen back to mend it.
    if (!s.forms.frmLog.visible()) form.show();
}
