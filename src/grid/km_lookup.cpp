// SPDX-License-Identifier: MIT
#include "grid/km_lookup.h"

#include <algorithm>
#include <array>
#include <utility>

#include "base/number.h"
#include "base/text.h"

int pointsInList(std::string_view content, std::string_view band, int points) {
    for (const std::string& line : text::lines(content)) {
        if (text::trim(text::left(line, 5)) != band) continue;
        points = number::wholeOf(text::trim(text::right(line, 2)));
        break;
    }
    return std::max(points, 1);
}

std::string shortBandForPoints(std::string_view band) {
    constexpr std::array<std::pair<std::string_view, std::string_view>, 7> kShort{{{"1296", "1.2"},
                                                                                   {"2304", "2.3"},
                                                                                   {"3456", "3.4"},
                                                                                   {"5760", "5.7"},
                                                                                   {"10368", "10"},
                                                                                   {"24000", "24"},
                                                                                   {"47000", "47"}}};
    for (const auto& [label, brief] : kShort) {
        if (band == label) return std::string(brief);
    }
    return std::string(band);
}

void fromKmLookUp(Station& s, std::string& band, int& points) {
    constexpr const char* kFile = "ARAM-bandas-km.dat";
    touch(s.platform.files, kFile);
    band = shortBandForPoints(band);
    points = pointsInList(s.platform.files.read(kFile), band, points);
}
