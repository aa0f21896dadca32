// SPDX-License-Identifier: MIT
#include "bandsw/band_code.h"

#include <algorithm>
#include <array>

namespace {

// Bits 5 to 7 count in half steps of bit 0; the first position, 3, is out of that row.
constexpr std::array<int, 12> kCodes{3, 32, 33, 64, 65, 96, 97, 128, 129, 160, 161, 192};
constexpr int kLaserCode = 192;

constexpr std::array<std::string_view, 13> kBands{"50",   "144",  "222",   "432",   "903",   "1296", "2304",
                                                  "3456", "5760", "10368", "24000", "47000", "76000"};

}  // namespace

int bandCode(std::string_view label, bool from144) {
    const auto first = kBands.begin() + (from144 ? 1 : 0);
    const auto last = first + static_cast<std::ptrdiff_t>(kCodes.size());
    const auto at = std::find(first, last, label);
    if (at != last) return kCodes[static_cast<std::size_t>(at - first)];
    return label == "Laser" ? kLaserCode : 0;
}

int testCode(bool from144) { return bandCode("222", from144); }
