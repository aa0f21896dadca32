// SPDX-License-Identifier: MIT
// Morse as the keyer knows it: the elements of a character, and what the front of a buffer stands for.
// Leans on base alone; the sending routines (sender.h) ask it one character at a time.
#pragma once

#include <string>

#include "base/table.h"

namespace keyer {

/// The elements of each character, "." and "-", by its code less 32; empty where a character has none.
using MorseTable = Table<std::string, 0, 60>;
MorseTable morseTable();

/// What the next character of a buffer asks of the sender.
struct Outgoing {
    enum class Kind { Nothing, WordGap, OtherSpeed, FormerSpeed, Elements } kind = Kind::Nothing;
    std::string elements;
};

/// Whether brackets change the speed, as in a message, or are sent, as on the keyboard.
enum class Brackets { ChangeSpeed, AreSent };

/// Looks at the first character of a buffer. A lead-in of a prosign ("\" or any code above 90) is taken off
/// the buffer with the two characters behind it, whose elements run together; all else stays there. Raises
/// "Invalid procedure call or argument" where fewer than two characters follow a lead-in, and "Subscript out
/// of range" where one of them is beyond the table.
Outgoing nextOutgoing(std::string& buffer, const MorseTable& table, Brackets brackets);

}  // namespace keyer
