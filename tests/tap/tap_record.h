// SPDX-License-Identifier: MIT
// What the tap writes for each thing that happens on a device: a file of fixed records, mapped into memory,
// so that nothing is lost however the program ends and no write takes time between two edges.
#pragma once

#include <atomic>
#include <cstdint>

namespace tap {

constexpr std::uint32_t kMostRecords = 200'000;

enum class What : std::uint32_t { Open, Exclusive, Claim, Modem, Data, Control, Close };

struct Record {
    /// Of the steady clock.
    std::int64_t nanoseconds;
    What what;
    /// Modem: bit 0 is DTR and bit 1 is RTS. Data and Control: the byte.
    std::uint32_t value;
    char device[24];
};

struct Tape {
    std::atomic<std::uint32_t> count;
    std::uint32_t unused;
    Record records[kMostRecords];
};

}  // namespace tap
