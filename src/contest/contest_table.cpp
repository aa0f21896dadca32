// SPDX-License-Identifier: MIT
#include "contest/contest_table.h"

#include <algorithm>
#include <array>

#include "base/number.h"
#include "base/text.h"

namespace contest {

namespace {

constexpr std::array<std::string_view, 14> kBandLabels{
    "", "50", "144", "222", "432", "903", "1296", "2304", "3456", "5760", "10368", "24000", "47000", "Laser"};

constexpr std::array<Contest, 31> kContests{{
    {1, "ARRL Jan. VHF Sweepstakes", Family::TopLevel, 1, 13, 1},
    {2, "ARRL June QSO Party", Family::TopLevel, 1, 13, 1},
    {3, "ARRL UHF Contest", Family::TopLevel, 3, 13, 3},
    {4, "ARRL Sept. QSO Party", Family::TopLevel, 1, 13, 1},
    {5, "ARRL 50 MHz Sprint", Family::ArrlSprints, 1, 1, 1},
    {6, "ARRL 144 MHz Sprint", Family::ArrlSprints, 2, 2, 2},
    {7, "ARRL 222 MHz Sprint", Family::ArrlSprints, 3, 3, 3},
    {8, "ARRL 432 MHz Sprint", Family::ArrlSprints, 4, 4, 4},
    {9, "ARRL 903 MHz Sprint", Family::None, 5, 5, 5},
    {10, "ARRL 1296 MHz Sprint", Family::None, 6, 6, 6},
    {11, "ARRL 2304 MHz Sprint", Family::None, 7, 7, 7},
    {12, "903 and up Sprint", Family::GenericSprints, 0, 0, 5},
    {13, "ARRL 903 1296 2304 MHz Sprints", Family::ArrlSprints, 5, 7, 5},
    {14, "50 MHz Sprint", Family::GenericSprints, 1, 1, 1},
    {15, "144 MHz Sprint", Family::GenericSprints, 2, 2, 2},
    {16, "222 MHz Sprint", Family::GenericSprints, 3, 3, 3},
    {17, "432 MHz Sprint", Family::GenericSprints, 4, 4, 4},
    {18, "903 1296 2304 MHz Sprints", Family::None, 5, 7, 5},
    {19, "903 to 5760 Sprints", Family::GenericSprints, 5, 9, 5},
    {20, "RVHFG All Band Fall Sprint", Family::TopLevel, 1, 13, 1},
    {21, "50 MHz Spring Sprint", Family::SpringSprints, 1, 1, 1},
    {22, "144 MHz Spring Sprint", Family::SpringSprints, 2, 2, 2},
    {23, "222 MHz Spring Sprint", Family::SpringSprints, 3, 3, 3},
    {24, "432 MHz Spring Sprint", Family::SpringSprints, 4, 4, 4},
    {25, "Microwave Spring Sprint", Family::SpringSprints, 5, 13, 5},
    {26, "50 MHz Fall Sprint", Family::FallSprints, 1, 1, 1},
    {27, "144 MHz Fall Sprint", Family::FallSprints, 2, 2, 2},
    {28, "222 MHz Fall Sprint", Family::FallSprints, 3, 3, 3},
    {29, "432 MHz Fall Sprint", Family::FallSprints, 4, 4, 4},
    {30, "Microwave Fall Sprint", Family::FallSprints, 5, 13, 0},
    {31, "CQ WW VHF Contest", Family::TopLevel, 1, 2, 1},
}};

struct FamilyName {
    std::string_view name;
    Family family;
};

constexpr std::array<FamilyName, 4> kFamilies{{
    {"SVHFS Fall Sprints", Family::FallSprints},
    {"Spring Sprints", Family::SpringSprints},
    {"ARRL Sprints", Family::ArrlSprints},
    {"Generic Sprints", Family::GenericSprints},
}};

bool within(int number, int first, int last) { return number >= first && number <= last; }

}  // namespace

const Contest* contestOf(int number) {
    return within(number, 1, static_cast<int>(kContests.size()))
               ? &kContests[static_cast<std::size_t>(number - 1)]
               : nullptr;
}

int numberOfName(std::string_view contestName, std::string_view year) {
    for (const Contest& contest : kContests) {
        if (contestName == std::string(year) + " " + std::string(contest.name)) return contest.number;
    }
    return 0;
}

std::vector<int> bandsOf(int number) {
    std::vector<int> bands;
    const Contest* const contest = contestOf(number);
    if (contest == nullptr || contest->firstBand == 0) return bands;
    for (int band = contest->firstBand; band <= contest->lastBand; ++band) bands.push_back(band);
    return bands;
}

std::vector<std::string> topLevel() {
    const auto name = [](int number) { return std::string(contestOf(number)->name); };
    std::vector<std::string> entries{name(1), name(2), name(3), name(4), name(31)};
    for (const FamilyName& family : kFamilies) entries.emplace_back(family.name);
    entries.push_back(name(20));
    return entries;
}

std::vector<std::string> sprintsOf(std::string_view family) {
    const auto at = std::find_if(kFamilies.begin(), kFamilies.end(),
                                 [&](const FamilyName& f) { return f.name == family; });
    if (at == kFamilies.end()) return {};
    std::vector<const Contest*> members;
    for (const Contest& contest : kContests) {
        if (contest.family == at->family) members.push_back(&contest);
    }
    if (at->family == Family::GenericSprints) {
        // The sprint from 903 up stands with the other microwave sprints, behind the single bands.
        std::stable_partition(members.begin(), members.end(),
                              [](const Contest* c) { return c->number >= 14 && c->number <= 17; });
    }
    std::vector<std::string> entries;
    for (const Contest* const contest : members) entries.emplace_back(contest->name);
    return entries;
}

int numberOf(std::string_view contestNumber) {
    const double value = number::valueOf(contestNumber);
    return value >= 0 && value <= 99 ? static_cast<int>(value) : 0;
}

bool scoresByDistance(int number) { return within(number, 21, 25); }

bool hasStartDate(int number) { return within(number, 1, 4) || number == 31; }

bool singleBandWhenReopened(int number) { return within(number, 5, 11) || within(number, 14, 17); }

bool singleBandWhenNew(int number) {
    return singleBandWhenReopened(number) || within(number, 21, 24) || within(number, 26, 29);
}

bool hasSummaryFile(int number) { return !within(number, 12, 20) || number == 13; }

int rowOfBand(int number, int band, int count) {
    const auto clampedRow = [&](int row) { return row < 0 || row >= count ? 0 : row; };
    if (number == 1 || number == 2 || number == 4 || number == 20) return band - 1;
    if (number == 3) return std::max(band - 3, 0);
    if (number == 31) return clampedRow(band - 1);
    if (number == 13 || number == 18 || number == 19 || number == 25) return clampedRow(band - 5);
    if (singleBandWhenNew(number) || number == 30) return 0;
    return -1;
}

std::string_view bandLabel(int band) {
    return within(band, 0, 13) ? kBandLabels[static_cast<std::size_t>(band)] : std::string_view{};
}

}  // namespace contest
