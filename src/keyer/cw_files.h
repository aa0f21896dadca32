// SPDX-License-Identifier: MIT
// The keyer's .cfg file and the file that points to it, in the program's folder.
// Leans on cw_config.h and the platform's files; the main form's start and the setup form call it.
#pragma once

#include "core/station.h"

/// The main form's way: the eight first values, and the number of the port. The keyer's form takes the
/// others.
void loadCwFile(Station& s);
/// The setup form's way: every value, shown on the form. Where no file is pointed to, a new one is made with
/// the values of a new setup.
void loadCwSetup(Station& s);
/// Reads the current file whole and shows it; an empty one changes nothing. A fault is told.
void takeCwFile(Station& s);
/// Rewrites the current file whole. A fault is told.
void saveCwFile(Station& s);
/// Points to the current file. A fault is told.
void pointToCwFile(Station& s);
/// Puts the values that stand in the file on the setup form.
void showCwSetup(Station& s);
