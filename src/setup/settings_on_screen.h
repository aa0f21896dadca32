// SPDX-License-Identifier: MIT
// The stored settings, carried over into marks, captions and colours of the main form.
// Leans on the settings and the forms; the main form's start calls it, the menus' toggles stand here too.
#pragma once

#include "core/station.h"

/// Shows every setting on the main form, and gives the settings that were left blank their values.
void showSettings(Station& s);
/// The help, the ports, the maps and the lookups, which follow once the log stands in its window.
void showLaterSettings(Station& s);

// The menu's marks that store a setting and do no more.
void chooseLogFontWeight(Station& s, bool bold);
void chooseLogFontSize(Station& s, bool large);
void mRecip_Click(Station& s);
void mYourBands_Click(Station& s);
void mMasterCalls_Click(Station& s);
void LastCall_Click(Station& s);
/// Whether the prompt for rovers and mobiles is shown.
void chooseDupePrompt(Station& s, bool shown);
/// Whether a rover's last grid stays in the grid field.
void chooseLastGrid(Station& s, bool kept);
void Mode_Change(Station& s);
void Mode_LostFocus(Station& s);
