// SPDX-License-Identifier: MIT
#include "shell/qt/serial_list.h"

#include <QSerialPortInfo>
#include <algorithm>
#include <filesystem>
#include <map>

#include "base/number.h"
#include "shell/qt/codec.h"

namespace {

namespace fs = std::filesystem;

constexpr int kFirstUsbPort = 5;

/// The lasting names of devices, by the device.
std::map<std::string, std::string> lastingNames() {
    std::map<std::string, std::string> names;
    std::error_code error;
    // An adapter may be pulled out while the folder is read.
    for (fs::directory_iterator at("/dev/serial/by-id", error), end; !error && at != end;
         at.increment(error)) {
        std::error_code gone;
        const fs::path device = fs::canonical(at->path(), gone);
        if (!gone) names[device.string()] = at->path().filename().string();
    }
    return names;
}

/// What the program takes for a device: 1 to 4 for the ports of the machine, 5 and up for those on USB.
std::string portOf(const std::string& device) {
    for (const auto& [prefix, first, most] :
         {std::tuple("/dev/ttyS", 1, 4), std::tuple("/dev/ttyUSB", kFirstUsbPort, 1000)}) {
        const QString figures = codec::toQt(device).mid(static_cast<qsizetype>(std::string(prefix).size()));
        bool whole = false;
        const int number = figures.toInt(&whole);
        if (device.starts_with(prefix) && whole && number >= 0 && number < most)
            return std::to_string(first + number);
    }
    return device;
}

}  // namespace

std::vector<std::string> serialPorts() {
    const auto names = lastingNames();
    std::vector<std::string> ports;
    for (const QSerialPortInfo& info : QSerialPortInfo::availablePorts()) {
        const std::string device = info.systemLocation().toStdString();
        const auto name = names.find(device);
        ports.push_back(portOf(device) + (name == names.end() ? "" : "  " + name->second));
    }
    const auto order = [](const std::string& port) {
        const double number = number::valueOf(port);
        return std::tuple(number == 0, number, port);
    };
    std::sort(ports.begin(), ports.end(),
              [&](const std::string& one, const std::string& other) { return order(one) < order(other); });
    return ports;
}
