// SPDX-License-Identifier: MIT
// The log on the disk: loading, refreshing, appending a line, its backup copy.
// Leans on the session, qso_line, tally and scoring; start-up, the accept, the delete and the menus call it.
#pragma once

#include <memory>
#include <string>

#include "core/station.h"

/// Loads the file of `LogFileName`, rebuilds all counts and shows them; the session resumes on the last QSO's
/// band.
void InputLogFile(Station& s);
/// Reads the file anew and rebuilds the counts after it has changed on the disk.
void RefreshLogCount(Station& s);

/// Lines 1 to `LogLineCount`, each with its line end.
std::string wholeLog(const Session& session);
/// The name of a copy beside the log: its last `cut` characters replaced by `ending`.
std::string besideLog(const Session& session, int cut, const std::string& ending);

/// The menu of dupes, with their count, while the log holds any.
void showDupes(Station& s);

bool backupOn(const Station& s);
/// The backup path with its slash, and the log's name.
std::string backupName(const Station& s);
/// Whether a file holds nothing that was logged: empty, cut short in its headers, or the two headers alone.
/// Only such a file may be taken away; one that can't be read may not.
bool holdsNoQso(Files& files, const std::string& name);
/// Whether a name leads to the log itself, by whatever path: then it is no backup.
bool isLogItself(Station& s, const std::string& name);
/// The words for a backup that can't be reached.
void tellBackupFault(Station& s);

/// The log and its backup, open for one more line.
class LogAppender {
public:
    /// Opens the log, then the backup, which is brought level with the log first. A backup that fails is told
    /// and tried again until its path works or the backup is off. FileError where the log itself can't be
    /// opened.
    explicit LogAppender(Station& s);
    /// Appends to the log and waits until it is on the disk. Where that fails, what went in is cut off again:
    /// FileError.
    void appendToLog(const std::string& bytes);
    /// The same for the backup; a failure is told, and the next QSO repairs the copy.
    void appendToBackup(const std::string& bytes);

private:
    void openBackup();
    void restoreLostLog();
    Station& s_;
    std::unique_ptr<OutFile> log_, backup_;
    std::int64_t length_ = 0;
};
