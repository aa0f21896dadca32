// SPDX-License-Identifier: MIT
// What a text in the call field can be: a band, an IF frequency, a callsign.
// Leans on base; the commands of the call field call it.
#pragma once

#include <string_view>
#include <vector>

namespace call {

/// The band index that a command selects, 0 of none. Contest "3" takes neither 50 nor 144.
int bandCommand(std::string_view text, std::string_view contestNumber);
/// The band commands of two and three characters that the field tries first (up to 903), and those of any
/// length (from 1296 on); 0 of none.
int shortBandCommand(std::string_view text, std::string_view contestNumber);
int longBandCommand(std::string_view text);
/// "F125", "F12": the frequency behind an IF output, as a text that begins with F and digits.
bool isIfCommand(std::string_view text);
/// How many of the positions 2 and 3 begin a pair of digits.
int pairsOfDigits(std::string_view text);
/// A digit somewhere from position 2 on.
bool hasNumeral(std::string_view text);

}  // namespace call
