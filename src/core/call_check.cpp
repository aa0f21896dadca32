// SPDX-License-Identifier: MIT
#include "core/call_check.h"

#include <array>

#include "base/text.h"

namespace call {

namespace {

struct BandTexts {
    std::string_view whole, brief;
};

constexpr std::array<BandTexts, 14> kBands{{{"", ""},
                                            {"50", "50"},
                                            {"144", "14"},
                                            {"222", "22"},
                                            {"432", "43"},
                                            {"903", "90"},
                                            {"1296", "12"},
                                            {"2304", "23"},
                                            {"3456", "34"},
                                            {"5760", "57"},
                                            {"10368", "10"},
                                            {"24000", "24"},
                                            {"47000", "47"},
                                            {"LASER", "LA"}}};

int among(std::string_view text, int first, int last) {
    for (int band = first; band <= last; ++band) {
        const BandTexts& texts = kBands[static_cast<std::size_t>(band)];
        if (text == texts.whole || text == texts.brief) return band;
    }
    return 0;
}

bool digitAt(std::string_view text, std::size_t position) {
    return position <= text.size() && text::isDigit(text[position - 1]);
}

}  // namespace

int bandCommand(std::string_view text, std::string_view contestNumber) {
    return among(text, contestNumber == "3" ? 3 : 1, 13);
}

int shortBandCommand(std::string_view text, std::string_view contestNumber) {
    return among(text, contestNumber == "3" ? 3 : 2, 5);
}

int longBandCommand(std::string_view text) { return among(text, 6, 13); }

bool isIfCommand(std::string_view text) {
    if (text.empty() || text[0] != 'F') return false;
    const bool digits = digitAt(text, 2) && digitAt(text, 3);
    return text.size() == 4 ? digits && digitAt(text, 4) : digits;
}

int pairsOfDigits(std::string_view text) {
    if (text.size() < 4) return 0;
    return (digitAt(text, 2) && digitAt(text, 3) ? 1 : 0) + (digitAt(text, 3) && digitAt(text, 4) ? 1 : 0);
}

bool hasNumeral(std::string_view text) {
    for (std::size_t position = 2; position <= text.size(); ++position) {
        if (digitAt(text, position)) return true;
    }
    return false;
}

}  // namespace call
