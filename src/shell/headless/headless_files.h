// SPDX-License-Identifier: MIT
// The files of the program's folder, with the faults that a script asked for.
#pragma once

#include <string>

#include "shell/headless/faults.h"
#include "shell/platform/files.h"

class HeadlessFiles : public Files {
public:
    HeadlessFiles(Files& disk, Faults& faults) : disk_(disk), faults_(faults) {}

    std::unique_ptr<OutFile> append(const std::string& name) override;
    std::unique_ptr<OutFile> create(const std::string& name) override;
    void replace(const std::string& name, std::string_view content) override;
    std::string read(const std::string& name) override;
    bool exists(const std::string& name) override { return disk_.exists(name); }
    void remove(const std::string& name) override { disk_.remove(name); }
    std::vector<std::string> list(const std::string& pattern) override { return disk_.list(pattern); }
    std::string path(const std::string& name) override { return disk_.path(name); }

    /// The path of a name from the program's folder, with slashes, as the patterns of faults are held against
    /// it.
    std::string nameInFolder(const std::string& name) const;

private:
    void checkOpen(const std::string& name);
    Files& disk_;
    Faults& faults_;
};
