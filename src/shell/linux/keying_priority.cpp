// SPDX-License-Identifier: MIT
#include "shell/linux/keying_priority.h"

#include <sched.h>
#include <sys/mman.h>
#include <sys/prctl.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <cstddef>
#include <cstdint>

namespace {

/// Above other programs, below what drives the hardware.
constexpr int kPriority = 10;
/// The shortest slice that the kernel takes, in nanoseconds: a thread with a short one is woken sooner.
constexpr std::uint64_t kShortSlice = 100'000;

/// What the kernel's calls take; the headers that have it clash with those of the C library.
struct Attributes {
    std::uint32_t size, policy;
    std::uint64_t flags;
    std::int32_t nice;
    std::uint32_t priority;
    std::uint64_t runtime, deadline, period;
};

/// 0 is the usual slice.
void setSlice(std::uint64_t nanoseconds) {
    Attributes attributes{};
    attributes.size = sizeof attributes;
    if (::syscall(SYS_sched_getattr, 0, &attributes, sizeof attributes, 0) != 0) return;
    attributes.runtime = nanoseconds;
    ::syscall(SYS_sched_setattr, 0, &attributes, 0);
}

/// Touches and locks what the routines between two edges will use of the stack.
void lockStack() {
    constexpr std::size_t kRoom = 64UL * 1024;
    volatile char room[kRoom];
    for (std::size_t at = 0; at < kRoom; at += 1024) room[at] = 0;
    ::mlock(const_cast<const char*>(room), kRoom);
}

}  // namespace

void KeyingPriority::ask() {
    if (asked_) return;
    asked_ = true;
    sched_param priority{};
    ::sched_getparam(0, &priority);
    formerPolicy_ = ::sched_getscheduler(0) & ~SCHED_RESET_ON_FORK;
    formerPriority_ = priority.sched_priority;
    formerSlack_ = ::prctl(PR_GET_TIMERSLACK);
    ::prctl(PR_SET_TIMERSLACK, 1UL);
    // A page that has to be fetched between two edges is heard. Pages are locked as they are used: the rest
    // of the program may be large. Where that is more than the user may lock, the stack alone is.
    if (::mlockall(MCL_CURRENT | MCL_ONFAULT) != 0) lockStack();
    priority.sched_priority = kPriority;
    granted_ = ::sched_setscheduler(0, SCHED_FIFO | SCHED_RESET_ON_FORK, &priority) == 0;
    if (!granted_) setSlice(kShortSlice);
}

void KeyingPriority::giveBack() {
    if (!asked_) return;
    asked_ = false;
    if (granted_) {
        const sched_param priority{formerPriority_};
        // The kernel lets nobody but root take the flag away again, and refuses the whole call with it.
        ::sched_setscheduler(0, formerPolicy_ | SCHED_RESET_ON_FORK, &priority);
    } else {
        setSlice(0);
    }
    granted_ = false;
    ::munlockall();
    ::prctl(PR_SET_TIMERSLACK, static_cast<unsigned long>(formerSlack_));
}
