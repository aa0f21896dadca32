// SPDX-License-Identifier: MIT
#include "export/cabrillo.h"

#include <gtest/gtest.h>

#include "base/text.h"
#include "contest/contest_table.h"
#include "core/sample_log.h"
#include "export/category.h"
#include "export/sample_station.h"

using namespace exporting;

namespace {

Session sessionOf(const std::string& number, const std::vector<std::string>& lines = {}) {
    Session session;
    sample::fillLog(session, lines);
    session.ContestNumber = number;
    session.ContestName = "2007 ARRL Jan. VHF Sweepstakes";
    session.ProgramVersion = "v4.0";
    return session;
}

std::string qsoLine(const sample::Line& line, bool gigahertz = false, const std::string& ownCall = "K3ABC") {
    std::string file;
    addCabrilloQso(file, sample::lineOf(line), {"2007", ownCall, gigahertz});
    return file;
}

struct ContestCase {
    int number;
    const char* value;
};

}  // namespace

TEST(CabrilloContest, HasTheSponsorsNameOrElseItsOwnWithTheYear) {
    const ContestCase cases[] = {{1, "ARRL-VHF-JAN"},
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
                                 {31, "CQ-VHF"}};
    for (const auto& [number, value] : cases) EXPECT_EQ(cabrilloContest(number, "2007 Name"), value);
    for (int number = 5; number <= 20; ++number) EXPECT_EQ(cabrilloContest(number, "2007 Name"), "2007 Name");
    EXPECT_EQ(cabrilloContest(0, "2007 Name"), "2007 Name");
    EXPECT_EQ(cabrilloContest(32, "2007 Name"), "2007 Name");
}

TEST(CabrilloContest, TheFirstFourCountMicrowavesInGigahertz) {
    for (int number = 0; number <= 31; ++number)
        EXPECT_EQ(inGigahertz(number), number >= 1 && number <= 4) << number;
}

TEST(CabrilloBand, IsRightAlignedInFiveColumns) {
    struct Case {
        const char *label, *plain, *gigahertz;
    };
    const Case cases[] = {
        {"50", "   50", "   50"},    {"144", "  144", "  144"},   {"222", "  222", "  222"},
        {"432", "  432", "  432"},   {"903", "  902", "  902"},   {"902", "  902", "  902"},
        {"1296", "  1.2", " 1.2G"},  {"2304", "  2.3", " 2.3G"},  {"3456", "  3.4", " 3.4G"},
        {"5760", "  5.7", " 5.7G"},  {"10368", "   10", "  10G"}, {"24000", "   24", "  24G"},
        {"47000", "   47", "  47G"}, {"Laser", "  300", " 300G"}, {"LASER", "  300", " 300G"},
        {"laser", "  300", " 300G"}, {"28", "   28", "   28"},    {"", "     ", "     "},
        {"76000", "76000", "76000"}};
    for (const auto& [label, plain, gigahertz] : cases) {
        EXPECT_EQ(cabrilloBand(label, false), plain) << label;
        EXPECT_EQ(cabrilloBand(label, true), gigahertz) << label;
    }
}

TEST(CabrilloCall, FirstHyphenAndFirstUnderscoreBecomeSlashes) {
    EXPECT_EQ(cabrilloCall("W1ABC"), "W1ABC");
    EXPECT_EQ(cabrilloCall("W1ABC-R"), "W1ABC/R");
    EXPECT_EQ(cabrilloCall("W1ABC_R"), "W1ABC/R");
    EXPECT_EQ(cabrilloCall("VE3-W1ABC_R"), "VE3/W1ABC/R");
    EXPECT_EQ(cabrilloCall("VE3-W1ABC-R"), "VE3/W1ABC-R");
    EXPECT_EQ(cabrilloCall("VE3_W1ABC_R"), "VE3/W1ABC_R");
    EXPECT_EQ(cabrilloCall("W1ABC/R"), "W1ABC/R");
    EXPECT_EQ(cabrilloCall(""), "");
}

