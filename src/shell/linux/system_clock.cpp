// SPDX-License-Identifier: MIT
#include "shell/linux/system_clock.h"

#include <algorithm>
#include <chrono>
#include <ctime>
#include <thread>

namespace {

constexpr double kLongestSleep = 0.020;

std::tm localNow(std::time_t seconds) {
    std::tm parts{};
    // The time zone may have been set anew since the last look.
    ::tzset();
    ::localtime_r(&seconds, &parts);
    return parts;
}

DateTime dateTimeOf(const std::tm& parts) {
    // A leap second has no place in a day of 86400 seconds.
    return {parts.tm_year + 1900, parts.tm_mon + 1, parts.tm_mday,
            parts.tm_hour,        parts.tm_min,     std::min(parts.tm_sec, 59)};
}

}  // namespace

DateTime SystemClock::local() { return dateTimeOf(localNow(std::time(nullptr))); }

DateTime SystemClock::utc() {
    const std::time_t now = std::time(nullptr);
    std::tm parts{};
    ::gmtime_r(&now, &parts);
    return dateTimeOf(parts);
}

double SystemClock::secondsSinceMidnight() {
    // One reading for both parts: between two the second could turn.
    timespec now{};
    ::clock_gettime(CLOCK_REALTIME, &now);
    const DateTime time = dateTimeOf(localNow(now.tv_sec));
    return time.hour * 3600 + time.minute * 60 + time.second + static_cast<double>(now.tv_nsec) / 1e9;
}

std::int64_t SystemClock::milliseconds() {
    const auto now = std::chrono::steady_clock::now().time_since_epoch();
    return std::chrono::duration_cast<std::chrono::milliseconds>(now).count();
}

void SystemClock::idle(double seconds) {
    if (!(seconds > 0)) return;
    std::this_thread::sleep_for(std::chrono::duration<double>(std::min(seconds, kLongestSleep)));
}
