// SPDX-License-Identifier: MIT
// Taking the last QSO back, the copies of the log on demand, and the list of dupes.
// Leans on the log file and the dialogs; buttons, commands and menus call it.
#pragma once

#include "core/station.h"

/// Takes the last QSO back, after a question; the state before stays in the ".bu1" beside the log.
void DeleteQSO_Click(Station& s);
/// Writes the log's copy with the ending "BAK".
void fBackup_Click(Station& s);
/// Asks for the path of the automatic backup, tries it, and shows it in the menu.
void mViewBU_Click(Station& s);
void showBackupPath(Station& s);
/// Writes "dupefile.txt" and opens it in a text viewer; failures are passed over without a word.
void mWriteDupes_Click(Station& s);
