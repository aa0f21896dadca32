// SPDX-License-Identifier: MIT
// The log window and the searches in the log, the lookups and the master file.
// Leans on the log lines and the platform's files; buttons, commands and the refresh call it.
#pragma once

#include <string>

#include "core/station.h"

/// Fills the log window with all lines, or with those of the band in use.
void RefillLogWindow(Station& s);
/// Takes in what other programs and other settings have changed: the log, the window, the score, the lookup
/// files.
void Rfresh_Click(Station& s);
void LogWindow_Click(Station& s);
/// A line of the log is recalled as if its call had been typed; in band view nothing happens.
void QSOs_Click(Station& s);
/// The QSOs with the station whose dupe was declined.
void Search1_Click(Station& s);
/// Asks for a text and searches for it.
void Search2_Click(Station& s);
/// Log lines and master file entries that hold a text.
void CallSearch(Station& s, const std::string& wanted);
/// Log, LOGSORT and master file entries that hold the fragment in the call field.
void PartialSearch(Station& s);
/// The row of a search for a log line.
std::string searchRow(std::string_view line);
