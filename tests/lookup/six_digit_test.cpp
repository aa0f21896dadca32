// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "lookup/lookups.h"

namespace {

void put(Session& session, int entry, const char* call, const char* grid) {
    session.SixDigitTable(entry)(0) = call;
    session.SixDigitTable(entry)(1) = grid;
}

TEST(SixDigitList, GivesTheGridOfTheFirstEntryOfACall) {
    Session session;
    put(session, 1, "K3ABC", "FN20JK");
    put(session, 2, "W1XYZ", "FN31PR");
    put(session, 3, "W1XYZ", "FN42AA");
    session.SixDigitCount = 3;
    EXPECT_EQ(sixDigitGridOf(session, "W1XYZ"), "FN31PR");
    EXPECT_EQ(sixDigitGridOf(session, "K3ABC"), "FN20JK");
}

TEST(SixDigitList, KnowsNoOtherCall) {
    Session session;
    EXPECT_EQ(sixDigitGridOf(session, "K3ABC"), std::nullopt);
    put(session, 1, "K3ABC", "FN20JK");
    put(session, 2, "W1XYZ", "FN31PR");
    session.SixDigitCount = 1;
    EXPECT_EQ(sixDigitGridOf(session, "W1XYZ"), std::nullopt);
    EXPECT_EQ(sixDigitGridOf(session, "K3AB"), std::nullopt);
    EXPECT_EQ(sixDigitGridOf(session, "K3ABC/R"), std::nullopt);
}

TEST(SixDigitList, MayKnowACallWithoutItsGrid) {
    Session session;
    put(session, 1, "K3ABC", "");
    session.SixDigitCount = 1;
    EXPECT_EQ(sixDigitGridOf(session, "K3ABC"), "");
}

TEST(SixDigitList, HoldsFiveHundredEntries) {
    Session session;
    session.SixDigitCount = 500;
    put(session, 500, "W1XYZ", "FN31PR");
    EXPECT_EQ(sixDigitGridOf(session, "W1XYZ"), "FN31PR");
}

}  // namespace
