// SPDX-License-Identifier: MIT
// The ports by their addresses, on the devices of the kernel.
// Leans on port_device.h; the desktop's platform owns one and gives it the list of serial ports.
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "shell/linux/port_device.h"
#include "shell/platform/ports.h"

class LinuxPorts : public Ports {
public:
    explicit LinuxPorts(std::function<std::vector<std::string>()> lister) : lister_(std::move(lister)) {}

    void write(int address, int byte) override;
    int read(int address) override;
    void reach(int address) override;
    void commIsAt(int base) override;
    void openComm(const std::string& port) override;
    void closeComm() override;
    bool commOpen() override { return comm_ != nullptr; }
    void setDtr(bool on) override;
    void setRts(bool on) override;
    bool dsrHolding() override;
    std::vector<std::string> commPorts() override { return lister_(); }
    void dropLines() override;

private:
    /// A base address and the device that was opened for it, or none where it couldn't be.
    struct Bound {
        int base = 0, last = 0;
        std::shared_ptr<PortDevice> device;
        /// It couldn't be opened, which is tried again by reach() alone, since that takes time.
        bool refused = false;
    };
    Bound* boundAt(int address);
    Bound& bind(int address);
    std::shared_ptr<PortDevice> open(const Bound& bound);
    void openUnlessRefused(Bound& bound);
    /// The device of a path where it is open already; null otherwise.
    template <typename Lines>
    std::shared_ptr<Lines> opened(const std::string& path) const;
    std::shared_ptr<SerialLines> openSerial(const std::string& path);
    std::shared_ptr<PortDevice> openParallel(const std::string& path);
    std::string lptPath(int base);

    std::function<std::vector<std::string>()> lister_;
    std::vector<Bound> bound_;
    std::vector<int> otherLpts_;
    std::shared_ptr<SerialLines> comm_;
    std::optional<int> commBase_;
};

/// The device of a serial port by its number, or the path itself.
std::string commPath(const std::string& port);

/// The number of the parallel port at a base address. `found` says by number where the kernel has found
/// ports; one of which it says nothing is taken for 888, 632 and 956 in this order, and for the other
/// addresses in the order in which they come (`otherRank`, from 0). Nothing where the port that would be
/// taken lies elsewhere.
std::optional<int> parportOf(int base, const std::vector<std::optional<int>>& found, int otherRank);
