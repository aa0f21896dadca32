// SPDX-License-Identifier: MIT
#include "core/qso_line.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace {

const QsoFields kExample{"144", "PH", "01/22/07", "1435", "W1XYZ", "FN20ab", "FN31pr", "12-144", "1"};
const std::string kExampleLine = "144   PH  01/22/07  1435  W1XYZ        FN20ab FN31pr 12-144   1 ";

std::string columns(const std::string& line, std::size_t first, std::size_t last) {
    return line.substr(first - 1, last - first + 1);
}

TEST(QsoLine, IsComposedInFixedColumns) { EXPECT_EQ(qso::compose(kExample, false), kExampleLine); }

TEST(QsoLine, HasSixtyFourCharactersAndSixtyEightByDistance) {
    EXPECT_EQ(qso::compose(kExample, false).size(), 64u);
    EXPECT_EQ(qso::compose(kExample, true).size(), 68u);
    EXPECT_EQ(qso::compose({}, false), std::string(64, ' '));
    EXPECT_EQ(qso::compose({}, true), std::string(68, ' '));
}

TEST(QsoLine, ByDistanceGivesThePointsSixColumns) {
    QsoFields fields = kExample;
    fields.points = "16964";
    EXPECT_EQ(columns(qso::compose(fields, true), 63, 68), "16964 ");
}

TEST(QsoLine, PutsEachFieldIntoItsOwnColumns) {
    const QsoFields fields{"aaaaaa",  "bbbb",    "cccccccc",  "dddd",  "eeeeeeeeeeeee",
                           "fffffff", "ggggggg", "hhhhhhhhh", "iiiiii"};
    const std::string line = qso::compose(fields, true);
    EXPECT_EQ(columns(line, 1, 6), "aaaaaa");
    EXPECT_EQ(columns(line, 7, 10), "bbbb");
    EXPECT_EQ(columns(line, 11, 18), "cccccccc");
    EXPECT_EQ(columns(line, 19, 20), "  ");
    EXPECT_EQ(columns(line, 21, 24), "dddd");
    EXPECT_EQ(columns(line, 25, 26), "  ");
    EXPECT_EQ(columns(line, 27, 39), "eeeeeeeeeeeee");
    EXPECT_EQ(columns(line, 40, 46), "fffffff");
    EXPECT_EQ(columns(line, 47, 53), "ggggggg");
    EXPECT_EQ(columns(line, 54, 62), "hhhhhhhhh");
    EXPECT_EQ(columns(line, 63, 68), "iiiiii");
}

TEST(QsoLine, CutsTextsThatAreTooLongForTheirColumns) {
    const std::string tooLong(40, 'X');
    const QsoFields fields{tooLong, tooLong, tooLong, tooLong, tooLong, tooLong, tooLong, tooLong, tooLong};
    const std::string expected = std::string(18, 'X') + "  XXXX  " + std::string(38, 'X');
    EXPECT_EQ(qso::compose(fields, false), expected);
    EXPECT_EQ(qso::compose(fields, true), expected + "XXXX");
}

TEST(QsoLine, IsReadByItsColumns) {
    EXPECT_EQ(qso::month(kExampleLine), "01");
    EXPECT_EQ(qso::day(kExampleLine), "22");
    EXPECT_EQ(qso::year(kExampleLine), "07");
    EXPECT_EQ(qso::longMode(kExampleLine), "PH");
    EXPECT_EQ(qso::longMode("144   FT8"), "FT8");
    EXPECT_EQ(qso::longMode("144   FT88"), "FT8");
    EXPECT_EQ(qso::ownGrid(kExampleLine), "FN20ab");
    EXPECT_EQ(qso::newGridMark(kExampleLine), "12-144");
    EXPECT_EQ(qso::band(kExampleLine), "144");
    EXPECT_EQ(qso::mode(kExampleLine), "PH");
    EXPECT_EQ(qso::date(kExampleLine), "01/22/07");
    EXPECT_EQ(qso::time(kExampleLine), "1435");
    EXPECT_EQ(qso::call(kExampleLine), "W1XYZ");
    EXPECT_EQ(qso::grid(kExampleLine), "FN31pr");
    EXPECT_EQ(qso::square(kExampleLine), "FN31");
    EXPECT_EQ(qso::points(kExampleLine), "1 ");
    EXPECT_TRUE(qso::isNewGrid(kExampleLine));
    EXPECT_FALSE(qso::isDupe(kExampleLine));
}

TEST(QsoLine, ReadsTheColumnsThatNeighboursDoNotTouch) {
    std::string line;
    for (int column = 1; column <= 68; ++column) line += static_cast<char>('0' + column);
    const auto expected = [&](std::size_t first, std::size_t last) { return columns(line, first, last); };
    EXPECT_EQ(qso::band(line), expected(1, 5));
    EXPECT_EQ(qso::mode(line), expected(7, 8));
    EXPECT_EQ(qso::date(line), expected(11, 18));
    EXPECT_EQ(qso::time(line), expected(21, 24));
    EXPECT_EQ(qso::call(line), expected(27, 38));
    EXPECT_EQ(qso::grid(line), expected(47, 52));
    EXPECT_EQ(qso::square(line), expected(47, 50));
    EXPECT_EQ(qso::points(line), expected(63, 68));
    EXPECT_EQ(qso::longMode(line), expected(7, 9));
    EXPECT_EQ(qso::month(line), expected(11, 12));
    EXPECT_EQ(qso::day(line), expected(14, 15));
    EXPECT_EQ(qso::year(line), expected(17, 18));
    EXPECT_EQ(qso::ownGrid(line), expected(40, 45));
    EXPECT_EQ(qso::newGridMark(line), expected(54, 61));
}

