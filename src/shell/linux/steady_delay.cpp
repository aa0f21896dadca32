// SPDX-License-Identifier: MIT
#include "shell/linux/steady_delay.h"

#include <algorithm>
#include <cerrno>
#include <cmath>
#include <ctime>

namespace {

constexpr std::int64_t kSecond = 1'000'000'000, kMicrosecond = 1'000;
/// How much of a wait is left to settle(): longer than windows need to repaint, so that they never hold up an
/// edge.
constexpr std::int64_t kLeftForEvents = 25'000 * kMicrosecond;
/// A sleep ends up to some hundred microseconds late; the rest is spun.
constexpr std::int64_t kSpun = 750 * kMicrosecond;
/// Behind a longer hold-up the rhythm goes on from there: catching up would cut elements short.
constexpr std::int64_t kCaughtUp = 1'000 * kMicrosecond;
/// A thousand years.
constexpr double kLongest = 3e19 / 10;

std::int64_t now() {
    timespec moment{};
    ::clock_gettime(CLOCK_MONOTONIC, &moment);
    return moment.tv_sec * kSecond + moment.tv_nsec;
}

void sleepUntil(std::int64_t moment) {
    const timespec until{moment / kSecond, moment % kSecond};
    while (::clock_nanosleep(CLOCK_MONOTONIC, TIMER_ABSTIME, &until, nullptr) == EINTR) {
    }
}

}  // namespace

void SteadyDelay::begin() {
    if (depth_++ == 0) priority_.ask();
    due_ = 0;
    waited_ = false;
}

void SteadyDelay::end() {
    if (depth_ > 0 && --depth_ == 0) priority_.giveBack();
}

void SteadyDelay::wait(std::int64_t units) {
    if (units <= 0) return;
    if (due_ == 0) due_ = now();
    const double length = std::min(static_cast<double>(units) * kUnitNanoseconds, kLongest);
    const auto nanoseconds = static_cast<std::int64_t>(std::llround(length));
    due_ += nanoseconds;
    waited_ = true;
    const std::int64_t early = due_ - std::min(kLeftForEvents, nanoseconds / 2);
    if (early > now()) sleepUntil(early);
}

void SteadyDelay::settle() {
    const std::int64_t start = now();
    if (!waited_ || start - due_ > kCaughtUp) {
        due_ = start;
    } else if (priority_.granted()) {
        if (due_ - kSpun > start) sleepUntil(due_ - kSpun);
        while (now() < due_) {
        }
    } else if (due_ > start) {
        sleepUntil(due_);
    }
    waited_ = false;
}
