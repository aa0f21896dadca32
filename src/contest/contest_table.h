// SPDX-License-Identifier: MIT
// The 31 contests: their names, where they are offered, their bands and the band they open on.
// Leans on base; the choice screen, the start of the main form, scoring and the writers of entries call it.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "base/table.h"

namespace contest {

enum class Family { None, TopLevel, ArrlSprints, GenericSprints, SpringSprints, FallSprints };

struct Contest {
    int number;
    std::string_view name;
    Family family;
    /// Band indices first to last; 0 to 0 of a contest without bands of its own.
    int firstBand, lastBand;
    /// The band that a new log opens on, 0 of none.
    int startBand;
};

/// The entry of a number 1 to 31, or null.
const Contest* contestOf(int number);
/// The number of the contest whose name, behind the year and a blank, is `contestName`; 0 of none.
int numberOfName(std::string_view contestName, std::string_view year);
/// The band indices that the contest is worked on, ascending.
std::vector<int> bandsOf(int number);
/// The entries of the top level in the order of the screen, families among them.
std::vector<std::string> topLevel();
/// The entries of a family by its name, in the order of the screen; empty for a name that is no family.
std::vector<std::string> sprintsOf(std::string_view family);

/// The contest number as a number; the text may be blank.
int numberOf(std::string_view contestNumber);
/// Points are whole kilometres, without multipliers.
bool scoresByDistance(int number);
/// The start date steers the activity hours.
bool hasStartDate(int number);
/// One band alone, as a new log sees it; a reopened log takes the narrower range.
bool singleBandWhenNew(int number);
bool singleBandWhenReopened(int number);
/// The summary file is the organiser's own; the ASCII log isn't wanted.
bool hasSummaryFile(int number);
/// Where a band stands in the list of the contest's bands: its row, 0 where the contest clamps to the first,
/// -1 where the list is left alone. `count` is the number of rows.
int rowOfBand(int number, int band, int count);

/// Labels of the bands, by index 1 to 13.
std::string_view bandLabel(int band);

}  // namespace contest
