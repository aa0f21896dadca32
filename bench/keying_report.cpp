// SPDX-License-Identifier: MIT
// Holds the edges on a tape against those of a message: keying_report TAPE SPEED TEXT, where the key is RTS.
// Prints the deviation of each element and gap from what it should last.
#include <algorithm>
#include <cmath>
#include <cstdio>
#include <fstream>
#include <iostream>
#include <memory>
#include <string>
#include <vector>

#include "keyer/cw_timing.h"
#include "keyer/morse.h"
#include "shell/platform/delay.h"
#include "tap/tap_record.h"

namespace {

using Microseconds = std::vector<double>;

double microseconds(std::int64_t units) { return static_cast<double>(units) * kUnitNanoseconds / 1000; }

/// What the line should do: on, off, on, off, without the last off, which nothing ends.
Microseconds idealOf(std::string text, const keyer::Timing& timing) {
    const keyer::MorseTable table = keyer::morseTable();
    Microseconds spans;
    for (; !text.empty(); text.erase(0, 1)) {
        const keyer::Outgoing next = keyer::nextOutgoing(text, table, keyer::Brackets::ChangeSpeed);
        for (const char element : next.elements) {
            spans.push_back(microseconds(element == '.' ? timing.dotOn : timing.dashOn));
            spans.push_back(microseconds(timing.gap));
        }
        const bool blank = next.kind == keyer::Outgoing::Kind::WordGap;
        spans.back() += microseconds((blank ? 4 : 3) * timing.dot);
    }
    spans.pop_back();
    return spans;
}

/// What it did.
Microseconds measured(const std::string& name) {
    const auto tape = std::make_unique<tap::Tape>();
    std::ifstream file(name, std::ios::binary);
    file.read(reinterpret_cast<char*>(tape.get()), sizeof *tape);
    Microseconds spans;
    std::int64_t edge = 0;
    bool on = false;
    // The opening raises the lines; the message begins after the drop that follows.
    bool dropped = false;
    for (std::uint32_t at = 0; at < tape->count.load(); ++at) {
        const tap::Record& entry = tape->records[at];
        if (entry.what != tap::What::Modem) continue;
        const bool now = (entry.value & 2) != 0;
        dropped = dropped || !now;
        if (!dropped || now == on) continue;
        if (edge != 0) spans.push_back(static_cast<double>(entry.nanoseconds - edge) / 1000);
        edge = entry.nanoseconds;
        on = now;
    }
    return spans;
}

double part(Microseconds sorted, double share) {
    std::sort(sorted.begin(), sorted.end());
    return sorted[static_cast<std::size_t>(share * static_cast<double>(sorted.size() - 1))];
}

int report(const Microseconds& ideal, const Microseconds& real, double dot) {
    if (ideal.size() != real.size()) {
        std::cerr << "keying_report: " << real.size() << " spans and not " << ideal.size() << '\n';
        return 1;
    }
    Microseconds deviations, sizes;
    double drift = 0;
    std::size_t off = 0;
    for (std::size_t at = 0; at < ideal.size(); ++at) {
        const double deviation = real[at] - ideal[at];
        drift += deviation;
        deviations.push_back(deviation);
        sizes.push_back(std::fabs(deviation));
        if (std::fabs(deviation) > dot / 100) ++off;
    }
    std::printf("%7zu %9.1f %9.1f %9.1f %10.1f %7.2f%%\n", sizes.size(), part(deviations, 0.5),
                part(sizes, 0.99), part(sizes, 1), drift,
                100.0 * static_cast<double>(off) / static_cast<double>(sizes.size()));
    return 0;
}

}  // namespace

int main(int count, char** arguments) {
    if (count != 4) {
        std::cerr << "usage: keying_report TAPE SPEED TEXT\n";
        return 2;
    }
    const keyer::Timing timing = keyer::timingOf(std::stoi(arguments[2]), 500, 2000, 1.1F);
    return report(idealOf(arguments[3], timing), measured(arguments[1]), microseconds(timing.dot));
}
