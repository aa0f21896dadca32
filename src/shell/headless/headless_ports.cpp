// SPDX-License-Identifier: MIT
#include "shell/headless/headless_ports.h"

#include <algorithm>
#include <cmath>

#include "base/number.h"

namespace {

/// A machine without devices has them all.
constexpr int kPorts = 16;
/// Thirty years: more would run the clock over.
constexpr double kLongestDelay = 1e18;

}  // namespace

void HeadlessPorts::write(int address, int byte) {
    transcript_.line("out " + number::toText(address) + " " + number::toText(byte));
}

int HeadlessPorts::read(int address) {
    const auto at = hardware_.ports.find(address);
    return at == hardware_.ports.end() ? 0 : at->second;
}

void HeadlessPorts::openComm(const std::string& port) {
    if (faults_.fails(Device::Port)) throw PortError();
    transcript_.line("comm open " + port);
    open_ = true;
}

void HeadlessPorts::closeComm() {
    transcript_.line("comm close");
    open_ = false;
}

std::vector<std::string> HeadlessPorts::commPorts() {
    std::vector<std::string> ports;
    for (int port = 1; port <= kPorts; ++port) ports.push_back(number::toText(port));
    return ports;
}

void HeadlessPorts::tellLine(const std::string& line, bool on) {
    transcript_.line("comm " + line + (on ? " on" : " off"));
}

void HeadlessDelay::wait(std::int64_t units) {
    const std::int64_t counted = std::max<std::int64_t>(units, 0);
    transcript_.line("delay " + number::toText(counted));
    const double nanoseconds = static_cast<double>(counted) * hardware_.unitNanoseconds;
    clock_.advance(std::llround(std::min(nanoseconds, kLongestDelay)));
}
