// SPDX-License-Identifier: MIT
#include "shell/linux/path_lookup.h"

#include <algorithm>
#include <filesystem>
#include <system_error>
#include <vector>

#include "base/text.h"
#include "shell/linux/code_page.h"

namespace path_lookup {

namespace {

namespace fs = std::filesystem;

bool isDrive(std::string_view name) {
    const char letter = name.empty() ? ' ' : text::upper(name[0]);
    return name.size() >= 2 && name[1] == ':' && letter >= 'A' && letter <= 'Z';
}

std::vector<std::string> componentsOf(std::string_view name) {
    std::vector<std::string> components;
    if (isDrive(name)) {
        components.emplace_back(name.substr(0, 2));
        name.remove_prefix(2);
    }
    std::string component;
    for (const char c : name) {
        if (c != '/') {
            component += c;
        } else if (!component.empty()) {
            components.push_back(std::move(component));
            component.clear();
        }
    }
    if (!component.empty()) components.push_back(std::move(component));
    return components;
}

std::string below(const std::string& folder, const std::string& component) {
    return folder.empty() || folder.back() == '/' ? folder + component : folder + "/" + component;
}

/// Of several entries that differ in case alone the first in order of bytes, so that the choice is always the
/// same.
std::optional<std::string> entryLike(const std::string& folder, const std::string& component) {
    std::optional<std::string> found;
    std::error_code error;
    for (fs::directory_iterator at(folder, error), end; !error && at != end; at.increment(error)) {
        const std::string entry = at->path().filename().string();
        const auto name = nameOfEntry(entry);
        if (name && text::same(*name, component) && (!found || entry < *found)) found = entry;
    }
    return found;
}

}  // namespace

std::optional<std::string> nameOfEntry(const std::string& entry) {
    return code_page::isUtf8(entry) ? code_page::fromUtf8(entry) : std::optional(entry);
}

std::string find(const std::string& folder, std::string_view name) {
    std::string slashed(name);
    std::replace(slashed.begin(), slashed.end(), '\\', '/');
    std::string path = text::startsWith(slashed, "/") ? "/" : folder;
    for (const std::string& component : componentsOf(slashed)) {
        const std::string written = below(path, code_page::toUtf8(component));
        std::error_code error;
        const bool there = fs::symlink_status(written, error).type() != fs::file_type::not_found;
        const auto entry = there ? std::nullopt : entryLike(path, component);
        path = entry ? below(path, *entry) : written;
    }
    // A slash at the end asks for a folder, and must go on doing so.
    if (text::endsWith(slashed, "/") && !text::endsWith(path, "/")) path += '/';
    return path;
}

}  // namespace path_lookup
