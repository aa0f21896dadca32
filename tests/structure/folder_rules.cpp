// SPDX-License-Identifier: MIT
#include "structure/folder_rules.h"

#include <cctype>
#include <map>
#include <optional>

namespace structure {
namespace {

struct Entry {
    std::string folder;
    std::string sentence;
};

std::optional<Entry> entryOf(const std::string& line) {
    const std::string opening = "- `";
    const std::string middle = "/`:";
    if (!line.starts_with(opening)) return std::nullopt;
    const std::size_t end = line.find(middle);
    if (end == std::string::npos) return std::nullopt;
    std::string sentence = line.substr(end + middle.size());
    sentence.erase(0, sentence.find_first_not_of(' '));
    return Entry{line.substr(opening.size(), end - opening.size()), sentence};
}

bool isOneSentence(const std::string& text) {
    if (text.empty() || !std::isupper(static_cast<unsigned char>(text.front())) || text.back() != '.')
        return false;
    return text.find(". ") == std::string::npos;
}

}  // namespace

std::set<std::string> foldersToTell(const SourceTree& tree) {
    std::set<std::string> folders;
    for (const std::string& folder : tree.folders) {
        if (folder.find('/') == std::string::npos) folders.insert(folder);
    }
    for (const SourceFile& file : tree.files) {
        if (file.path.starts_with("src/") && isCpp(file.path))
            folders.insert(file.path.substr(0, file.path.rfind('/')));
    }
    return folders;
}

Faults folderFaults(const SourceTree& tree, const std::string& readme) {
    Faults faults;
    std::map<std::string, int> told;
    for (const std::string& line : linesOf(readme)) {
        const auto entry = entryOf(line);
        if (!entry) continue;
        ++told[entry->folder];
        if (!tree.folders.contains(entry->folder))
            faults.push_back(entry->folder + " is listed but not there");
        if (!isOneSentence(entry->sentence))
            faults.push_back(entry->folder + " has not exactly one sentence");
    }
    for (const std::string& folder : foldersToTell(tree)) {
        const int count = told.contains(folder) ? told.at(folder) : 0;
        if (count != 1) faults.push_back(folder + " is listed " + std::to_string(count) + " times");
    }
    return faults;
}

}  // namespace structure
