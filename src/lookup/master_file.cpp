// SPDX-License-Identifier: MIT
#include "lookup/master_file.h"

#include <functional>

#include "base/text.h"

namespace master {

namespace {

/// Hands each line behind "<EOH>" that holds `wanted` at column `first` or later to `take`. The search runs
/// over the whole content at once and looks for line ends around a hit alone: most lines are never cut out.
void eachHit(std::string_view content, std::string_view wanted, int first,
             const std::function<void(std::string_view)>& take) {
    std::size_t start = content.find("<EOH>");
    while (start != std::string_view::npos) {
        const std::size_t end = std::min(content.find_first_of("\r\n", start), content.size());
        const bool alone =
            (start == 0 || content[start - 1] == '\n' || content[start - 1] == '\r') && end == start + 5;
        if (alone) break;
        start = content.find("<EOH>", end);
    }
    if (start == std::string_view::npos || wanted.empty()) return;
    std::size_t at = content.find(wanted, start + 5);
    while (at != std::string_view::npos) {
        const std::size_t before = content.find_last_of("\r\n", at);
        const std::size_t begin = before == std::string_view::npos ? 0 : before + 1;
        const std::size_t end = std::min(content.find_first_of("\r\n", at), content.size());
        const std::string_view line = content.substr(begin, end - begin);
        if (text::contains(text::from(line, first), wanted)) take(line);
        at = content.find(wanted, end);
    }
}

int digitAt(std::string_view line, int column) {
    const std::string_view digit = text::columns(line, column, column);
    return digit.empty() || !text::isDigit(digit[0]) ? 0 : digit[0] - '0';
}

/// The column of `part` from column `first` on, or 0.
int find(std::string_view line, std::string_view part, int first) {
    const std::size_t at = line.find(part, static_cast<std::size_t>(first - 1));
    return at == std::string_view::npos ? 0 : static_cast<int>(at) + 1;
}

}  // namespace

std::string content(Station& s) {
    try {
        return text::upper(s.platform.files.read(s.ControlValues(setting::MasterFile)));
    } catch (const FileError&) {
        return {};
    }
}

std::vector<std::string> callRows(std::string_view content, std::string_view wanted) {
    std::vector<std::string> rows;
    eachHit(content, wanted, 9, [&](std::string_view line) {
        const int comma = find(line, ",<GRID", 8);
        if (comma == 0) return;
        const std::string call(text::columns(line, 9, comma - 1));
        const int mark = find(line, "E:", 23);
        if (mark == 0) {
            rows.push_back(call);
            return;
        }
        const std::string_view rest = text::from(line, mark + 4);
        rows.push_back(text::pad(call, 15) + std::string(rest.substr(0, rest.find(','))));
    });
    return rows;
}

std::vector<std::string> partialRows(std::string_view content, std::string_view wanted) {
    std::vector<std::string> rows;
    eachHit(content, wanted, 7, [&](std::string_view line) {
        const int colon = find(line, ":", 20);
        const int callLength = digitAt(line, 7);
        const std::string call(text::columns(line, 9, 8 + callLength));
        const std::string_view grid =
            colon == 0 ? std::string_view{}
                       : text::columns(line, colon + 3, colon + 2 + digitAt(line, colon + 1));
        rows.push_back(call + "     " + std::string(grid));
    });
    return rows;
}

}  // namespace master
