// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "base/text.h"
#include "setup/setup_fields.h"

namespace {

const std::vector<std::string> kSpellings{
    "MT. AIRY VHF RADIO CLUB, INC.", "MT. AIRY VHF RADIO CLUB", "PRAITUNA VHF RADIO CLUB",
    "MT.AIRY VHF RADIO CLUB",        "MT.AIRY VHF RC",          "PRAITUNA VHF RADIO CLUB, INC."};

TEST(ClubName, OfItsSixSpellingsIsOneInAnyCase) {
    for (const std::string& spelling : kSpellings) {
        EXPECT_EQ(clubName(spelling), "Praituna VHF Radio Club") << spelling;
        EXPECT_EQ(clubName(text::lower(spelling)), "Praituna VHF Radio Club") << spelling;
    }
    EXPECT_EQ(clubName("Mt. Airy VHF Radio Club"), "Praituna VHF Radio Club");
}

TEST(ClubName, OfAnotherTextStandsAsItIs) {
    for (const char* const other :
         {"", "none", "Warminster ARC", "Mt. Airy", "MT.AIRY VHF RC, INC.", "PRAITUNA VHF RADIO CLUB ",
          " PRAITUNA VHF RADIO CLUB", "Praituna VHF RC"}) {
        EXPECT_EQ(clubName(other), other);
    }
}

}  // namespace
