// SPDX-License-Identifier: MIT
// Scripts played within a test.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "shell/headless/player.h"
#include "support/temp_folder.h"

/// What came of a script.
struct Outcome {
    int status = 0;
    /// The transcript's lines.
    std::vector<std::string> lines;
    std::string errors;
};

/// Plays a script on the whole program in a folder.
Outcome playProgram(const TempFolder& folder, const std::string& script);
