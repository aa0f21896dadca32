// SPDX-License-Identifier: MIT
#include "core/log_file.h"

#include <filesystem>

#include "base/number.h"
#include "base/text.h"
#include "contest/contest_table.h"
#include "contest/scoring.h"
#include "core/qso_line.h"
#include "core/say.h"
#include "core/tally.h"

std::string wholeLog(const Session& session) {
    std::string content;
    for (int line = 1; line <= session.LogLineCount; ++line) {
        content += session.LogLines(line);
        content += kCrLf;
    }
    return content;
}

std::string besideLog(const Session& session, int cut, const std::string& ending) {
    const int kept = static_cast<int>(session.LogFileName.size()) - cut;
    return std::string(text::left(session.LogFileName, kept)) + ending;
}

bool backupOn(const Station& s) {
    const std::string path = text::upper(s.ControlValues(setting::BackupPath));
    // The program's own folder of old stands for no backup as well.
    return path != "OFF" && path != "C:\\TARQEN32";
}

bool holdsNoQso(Files& files, const std::string& name) {
    constexpr std::size_t kShorterThanAnyLog = 66;
    try {
        const std::string content = files.read(name);
        const std::vector<std::string> lines = text::lines(content);
        if (lines.size() < 2) return content.size() < kShorterThanAnyLog;
        return lines.size() == 2 && text::startsWith(lines[1], "v2.0");
    } catch (const FileError&) {
        return false;
    }
}

bool isLogItself(Station& s, const std::string& name) {
    Files& files = s.platform.files;
    std::error_code ignored;
    return std::filesystem::equivalent(files.path(name), files.path(s.session.LogFileName), ignored);
}

std::string backupName(const Station& s) {
    const std::string& path = s.ControlValues(setting::BackupPath);
    const bool slash = text::endsWith(path, "\\") || text::endsWith(path, "/");
    return path + (slash ? "" : "\\") + s.session.LogFileName;
}

void tellBackupFault(Station& s) {
    warn(s, "Error. Check BU drive\\path: " + s.ControlValues(setting::BackupPath),
         " Invalid drive\\path...");
}

LogAppender::LogAppender(Station& s) : s_(s), log_(s.platform.files.append(s.session.LogFileName)) {
    length_ = log_->length();
    if (length_ == 0 && s.session.LogLineCount >= kFirstQsoLine) restoreLostLog();
    openBackup();
}

/// The file was taken away behind the program's back: memory holds all of it.
void LogAppender::restoreLostLog() {
    Files& files = s_.platform.files;
    const std::string& name = s_.session.LogFileName;
    log_->close();
    files.replace(name, wholeLog(s_.session));
    log_ = files.append(name);
    length_ = log_->length();
    warn(s_, "The log file " + files.path(name) + kCrLf +
                 "was gone or empty. It has been written anew from memory.");
}

void LogAppender::openBackup() {
    while (backupOn(s_)) {
        try {
            Files& files = s_.platform.files;
            backup_ = files.append(backupName(s_));
            const std::int64_t length = backup_->length();
            if (length == length_ && length != 0) return;
            const std::string content = wholeLog(s_.session);
            if (length == 0 && content.empty()) return;
            backup_->close();
            files.replace(backupName(s_), content);
            backup_ = files.append(backupName(s_));
            return;
        } catch (const FileError&) {
            beep(s_);
            backup_.reset();
            tellBackupFault(s_);
        }
    }
    backup_.reset();
}

namespace {

/// A line end in front where the file was left without one, so that two lines never grow together.
std::string onItsOwnLine(OutFile& file, const std::string& bytes) {
    const int last = file.lastByte();
    return last < 0 || last == '\n' || last == '\r' ? bytes : kCrLf + bytes;
}

void appendWhole(OutFile& file, const std::string& bytes) {
    const std::int64_t length = file.length();
    try {
        file.write(onItsOwnLine(file, bytes));
        file.sync();
    } catch (const FileError&) {
        try {
            file.cutTo(length);
        } catch (const FileError&) {
            // A medium that is gone takes no cut either; the next append starts on a line of its own.
        }
        throw;
    }
}

/// What was synced is on the disk, whatever the closing says of it: a line told as lost would be logged
/// twice.
void closeQuietly(OutFile& file) {
    try {
        file.close();
    } catch (const FileError&) {
        // The line is safe.
    }
}

}  // namespace

void LogAppender::appendToLog(const std::string& bytes) {
    appendWhole(*log_, bytes);
    closeQuietly(*log_);
}

void LogAppender::appendToBackup(const std::string& bytes) {
    if (!backup_) return;
    try {
        appendWhole(*backup_, bytes);
        closeQuietly(*backup_);
    } catch (const FileError&) {
        backup_.reset();
        tellBackupFault(s_);
    }
}

void showDupes(Station& s) {
    forms::MenuItem& menu = s.forms.frmLog.menu.mdupes;
    menu.hide();
    if (s.session.DupeCount == 0) return;
    menu.setCaption("Dupes: " + number::toText(s.session.DupeCount));
    menu.show();
}

