// SPDX-License-Identifier: MIT
// Moving between the bands: the page keys, the band commands and the band list.
// Leans on the contest table, the session and the log window; keys, commands and the list call it.
#pragma once

#include "core/station.h"

void NextBand(Station& s);
void BandDown(Station& s);
/// Brings the screen to `CurrentBand`: list, labels, `tBand`, counts, log view, and an empty call field.
void showBand(Station& s);
/// A click on a row of the band list.
void Bands_Click(Station& s);
/// Fills the list with the labels of the contest's bands.
void LoadBands(Station& s);
/// Selects the row of `CurrentBand` where the contest has one.
void selectBandRow(Station& s);
/// The band after or before one, by the keys: 1 to 10, in contest "3" from 3 on.
int bandAfter(int band, bool fromTwoTwentyTwo);
int bandBefore(int band, bool fromTwoTwentyTwo);
