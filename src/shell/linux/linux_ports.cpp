// SPDX-License-Identifier: MIT
#include "shell/linux/linux_ports.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <filesystem>
#include <fstream>

namespace {

constexpr std::array<int, 4> kUartBases{1016, 760, 1000, 744};
constexpr std::array<int, 3> kLptBases{888, 632, 956};
constexpr int kUartRegisters = 7, kLptRegisters = 8;
/// Below lie the machine's own circuits, and what an address that was never set would reach.
constexpr int kFirstPortAddress = 256;
constexpr int kFirstUsbPort = 5, kMostParallelPorts = 8;

template <std::size_t count>
std::optional<int> placeOf(const std::array<int, count>& bases, int base) {
    const auto at = std::find(bases.begin(), bases.end(), base);
    return at == bases.end() ? std::nullopt : std::optional(static_cast<int>(at - bases.begin()));
}

/// The base of a block of registers that an address lies in, of those that every machine has in one place.
template <std::size_t count>
std::optional<int> baseIn(const std::array<int, count>& bases, int registers, int address) {
    for (const int base : bases) {
        if (address >= base && address < base + registers) return base;
    }
    return std::nullopt;
}

bool isOwn(int address) { return address >= 0 && address < kFirstPortAddress; }

/// Where the kernel has found its parallel ports.
std::vector<std::optional<int>> foundParports() {
    std::vector<std::optional<int>> found(kMostParallelPorts);
    for (int number = 0; number < kMostParallelPorts; ++number) {
        std::ifstream file("/proc/sys/dev/parport/parport" + std::to_string(number) + "/base-addr");
        if (int base = 0; file >> base) found[static_cast<std::size_t>(number)] = base;
    }
    return found;
}

/// Two ways to the same device are one.
bool samePath(const std::string& one, const std::string& other) {
    std::error_code error;
    return one == other || std::filesystem::equivalent(one, other, error);
}

}  // namespace

std::optional<int> parportOf(int base, const std::vector<std::optional<int>>& found, int otherRank) {
    for (std::size_t number = 0; number < found.size(); ++number) {
        // An address beyond 32767 stands here without its sign.
        if (found[number] && static_cast<short>(*found[number]) == static_cast<short>(base))
            return static_cast<int>(number);
    }
    const auto place = placeOf(kLptBases, base);
    const auto guess =
        static_cast<std::size_t>(place ? *place : static_cast<int>(kLptBases.size()) + otherRank);
    // A port that is known to lie elsewhere is another one, with other things behind it.
    if (guess < found.size() && found[guess]) return std::nullopt;
    return static_cast<int>(guess);
}

std::string commPath(const std::string& port) {
    if (!port.empty() && port.front() == '/') return port;
    int number = 0;
    std::from_chars(port.data(), port.data() + port.size(), number);
    if (number < 1) throw PortError("There is no port " + port + ".");
    return number < kFirstUsbPort ? "/dev/ttyS" + std::to_string(number - 1)
                                  : "/dev/ttyUSB" + std::to_string(number - kFirstUsbPort);
}

LinuxPorts::Bound* LinuxPorts::boundAt(int address) {
    const auto at = std::find_if(bound_.begin(), bound_.end(), [address](const Bound& bound) {
        return address >= bound.base && address <= bound.last;
    });
    return at == bound_.end() ? nullptr : &*at;
}

LinuxPorts::Bound& LinuxPorts::bind(int address) {
    if (Bound* const known = boundAt(address)) return *known;
    Bound bound;
    if (const auto uart = baseIn(kUartBases, kUartRegisters, address)) {
        bound = {*uart, *uart + kUartRegisters - 1, nullptr, false};
    } else if (commBase_ && address >= *commBase_ && address < *commBase_ + kUartRegisters) {
        bound = {*commBase_, *commBase_ + kUartRegisters - 1, comm_, false};
    } else {
        // The registers of a parallel port at an address of its own are written from the base up.
        const int base = baseIn(kLptBases, kLptRegisters, address).value_or(address);
        bound = {base, base + kLptRegisters - 1, nullptr, false};
    }
    bound_.push_back(bound);
    return bound_.back();
}

