// SPDX-License-Identifier: MIT
#include "support/temp_folder.h"

#include <stdlib.h>
#include <unistd.h>

#include <algorithm>
#include <fstream>
#include <iterator>
#include <stdexcept>

namespace fs = std::filesystem;

namespace {

/// In memory where there is such a place: thousands of syncs take their time on a disk.
fs::path placeForFolders() {
    const char* const memory = "/dev/shm";
    return ::access(memory, W_OK) == 0 ? fs::path(memory) : fs::temp_directory_path();
}

}  // namespace

TempFolder::TempFolder() : path_((placeForFolders() / "tarqen-test-XXXXXX").string()) {
    if (::mkdtemp(path_.data()) == nullptr) throw std::runtime_error("cannot make " + path_);
}

TempFolder::~TempFolder() {
    std::error_code ignored;
    fs::remove_all(path_, ignored);
}

void TempFolder::write(const std::string& name, std::string_view content) const {
    const fs::path file = *this / name;
    fs::create_directories(file.parent_path());
    std::ofstream out(file, std::ios::binary);
    out << content;
    out.close();
    if (!out) throw std::runtime_error("cannot write " + file.string());
}

std::string TempFolder::read(const std::string& name) const {
    std::ifstream in(*this / name, std::ios::binary);
    if (!in) throw std::runtime_error("cannot read " + name);
    return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

bool TempFolder::has(const std::string& name) const { return fs::exists(*this / name); }

std::vector<std::string> TempFolder::entries() const {
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(path_)) names.push_back(entry.path().filename().string());
    std::sort(names.begin(), names.end());
    return names;
}
