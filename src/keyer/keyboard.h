// SPDX-License-Identifier: MIT
// The computer's keyboard as a keyer: keys join the queue, and one loop sends it while more can be typed.
// Leans on the sender and the lines; the function keys open it.
#pragma once

#include "core/station.h"

/// Opens the form with what the buffer holds; nothing goes out before the first key. `ptt` says that the
/// transmitter is held by its line.
void openKeyboard(Station& s, bool ptt);
void frmCWTX_KeyDown(Station& s, forms::KeyStroke& stroke);
void frmCWTX_KeyPress(Station& s, const forms::KeyPress& key);
/// The form is left or hidden: the lines drop, and the queue is kept.
void frmCWTX_Deactivate(Station& s);
void frmCWTX_QueryClose(Station& s, bool& refuse);