TEST(CabrilloOperators, OwnCallLosesASuffixOfOneCharacter) {
    struct Case {
        const char *call, *operators;
    };
    const Case cases[] = {{"W1ABC", "W1ABC"},           {"W1ABC-R", "W1ABC"},
                          {"W1ABC_P", "W1ABC"},         {"W1ABC-QR", "W1ABC/QR"},
                          {"W1ABC-", "W1ABC/"},         {"W1ABC/R", "W1ABC/R"},
                          {"VE3-W1ABC_R", "VE3/W1ABC"}, {"VE3-W1ABC-R", "VE3/W1ABC-R"},
                          {"VE3_W1ABC-R", "VE3/W1ABC"}, {"", ""}};
    for (const auto& [call, operators] : cases) {
        Personal data = sampleStation();
        data(personal::Call) = call;
        EXPECT_EQ(cabrilloOperators(data), operators) << call;
    }
}

TEST(CabrilloOperators, SeveralAreThoseOfTheTwoFields) {
    Personal data = sampleStation();
    data(personal::OperatorCategory) = "Multi-Op";
    EXPECT_EQ(cabrilloOperators(data), "W1AW K2DEF N3GHI");
    data(personal::MoreOperators).clear();
    EXPECT_EQ(cabrilloOperators(data), "W1AW K2DEF ");
}

TEST(ClaimedScore, IsThePlainFigureOfTheScreen) {
    EXPECT_EQ(claimedScore("1", "112"), "112");
    EXPECT_EQ(claimedScore("1", "1,234"), "1234");
    EXPECT_EQ(claimedScore("1", "12,345,678"), "12345678");
    EXPECT_EQ(claimedScore("21", "500"), "500");
    EXPECT_EQ(claimedScore("1", ""), "");
    EXPECT_EQ(claimedScore("21", "0"), "");
    EXPECT_EQ(claimedScore("19", "Click Summary"), "");
    EXPECT_EQ(claimedScore("19", "112"), "");
}

TEST(Category, IsToldByItsFirstLettersInAnyCase) {
    EXPECT_TRUE(isRover("ROVER"));
    EXPECT_TRUE(isRover("rover-limited"));
    EXPECT_FALSE(isRover("ROVE"));
    EXPECT_FALSE(isRover("LIMITED-ROVER"));
    EXPECT_TRUE(isMultiOperator("MULTI-OP"));
    EXPECT_TRUE(isMultiOperator("mult"));
    EXPECT_FALSE(isMultiOperator("MUL"));
    EXPECT_FALSE(isMultiOperator("SINGLE-OP"));
}

TEST(CabrilloHead, OfASingleOperator) {
    EXPECT_EQ(cabrilloHead(sessionOf("1"), sampleStation(), "1,234"),
              "START-OF-LOG: 3.0\r\n"
              "CREATED-BY: TARQEN v4.0\r\n"
              "LOCATION: EPA\r\n"
              "CONTEST: ARRL-VHF-JAN\r\n"
              "CALLSIGN: K3ABC\r\n"
              "CATEGORY-OPERATOR: SINGLE-OP\r\n"
              "CATEGORY-STATION: FIXED\r\n"
              "CATEGORY-TRANSMITTER: ONE\r\n"
              "CATEGORY-POWER: LOW\r\n"
              "CATEGORY-BAND: ALL\r\n"
              "CLAIMED-SCORE: 1234\r\n"
              "OPERATORS: K3ABC\r\n"
              "CLUB: Warminster ARC\r\n"
              "NAME: Pat Operator\r\n"
              "ADDRESS: 1 Hill Road\r\n"
              "ADDRESS: Town, PA 19000\r\n"
              "SOAPBOX: \r\n");
}

