// SPDX-License-Identifier: MIT
#include "support/played.h"

#include <sstream>

#include "base/text.h"
#include "shell/linux/posix_files.h"
#include "shell/program.h"
#include "shell/show.h"

Outcome playProgram(const TempFolder& folder, const std::string& script) {
    std::istringstream in(script);
    std::ostringstream out, errors;
    PosixFiles files(folder.path());
    HeadlessMachine machine(files, out);
    Program program(machine.platform);
    const auto field = [&](std::string_view name, const std::vector<int>& indices) {
        return fieldValue(program.station(), name, indices);
    };
    Player player(machine, {program.screen(), [&] { program.start(); }, field});
    const int status = player.play(in, errors);
    return {status, text::lines(out.str()), errors.str()};
}
