// SPDX-License-Identifier: MIT
// Prints what a tap has recorded, a line a record: DEVICE EVENT VALUE, with --times the nanoseconds since the
// first record in front.
#include <fstream>
#include <iostream>
#include <memory>
#include <string>

#include "tap_record.h"

namespace {

const char* nameOf(tap::What what) {
    constexpr const char* kNames[] = {"open", "exclusive", "claim", "modem", "data", "control", "close"};
    return kNames[static_cast<std::uint32_t>(what)];
}

bool hasValue(tap::What what) {
    return what == tap::What::Modem || what == tap::What::Data || what == tap::What::Control;
}

void print(const tap::Tape& tape, bool times) {
    for (std::uint32_t at = 0; at < tape.count.load(); ++at) {
        const tap::Record& entry = tape.records[at];
        if (times) std::cout << entry.nanoseconds - tape.records[0].nanoseconds << ' ';
        std::cout << entry.device << ' ' << nameOf(entry.what);
        if (hasValue(entry.what)) std::cout << ' ' << entry.value;
        std::cout << '\n';
    }
}

}  // namespace

int main(int count, char** arguments) {
    const bool times = count == 3 && std::string(arguments[1]) == "--times";
    if (count != 2 && !times) {
        std::cerr << "usage: tap_read [--times] FILE\n";
        return 2;
    }
    const auto tape = std::make_unique<tap::Tape>();
    std::ifstream file(arguments[count - 1], std::ios::binary);
    // The file is as the records lie in memory.
    if (!file.read(reinterpret_cast<char*>(tape.get()), sizeof *tape)) {
        std::cerr << "tap_read: " << arguments[count - 1] << " is no tape\n";
        return 1;
    }
    print(*tape, times);
}
