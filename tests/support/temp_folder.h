// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

/// A folder of a test's own, which goes with it.
class TempFolder {
public:
    TempFolder();
    ~TempFolder();
    TempFolder(const TempFolder&) = delete;
    TempFolder& operator=(const TempFolder&) = delete;

    const std::string& path() const { return path_; }
    std::filesystem::path operator/(const std::string& name) const {
        return std::filesystem::path(path_) / name;
    }
    /// Writes a file whole, and makes the folders above it.
    void write(const std::string& name, std::string_view content) const;
    /// The whole content; raises where there is no such file.
    std::string read(const std::string& name) const;
    bool has(const std::string& name) const;
    /// All entries at the top, hidden ones too, in order of bytes.
    std::vector<std::string> entries() const;

private:
    std::string path_;
};
