// SPDX-License-Identifier: MIT
// The bytes that key a port written directly, and the addresses that texts and port numbers stand for.
// Leans on base alone; the port settings, the band encoder's form and the loader of the setup ask it.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace keyer {

/// What goes to the port for each line operation. Without push-to-talk its byte stays what it was.
struct KeyBytes {
    int down = 0, up = 0;
    std::optional<int> ptt;
};

/// In the modem control register of a UART bit 0 is DTR and bit 1 is RTS: the key is RTS and PTT is DTR,
/// `swapped` the other way round.
KeyBytes uartBytes(bool swapped, bool ptt);
/// In the control register of a parallel port.
KeyBytes lptBytes(bool ptt);

/// From the base of a UART to its modem control register, and of a parallel port to its control register.
constexpr int kUartControl = 4, kLptControl = 2;
/// The base of a serial port 1 to 4; 0 for any other number.
int uartBase(int port);
/// The address that a text like "&H378" stands for; 0 where it is none, or leaves no room for the registers
/// in 16 bits with a sign.
int portAddress(std::string_view text);
/// The serial port that a text names: a device's path as it stands, else the value of its number.
std::string commPort(std::string_view text);

}  // namespace keyer
