// SPDX-License-Identifier: MIT
// A command line as the program writes it, cut into a program and its arguments.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace command_line {

struct Parts {
    /// Where the program lies, as the search found it.
    std::string program;
    std::vector<std::string> arguments;
};

/// Where a program of a name lies, or nothing.
using Search = std::function<std::optional<std::string>(const std::string&)>;

/// Words parted by blanks; what stands in double quotes is one word, blanks and all.
std::vector<std::string> words(std::string_view line);

/// A program's path may hold blanks without standing in quotes: the shortest start of the line that is a
/// program is it. Nothing where none is.
std::optional<Parts> split(std::string_view line, const Search& search);

}  // namespace command_line
