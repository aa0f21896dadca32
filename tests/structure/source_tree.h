// SPDX-License-Identifier: MIT
// The checkout as values: the rules of its structure take these and are themselves tested on made-up trees.
#pragma once

#include <filesystem>
#include <set>
#include <string>
#include <vector>

namespace structure {

struct SourceFile {
    std::string path;  // from the checkout, with slashes
    std::string text;
};

struct SourceTree {
    std::vector<SourceFile> files;  // sources and scripts, in order of path
    std::set<std::string> folders;  // all folders, from the checkout, without a slash at the end
};

using Faults = std::vector<std::string>;

// Reads the checkout, without what builds, editors and git leave in it.
SourceTree readTree(const std::filesystem::path& root);

bool isHeader(const std::string& path);
bool isCpp(const std::string& path);

std::vector<std::string> linesOf(const std::string& text);

}  // namespace structure