namespace {

void readLines(Station& s) {
    Session& session = s.session;
    for (std::string& line : text::lines(s.platform.files.read(session.LogFileName))) {
        if (session.LogLineCount == kLogLineLimit) {
            warn(s, std::string("Number of QSOs exceeds the 2500 limit...") + kCrLf + "  Extra ignored...",
                 " 2500 QSO limit");
            break;
        }
        ++session.LogLineCount;
        session.LogLines(session.LogLineCount) = std::move(line);
    }
    markBandsWorked(session);
}

void showBandCounts(Station& s, int band) {
    s.forms.frmLog.QSO.setCaption(number::toText(s.session.BandQSOs(band)));
    s.forms.frmLog.Grid.setCaption(number::toText(s.session.BandGrids(band)));
}

/// What the headers and the first QSO tell of the log.
void showHeaders(Station& s) {
    Session& session = s.session;
    LogForm& form = s.forms.frmLog;
    form.cSignText.setCaption(qso::headerCall(session.LogLines(2)));
    session.StartDate = qso::date(session.LogLines(kFirstQsoLine));
    form.menu.mStartDate.setCaption("Start Date = " + session.StartDate);
}

/// What the contest's number means to the labels.
void showContest(Station& s) {
    LogForm& form = s.forms.frmLog;
    const int number = contest::numberOf(s.session.ContestNumber);
    if (contest::singleBandWhenReopened(number)) form.Label18.setCaption("Bands");
    if (contest::scoresByDistance(number)) form.menu.mWriteSum.setEnabled(false);
}

/// The flag that there is no log to check against falls with the first QSO; only a lookup raises it.
void lowerEmptyFlag(Session& session) {
    if (session.LogLineCount >= kFirstQsoLine) session.LogIsEmpty = false;
}

/// The session resumes where the last QSO was made.
void resumeOnLastQso(Station& s) {
    Session& session = s.session;
    LogForm& form = s.forms.frmLog;
    const std::string& last = session.LogLines(session.LogLineCount);
    const std::string band(qso::band(last));
    form.UsingBand.setCaption(band);
    form.Freq.setCaption(band);
    form.tBand.setText(band);
    form.Mode.setText(qso::mode(last));
    const int index = bandIndex(session, band);
    if (index == 0) return;
    showBandCounts(s, index);
    session.CurrentBand = index;
}

void loadAndShow(Station& s) {
    Session& session = s.session;
    LogForm& form = s.forms.frmLog;
    LoadBandNames(session);
    session.LogLineCount = 0;
    readLines(s);
    lowerEmptyFlag(session);
    session.GridTotal = 0;
    countLines(session);
    showDupes(s);
    resumeOnLastQso(s);
    showHeaders(s);
    session.ContestNumber = qso::headerContest(session.LogLines(2));
    showContest(s);
    if (scoresByDistance(s)) {
        getSprintScore(s);
    } else {
        ContestPoints(s);
        addUp(s);
        showTotalScore(s);
    }
    form.Text1.setCaption("Normal");
}

}  // namespace

void InputLogFile(Station& s) {
    try {
        loadAndShow(s);
    } catch (const RunTimeError&) {
        warn(s, "Is this a TARQEN v2.0 or greater log file ?");
    }
}

namespace {

/// The lines of the file as they stand; the count runs one past the limit where the file holds more.
void readAgain(Session& session, const std::vector<std::string>& lines) {
    session.LogLineCount = 0;
    for (const std::string& line : lines) {
        ++session.LogLineCount;
        if (session.LogLineCount > kLogLineLimit) break;
        session.LogLines(session.LogLineCount) = line;
    }
}

/// The counts of what memory holds, where the file has nothing to say.
void countMemory(Station& s) {
    markBandsWorked(s.session);
    countLines(s.session);
    showDupes(s);
}

}  // namespace

void RefreshLogCount(Station& s) {
    Session& session = s.session;
    Files& files = s.platform.files;
    // A log that was never begun, or whose headers alone were taken away, has no file.
    if (session.LogLineCount == 0 && !files.exists(session.LogFileName)) return;
    std::vector<std::string> lines;
    const bool held = session.LogLineCount >= kFirstQsoLine;
    try {
        lines = text::lines(files.read(session.LogFileName));
    } catch (const FileError& error) {
        tellFileFault(s, "Error. The log file can't be read:", error,
                      "The log goes on with the QSOs that are in memory. Check the file.");
        return countMemory(s);
    }
    if (held && lines.size() < 2) {
        warn(s, "The log file " + files.path(session.LogFileName) + kCrLf +
                    "is empty. The log goes on with the QSOs that are in memory." + kCrLf +
                    "The next QSO writes all of them to the file again.");
        return countMemory(s);
    }
    readAgain(session, lines);
    markBandsWorked(session);
    lowerEmptyFlag(session);
    countLines(session);
    showDupes(s);
    const int band = bandIndex(session, qso::band(session.LogLines(session.LogLineCount)));
    if (band != 0) showBandCounts(s, band);
    if (session.LogLineCount >= 2) {
        session.ContestNumber = qso::headerContest(session.LogLines(2));
        showHeaders(s);
    }
    showContest(s);
    if (scoresByDistance(s)) {
        getSprintScore(s);
        return;
    }
    const float shown = session.TotalScore;
    ContestPoints(s);
    addUp(s);
    session.TotalScore = shown;
    showTotalScore(s);
}
