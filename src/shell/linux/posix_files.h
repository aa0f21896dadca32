// SPDX-License-Identifier: MIT
// The program's files on a disk.
// Leans on path_lookup.h for where a name lies and on descriptor.h for the calls of the system; both fronts
// build one over the program's folder.
#pragma once

#include "shell/platform/files.h"

class PosixFiles : public Files {
public:
    /// `folder` is the program's folder, a full path in the bytes of the disk.
    explicit PosixFiles(std::string folder) : folder_(std::move(folder)) {}

    std::unique_ptr<OutFile> append(const std::string& name) override;
    std::unique_ptr<OutFile> create(const std::string& name) override;
    /// Follows a link to where the file lies and keeps the file's permissions.
    void replace(const std::string& name, std::string_view content) override;
    std::string read(const std::string& name) override;
    /// Whether a file of that name is there; a folder is none.
    bool exists(const std::string& name) override;
    void remove(const std::string& name) override;
    /// Plain files alone; hidden ones (with a dot in front) where the pattern begins with a dot itself.
    std::vector<std::string> list(const std::string& pattern) override;
    std::string path(const std::string& name) override;

private:
    std::string folder_;
};
