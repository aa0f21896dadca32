// SPDX-License-Identifier: MIT
#include "shell/linux/port_device.h"

#include <fcntl.h>
#include <linux/ppdev.h>
#include <sys/ioctl.h>
#include <termios.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>

#include "shell/linux/line_guard.h"

namespace {

constexpr const char* kEnd = "\r\n";

// Registers of a UART, from its base.
constexpr int kModemControl = 4, kModemStatus = 6;
constexpr int kDtrBit = 1, kRtsBit = 2, kCtsBit = 16, kDsrBit = 32, kRiBit = 64, kDcdBit = 128;
/// OUT1, OUT2 and loop-back, for which the C library has no names.
constexpr int kDriversOwn = 0x2000 | 0x4000 | 0x8000;
// Registers of a parallel port, from its base.
constexpr int kData = 0, kStatus = 1, kControl = 2;

struct Remedies {
    const char* missing;
    const char* group;
};

constexpr Remedies kSerial{"Plug the adapter in, or choose another port.", "dialout"};
constexpr Remedies kParallel{"Run \"sudo modprobe ppdev\", or choose another address.", "lp"};

PortError refused(const std::string& path, int error, const Remedies& remedies) {
    std::string why = path + ": " + std::strerror(error) + kEnd;
    switch (error) {
        case EACCES:
        case EPERM:
            why += std::string("Run \"sudo usermod -aG ") + remedies.group +
                   " $USER\" and log in again: the device belongs to the group " + remedies.group + ".";
            break;
        case EBUSY:
            why += "Another program uses it; end that one first.";
            break;
        default:
            why += remedies.missing;
            break;
    }
    return PortError(why);
}

[[noreturn]] void closeAndRefuse(int descriptor, const std::string& path, int error,
                                 const Remedies& remedies) {
    ::close(descriptor);
    throw refused(path, error, remedies);
}

int opened(const std::string& path, const Remedies& remedies) {
    line_guard::catchEnds();
    const int descriptor = ::open(path.c_str(), O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC);
    if (descriptor < 0) throw refused(path, errno, remedies);
    return descriptor;
}

/// The kernel lowers the lines of a device left open by a process that was killed, where it is told to.
void lowerOnHangUp(int descriptor) {
    termios settings{};
    if (::tcgetattr(descriptor, &settings) != 0) return;
    settings.c_cflag |= HUPCL | CLOCAL;
    ::tcsetattr(descriptor, TCSANOW, &settings);
}

}  // namespace

SerialLines::SerialLines(const std::string& path) : PortDevice(path), descriptor_(opened(path, kSerial)) {
    // Opening has raised both lines: nothing comes before their drop.
    line_guard::drop(descriptor_, line_guard::Kind::Serial);
    int lines = 0;
    if (::ioctl(descriptor_, TIOCMGET, &lines) != 0) closeAndRefuse(descriptor_, path, errno, kSerial);
    if (::ioctl(descriptor_, TIOCEXCL) != 0) closeAndRefuse(descriptor_, path, errno, kSerial);
    others_ = lines & kDriversOwn;
    lowerOnHangUp(descriptor_);
    line_guard::watch(descriptor_, line_guard::Kind::Serial);
}

SerialLines::~SerialLines() {
    dropLines();
    line_guard::forget(descriptor_);
    ::close(descriptor_);
}

int SerialLines::status() {
    int lines = 0;
    return ::ioctl(descriptor_, TIOCMGET, &lines) == 0 ? lines : 0;
}

void SerialLines::write(int reg, int byte) {
    if (reg != kModemControl) return;
    const int lines = others_ | ((byte & kDtrBit) ? TIOCM_DTR : 0) | ((byte & kRtsBit) ? TIOCM_RTS : 0);
    ::ioctl(descriptor_, TIOCMSET, &lines);
}

int SerialLines::read(int reg) {
    if (reg != kModemControl && reg != kModemStatus) return 0;
    const int lines = status();
    const auto bit = [lines](int line, int value) { return (lines & line) ? value : 0; };
    if (reg == kModemControl) return bit(TIOCM_DTR, kDtrBit) | bit(TIOCM_RTS, kRtsBit);
    return bit(TIOCM_CTS, kCtsBit) | bit(TIOCM_DSR, kDsrBit) | bit(TIOCM_RI, kRiBit) | bit(TIOCM_CD, kDcdBit);
}

void SerialLines::dropLines() { line_guard::drop(descriptor_, line_guard::Kind::Serial); }

void SerialLines::setLine(int line, bool on) { ::ioctl(descriptor_, on ? TIOCMBIS : TIOCMBIC, &line); }

void SerialLines::setDtr(bool on) { setLine(TIOCM_DTR, on); }

void SerialLines::setRts(bool on) { setLine(TIOCM_RTS, on); }

bool SerialLines::dsrHolding() { return (status() & TIOCM_DSR) != 0; }

ParallelLines::ParallelLines(const std::string& path)
    : PortDevice(path), descriptor_(opened(path, kParallel)) {
    if (::ioctl(descriptor_, PPCLAIM) != 0) closeAndRefuse(descriptor_, path, errno, kParallel);
    dropLines();
    line_guard::watch(descriptor_, line_guard::Kind::Parallel);
}

ParallelLines::~ParallelLines() {
    dropLines();
    line_guard::forget(descriptor_);
    ::ioctl(descriptor_, PPRELEASE);
    ::close(descriptor_);
}

void ParallelLines::write(int reg, int byte) {
    const auto value = static_cast<unsigned char>(byte);
    if (reg == kData) ::ioctl(descriptor_, PPWDATA, &value);
    if (reg == kControl) ::ioctl(descriptor_, PPWCONTROL, &value);
}

int ParallelLines::read(int reg) {
    unsigned char value = 0;
    if (reg == kData) ::ioctl(descriptor_, PPRDATA, &value);
    if (reg == kStatus) ::ioctl(descriptor_, PPRSTATUS, &value);
    if (reg == kControl) ::ioctl(descriptor_, PPRCONTROL, &value);
    return value;
}

void ParallelLines::dropLines() { line_guard::drop(descriptor_, line_guard::Kind::Parallel); }
