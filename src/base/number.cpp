// SPDX-License-Identifier: MIT
#include "base/number.h"

#include <array>
#include <charconv>
#include <cmath>
#include <cstdlib>
#include <system_error>

#include "base/run_time_error.h"
#include "base/text.h"

namespace number {

namespace {

double hexadecimalValue(std::string_view figures) {
    // Four digits or fewer are a 16-bit number, eight or fewer a 32-bit one: "&HFFFF" is -1.
    std::uint32_t value = 0;
    int count = 0;
    for (const char c : figures) {
        const char u = text::upper(c);
        const bool letter = u >= 'A' && u <= 'F';
        if (!text::isDigit(u) && !letter) break;
        value = value * 16 + static_cast<std::uint32_t>(letter ? u - 'A' + 10 : u - '0');
        if (++count == 8) break;
    }
    if (count <= 4) return static_cast<std::int16_t>(value);
    return static_cast<std::int32_t>(value);
}

// The characters that belong to a decimal number at the start of `figures`.
std::string decimalPart(std::string_view figures) {
    std::string taken;
    std::size_t at = 0;
    const auto takeDigits = [&] {
        const std::size_t before = taken.size();
        while (at < figures.size() && text::isDigit(figures[at])) taken += figures[at++];
        return taken.size() > before;
    };
    if (at < figures.size() && (figures[at] == '+' || figures[at] == '-')) taken += figures[at++];
    bool any = takeDigits();
    if (at < figures.size() && figures[at] == '.') {
        taken += figures[at++];
        any = takeDigits() || any;
    }
    if (!any) return {};
    if (at < figures.size() && std::string_view("eEdD").find(figures[at]) != std::string_view::npos) {
        const std::string mantissa = taken;
        taken += 'e';
        ++at;
        if (at < figures.size() && (figures[at] == '+' || figures[at] == '-')) taken += figures[at++];
        if (!takeDigits()) taken = mantissa;
    }
    return taken;
}

// The C library's own functions would write and read the decimal mark of the operator's language.
std::string written(double value, std::chars_format format, int precision) {
    std::array<char, 400> buffer{};
    const auto end =
        std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, format, precision).ptr;
    return std::string(buffer.data(), end);
}

std::string withoutTail(std::string number) {
    if (!text::contains(number, ".")) return number;
    while (number.back() == '0') number.pop_back();
    if (number.back() == '.') number.pop_back();
    return number;
}

std::string significant(double value, int figures) {
    if (value == 0) return "0";
    const std::string scientific = written(value, std::chars_format::scientific, figures - 1);
    const std::size_t mark = scientific.find('e');
    const int exponent = std::atoi(scientific.c_str() + mark + 1);
    if (exponent >= figures || exponent < -4) {
        const std::string mantissa = withoutTail(scientific.substr(0, mark));
        return mantissa + (exponent < 0 ? "E-" : "E+") + text::digits(std::abs(exponent), 2);
    }
    return withoutTail(written(value, std::chars_format::fixed, figures - 1 - exponent));
}

// Of a number that no double holds: whether it is too close to 0, not too large.
bool isTiny(std::string_view decimal) {
    const std::string_view whole = decimal.substr(0, decimal.find('.'));
    return text::contains(decimal, "e-") || whole.find_first_not_of("+-0") == std::string_view::npos;
}

double decimalValue(std::string_view decimal) {
    if (text::startsWith(decimal, "+")) decimal.remove_prefix(1);
    double value = 0;
    const auto result = std::from_chars(decimal.data(), decimal.data() + decimal.size(), value);
    if (result.ec == std::errc()) return value;
    if (isTiny(decimal)) return 0;
    throw overflowError();
}

}  // namespace

double valueOf(std::string_view value) {
    std::string figures;
    for (const char c : value) {
        if (c != ' ' && c != '\t' && c != '\n' && c != '\r') figures += c;
    }
    if (figures.size() > 1 && figures[0] == '&' && text::upper(figures[1]) == 'H') {
        return hexadecimalValue(std::string_view(figures).substr(2));
    }
    const std::string decimal = decimalPart(figures);
    if (decimal.empty()) return 0;
    return decimalValue(decimal);
}

std::int32_t rounded(double value) {
    const double whole = std::nearbyint(value);
    if (!(whole >= -2147483648.0 && whole <= 2147483647.0)) throw overflowError();
    return static_cast<std::int32_t>(whole);
}

std::int32_t wholeOf(std::string_view value) { return rounded(valueOf(value)); }

std::string toText(double value) { return significant(value, 15); }
std::string toText(float value) { return significant(static_cast<double>(value), 7); }
std::string toText(std::int64_t value) { return std::to_string(value); }

std::string grouped(double value) {
    std::string figures = written(std::fabs(value), std::chars_format::fixed, 0);
    if (figures == "0") return {};
    for (int at = static_cast<int>(figures.size()) - 3; at > 0; at -= 3) {
        figures.insert(static_cast<std::size_t>(at), ",");
    }
    return value < 0 ? "-" + figures : figures;
}

}  // namespace number
