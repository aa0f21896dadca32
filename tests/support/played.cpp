// SPDX-License-Identifier: MIT
#include "support/played.h"

#include "base/text.h"
#include "shell/headless/player.h"
#include "shell/show.h"

PlayedProgram::PlayedProgram(const TempFolder& folder)
    : files_(folder.path()), machine_(files_, out_), program_(machine_.platform) {}

Outcome PlayedProgram::play(const std::string& script) {
    std::istringstream in(script);
    std::ostringstream errors;
    out_.str("");
    const auto field = [&](std::string_view name, const std::vector<int>& indices) {
        return fieldValue(program_.station(), name, indices);
    };
    Player player(machine_, {program_.screen(), [&] { program_.start(); }, field});
    const int status = player.play(in, errors);
    return {status, text::lines(out_.str()), errors.str()};
}

Outcome playProgram(const TempFolder& folder, const std::string& script) {
    return PlayedProgram(folder).play(script);
}