TEST(CabrilloHead, OfSeveralOperatorsHasThePowerBeforeTheStation) {
    Personal data = sampleStation();
    data(personal::OperatorCategory) = "MULTI-OP";
    data(personal::Transmitter) = "TWO";
    const std::string head = cabrilloHead(sessionOf("31"), data, "");
    EXPECT_TRUE(text::contains(head,
                               "CONTEST: CQ-VHF\r\nCALLSIGN: K3ABC\r\n"
                               "CATEGORY-OPERATOR: MULTI-OP\r\nCATEGORY-POWER: LOW\r\n"
                               "CATEGORY-STATION: FIXED\r\nCATEGORY-TRANSMITTER: TWO\r\n"
                               "CATEGORY-BAND: ALL\r\nCLAIMED-SCORE: \r\n"
                               "OPERATORS: W1AW K2DEF N3GHI\r\nCLUB: "))
        << head;
}

TEST(CabrilloQso, FieldsStandAtTheirColumns) {
    const std::string line = qsoLine({"144", "W1XYZ", "FN31pr", "12-144", "1"});
    EXPECT_EQ(line, "QSO:   144 PH 2007-01-22 1435 K3ABC             FN20ab W1XYZ             FN31pr\r\n");
    EXPECT_EQ(text::columns(line, 6, 10), "  144");
    EXPECT_EQ(text::columns(line, 12, 13), "PH");
    EXPECT_EQ(text::columns(line, 15, 24), "2007-01-22");
    EXPECT_EQ(text::columns(line, 26, 29), "1435");
    EXPECT_EQ(text::columns(line, 31, 35), "K3ABC");
    EXPECT_EQ(text::columns(line, 49, 54), "FN20ab");
    EXPECT_EQ(text::columns(line, 56, 60), "W1XYZ");
    EXPECT_EQ(text::columns(line, 74, 79), "FN31pr");
}

TEST(CabrilloQso, LongestFieldsKeepTheirColumns) {
    const std::string line = qsoLine({"10368", "VE3/W1XYZ/QR", "FN31"}, true, "VE3/W1ABC/R");
    EXPECT_EQ(line, "QSO:   10G PH 2007-01-22 1435 VE3/W1ABC/R       FN20ab VE3/W1XYZ/QR      FN31\r\n");
}

TEST(CabrilloQso, KeepsTheYearOfTheContestOverNewYear) {
    sample::Line line;
    line.date = "01/01/08";
    EXPECT_EQ(text::columns(qsoLine(line), 15, 24), "2007-01-01");
}

TEST(CabrilloFile, HoldsEveryLineInOrderDupesIncluded) {
    const Session session = sessionOf(
        "1", {sample::lineOf({"1296", "W1XYZ", "FN31pr", "1-1296", "4"}),
              sample::lineOf({"903", "W1XYZ", "FN31", "", "0"}), sample::lineOf({"Laser", "K2A", "FN21"})});
    const std::string file = cabrilloFile(session, sampleStation(), "8");
    const std::string head = cabrilloHead(session, sampleStation(), "8");
    EXPECT_EQ(file, head +
                        "QSO:  1.2G PH 2007-01-22 1435 K3ABC             FN20ab W1XYZ             FN31pr\r\n"
                        "QSO:   902 PH 2007-01-22 1435 K3ABC             FN20ab W1XYZ             FN31\r\n"
                        "QSO:  300G PH 2007-01-22 1435 K3ABC             FN20ab K2A               FN21\r\n"
                        "END-OF-LOG:\r\n");
}

TEST(CabrilloFile, OfALogWithoutQsosHasHeadAndEnd) {
    EXPECT_EQ(cabrilloFile(sessionOf("1"), sampleStation(), ""),
              cabrilloHead(sessionOf("1"), sampleStation(), "") + "END-OF-LOG:\r\n");
    Session fresh = sessionOf("1");
    fresh.LogLineCount = 0;
    EXPECT_EQ(cabrilloFile(fresh, sampleStation(), ""),
              cabrilloHead(fresh, sampleStation(), "") + "END-OF-LOG:\r\n");
}

TEST(CabrilloFile, OfContest25CountsNotInGigahertz) {
    const std::string file = cabrilloFile(sessionOf("25", {sample::lineOf({"1296"})}), sampleStation(), "");
    EXPECT_TRUE(text::contains(file, "\r\nQSO:   1.2 PH ")) << file;
}
