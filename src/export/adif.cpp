// SPDX-License-Identifier: MIT
#include "export/adif.h"

#include <array>

#include "base/number.h"
#include "base/print_line.h"
#include "base/text.h"
#include "core/qso_line.h"

namespace exporting {

namespace {

struct BandText {
    std::string_view label, text;
};

// The label stands where a frequency would: other programs of the station read it back as the band.
constexpr std::array<BandText, 12> kBandTexts{{
    {"50", " <freq:2>50"},
    {"144", " <freq:3>144"},
    {"222", " <freq:3>222"},
    {"432", " <freq:3>432"},
    {"903", " <freq:3>903"},
    {"1296", " <freq:4>1296"},
    {"2304", " <freq:4>2304"},
    {"3456", " <freq:4>3456"},
    {"5760", " <freq:4>5760"},
    {"10368", " <freq:5>10368"},
    {"24000", " <freq:5>24000"},
    {"47000", " <freq:5>47000"},
}};
constexpr std::string_view kLight = " <freq:5>Laser";
constexpr std::string_view kEnding = ".ADI";

/// A field with the length of its value in its tag. `opening` is the tag with its colon and what goes before.
void addField(std::string& file, std::string_view opening, std::string_view value) {
    file += opening;
    file += number::toText(static_cast<std::int64_t>(value.size()));
    file += '>';
    file += value;
}

std::string_view adifMode(std::string_view mode) { return mode == "PH" ? "SSB" : mode; }

std::string head(const Session& session, const AdifSource& source) {
    std::string file;
    const auto put = [&](std::string_view label, std::string_view value) {
        PrintLine(file).then(label).then(value).end();
    };
    put("ADIF Export from TARQEN ", source.version);
    put("", "");
    put("Log for station: ", source.ownCall);
    put("Operator: ", source.ownCall);
    put("Contest: ", source.contest);
    put("", "");
    put("ASCII Log Source: ", source.logName);
    put("Export date: ", source.today);
    put("Records exported: ", number::toText(session.LogLineCount - (kFirstQsoLine - 1)));
    put("", "");
    put("<eoh>", "");
    return file;
}

}  // namespace

std::string fullYear(std::string_view twoDigits) {
    const bool lastCentury = twoDigits == "98" || twoDigits == "99";
    return (lastCentury ? "19" : "20") + std::string(twoDigits);
}

std::string_view adifBand(std::string_view label, std::string_view before) {
    for (const BandText& band : kBandTexts) {
        if (band.label == label) return band.text;
    }
    return text::same(label, "LASER") ? kLight : before;
}

void addAdifRecord(std::string& file, std::string_view line, std::string_view& band) {
    band = adifBand(qso::band(line), band);
    addField(file, "<call:", qso::call(line));
    file += " <qso_date:8:d>";
    file += fullYear(qso::year(line));
    file += qso::month(line);
    file += qso::day(line);
    addField(file, " <time_on:", qso::time(line));
    file += band;
    addField(file, " <mode:", adifMode(qso::longMode(line)));
    addField(file, " <gridsquare:", qso::grid(line));
    file += " <eor>\r\n";
}

std::string adifFile(const Session& session, const AdifSource& source) {
    constexpr std::size_t kRoomOfARecord = 128;
    std::string file = head(session, source);
    file.reserve(file.size() + kRoomOfARecord * static_cast<std::size_t>(session.LogLineCount));
    std::string_view band;
    for (int line = kFirstQsoLine; line <= session.LogLineCount; ++line)
        addAdifRecord(file, session.LogLines(line), band);
    return file;
}

std::string adifName(std::string_view answer) {
    std::string name = text::upper(answer);
    if (!text::endsWith(name, kEnding)) name += kEnding;
    return name;
}

}  // namespace exporting
