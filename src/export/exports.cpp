// SPDX-License-Identifier: MIT
#include "export/exports.h"

#include "base/text.h"
#include "contest/contest_table.h"
#include "core/log_file.h"
#include "core/say.h"
#include "export/adif.h"
#include "export/cabrillo.h"
#include "export/category.h"
#include "export/grid_list.h"
#include "export/report_file.h"
#include "export/summary_sheet.h"
#include "setup/utc_clock.h"

namespace {

std::string nameByCall(const Station& s, const char* ending) {
    return s.PersonalData(personal::Call) + ending;
}

/// A call with a slash is no file name, not even where a folder bears the part before it.
void writeByCall(Station& s, const std::string& name, const std::function<void(std::string&)>& compose) {
    if (name.find_first_of("/\\") != std::string::npos) throw badCallError();
    exporting::writeReport(s, name, compose);
}

/// MM/DD/YYYY of the system.
std::string longDate(Station& s) {
    const DateTime today = s.platform.clock.local();
    return std::string(text::left(dateText(today), 6)) + text::digits(today.year, 4);
}

std::string adifQuestion(const std::string& baseName) {
    return "The log file being converted is: " + baseName + ".lgg" + kCrLf + kCrLf +
           "Enter filename, with or without the extension .ADI" + kCrLf +
           "  Or, hit <Enter> for the default filename below.";
}

}  // namespace

void mCabrillo_Click(Station& s) {
    if (exporting::isRover(s.PersonalData(personal::OperatorCategory))) return;
    const std::string name = nameByCall(s, ".log");
    try {
        writeByCall(s, name, [&](std::string& file) {
            file = exporting::cabrilloFile(s.session, s.PersonalData, s.forms.frmLog.tScore.caption());
        });
    } catch (const RunTimeError&) {
        tell(s, "Error occurred, file write not completed!");
        return;
    }
    exporting::offerForViewing(s, name);
}

void mnonARRL_Click(Station& s) {
    const std::string name = nameByCall(s, ".log");
    try {
        writeByCall(s, name, [&](std::string& file) { file = wholeLog(s.session); });
    } catch (const RunTimeError&) {
        return;
    }
    exporting::offerForViewing(s, name);
}

void mWriteSum_Click(Station& s) {
    Session& session = s.session;
    const std::string name = nameByCall(s, ".sum");
    try {
        const exporting::Hourglass hourglass(s);
        writeByCall(s, name, [&](std::string& file) {
            if (session.ContestNumber != "19")
                session.TotalScore =
                    static_cast<float>(std::int64_t{session.TotalQSOPoints} * session.GridTotal);
            file = exporting::summarySheet(session, s.PersonalData, dateText(s.platform.clock.local()));
        });
    } catch (const RunTimeError&) {
        return;
    }
    if (exporting::summaryNotRequired(contest::numberOf(session.ContestNumber))) {
        warn(s,
             std::string("This summary is for your own use as it is not") + kCrLf +
                 "required with a Cabrillo file log submission. The" + kCrLf +
                 "Cabrillo file is however required by the League.",
             "Not required");
    }
    exporting::offerForViewing(s, name);
}

void mWritegrids_Click(Station& s) {
    const std::string name = std::string(text::right(longDate(s), 4)) + "grid.txt";
    try {
        const exporting::Hourglass hourglass(s);
        exporting::writeReport(s, name, [&](std::string& file) {
            exporting::addGridList(file, s.session, s.PersonalData(personal::Call));
        });
    } catch (const RunTimeError&) {
        return;
    }
    exporting::offerForViewing(s, name);
}

void mADIF_Click(Station& s) {
    const LogForm& form = s.forms.frmLog;
    const std::string logName = form.DOSFile.caption();
    const std::string baseName = text::lower(text::left(logName, static_cast<int>(logName.size()) - 4));
    const std::string answer =
        s.platform.dialogs.prompt({adifQuestion(baseName), " Export ADIF file", baseName}).value_or("");
    if (text::trim(answer).empty()) return;
    try {
        const exporting::Hourglass hourglass(s);
        exporting::writeReport(s, exporting::adifName(answer), [&](std::string& file) {
            file = exporting::adifFile(s.session, {s.session.ProgramVersion, s.PersonalData(personal::Call),
                                                   form.ContName.caption(), logName, longDate(s)});
        });
    } catch (const RunTimeError&) {
        return;
    }
    exporting::offerForViewing(s, answer);
}