std::string LinuxPorts::lptPath(int base) {
    auto at = std::find(otherLpts_.begin(), otherLpts_.end(), base);
    if (at == otherLpts_.end() && !placeOf(kLptBases, base)) at = otherLpts_.insert(otherLpts_.end(), base);
    const auto number = parportOf(base, foundParports(), static_cast<int>(at - otherLpts_.begin()));
    if (!number) throw PortError("There is no parallel port at this address. Choose another one.");
    return "/dev/parport" + std::to_string(*number);
}

template <typename Lines>
std::shared_ptr<Lines> LinuxPorts::opened(const std::string& path) const {
    for (const Bound& bound : bound_) {
        if (!bound.device || !samePath(bound.device->path(), path)) continue;
        if (auto lines = std::dynamic_pointer_cast<Lines>(bound.device)) return lines;
    }
    return nullptr;
}

std::shared_ptr<SerialLines> LinuxPorts::openSerial(const std::string& path) {
    if (comm_ && samePath(comm_->path(), path)) return comm_;
    const auto known = opened<SerialLines>(path);
    return known ? known : std::make_shared<SerialLines>(path);
}

std::shared_ptr<PortDevice> LinuxPorts::openParallel(const std::string& path) {
    // The kernel gives a port to one owner at a time, and would let a second one wait for ever.
    const auto known = opened<ParallelLines>(path);
    return known ? known : std::make_shared<ParallelLines>(path);
}

std::shared_ptr<PortDevice> LinuxPorts::open(const Bound& bound) {
    if (const auto uart = placeOf(kUartBases, bound.base))
        return openSerial("/dev/ttyS" + std::to_string(*uart));
    if (commBase_ == bound.base) return comm_;
    return openParallel(lptPath(bound.base));
}

void LinuxPorts::openUnlessRefused(Bound& bound) {
    if (bound.device || bound.refused) return;
    try {
        bound.device = open(bound);
    } catch (const PortError&) {
        bound.refused = true;
    }
}

void LinuxPorts::write(int address, int byte) {
    if (isOwn(address)) return;
    const Bound* const known = boundAt(address);
    // Nothing is up on a port that was closed, and opening it would raise its lines for a moment.
    if (known && !known->device && byte == 0) return;
    Bound& bound = bind(address);
    openUnlessRefused(bound);
    if (bound.device) bound.device->write(address - bound.base, byte);
}

int LinuxPorts::read(int address) {
    // Only a port that is in use is read: opening one would move its lines.
    const Bound* const bound = boundAt(address);
    return bound && bound->device ? bound->device->read(address - bound->base) : 0;
}

void LinuxPorts::reach(int address) {
    if (isOwn(address)) throw PortError("There is no port at the address " + std::to_string(address) + ".");
    Bound& bound = bind(address);
    if (bound.device) return;
    bound.refused = true;
    bound.device = open(bound);
    bound.refused = false;
}

void LinuxPorts::commIsAt(int base) {
    if (placeOf(kUartBases, base) || commBase_ == base) return;
    commBase_ = base;
    std::erase_if(bound_, [base](const Bound& bound) {
        return bound.base < base + kUartRegisters && bound.last >= base;
    });
}

void LinuxPorts::openComm(const std::string& port) {
    closeComm();
    comm_ = openSerial(commPath(port));
    const std::string path = comm_->path();
    for (Bound& bound : bound_) {
        const auto uart = placeOf(kUartBases, bound.base);
        const bool same = uart && samePath(path, "/dev/ttyS" + std::to_string(*uart));
        if (same || commBase_ == bound.base) bound.device = comm_;
    }
}

void LinuxPorts::closeComm() {
    if (!comm_) return;
    comm_->dropLines();
    for (Bound& bound : bound_) {
        if (bound.device != comm_) continue;
        bound.device = nullptr;
        bound.refused = false;
    }
    comm_ = nullptr;
}

void LinuxPorts::setDtr(bool on) {
    if (comm_) comm_->setDtr(on);
}

void LinuxPorts::setRts(bool on) {
    if (comm_) comm_->setRts(on);
}

bool LinuxPorts::dsrHolding() { return comm_ && comm_->dsrHolding(); }

void LinuxPorts::dropLines() {
    if (comm_) comm_->dropLines();
    for (const Bound& bound : bound_) {
        if (bound.device) bound.device->dropLines();
    }
}
