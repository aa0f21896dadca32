// SPDX-License-Identifier: MIT
// A message from its key to its last element, and the form that is shown meanwhile.
// Leans on the sender and the lines; the function keys and the setup form send with it.
#pragma once

#include "core/station.h"

/// Puts the captions with the speed of now on both forms.
void CWShowCaptions(Station& s);
/// The keyboard form's frame alone.
void showKeyboardSpeed(Station& s);
/// Sends the message of `CWMessageKey`; `frmTX` has to be shown. Ends when it has gone or is cancelled; an
/// error in it is told to the operator.
void CWSendMessage(Station& s);
void CWEndMessage(Station& s);
/// The pause between two CQs. A cancel ends it early and stays for the send that follows.
void CWRepeatPause(Station& s);

// The form's own events.
void frmTX_KeyDown(Station& s, forms::KeyStroke& stroke);
void frmTX_KeyPress(Station& s, const forms::KeyPress& key);
/// The form is left, hidden or closed: the send stops and the lines drop.
void frmTX_Deactivate(Station& s);

/// A step of the speed by an arrow key, within 5 and 60 words a minute; shown on the setup form.
void stepSpeed(Station& s, int step);
/// "Test w/PTT": a name and how the transmitter is switched.
std::string withControl(const Station& s, std::string_view name);
