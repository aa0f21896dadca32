// SPDX-License-Identifier: MIT
#include "shell/linux/code_page.h"

#include <algorithm>
#include <array>
#include <cstdint>

namespace code_page {

namespace {

/// The characters of the bytes 128 to 159; all other bytes are the characters of their own number.
constexpr std::array<char32_t, 32> kMiddle = {0x20AC, 0x81,   0x201A, 0x192,  0x201E, 0x2026, 0x2020, 0x2021,
                                              0x2C6,  0x2030, 0x160,  0x2039, 0x152,  0x8D,   0x17D,  0x8F,
                                              0x90,   0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                              0x2DC,  0x2122, 0x161,  0x203A, 0x153,  0x9D,   0x17E,  0x178};

char32_t characterOf(unsigned char byte) { return byte >= 0x80 && byte < 0xA0 ? kMiddle[byte - 0x80] : byte; }

std::optional<char> byteOf(char32_t character) {
    if (character < 0x80 || (character >= 0xA0 && character < 0x100)) return static_cast<char>(character);
    const auto at = std::find(kMiddle.begin(), kMiddle.end(), character);
    if (at == kMiddle.end()) return std::nullopt;
    return static_cast<char>(0x80 + (at - kMiddle.begin()));
}

void append(std::string& utf8, char32_t character) {
    const auto put = [&](char32_t byte) { utf8 += static_cast<char>(byte); };
    if (character < 0x80) {
        put(character);
    } else if (character < 0x800) {
        put(0xC0 | (character >> 6));
        put(0x80 | (character & 0x3F));
    } else {
        put(0xE0 | (character >> 12));
        put(0x80 | ((character >> 6) & 0x3F));
        put(0x80 | (character & 0x3F));
    }
}

/// How many bytes follow a leading byte, or nothing for a byte that leads no character.
std::optional<int> followers(unsigned char lead) {
    if (lead < 0x80) return 0;
    if (lead >= 0xC2 && lead < 0xE0) return 1;
    if (lead >= 0xE0 && lead < 0xF0) return 2;
    if (lead >= 0xF0 && lead < 0xF5) return 3;
    return std::nullopt;
}

/// A character written longer than it need be, half of a pair, or a number past the last character.
bool isOutlaw(char32_t character, int following) {
    constexpr std::array<char32_t, 4> kLeast = {0, 0x80, 0x800, 0x10000};
    if (character < kLeast[static_cast<std::size_t>(following)]) return true;
    return (character >= 0xD800 && character < 0xE000) || character > 0x10FFFF;
}

/// Takes the character at `at` and moves on; nothing where no character stands there.
std::optional<char32_t> take(std::string_view utf8, std::size_t& at) {
    const auto lead = static_cast<unsigned char>(utf8[at++]);
    const auto following = followers(lead);
    if (!following) return std::nullopt;
    char32_t character = *following == 0 ? lead : lead & (0x3Fu >> *following);
    for (int i = 0; i < *following; ++i) {
        if (at == utf8.size()) return std::nullopt;
        const auto byte = static_cast<unsigned char>(utf8[at++]);
        if ((byte & 0xC0) != 0x80) return std::nullopt;
        character = (character << 6) | (byte & 0x3F);
    }
    if (isOutlaw(character, *following)) return std::nullopt;
    return character;
}

}  // namespace

std::string toUtf8(std::string_view bytes) {
    std::string utf8;
    for (const char byte : bytes) append(utf8, characterOf(static_cast<unsigned char>(byte)));
    return utf8;
}

std::optional<std::string> fromUtf8(std::string_view utf8) {
    std::string bytes;
    for (std::size_t at = 0; at < utf8.size();) {
        const auto character = take(utf8, at);
        const auto byte = character ? byteOf(*character) : std::nullopt;
        if (!byte) return std::nullopt;
        bytes += *byte;
    }
    return bytes;
}

bool isUtf8(std::string_view bytes) {
    for (std::size_t at = 0; at < bytes.size();) {
        if (!take(bytes, at)) return false;
    }
    return true;
}

}  // namespace code_page
