// SPDX-License-Identifier: MIT
#include "structure/source_tree.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <sstream>

namespace structure {
namespace {

namespace fs = std::filesystem;

// Folders at the top that are made, not written. Of the hidden ones only .ci is ours.
bool isLeftAside(const std::string& topFolder) {
    static const std::set<std::string> made{"build", "station", "station.new", "install", "Testing"};
    return made.contains(topFolder) || (topFolder.starts_with('.') && topFolder != ".ci");
}

std::string readText(const fs::path& path) {
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

bool isSource(const fs::path& path) {
    static const std::set<std::string> extensions{".cpp", ".h", ".cmake", ".sh", ".py"};
    if (extensions.contains(path.extension().string()) || path.filename() == "CMakeLists.txt") return true;
    if (path.has_extension()) return false;
    std::ifstream in(path, std::ios::binary);
    return in.get() == '#' && in.get() == '!';
}

}  // namespace

SourceTree readTree(const fs::path& root) {
    SourceTree tree;
    for (auto it = fs::recursive_directory_iterator(root); it != fs::recursive_directory_iterator(); ++it) {
        const std::string path = it->path().lexically_relative(root).generic_string();
        if (it->is_directory()) {
            if (it.depth() == 0 && isLeftAside(path)) {
                it.disable_recursion_pending();
            } else {
                tree.folders.insert(path);
            }
        } else if (it->is_regular_file() && isSource(it->path())) {
            tree.files.push_back({path, readText(it->path())});
        }
    }
    std::sort(tree.files.begin(), tree.files.end(),
              [](const SourceFile& a, const SourceFile& b) { return a.path < b.path; });
    return tree;
}

bool isHeader(const std::string& path) { return path.ends_with(".h"); }

bool isCpp(const std::string& path) { return isHeader(path) || path.ends_with(".cpp"); }

std::vector<std::string> linesOf(const std::string& text) {
    std::vector<std::string> lines;
    std::istringstream in(text);
    for (std::string line; std::getline(in, line);) lines.push_back(line);
    return lines;
}

}  // namespace structure
