// SPDX-License-Identifier: MIT
#pragma once

#include <sstream>
#include <string>

#include "base/text.h"
#include "shell/headless/player.h"
#include "shell/linux/posix_files.h"
#include "support/played.h"
#include "support/sample_form.h"
#include "support/temp_folder.h"

/// A sample form on a headless machine in a folder of its own, to play scripts on. A test gives the controls
/// their handlers beforehand; `start` shows the form.
struct SampleDesk {
    /// Plays a script; the transcript begins with what `start` brings.
    Outcome play(const std::string& script) {
        std::istringstream in(script);
        std::ostringstream errors;
        const auto field = [](std::string_view name, const std::vector<int>& indices) {
            const bool known = name == "Sum" && indices.size() == 2;
            return known ? std::optional(std::to_string(indices[0] + indices[1])) : std::nullopt;
        };
        Player player(machine, {screen, [this] { form.show(); }, field});
        const int status = player.play(in, errors);
        return {status, text::lines(out.str()), errors.str()};
    }
    void say(const std::string& line) { machine.transcript.line(line); }

    TempFolder folder;
    PosixFiles disk{folder.path()};
    std::ostringstream out;
    HeadlessMachine machine{disk, out};
    forms::Screen screen;
    SampleForm form{screen};
};
