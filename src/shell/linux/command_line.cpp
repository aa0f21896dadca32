// SPDX-License-Identifier: MIT
#include "shell/linux/command_line.h"

#include "base/text.h"

namespace command_line {

std::vector<std::string> words(std::string_view line) {
    std::vector<std::string> found;
    std::string word;
    bool quoted = false, any = false;
    const auto end = [&] {
        if (any) found.push_back(std::move(word));
        word.clear();
        any = false;
    };
    for (const char c : line) {
        if (c == '"') {
            quoted = !quoted;
            any = true;
        } else if (c == ' ' && !quoted) {
            end();
        } else {
            word += c;
            any = true;
        }
    }
    end();
    return found;
}

std::optional<Parts> split(std::string_view line, const Search& search) {
    line = text::trim(line);
    if (text::startsWith(line, "\"")) {
        std::vector<std::string> all = words(line);
        const auto program = search(all.front());
        if (!program) return std::nullopt;
        return Parts{*program, {all.begin() + 1, all.end()}};
    }
    for (std::size_t end = line.find(' ');; end = line.find(' ', end + 1)) {
        const std::string_view start = line.substr(0, end);
        const auto program = start.empty() ? std::nullopt : search(std::string(start));
        const bool all = end == std::string_view::npos;
        if (program) return Parts{*program, all ? std::vector<std::string>{} : words(line.substr(end))};
        if (all) return std::nullopt;
    }
}

}  // namespace command_line
