// SPDX-License-Identifier: MIT
// The control file TARQEN32Control.Ini in the program's folder.
// Leans on control_text.h and the platform's files; the setup screen, the offset dialog and the exit call it.
#pragma once

#include "core/station.h"

/// Fills `ControlValues` from the file; an absent or empty one is made with its defaults first.
void ReadControlFile(Station& s);
/// Rewrites the file whole. Where that fails the operator is told, and the program goes on with what it has.
void WriteControlFile(Station& s);
/// The values of a new file.
void SetControlDefaults(Station& s);