TEST(QsoLine, ReadsBandCallAndGridWithoutTheBlanksAround) {
    std::string line(64, ' ');
    line.replace(1, 3, "144");
    line.replace(28, 3, "W1A");
    line.replace(47, 4, "FN31");
    EXPECT_EQ(qso::band(line), "144");
    EXPECT_EQ(qso::call(line), "W1A");
    EXPECT_EQ(qso::grid(line), "FN31");
    EXPECT_EQ(qso::square(line), " FN3");
}

TEST(QsoLine, ShorterThanItsColumnsReadsAsEmpty) {
    for (const std::string& line : {std::string(), std::string("144"), std::string(46, 'x')}) {
        EXPECT_EQ(qso::grid(line), "");
        EXPECT_EQ(qso::square(line), "");
        EXPECT_EQ(qso::points(line), "");
        EXPECT_FALSE(qso::isNewGrid(line));
        EXPECT_FALSE(qso::isDupe(line));
    }
    EXPECT_EQ(qso::call(""), "");
    EXPECT_EQ(qso::band("50"), "50");
}

TEST(QsoLine, MarksANewGridByAnyCharacterInColumnFiftyFour) {
    std::string line(64, ' ');
    EXPECT_FALSE(qso::isNewGrid(line));
    line[54] = '1';
    EXPECT_FALSE(qso::isNewGrid(line));
    line[52] = '1';
    EXPECT_FALSE(qso::isNewGrid(line));
    line[53] = '-';
    EXPECT_TRUE(qso::isNewGrid(line));
}

TEST(QsoLine, IsADupeByAZeroInTheFirstColumnOfThePoints) {
    const std::vector<std::pair<std::string, bool>> cases{{"0 ", true},  {"0", true},   {"00", true},
                                                          {"01", true},  {"1 ", false}, {"10", false},
                                                          {" 0", false}, {"20", false}, {"  ", false}};
    for (const auto& [points, dupe] : cases) {
        EXPECT_EQ(qso::isDupe(std::string(62, ' ') + points), dupe) << '"' << points << '"';
    }
}

TEST(QsoLine, HeaderHoldsVersionCallAndContest) {
    EXPECT_EQ(qso::header("K3ABC", "1"), "v2.0        K3ABC           1");
    EXPECT_EQ(qso::header("K3ABC", "25"), "v2.0        K3ABC           25");
    EXPECT_EQ(qso::header("ABCDEFGHIJKLMNOPQ", "7"), "v2.0        ABCDEFGHIJKLMNOP7");
}

TEST(QsoLine, HeaderGivesItsCallAndContestBack) {
    for (int number = 1; number <= 31; ++number) {
        const std::string line = qso::header("K3ABC", std::to_string(number));
        EXPECT_EQ(qso::headerContest(line), std::to_string(number));
        EXPECT_EQ(qso::headerCall(line), "K3ABC");
    }
    EXPECT_EQ(qso::headerCall("v2.0        ABCDEFGHIJKLMNOP1"), "ABCDEFGHIJKL");
    EXPECT_EQ(qso::headerContest("9"), "9");
    EXPECT_EQ(qso::headerContest(""), "");
    EXPECT_EQ(qso::headerCall("v2.0"), "");
}

TEST(QsoLine, SubSquareIsInLowerCase) {
    EXPECT_EQ(qso::subSquareForm("FN20AB"), "FN20ab");
    EXPECT_EQ(qso::subSquareForm("FN20ab"), "FN20ab");
    EXPECT_EQ(qso::subSquareForm("FN20"), "FN20");
    EXPECT_EQ(qso::subSquareForm("FN20A"), "FN20A");
    EXPECT_EQ(qso::subSquareForm("FN20ABC"), "FN20ABC");
    EXPECT_EQ(qso::subSquareForm(""), "");
}

TEST(QsoLine, NeverStoresMidnight) {
    const std::vector<std::pair<std::string, std::string>> cases{
        {"0000", "0001"}, {"2400", "0001"}, {"2401", "0001"}, {"2415", "0001"}, {"9999", "0001"},
        {"0001", "0001"}, {"2359", "2359"}, {"2399", "2399"}, {"0100", "0100"}, {"1435", "1435"}};
    for (const auto& [time, stored] : cases) EXPECT_EQ(qso::storedTime(time), stored) << time;
}

TEST(QsoLine, KnowsRoversAndMobilesByTheirEnding) {
    EXPECT_TRUE(qso::endsInRover("W1XYZ/R"));
    EXPECT_FALSE(qso::endsInRover("W1XYZ/M"));
    EXPECT_FALSE(qso::endsInRover("W1XYZ/R1"));
    EXPECT_TRUE(qso::endsInMobile("W1XYZ/M"));
    EXPECT_FALSE(qso::endsInMobile("W1XYZM"));
    EXPECT_FALSE(qso::endsInMobile("/MW1XYZ"));
    EXPECT_TRUE(qso::isMoving("W1XYZ/R"));
    EXPECT_TRUE(qso::isMoving("W1XYZ/M"));
    EXPECT_FALSE(qso::isMoving("W1XYZ"));
    EXPECT_FALSE(qso::isMoving("W1XYZ/P"));
    EXPECT_FALSE(qso::isMoving(""));
}

}  // namespace
