// SPDX-License-Identifier: MIT
#include "base/print_line.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>

namespace {

std::string laidOut(const std::function<void(PrintLine&)>& lay) {
    std::string page;
    PrintLine line(page);
    lay(line);
    return page;
}

}  // namespace

TEST(PrintLine, ColumnsCountFromOne) {
    EXPECT_EQ(laidOut([](PrintLine& line) { line.at(1, "a").at(3, "b").at(5, "c"); }), "a b c");
    EXPECT_EQ(laidOut([](PrintLine& line) { line.at(5, "Band").at(16, "QSOs"); }), "    Band       QSOs");
}

TEST(PrintLine, TextThatReachesTheColumnStandsRightBeforeTheNext) {
    EXPECT_EQ(laidOut([](PrintLine& line) { line.at(1, "FN31").at(5, " . ."); }), "FN31 . .");
}

TEST(PrintLine, TextThatRunsPastTheColumnIsPartedByOneBlank) {
    EXPECT_EQ(laidOut([](PrintLine& line) { line.at(1, "W1ABC/R").at(5, "FN31"); }), "W1ABC/R FN31");
}

TEST(PrintLine, EmptyTextStillFillsUpToItsColumn) {
    EXPECT_EQ(laidOut([](PrintLine& line) { line.at(4, ""); }), "   ");
}

TEST(PrintLine, ZonesBeginAtFifteenTwentyNineFortyThreeAndFiftySeven) {
    const std::string line =
        laidOut([](PrintLine& l) { l.then("1").inZone("15").inZone("29").inZone("43").inZone("57"); });
    EXPECT_EQ(line, "1             15            29            43            57");
    EXPECT_EQ(line.find("15"), 14u);
    EXPECT_EQ(line.find("29"), 28u);
    EXPECT_EQ(line.find("43"), 42u);
    EXPECT_EQ(line.find("57"), 56u);
}

TEST(PrintLine, ZoneFollowsTheOneReachedByTheTextBefore) {
    // Thirteen characters leave one column of their zone, fourteen none, fifteen are in the next one.
    EXPECT_EQ(laidOut([](PrintLine& line) { line.then(std::string(13, 'x')).inZone("y"); }),
              std::string(13, 'x') + " y");
    EXPECT_EQ(laidOut([](PrintLine& line) { line.then(std::string(14, 'x')).inZone("y"); }),
              std::string(14, 'x') + std::string(14, ' ') + "y");
    EXPECT_EQ(laidOut([](PrintLine& line) { line.then(std::string(15, 'x')).inZone("y"); }),
              std::string(15, 'x') + std::string(13, ' ') + "y");
}

TEST(PrintLine, NumbersStandBetweenBlanksOrBehindTheirSign) {
    EXPECT_EQ(laidOut([](PrintLine& line) { line.thenNumber(12).then("|"); }), " 12 |");
    EXPECT_EQ(laidOut([](PrintLine& line) { line.thenNumber(0).then("|"); }), " 0 |");
    EXPECT_EQ(laidOut([](PrintLine& line) { line.thenNumber(-12).then("|"); }), "-12 |");
    EXPECT_EQ(laidOut([](PrintLine& line) { line.numberAt(5, 7).numberInZone(8).then("|"); }),
              "     7         8 |");
    EXPECT_EQ(laidOut([](PrintLine& line) { line.thenNumber(20000000).then("|"); }), " 20000000 |");
}

TEST(PrintLine, LinesFollowOneAnother) {
    std::string page = "before\r\n";
    PrintLine line(page);
    line.at(3, "a").end();
    line.at(3, "b").end();
    line.end();
    PrintLine(page).at(2, "c").end();
    EXPECT_EQ(page, "before\r\n  a\r\n  b\r\n\r\n c\r\n");
}
