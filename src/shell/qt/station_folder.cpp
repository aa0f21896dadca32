// SPDX-License-Identifier: MIT
#include "shell/qt/station_folder.h"

#include <system_error>

namespace fs = std::filesystem;

namespace {

bool isSame(const fs::path& one, const fs::path& other) {
    std::error_code error;
    return fs::equivalent(one, other, error);
}

}  // namespace

fs::path stationFolder(const fs::path& current, const fs::path& home, const fs::path& samples) {
    if (!isSame(current, home) && current != current.root_path()) return current;
    const fs::path folder = home / "TARQEN";
    if (fs::is_directory(folder)) return folder;
    // Copied beside and renamed, so that a copy cut short isn't taken for a station.
    const fs::path growing = home / "TARQEN.new";
    fs::remove_all(growing);
    fs::create_directories(growing);
    if (fs::is_directory(samples)) fs::copy(samples, growing, fs::copy_options::recursive);
    fs::rename(growing, folder);
    return folder;
}
