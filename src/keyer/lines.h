// SPDX-License-Identifier: MIT
// The key line and the push-to-talk line, whichever port they hang on.
// Leans on the platform's ports and delay; the sender, the messages, the keyboard and the setup call it.
#pragma once

#include "core/station.h"

/// The lines are those of a serial port that is driven as a device, not by the registers of its address.
bool onUsbPath(const Station& s);
/// Morse goes out on the parallel port.
bool cwOnLpt(const Station& s);
/// Reads the address anew from the band encoder's form and points the keying port at its control register.
void useLptPort(Station& s);

// The four operations. Each waits for the moment at which its edge is due.
void KeyDown(Station& s);
void KeyUp(Station& s);
void PTTOn(Station& s);
void AllOff(Station& s);

// The same for a register other than the keying port's, which the calibration runs on.
void keyDownAt(Station& s, int address);
void keyUpAt(Station& s, int address);
void allOffAt(Station& s, int address);
