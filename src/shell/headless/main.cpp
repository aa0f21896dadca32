// SPDX-License-Identifier: MIT
#include <exception>
#include <filesystem>
#include <fstream>
#include <iostream>

#include "shell/headless/headless_machine.h"
#include "shell/headless/player.h"
#include "shell/linux/posix_files.h"
#include "shell/program.h"
#include "shell/show.h"

namespace {

int play(std::istream& script) {
    PosixFiles files(std::filesystem::current_path().string());
    HeadlessMachine machine(files, std::cout);
    Program program(machine.platform);
    const auto field = [&](std::string_view name, const std::vector<int>& indices) {
        return fieldValue(program.station(), name, indices);
    };
    Player player(machine, {program.screen(), [&] { program.start(); }, field});
    return player.play(script, std::cerr);
}

int playFile(const char* name) {
    std::ifstream script(name, std::ios::binary);
    if (!script) {
        std::cerr << "cannot read " << name << '\n';
        return 2;
    }
    return play(script);
}

}  // namespace

int main(int count, char** arguments) {
    if (count > 2) {
        std::cerr << "usage: " << arguments[0] << " [SCRIPT]\n";
        return 2;
    }
    try {
        return count == 2 ? playFile(arguments[1]) : play(std::cin);
    } catch (const std::exception& failure) {
        std::cerr << failure.what() << '\n';
        return 1;
    }
}
