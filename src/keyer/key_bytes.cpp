// SPDX-License-Identifier: MIT
#include "keyer/key_bytes.h"

#include <array>
#include <limits>

#include "base/number.h"
#include "base/run_time_error.h"
#include "base/text.h"

namespace keyer {

namespace {

constexpr std::array<int, 4> kUartBases{1016, 760, 1000, 744};
/// The highest register that is asked for, from the base of a UART.
constexpr int kLastRegister = 6;

}  // namespace

KeyBytes uartBytes(bool swapped, bool ptt) {
    if (!ptt) return {swapped ? 1 : 2, 0, std::nullopt};
    return swapped ? KeyBytes{3, 2, 2} : KeyBytes{3, 1, 1};
}

KeyBytes lptBytes(bool ptt) { return ptt ? KeyBytes{5, 4, 4} : KeyBytes{1, 0, std::nullopt}; }

int uartBase(int port) { return port >= 1 && port <= 4 ? kUartBases[static_cast<std::size_t>(port - 1)] : 0; }

int portAddress(std::string_view text) {
    try {
        const int value = number::wholeOf(text);
        constexpr int kLeast = std::numeric_limits<std::int16_t>::min();
        constexpr int kMost = std::numeric_limits<std::int16_t>::max() - kLastRegister;
        return value >= kLeast && value <= kMost ? value : 0;
    } catch (const RunTimeError&) {
        return 0;
    }
}

std::string commPort(std::string_view text) {
    if (text::startsWith(text, "/")) return std::string(text);
    return number::toText(number::wholeOf(text));
}

}  // namespace keyer
