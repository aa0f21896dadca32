// SPDX-License-Identifier: MIT
#include "export/cabrillo.h"

#include <algorithm>
#include <array>

#include "base/number.h"
#include "base/print_line.h"
#include "base/text.h"
#include "contest/contest_table.h"
#include "core/qso_line.h"
#include "export/category.h"

namespace exporting {

namespace {

struct SponsorName {
    int number;
    std::string_view name;
};

constexpr std::array<SponsorName, 15> kSponsorNames{{
    {1, "ARRL-VHF-JAN"},
    {2, "ARRL-VHF-JUN"},
    {3, "ARRL-UHF-AUG"},
    {4, "ARRL-VHF-SEP"},
    {21, "VHF-SPRINT-50MHZ-SPRING"},
    {22, "VHF-SPRINT-144MHZ-SPRING"},
    {23, "VHF-SPRINT-222MHZ-SPRING"},
    {24, "VHF-SPRINT-432MHZ-SPRING"},
    {25, "VHF-SPRINT-MICROWAVE-SPRING"},
    {26, "FALL-SPRINT-50MHz"},
    {27, "FALL-SPRINT-144MHz"},
    {28, "FALL-SPRINT-222MHz"},
    {29, "FALL-SPRINT-432MHz"},
    {30, "FALL-SPRINT-MICROWAVE"},
    {31, "CQ-VHF"},
}};

struct BandField {
    std::string_view label, plain, gigahertz;
};

// 903 MHz goes by the lower edge of its band, and light by that of all that lies above 300 GHz.
constexpr std::array<BandField, 13> kBandFields{{
    {"50", "   50", "   50"},
    {"144", "  144", "  144"},
    {"222", "  222", "  222"},
    {"432", "  432", "  432"},
    {"903", "  902", "  902"},
    {"902", "  902", "  902"},
    {"1296", "  1.2", " 1.2G"},
    {"2304", "  2.3", " 2.3G"},
    {"3456", "  3.4", " 3.4G"},
    {"5760", "  5.7", " 5.7G"},
    {"10368", "   10", "  10G"},
    {"24000", "   24", "  24G"},
    {"47000", "   47", "  47G"},
}};
constexpr BandField kLight{"LASER", "  300", " 300G"};

const BandField* fieldOf(std::string_view label) {
    for (const BandField& field : kBandFields) {
        if (field.label == label) return &field;
    }
    return text::same(label, kLight.label) ? &kLight : nullptr;
}

/// Where the rightmost of the signs stands that `cabrilloCall` replaces, counted from 1; 0 where there is
/// none.
std::size_t lastReplaced(std::string_view ownCall) {
    const std::size_t hyphen = ownCall.find('-') + 1, underscore = ownCall.find('_') + 1;
    return std::max(hyphen, underscore);
}

void addLine(std::string& file, std::string_view label, std::string_view value) {
    PrintLine(file).then(label).then(value).end();
}

/// The order of the categories differs between one operator and several.
void addCategories(std::string& file, const Personal& data) {
    const bool multi = isMultiOperator(data(personal::OperatorCategory));
    addLine(file, "CATEGORY-OPERATOR: ", data(personal::OperatorCategory));
    if (multi) addLine(file, "CATEGORY-POWER: ", data(personal::Power));
    addLine(file, "CATEGORY-STATION: ", data(personal::StationCategory));
    addLine(file, "CATEGORY-TRANSMITTER: ", data(personal::Transmitter));
    if (!multi) addLine(file, "CATEGORY-POWER: ", data(personal::Power));
}

}  // namespace

std::string cabrilloContest(int number, std::string_view contestName) {
    for (const SponsorName& sponsor : kSponsorNames) {
        if (sponsor.number == number) return std::string(sponsor.name);
    }
    return std::string(contestName);
}

bool inGigahertz(int number) { return number >= 1 && number <= 4; }

std::string cabrilloBand(std::string_view label, bool gigahertz) {
    constexpr int kWidth = 5;
    if (const BandField* const field = fieldOf(label))
        return std::string(gigahertz ? field->gigahertz : field->plain);
    return text::blanks(kWidth - static_cast<int>(label.size())) + std::string(label);
}

std::string cabrilloCall(std::string_view ownCall) {
    std::string call(ownCall);
    for (const char sign : {'-', '_'}) {
        const std::size_t at = call.find(sign);
        if (at != std::string::npos) call[at] = '/';
    }
    return call;
}

std::string cabrilloOperators(const Personal& data) {
    if (isMultiOperator(data(personal::OperatorCategory)))
        return data(personal::Operators) + " " + data(personal::MoreOperators);
    const std::string& ownCall = data(personal::Call);
    const std::string call = cabrilloCall(ownCall);
    const std::size_t sign = lastReplaced(ownCall);
    return sign != 0 && sign + 1 == call.size() ? call.substr(0, sign - 1) : call;
}

std::string claimedScore(std::string_view contestNumber, std::string_view shownScore) {
    if (contestNumber == "19") return {};
    const auto plain = [](std::string figures) {
        figures.erase(std::remove(figures.begin(), figures.end(), ','), figures.end());
        return figures;
    };
    return plain(number::grouped(number::valueOf(plain(std::string(shownScore)))));
}

std::string cabrilloHead(const Session& session, const Personal& data, std::string_view shownScore) {
    std::string file;
    addLine(file, "START-OF-LOG: ", "3.0");
    addLine(file, "CREATED-BY: TARQEN ", session.ProgramVersion);
    addLine(file, "LOCATION: ", data(personal::Section));
    addLine(file,
            "CONTEST: ", cabrilloContest(contest::numberOf(session.ContestNumber), session.ContestName));
    addLine(file, "CALLSIGN: ", cabrilloCall(data(personal::Call)));
    addCategories(file, data);
    addLine(file, "CATEGORY-BAND: ", "ALL");
    addLine(file, "CLAIMED-SCORE: ", claimedScore(session.ContestNumber, shownScore));
    addLine(file, "OPERATORS: ", cabrilloOperators(data));
    addLine(file, "CLUB: ", data(personal::Club));
    addLine(file, "NAME: ", data(personal::Name));
    addLine(file, "ADDRESS: ", data(personal::Address));
    addLine(file, "ADDRESS: ", data(personal::City));
    addLine(file, "SOAPBOX: ", "");
    return file;
}

void addCabrilloQso(std::string& file, std::string_view line, const CabrilloLog& log) {
    PrintLine(file)
        .then("QSO: ")
        .at(6, cabrilloBand(qso::band(line), log.gigahertz))
        .at(12, qso::mode(line))
        .at(15, log.year)
        .then("-")
        .then(qso::month(line))
        .then("-")
        .then(qso::day(line))
        .at(26, qso::time(line))
        .at(31, log.ownCall)
        .at(49, qso::ownGrid(line))
        .at(56, qso::call(line))
        .at(74, qso::grid(line))
        .end();
}

std::string cabrilloFile(const Session& session, const Personal& data, std::string_view shownScore) {
    constexpr std::size_t kRoomOfALine = 96;
    std::string file = cabrilloHead(session, data, shownScore);
    file.reserve(file.size() + kRoomOfALine * static_cast<std::size_t>(session.LogLineCount));
    const CabrilloLog log{text::left(session.ContestName, 4), cabrilloCall(data(personal::Call)),
                          inGigahertz(contest::numberOf(session.ContestNumber))};
    for (int line = kFirstQsoLine; line <= session.LogLineCount; ++line)
        addCabrilloQso(file, session.LogLines(line), log);
    PrintLine(file).then("END-OF-LOG:").end();
    return file;
}

}  // namespace exporting
