// SPDX-License-Identifier: MIT
#include "core/needed_bands.h"

#include <algorithm>

#include "base/text.h"

namespace {
constexpr std::size_t kMostOwnBands = 20;
}

bool usesOwnBands(const Station& s) {
    return text::upper(text::left(s.ControlValues(setting::YourBands), 3)) == "USE";
}

std::vector<std::string> ownBands(Station& s) {
    try {
        std::vector<std::string> bands = text::items(s.platform.files.read("StationBands.txt"));
        if (bands.size() > kMostOwnBands) bands.resize(kMostOwnBands);
        return bands;
    } catch (const FileError&) {
        return {};
    }
}

void bandWorkedNow(Station& s) {
    LogForm& form = s.forms.frmLog;
    const std::vector<std::string> own = usesOwnBands(s) ? ownBands(s) : std::vector<std::string>{};
    form.Worked.add(form.tBand.text());
    const int first = s.session.ContestNumber == "3" ? 3 : kFirstBand;
    for (int band = first; band <= kLastBand; ++band) {
        std::string& needed = s.session.NeededBand(band);
        if (needed == form.tBand.text()) needed.clear();
    }
    form.NeedBands.clear();
    for (int band = kFirstBand; band <= kLastBand; ++band) {
        const std::string& needed = s.session.NeededBand(band);
        const bool wanted = own.empty() || std::find(own.begin(), own.end(), needed) != own.end();
        if (!needed.empty() && wanted) form.NeedBands.add(needed);
    }
}
