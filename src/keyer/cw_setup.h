// SPDX-License-Identifier: MIT
// The setup form of the Morse keyer. Every change goes into the current .cfg file at once.
// Leans on the files, the messages and the port settings; the main form's start loads it, its menu opens it.
#pragma once

#include "core/station.h"

/// At the start of the main form: the Morse table, the settings and the keying port, in that order.
void startKeyer(Station& s);
/// The check box of the main form that switches Morse on and off.
void cmdCkOK_Click(Station& s);
/// Marks the check box and opens the menus that go with it.
void showCwSwitch(Station& s);

void CWSetup_Load(Station& s);
void CWSetup_QueryClose(Station& s, bool& refuse);
void cmdSpeed_Click(Station& s);
void cmdWeight_Click(Station& s);
/// The normal weight.
void CWSetup_Command2_Click(Station& s);
void SpConstant_Change(Station& s);
void repeatDelay_Change(Station& s);
void Check3D2_Click(Station& s);
/// Whether a call is followed by the keyboard or stands within the message of F1.
void chooseF1(Station& s, bool keyboard);
void cmdCom_Click(Station& s);
void cmdTest_Click(Station& s);
void CWSetup_cmdOK_Click(Station& s);
void File1_Click(Station& s);
/// A new name for the file.
void CWSetup_Command1_Click(Station& s);

/// A key whose message the operator may change.
enum class StoredMessage { F1, F3, F4, F6, F7 };
void askMessage(Station& s, StoredMessage which);
