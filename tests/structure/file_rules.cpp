// SPDX-License-Identifier: MIT
#include "structure/file_rules.h"

#include <algorithm>

namespace structure {
namespace {

bool hasLicence(const std::vector<std::string>& lines) {
    // The first line may be the one that names a script's interpreter.
    const auto end = lines.begin() + std::min<std::ptrdiff_t>(std::ssize(lines), 2);
    return std::any_of(lines.begin(), end, [](const std::string& line) {
        return line == "// SPDX-License-Identifier: MIT" || line == "# SPDX-License-Identifier: MIT";
    });
}

bool isGuarded(const std::vector<std::string>& lines) {
    return std::find(lines.begin(), lines.end(), "#pragma once") != lines.end();
}

}  // namespace

Faults fileFaults(const std::vector<SourceFile>& files) {
    Faults faults;
    for (const SourceFile& file : files) {
        const std::vector<std::string> lines = linesOf(file.text);
        if (!hasLicence(lines)) faults.push_back(file.path + " has no licence line");
        if (isHeader(file.path) && !isGuarded(lines)) faults.push_back(file.path + " has no #pragma once");
        if (std::ssize(lines) > kMostLines) {
            faults.push_back(file.path + " has " + std::to_string(lines.size()) + " lines");
        }
    }
    return faults;
}

}  // namespace structure
