// SPDX-License-Identifier: MIT
// Scripts played within a test.
#pragma once

#include <sstream>
#include <string>
#include <vector>

#include "shell/headless/headless_machine.h"
#include "shell/linux/posix_files.h"
#include "shell/program.h"
#include "support/temp_folder.h"

/// What came of a script.
struct Outcome {
    int status = 0;
    /// The transcript's lines.
    std::vector<std::string> lines;
    std::string errors;
};

/// The whole program on a machine of its own, for scripts played one after the other.
class PlayedProgram {
public:
    explicit PlayedProgram(const TempFolder& folder);
    PlayedProgram(const PlayedProgram&) = delete;
    PlayedProgram& operator=(const PlayedProgram&) = delete;
    /// The lines of the transcript are those of this script alone.
    Outcome play(const std::string& script);

private:
    PosixFiles files_;
    std::ostringstream out_;
    HeadlessMachine machine_;
    Program program_;
};

/// Plays one script on the whole program in a folder.
Outcome playProgram(const TempFolder& folder, const std::string& script);
