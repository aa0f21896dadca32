// SPDX-License-Identifier: MIT
// The setup screen: who the station is, where its backup goes, which log it uses.
// Leans on the control file, the personal data, the offset check and the choice of a contest; the splash
// hands over to it, and it hands over to the main form.
#pragma once

#include <string>

#include "core/station.h"

/// Once a run, when the screen is first loaded.
void frmSetup_Load(Station& s);
/// Ends the program where another one of it runs.
void CheckPrevInstance(Station& s);
/// Reads "Name.dat" and fills the fields.
void LoadPersonalData(Station& s);
void FillSetupLists(Station& s);
/// Reads the headers of the log file that was picked.
void LoadFileHeader(Station& s);
/// Asks for the name of a new log; trimmed, empty where the operator gave none.
std::string AskNewLogFile(Station& s, const std::string& prompt);
/// "Continue": checks, saves and goes on to the main form.
void cmdDone_Click(Station& s);
void logFile_Click(Station& s);
void logFile_DblClick(Station& s);
void startNewLog_Click(Station& s);
void frmSetup_QueryClose(Station& s, bool& refuse);
