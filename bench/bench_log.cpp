// SPDX-License-Identifier: MIT
#include "bench_log.h"

#include <stdlib.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <vector>

#include "contest/contest_table.h"
#include "core/qso_line.h"

namespace bench {

BenchFolder::BenchFolder() {
    std::string name = "/var/tmp/tarqen-bench-XXXXXX";
    if (mkdtemp(name.data()) == nullptr) std::abort();
    path_ = name;
}

BenchFolder::~BenchFolder() { std::filesystem::remove_all(path_); }

void BenchFolder::write(const std::string& name, const std::string& content) const {
    std::ofstream(path_ + "/" + name, std::ios::binary) << content;
}

std::string callOf(int number) {
    if (number % (kQsos / kMatches) == 7) return kWanted;
    const std::string letters{static_cast<char>('A' + number % 26), static_cast<char>('A' + number / 26 % 26),
                              static_cast<char>('A' + number / 676 % 26)};
    return std::string(number % 2 == 0 ? "K" : "W") + std::to_string(number % 10) + letters;
}

std::string gridOf(int number) {
    return {static_cast<char>('E' + number % 2),
            static_cast<char>('M' + number / 2 % 2),
            static_cast<char>('0' + number / 4 % 10),
            static_cast<char>('0' + number / 40 % 10),
            'j',
            'k'};
}

std::string logContent(const std::string& contestNumber) {
    const bool byDistance = contest::scoresByDistance(contest::numberOf(contestNumber));
    std::string content = "2007 A contest\r\n" + qso::header("K3ABC", contestNumber) + "\r\n";
    const std::vector<std::string> bands{"50", "144", "222", "432"};
    for (int number = 0; number < kQsos; ++number) {
        const std::string& band = bands[static_cast<std::size_t>(number) % bands.size()];
        content += qso::compose({band, "PH", "01/20/07", "1435", callOf(number), "FN20jk", gridOf(number),
                                 number % 9 == 0 && !byDistance ? "1-" + band : "", byDistance ? "500" : "1"},
                                byDistance) +
                   "\r\n";
    }
    return content;
}

}  // namespace bench
