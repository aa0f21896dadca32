// SPDX-License-Identifier: MIT
// A library that is loaded ahead of the C library and stands in for serial and parallel devices. It does what
// the kernel does with their lines and stamps every change with the steady clock.
//   TAP_FILE     where the records go
//   TAP_DEVICES  the devices that are there, with blanks between; others of their kinds are missing
//   TAP_DENIED   devices that are there and may not be opened
//   TAP_BUSY     devices that another program uses
// Names of other kinds of files are passed on.
#include <dlfcn.h>
#include <fcntl.h>
#include <linux/ppdev.h>
#include <sys/ioctl.h>
#include <sys/mman.h>
#include <time.h>
#include <unistd.h>

#include <cerrno>
#include <cstdarg>
#include <cstdlib>
#include <cstring>
#include <string_view>

#include "tap_record.h"

namespace {

constexpr int kMostDescriptors = 1024;

struct Device {
    char name[24];
    bool parallel;
    /// DTR and RTS as the kernel's bits.
    int modem;
    unsigned char data, control;
};

Device devices[kMostDescriptors];
bool held[kMostDescriptors];

template <typename Call>
Call real(const char* name) {
    return reinterpret_cast<Call>(dlsym(RTLD_NEXT, name));
}

tap::Tape* tape() {
    static tap::Tape* const mapped = [] {
        const char* const name = std::getenv("TAP_FILE");
        if (name == nullptr) return static_cast<tap::Tape*>(nullptr);
        const int file =
            real<int (*)(const char*, int, ...)>("open")(name, O_RDWR | O_CREAT | O_CLOEXEC, 0666);
        if (file < 0 || ftruncate(file, sizeof(tap::Tape)) != 0) return static_cast<tap::Tape*>(nullptr);
        // Pages are there before the first edge, so that none is fetched between two.
        void* const place =
            mmap(nullptr, sizeof(tap::Tape), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_POPULATE, file, 0);
        real<int (*)(int)>("close")(file);
        return place == MAP_FAILED ? nullptr : static_cast<tap::Tape*>(place);
    }();
    return mapped;
}

void record(const Device& device, tap::What what, unsigned value) {
    timespec now{};
    clock_gettime(CLOCK_MONOTONIC, &now);
    tap::Tape* const to = tape();
    if (to == nullptr) return;
    const std::uint32_t place = to->count.load();
    if (place >= tap::kMostRecords) return;
    tap::Record& entry = to->records[place];
    entry.nanoseconds = now.tv_sec * std::int64_t{1'000'000'000} + now.tv_nsec;
    entry.what = what;
    entry.value = value;
    std::memcpy(entry.device, device.name, sizeof entry.device);
    to->count.store(place + 1);
}

void recordModem(const Device& device) {
    record(device, tap::What::Modem,
           ((device.modem & TIOCM_DTR) ? 1u : 0u) | ((device.modem & TIOCM_RTS) ? 2u : 0u));
}

bool listed(const char* variable, std::string_view name) {
    const char* const list = std::getenv(variable);
    std::string_view rest = list ? list : "";
    while (!rest.empty()) {
        const std::size_t blank = rest.find(' ');
        if (rest.substr(0, blank) == name) return true;
        rest.remove_prefix(blank == std::string_view::npos ? rest.size() : blank + 1);
    }
    return false;
}

bool isDevice(std::string_view name) {
    for (const std::string_view kind : {"/dev/ttyS", "/dev/ttyUSB", "/dev/ttyACM", "/dev/parport"}) {
        if (name.substr(0, kind.size()) == kind) return true;
    }
    return false;
}

int openDevice(const char* path) {
    const std::string_view name = path;
    if (listed("TAP_DENIED", name)) errno = EACCES;
    if (listed("TAP_BUSY", name)) errno = EBUSY;
    if (listed("TAP_DENIED", name) || listed("TAP_BUSY", name)) return -1;
    if (!listed("TAP_DEVICES", name) || name.size() >= sizeof Device::name) {
        errno = ENOENT;
        return -1;
    }
    const int descriptor = real<int (*)(const char*, int, ...)>("open")("/dev/null", O_RDWR | O_CLOEXEC);
    if (descriptor < 0 || descriptor >= kMostDescriptors) return descriptor;
    Device& device = devices[descriptor];
    device = {};
    std::memcpy(device.name, name.data(), name.size());
    device.parallel = name.find("parport") != std::string_view::npos;
    held[descriptor] = true;
    record(device, tap::What::Open, 0);
    if (!device.parallel) {
        // As the kernel does at the opening of a serial port.
        device.modem = TIOCM_DTR | TIOCM_RTS;
        recordModem(device);
    }
    return descriptor;
}

int modemCall(Device& device, unsigned long request, int* lines) {
    constexpr int kOut = TIOCM_DTR | TIOCM_RTS;
    if (request == TIOCMGET) {
        *lines = device.modem | TIOCM_CTS;
        return 0;
    }
    if (request == TIOCMSET) device.modem = *lines & kOut;
    if (request == TIOCMBIS) device.modem |= *lines & kOut;
    if (request == TIOCMBIC) device.modem &= ~(*lines & kOut);
    recordModem(device);
    return 0;
}

int parallelCall(Device& device, unsigned long request, unsigned char* byte) {
    switch (request) {
        case PPCLAIM:
            record(device, tap::What::Claim, 0);
            break;
        case PPWDATA:
            device.data = *byte;
            record(device, tap::What::Data, *byte);
            break;
        case PPWCONTROL:
            device.control = *byte;
            record(device, tap::What::Control, *byte);
            break;
        case PPRDATA:
            *byte = device.data;
            break;
        case PPRCONTROL:
            *byte = device.control;
            break;
        case PPRSTATUS:
            *byte = 0x80;
            break;
        default:
            break;
    }
    return 0;
}

int deviceCall(Device& device, unsigned long request, void* argument) {
    if (device.parallel) return parallelCall(device, request, static_cast<unsigned char*>(argument));
    switch (request) {
        case TIOCMGET:
        case TIOCMSET:
        case TIOCMBIS:
        case TIOCMBIC:
            return modemCall(device, request, static_cast<int*>(argument));
        case TIOCEXCL:
            record(device, tap::What::Exclusive, 0);
            return 0;
        default:
            errno = ENOTTY;
            return -1;
    }
}

template <typename... Mode>
int openAny(const char* call, const char* path, int flags, Mode... mode) {
    if (path != nullptr && isDevice(path)) return openDevice(path);
    return real<int (*)(const char*, int, ...)>(call)(path, flags, mode...);
}

unsigned modeOf(int flags, va_list arguments) {
    return (flags & (O_CREAT | O_TMPFILE)) ? va_arg(arguments, unsigned) : 0;
}

}  // namespace

// The names are those of the C library, the checked ones of its headers included.
extern "C" {

int open(const char* path, int flags, ...) {
    va_list arguments;
    va_start(arguments, flags);
    const unsigned mode = modeOf(flags, arguments);
    va_end(arguments);
    return openAny("open", path, flags, mode);
}

int open64(const char* path, int flags, ...) {
    va_list arguments;
    va_start(arguments, flags);
    const unsigned mode = modeOf(flags, arguments);
    va_end(arguments);
    return openAny("open64", path, flags, mode);
}

int __open_2(const char* path, int flags) { return openAny("open", path, flags, 0u); }

int __open64_2(const char* path, int flags) { return openAny("open64", path, flags, 0u); }

int ioctl(int descriptor, unsigned long request, ...) {
    va_list arguments;
    va_start(arguments, request);
    void* const argument = va_arg(arguments, void*);
    va_end(arguments);
    if (descriptor >= 0 && descriptor < kMostDescriptors && held[descriptor])
        return deviceCall(devices[descriptor], request, argument);
    return real<int (*)(int, unsigned long, ...)>("ioctl")(descriptor, request, argument);
}

int close(int descriptor) {
    if (descriptor >= 0 && descriptor < kMostDescriptors && held[descriptor]) {
        held[descriptor] = false;
        record(devices[descriptor], tap::What::Close, 0);
    }
    return real<int (*)(int)>("close")(descriptor);
}
}
