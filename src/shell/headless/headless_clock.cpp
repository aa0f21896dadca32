// SPDX-License-Identifier: MIT
#include "shell/headless/headless_clock.h"

#include <chrono>
#include <cmath>

namespace {

using std::chrono::nanoseconds;

constexpr std::int64_t kSecond = 1'000'000'000;
constexpr std::int64_t kDay = 86'400 * kSecond;

/// Nanoseconds of the calendar, counted from the first day of 1970.
std::int64_t countOf(const DateTime& moment) {
    const std::chrono::sys_days day = std::chrono::year(moment.year) /
                                      std::chrono::month(static_cast<unsigned>(moment.month)) /
                                      std::chrono::day(static_cast<unsigned>(moment.day));
    const std::int64_t seconds = moment.hour * 3600 + moment.minute * 60 + moment.second;
    return std::int64_t{day.time_since_epoch().count()} * kDay + seconds * kSecond;
}

DateTime momentOf(std::int64_t count) {
    const auto day =
        std::chrono::floor<std::chrono::days>(std::chrono::sys_time<nanoseconds>(nanoseconds(count)));
    const std::chrono::year_month_day date(day);
    const auto seconds =
        static_cast<int>((count - std::int64_t{day.time_since_epoch().count()} * kDay) / kSecond);
    return {static_cast<int>(date.year()),
            static_cast<int>(static_cast<unsigned>(date.month())),
            static_cast<int>(static_cast<unsigned>(date.day())),
            seconds / 3600,
            seconds / 60 % 60,
            seconds % 60};
}

}  // namespace

DateTime HeadlessClock::local() { return momentOf(localNow()); }

DateTime HeadlessClock::utc() { return momentOf(localNow() + utcMinusLocal_); }

double HeadlessClock::secondsSinceMidnight() {
    const std::int64_t ofDay = ((localNow() % kDay) + kDay) % kDay;
    return static_cast<double>(ofDay) / static_cast<double>(kSecond);
}

std::int64_t HeadlessClock::milliseconds() { return elapsed_ / 1'000'000; }

void HeadlessClock::idle(double seconds) {
    // Rounded up: a wait that polls must come to its end.
    if (seconds > 0) advance(static_cast<std::int64_t>(std::ceil(seconds * static_cast<double>(kSecond))));
}

void HeadlessClock::setLocal(const DateTime& moment) { origin_ = countOf(moment) - elapsed_; }

void HeadlessClock::setUtc(const DateTime& moment) { utcMinusLocal_ = countOf(moment) - localNow(); }

void HeadlessClock::advanceTo(std::int64_t nanoseconds) {
    if (nanoseconds > elapsed_) elapsed_ = nanoseconds;
}
