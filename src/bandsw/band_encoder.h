// SPDX-License-Identifier: MIT
// The band decoder on a parallel port: it is told the band at every change, and the form that sets it up.
// Leans on band_code.h, the key bytes and the platform's ports; the band field, start and exit call it.
#pragma once

#include "core/station.h"

/// The band field has changed.
void tBand_Change(Station& s);
/// At the start of the main form, once the settings have been mended: the port's lines low, then the code of
/// the band that the field holds, where the decoder is in use.
void startBandEncoder(Station& s);
/// At the end of the program.
void stopBandEncoder(Station& s);

void BandSw_Load(Station& s);
void Addres_Change(Station& s);
void Addres_LostFocus(Station& s);
void LPT1_Click(Station& s);
void Start144_Click(Station& s);
void Start50_Click(Station& s);
void BandSw_Command2_Click(Station& s);
void CWLPT1_Click(Station& s);
void PTTLPT_Click(Station& s);
void BandSw_Command1_Click(Station& s);
