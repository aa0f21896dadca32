// SPDX-License-Identifier: MIT
#include "shell/headless/line_reader.h"

#include <charconv>
#include <chrono>
#include <system_error>

#include "base/number.h"
#include "base/text.h"
#include "shell/headless/run_ends.h"

namespace {

std::optional<std::int64_t> wholeOf(std::string_view word) {
    std::int64_t value = 0;
    const auto result = std::from_chars(word.data(), word.data() + word.size(), value);
    if (word.empty() || result.ec != std::errc() || result.ptr != word.data() + word.size())
        return std::nullopt;
    return value;
}

/// The number in columns first to last, which must all be digits.
std::optional<int> figures(std::string_view word, int first, int last) {
    const std::string_view part = text::columns(word, first, last);
    if (static_cast<int>(part.size()) != last - first + 1 || !text::isDigit(part[0])) return std::nullopt;
    const auto value = wholeOf(part);
    return value ? std::optional(static_cast<int>(*value)) : std::nullopt;
}

bool hasMarks(std::string_view word, char mark, int one, int other, std::size_t length) {
    return word.size() == length && word[static_cast<std::size_t>(one) - 1] == mark &&
           word[static_cast<std::size_t>(other) - 1] == mark;
}

bool isDate(int year, int month, int day) {
    return std::chrono::year_month_day(std::chrono::year(year),
                                       std::chrono::month(static_cast<unsigned>(month)),
                                       std::chrono::day(static_cast<unsigned>(day)))
        .ok();
}

}  // namespace

LineReader::LineReader(std::string_view line) : rest_(text::trimLeft(line)) {}

bool LineReader::atEnd() const { return text::trim(rest_).empty(); }

std::string LineReader::word() {
    rest_ = text::trimLeft(rest_);
    const std::string taken(rest_.substr(0, rest_.find(' ')));
    if (taken.empty()) throw badScript("the line ends where a word is missing");
    rest_.remove_prefix(taken.size());
    return taken;
}

std::string LineReader::rest() {
    if (!rest_.empty()) rest_.remove_prefix(1);
    const std::string taken(rest_);
    rest_ = {};
    return taken;
}

std::int64_t LineReader::whole(std::int64_t least, std::int64_t most) {
    const std::string taken = word();
    const auto value = wholeOf(taken);
    if (!value || *value < least || *value > most)
        throw badScript("\"" + taken + "\" is no number that can stand here");
    return *value;
}

double LineReader::decimal(double most) {
    const std::string taken = word();
    constexpr std::size_t kLongest = 20;
    const bool plain =
        taken.size() <= kLongest && taken.find_first_not_of("0123456789.") == std::string::npos;
    const bool numeric = plain && taken != "." && taken.find('.') == taken.rfind('.');
    const double value = numeric ? number::valueOf(taken) : -1;
    if (!(value >= 0 && value <= most)) throw badScript("\"" + taken + "\" is no number that can stand here");
    return value;
}

DateTime LineReader::moment() {
    const std::string date = word(), time = word();
    const auto year = figures(date, 1, 4), month = figures(date, 6, 7), day = figures(date, 9, 10);
    const auto hour = figures(time, 1, 2), minute = figures(time, 4, 5), second = figures(time, 7, 8);
    const bool formed = hasMarks(date, '-', 5, 8, 10) && hasMarks(time, ':', 3, 6, 8);
    const bool whole = formed && year && month && day && hour && minute && second;
    if (!whole || !isDate(*year, *month, *day) || *hour > 23 || *minute > 59 || *second > 59) {
        throw badScript("\"" + date + " " + time + "\" is no date and time");
    }
    return {*year, *month, *day, *hour, *minute, *second};
}

void LineReader::end() const {
    if (!atEnd()) throw badScript("\"" + std::string(text::trim(rest_)) + "\" is too much");
}
