// SPDX-License-Identifier: MIT
// A device whose lines stand for the registers of a port. Leans on line_guard.h; linux_ports.h holds the open
// ones. The lines are off from the moment of opening, and again at the end.
#pragma once

#include <memory>
#include <string>

#include "shell/platform/ports.h"

class PortDevice {
public:
    virtual ~PortDevice() = default;
    PortDevice(const PortDevice&) = delete;
    PortDevice& operator=(const PortDevice&) = delete;

    /// A register by its distance from the base of the port.
    virtual void write(int reg, int byte) = 0;
    virtual int read(int reg) = 0;
    virtual void dropLines() = 0;

    const std::string& path() const { return path_; }

protected:
    explicit PortDevice(std::string path) : path_(std::move(path)) {}

private:
    std::string path_;
};

/// The modem lines of a serial port, opened for this program alone.
class SerialLines : public PortDevice {
public:
    /// Raises PortError.
    explicit SerialLines(const std::string& path);
    ~SerialLines() override;
    void write(int reg, int byte) override;
    int read(int reg) override;
    void dropLines() override;
    void setDtr(bool on);
    void setRts(bool on);
    bool dsrHolding();

private:
    int status();
    void setLine(int line, bool on);
    int descriptor_;
    /// What else than DTR and RTS the driver has set, and is to keep.
    int others_ = 0;
};

/// The data, status and control registers of a parallel port.
class ParallelLines : public PortDevice {
public:
    /// Raises PortError.
    explicit ParallelLines(const std::string& path);
    ~ParallelLines() override;
    void write(int reg, int byte) override;
    int read(int reg) override;
    void dropLines() override;

private:
    int descriptor_;
};
