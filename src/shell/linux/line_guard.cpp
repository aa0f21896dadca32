// SPDX-License-Identifier: MIT
#include "shell/linux/line_guard.h"

#include <linux/ppdev.h>
#include <signal.h>
#include <sys/ioctl.h>

#include <array>
#include <atomic>
#include <cerrno>
#include <cstdlib>

namespace line_guard {

namespace {

constexpr int kNone = -1;

/// A signal handler reads it at any moment, so it is atomic and takes no lock.
struct Watched {
    std::atomic<int> descriptor{kNone};
    std::atomic<Kind> kind{Kind::Serial};
};

// The one state of the process that isn't in an object: a signal handler is handed nothing.
std::array<Watched, 16> watched;

/// All that end a process unless it says otherwise.
constexpr std::array<int, 20> kSignals{SIGTERM, SIGINT,  SIGHUP,  SIGQUIT, SIGABRT, SIGSEGV, SIGBUS,
                                       SIGFPE,  SIGILL,  SIGPIPE, SIGUSR1, SIGUSR2, SIGALRM, SIGVTALRM,
                                       SIGPROF, SIGXCPU, SIGXFSZ, SIGTRAP, SIGSYS,  SIGPWR};
/// Those that hold it for as long as somebody likes.
constexpr std::array<int, 3> kStops{SIGTSTP, SIGTTIN, SIGTTOU};
std::array<struct sigaction, kSignals.size()> former;

void endBySignal(int signal) {
    const int error = errno;
    dropAll();
    for (std::size_t at = 0; at < kSignals.size(); ++at) {
        if (kSignals[at] == signal) ::sigaction(signal, &former[at], nullptr);
    }
    errno = error;
    // Comes through once this handler has returned, and does what it would have done without it.
    ::raise(signal);
}

void stopBySignal(int) {
    const int error = errno;
    dropAll();
    // No handler can stand in its way; behind it the program goes on, still guarded.
    ::raise(SIGSTOP);
    errno = error;
}

void catchStop(int signal) {
    struct sigaction action {};
    ::sigaction(signal, nullptr, &action);
    if (action.sa_handler == SIG_IGN) return;
    action = {};
    action.sa_handler = stopBySignal;
    action.sa_flags = SA_RESTART;
    ::sigaction(signal, &action, nullptr);
}

/// A signal that the process ignores doesn't end it, and is left alone.
void catchSignal(std::size_t at) {
    ::sigaction(kSignals[at], nullptr, &former[at]);
    if (former[at].sa_handler == SIG_IGN) return;
    struct sigaction action {};
    action.sa_handler = endBySignal;
    ::sigaction(kSignals[at], &action, nullptr);
}

}  // namespace

void catchEnds() {
    static const bool caught = [] {
        for (std::size_t at = 0; at < kSignals.size(); ++at) catchSignal(at);
        for (const int signal : kStops) catchStop(signal);
        std::atexit(dropAll);
        return true;
    }();
    static_cast<void>(caught);
}

void watch(int descriptor, Kind kind) {
    for (Watched& place : watched) {
        if (place.descriptor != kNone) continue;
        place.kind = kind;
        place.descriptor = descriptor;
        return;
    }
}

void forget(int descriptor) {
    for (Watched& place : watched) {
        if (place.descriptor == descriptor) place.descriptor = kNone;
    }
}

void drop(int descriptor, Kind kind) {
    if (kind == Kind::Serial) {
        const int lines = TIOCM_DTR | TIOCM_RTS;
        ::ioctl(descriptor, TIOCMBIC, &lines);
    } else {
        const unsigned char control = 0;
        ::ioctl(descriptor, PPWCONTROL, &control);
    }
}

void dropAll() {
    for (const Watched& place : watched) {
        const int descriptor = place.descriptor;
        if (descriptor != kNone) drop(descriptor, place.kind);
    }
}

}  // namespace line_guard
