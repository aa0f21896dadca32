// SPDX-License-Identifier: MIT
#include "keyer/morse.h"

#include <array>
#include <string_view>
#include <utility>

#include "base/run_time_error.h"

namespace keyer {

namespace {

constexpr int kFirstCode = 32, kLastCode = 90;

// The hyphen is the break sign here, as it is used on the air, and not the hyphen of six elements.
constexpr std::array<std::pair<char, std::string_view>, 49> kElements{{
    {'"', ".-..-."}, {'$', "...-..-"}, {'\'', ".----."}, {'(', "-.--."}, {')', "-.--.-"}, {',', "--..--"},
    {'-', "-...-"},  {'.', ".-.-.-"},  {'/', "-..-."},   {'0', "-----"}, {'1', ".----"},  {'2', "..---"},
    {'3', "...--"},  {'4', "....-"},   {'5', "....."},   {'6', "-...."}, {'7', "--..."},  {'8', "---.."},
    {'9', "----."},  {':', "---..."},  {';', "-.-.-."},  {'=', "-...-"}, {'?', "..--.."}, {'A', ".-"},
    {'B', "-..."},   {'C', "-.-."},    {'D', "-.."},     {'E', "."},     {'F', "..-."},   {'G', "--."},
    {'H', "...."},   {'I', ".."},      {'J', ".---"},    {'K', "-.-"},   {'L', ".-.."},   {'M', "--"},
    {'N', "-."},     {'O', "---"},     {'P', ".--."},    {'Q', "--.-"},  {'R', ".-."},    {'S', "..."},
    {'T', "-"},      {'U', "..-"},     {'V', "...-"},    {'W', ".--"},   {'X', "-..-"},   {'Y', "-.--"},
    {'Z', "--.."},
}};

int codeOf(char character) { return static_cast<unsigned char>(character); }

std::string prosign(std::string& buffer, const MorseTable& table) {
    buffer.erase(0, 1);
    if (buffer.size() < 2) throw badCallError();
    const int first = codeOf(buffer[0]), second = codeOf(buffer[1]);
    buffer.erase(0, 2);
    return table(first - kFirstCode) + table(second - kFirstCode);
}

}  // namespace

MorseTable morseTable() {
    MorseTable table;
    for (const auto& [character, elements] : kElements) {
        table(codeOf(character) - kFirstCode) = elements;
    }
    return table;
}

Outgoing nextOutgoing(std::string& buffer, const MorseTable& table, Brackets brackets) {
    using enum Outgoing::Kind;
    if (buffer.empty()) return {};
    const int code = codeOf(buffer.front());
    if (brackets == Brackets::ChangeSpeed && code == '(') return {OtherSpeed, {}};
    if (brackets == Brackets::ChangeSpeed && code == ')') return {FormerSpeed, {}};
    if (code < kFirstCode) return {};
    if (code == kFirstCode) return {WordGap, {}};
    if (code > kLastCode) return {Elements, prosign(buffer, table)};
    return {Elements, table(code - kFirstCode)};
}

}  // namespace keyer
