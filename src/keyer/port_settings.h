// SPDX-License-Identifier: MIT
// Which port keys Morse and push-to-talk: its preparation, and the form that chooses it.
// Leans on the key bytes, the lines and the platform's ports; the start, the CW switch and the setup form
// call it.
#pragma once

#include "core/station.h"

/// Sets the bytes of the direct path by the port in use, the swap of the lines and push-to-talk.
void setKeyBytes(Station& s);
/// Sets bytes and address, and opens the port with its lines off. Raises PortError.
void preparePort(Station& s);
/// The same at the start and when Morse is switched on: a port that can't be used is told, and the program
/// goes on without it.
void preparePortOrTell(Station& s);

/// What the setup form says of the port that is chosen now.
void showPort(Station& s);
/// The same while the control file is read, from the settings alone.
void showPortOfSettings(Station& s);

void ConfigScrn_Load(Station& s);
void ComPort_Click(Station& s, int port);
void SwapCom_Click(Station& s);
void otherPortName_Change(Station& s);
/// An entry of the list is a number with a name behind it; the number alone goes into the field.
void otherPortName_Click(Station& s);
void otherPortAddress_Change(Station& s);
void OKButton_Click(Station& s);
void ConfigScrn_Command1_Click(Station& s);
