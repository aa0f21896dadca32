// SPDX-License-Identifier: MIT
// The serial and parallel ports, by the addresses and the operations that the keyers know.
// Leans on base; shell/linux drives devices, shell/headless records; the keyers and the band encoder call it.
#pragma once

#include <string>
#include <vector>

#include "base/run_time_error.h"

/// A port that can't be used. `what()` tells the operator so, with the reason and the remedy where they are
/// known.
class PortError : public RunTimeError {
public:
    explicit PortError(const std::string& why = {})
        : RunTimeError("That port is not available..." + (why.empty() ? why : "\r\n\r\n" + why)) {}
};

class Ports {
public:
    virtual ~Ports() = default;
    /// One byte to a register. Where no port answers to the address nothing happens.
    virtual void write(int address, int byte) = 0;
    /// One byte from a register; 0 where no port answers.
    virtual int read(int address) = 0;
    /// Opens what stands behind an address, with its lines off, ahead of the first write. Raises PortError.
    virtual void reach(int address) = 0;
    /// Says that the UART of a base address is the one that openComm opens.
    virtual void commIsAt(int base) = 0;

    /// Opens a serial port by its number, 1 and up, or by the path of its device; both lines are off then.
    /// Raises PortError.
    virtual void openComm(const std::string& port) = 0;
    /// Drops the lines and closes.
    virtual void closeComm() = 0;
    virtual bool commOpen() = 0;
    virtual void setDtr(bool on) = 0;
    virtual void setRts(bool on) = 0;
    virtual bool dsrHolding() = 0;
    /// The serial ports that are there: each begins with what openComm takes; a name of its own may follow
    /// behind a blank.
    virtual std::vector<std::string> commPorts() = 0;

    /// Takes every line low at once, whatever the program believes of them: for its end, orderly or not.
    virtual void dropLines() = 0;
};
