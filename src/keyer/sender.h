// SPDX-License-Identifier: MIT
// One character after the other out of `CWBuffer`, onto the line.
// Leans on the rules of Morse and timing and on the lines; messages, keyboard and calibration send with it.
#pragma once

#include "core/station.h"
#include "keyer/cw_timing.h"
#include "keyer/morse.h"

/// The timing of the speed that holds now. Raises "Division by zero" at a speed of 0.
keyer::Timing CWTiming(const Station& s);

/// What one message or one session at the keyboard keeps from character to character.
struct Sending {
    /// The register that is keyed.
    int address = 0;
    keyer::Brackets brackets = keyer::Brackets::ChangeSpeed;
    keyer::Timing timing;
    /// The speed before a bracket.
    int formerSpeed = 0;
};

/// Sends the first character of `CWBuffer`. It stays there, but for what a prosign takes off.
void CWSendChar(Station& s, Sending& sending);

/// Whether the form of the message was left, and another session that began since has taken the cancel away.
bool isAbandoned(const Station& s);

enum class Sent { Whole, Cancelled };
/// Sends `CWBuffer` to its end, with the keys and timers that wait run before and after each character. A
/// cancel stops it at the next character, with all lines off; a message that was abandoned leaves buffer and
/// lines to the session that took them. What is left is shown, where there is a label for it.
Sent sendBuffer(Station& s, Sending& sending, forms::Label* shown);

/// Takes the character that was sent off the buffer, shows what is left, and lets events run.
void dropSentCharacter(Station& s, forms::Label* shown);
