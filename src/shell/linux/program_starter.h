// SPDX-License-Identifier: MIT
// Starts other programs of the desktop and lets them go: they outlive this one, and leave nothing behind in
// it. Leans on command_line.h for what a line says and on path_lookup.h for where a program lies in the
// folder.
#pragma once

#include <optional>
#include <string>

class ProgramStarter {
public:
    /// `folder` is the program's folder, in which the others start too.
    explicit ProgramStarter(std::string folder) : folder_(std::move(folder)) {}
    /// Starts a command line in the program's code page; false where it can't be started.
    bool start(const std::string& commandLine) const;
    /// Where a program lies: in the program's folder (without regard to case), else on the search path of the
    /// system.
    std::optional<std::string> find(const std::string& program) const;

private:
    std::string folder_;
};
