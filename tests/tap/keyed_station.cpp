// SPDX-License-Identifier: MIT
// The whole program, operated by a script as everywhere, on the real ports and the real delay: with the tap
// loaded, what arrives on the lines can be read afterwards.
// The right button on the transmit form raises a fault there.
#include <filesystem>
#include <iostream>

#include "shell/headless/headless_machine.h"
#include "shell/headless/player.h"
#include "shell/linux/linux_ports.h"
#include "shell/linux/posix_files.h"
#include "shell/linux/steady_delay.h"
#include "shell/program.h"
#include "shell/show.h"

int main() {
    PosixFiles files(std::filesystem::current_path().string());
    HeadlessMachine machine(files, std::cout);
    LinuxPorts ports([] { return std::vector<std::string>(); });
    SteadyDelay delay;
    Platform platform{machine.clock,   machine.dialogs, machine.files, machine.programs,
                      machine.windows, ports,           delay};
    Program program(platform);
    const auto field = [&](std::string_view name, const std::vector<int>& indices) {
        return fieldValue(program.station(), name, indices);
    };
    // A fault that no routine traps, while a message goes out.
    program.station().forms.frmTX.onRightClick = [] { throw divisionByZeroError(); };
    Player player(machine, {program.screen(), [&] { program.start(); }, field});
    return player.play(std::cin, std::cerr);
}
