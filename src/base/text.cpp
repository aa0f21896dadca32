// SPDX-License-Identifier: MIT
#include "base/text.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <cstring>

namespace text {

namespace {

std::size_t offset(int column) { return column < 1 ? 0 : static_cast<std::size_t>(column - 1); }

unsigned char code(char character) { return static_cast<unsigned char>(character); }

// The letters of Windows-1252 between 128 and 159 that have two cases: S, OE, Z and Y of their accents.
bool isLowerAccent(unsigned char c) { return c >= 0xE0 && c != 0xF7 && c != 0xFF; }
bool isUpperAccent(unsigned char c) { return c >= 0xC0 && c <= 0xDE && c != 0xD7; }

}  // namespace

std::string_view from(std::string_view line, int first) {
    const std::size_t start = offset(first);
    return start >= line.size() ? std::string_view{} : line.substr(start);
}

std::string_view left(std::string_view line, int count) { return columns(line, 1, count); }

std::string_view right(std::string_view line, int count) {
    if (count < 1) return {};
    const auto wanted = static_cast<std::size_t>(count);
    return wanted >= line.size() ? line : line.substr(line.size() - wanted);
}

std::string pad(std::string_view value, int width) {
    std::string padded(left(value, width));
    if (width > 0) padded.resize(static_cast<std::size_t>(width), ' ');
    return padded;
}

char upper(char character) {
    const unsigned char c = code(character);
    if (c >= 'a' && c <= 'z') return static_cast<char>(c - 32);
    if (isLowerAccent(c)) return static_cast<char>(c - 32);
    if (c == 0x9A || c == 0x9C || c == 0x9E) return static_cast<char>(c - 16);
    if (c == 0xFF) return static_cast<char>(0x9F);
    return character;
}

char lower(char character) {
    const unsigned char c = code(character);
    if (c >= 'A' && c <= 'Z') return static_cast<char>(c + 32);
    if (isUpperAccent(c)) return static_cast<char>(c + 32);
    if (c == 0x8A || c == 0x8C || c == 0x8E) return static_cast<char>(c + 16);
    if (c == 0x9F) return static_cast<char>(0xFF);
    return character;
}

namespace {

constexpr std::uint64_t eachByte(unsigned value) { return 0x0101010101010101U * std::uint64_t{value}; }
constexpr std::uint64_t kHighBits = eachByte(0x80);

/// Eight characters below 128 at once: the high bit of each tells whether it lies in "a" to "z", and is 32
/// two places further down.
std::uint64_t upperOfEight(std::uint64_t eight) {
    const std::uint64_t fromA = eight + eachByte(0x80 - 'a'), beyondZ = eight + eachByte(0x80 - 'z' - 1);
    return eight - ((fromA & ~beyondZ & kHighBits) >> 2);
}

}  // namespace

std::string upper(std::string_view value) {
    std::string result(value);
    std::size_t at = 0;
    // Whole lookup files go through here.
    for (std::uint64_t eight = 0; at + sizeof eight <= result.size(); at += sizeof eight) {
        std::memcpy(&eight, result.data() + at, sizeof eight);
        if ((eight & kHighBits) == 0) {
            eight = upperOfEight(eight);
            std::memcpy(result.data() + at, &eight, sizeof eight);
        } else {
            std::transform(&result[at], &result[at] + sizeof eight, &result[at],
                           [](char c) { return upper(c); });
        }
    }
    for (; at < result.size(); ++at) result[at] = upper(result[at]);
    return result;
}

std::string lower(std::string_view value) {
    std::string result(value);
    std::transform(result.begin(), result.end(), result.begin(), [](char c) { return lower(c); });
    return result;
}

bool same(std::string_view one, std::string_view other) {
    return std::equal(one.begin(), one.end(), other.begin(), other.end(),
                      [](char a, char b) { return lower(a) == lower(b); });
}

bool startsWith(std::string_view value, std::string_view start) {
    return value.substr(0, start.size()) == start;
}

bool endsWith(std::string_view value, std::string_view end) {
    return value.size() >= end.size() && value.substr(value.size() - end.size()) == end;
}

bool contains(std::string_view value, std::string_view part) {
    return value.find(part) != std::string_view::npos;
}

bool isDigit(char character) { return character >= '0' && character <= '9'; }

std::string blanks(int count) { return std::string(count < 1 ? 0 : static_cast<std::size_t>(count), ' '); }

std::vector<std::string> lines(std::string_view content, std::size_t most) {
    const auto endsLine = [](char character) { return character == '\r' || character == '\n'; };
    std::vector<std::string> result;
    auto start = content.begin();
    while (start != content.end() && result.size() < most) {
        const auto end = std::find_if(start, content.end(), endsLine);
        result.emplace_back(start, end);
        if (end == content.end()) break;
        const bool pair = *end == '\r' && std::next(end) != content.end() && *std::next(end) == '\n';
        start = std::next(end, pair ? 2 : 1);
    }
    return result;
}

namespace {

bool endsItem(char character) { return character == ',' || character == '\r' || character == '\n'; }

std::size_t passSeparator(std::string_view content, std::size_t at) {
    if (at >= content.size()) return at;
    const bool pair = content[at] == '\r' && at + 1 < content.size() && content[at + 1] == '\n';
    return at + (pair ? 2 : 1);
}

}  // namespace

std::vector<std::string> items(std::string_view content) {
    std::vector<std::string> result;
    std::size_t at = 0;
    while (at < content.size()) {
        while (at < content.size() && content[at] == ' ') ++at;
        if (at < content.size() && content[at] == '"') {
            const std::size_t close = content.find('"', at + 1);
            result.emplace_back(
                content.substr(at + 1, close == std::string_view::npos ? close : close - at - 1));
            at = close == std::string_view::npos ? content.size() : close + 1;
            while (at < content.size() && !endsItem(content[at])) ++at;
        } else {
            const std::size_t start = at;
            while (at < content.size() && !endsItem(content[at])) ++at;
            result.emplace_back(trim(content.substr(start, at - start)));
        }
        at = passSeparator(content, at);
    }
    return result;
}

std::string digits(long value, int width) {
    std::string figures = std::to_string(std::labs(value));
    if (static_cast<int>(figures.size()) < width) {
        figures.insert(0, static_cast<std::size_t>(width) - figures.size(), '0');
    }
    return value < 0 ? "-" + figures : figures;
}

bool matches(std::string_view name, std::string_view pattern) {
    std::size_t n = 0, p = 0, star = std::string_view::npos, mark = 0;
    while (n < name.size()) {
        if (p < pattern.size() &&
            (pattern[p] == '?' || (pattern[p] != '*' && lower(pattern[p]) == lower(name[n])))) {
            ++n, ++p;
        } else if (p < pattern.size() && pattern[p] == '*') {
            star = p++, mark = n;
        } else if (star != std::string_view::npos) {
            p = star + 1, n = ++mark;
        } else {
            return false;
        }
    }
    while (p < pattern.size() && pattern[p] == '*') ++p;
    return p == pattern.size();
}

}  // namespace text
