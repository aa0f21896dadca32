// SPDX-License-Identifier: MIT
// Single-byte text (Windows-1252): columns that count from 1, padding, case, trimming, lines and items.
// Leans on the standard library alone; every other folder calls it, and none does its own arithmetic on
// columns. What every line of a log goes through, several times over, is inline.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace text {

/// Columns first to last, both included and counted from 1; columns beyond the end of the line are left out.
inline std::string_view columns(std::string_view line, int first, int last) {
    const std::size_t start = first < 1 ? 0 : static_cast<std::size_t>(first - 1);
    if (start >= line.size() || last < first) return {};
    return line.substr(start, static_cast<std::size_t>(last) - start);
}
/// All columns from `first` (counted from 1) on.
std::string_view from(std::string_view line, int first);
/// The first `count` characters, or all of a shorter text.
std::string_view left(std::string_view line, int count);
/// The last `count` characters, or all of a shorter text.
std::string_view right(std::string_view line, int count);
/// Without the blanks (32 alone, no tabs) at the start, at the end, or both.
inline std::string_view trimLeft(std::string_view line) {
    std::size_t start = 0;
    while (start < line.size() && line[start] == ' ') ++start;
    return line.substr(start);
}
inline std::string_view trimRight(std::string_view line) {
    std::size_t end = line.size();
    while (end > 0 && line[end - 1] == ' ') --end;
    return line.substr(0, end);
}
inline std::string_view trim(std::string_view line) { return trimLeft(trimRight(line)); }
/// Left-aligned in `width` columns: padded with blanks, cut where longer.
std::string pad(std::string_view value, int width);
/// Both cases of Windows-1252 letters, accented ones included.
std::string upper(std::string_view value);
std::string lower(std::string_view value);
char upper(char character);
char lower(char character);
/// The same text when case is not looked at.
bool same(std::string_view one, std::string_view other);
/// Whether `part` stands in a line from a column (counted from 1) on.
inline bool standsAt(std::string_view line, int column, std::string_view part) {
    const auto start = static_cast<std::size_t>(column - 1);
    const std::string_view rest = start < line.size() ? line.substr(start) : std::string_view{};
    return rest.substr(0, part.size()) == part;
}
bool startsWith(std::string_view value, std::string_view start);
bool endsWith(std::string_view value, std::string_view end);
bool contains(std::string_view value, std::string_view part);
bool isDigit(char character);
/// `count` blanks; none for a count below 1.
std::string blanks(int count);
/// The lines of a file's content without their ends (CR LF, a lone LF or a lone CR). A last line without an
/// end counts. Only the first `most` where there are more.
std::vector<std::string> lines(std::string_view content, std::size_t most = SIZE_MAX);
/// The items of a content separated by commas and line ends. A quoted item runs to its closing quote and what
/// follows up to the separator is dropped; an unquoted one loses the blanks around it. An empty line is one
/// empty item.
std::vector<std::string> items(std::string_view content);
/// `width` digits with leading zeros; the sign, where there is one, comes in front.
std::string digits(long value, int width);
/// Whether a name matches a pattern of literal characters, `*` and `?`, in any case.
bool matches(std::string_view name, std::string_view pattern);

}  // namespace text
