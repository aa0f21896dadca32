// SPDX-License-Identifier: MIT
#include "export/adif.h"

#include <gtest/gtest.h>

#include "core/sample_log.h"

using namespace exporting;

namespace {

std::string recordOf(const std::string& line, std::string_view before = {}) {
    std::string file;
    addAdifRecord(file, line, before);
    return file;
}

std::string recordOf(const sample::Line& line) { return recordOf(sample::lineOf(line)); }

const AdifSource kSource{"v4.0", "K3ABC", "2007 ARRL Jan. VHF Sweepstakes", "jan07.lgg", "01/25/2007"};

}  // namespace

TEST(AdifBand, StandsForTheLabelInAFieldOfItsLength) {
    struct Case {
        const char *label, *text;
    };
    const Case cases[] = {
        {"50", " <freq:2>50"},       {"144", " <freq:3>144"},     {"222", " <freq:3>222"},
        {"432", " <freq:3>432"},     {"903", " <freq:3>903"},     {"1296", " <freq:4>1296"},
        {"2304", " <freq:4>2304"},   {"3456", " <freq:4>3456"},   {"5760", " <freq:4>5760"},
        {"10368", " <freq:5>10368"}, {"24000", " <freq:5>24000"}, {"47000", " <freq:5>47000"},
        {"Laser", " <freq:5>Laser"}, {"LASER", " <freq:5>Laser"}, {"laser", " <freq:5>Laser"}};
    for (const auto& [label, text] : cases) EXPECT_EQ(adifBand(label, "before"), text);
    for (const char* const label : {"", "902", "28", "144 "}) EXPECT_EQ(adifBand(label, "before"), "before");
}

TEST(AdifRecord, HasItsFieldsInOneLine) {
    EXPECT_EQ(recordOf({"144", "W1XYZ", "FN31pr", "12-144", "1", "1435", "01/22/07"}),
              "<call:5>W1XYZ <qso_date:8:d>20070122 <time_on:4>1435 <freq:3>144 <mode:3>SSB "
              "<gridsquare:6>FN31pr <eor>\r\n");
    EXPECT_EQ(recordOf({"47000", "VE3/W1XYZ/QR", "FN31", "", "0", "0001", "12/31/10"}),
              "<call:12>VE3/W1XYZ/QR <qso_date:8:d>20101231 <time_on:4>0001 <freq:5>47000 <mode:3>SSB "
              "<gridsquare:4>FN31 <eor>\r\n");
}

TEST(AdifRecord, KnowsTheModesApart) {
    std::string line = sample::lineOf({});
    line.replace(6, 3, "CW ");
    EXPECT_EQ(recordOf(line).substr(recordOf(line).find("<mode"), 10), "<mode:2>CW");
    line.replace(6, 3, "FT8");
    EXPECT_EQ(recordOf(line).substr(recordOf(line).find("<mode"), 11), "<mode:3>FT8");
}

TEST(AdifRecord, TakesTheBandOfTheOneBeforeForALabelOfNone) {
    std::string file;
    std::string_view band;
    for (const char* const label : {"28", "144", "28", "Laser", "999"})
        addAdifRecord(file, sample::lineOf({label, "W1A", "FN31"}), band);
    const std::string start = "<call:3>W1A <qso_date:8:d>20070122 <time_on:4>1435";
    const std::string end = " <mode:3>SSB <gridsquare:4>FN31 <eor>\r\n";
    EXPECT_EQ(file, start + end + start + " <freq:3>144" + end + start + " <freq:3>144" + end + start +
                        " <freq:5>Laser" + end + start + " <freq:5>Laser" + end);
}

TEST(AdifYear, IsOfTheLastCenturyFor98And99Alone) {
    EXPECT_EQ(fullYear("98"), "1998");
    EXPECT_EQ(fullYear("99"), "1999");
    EXPECT_EQ(fullYear("97"), "2097");
    EXPECT_EQ(fullYear("00"), "2000");
    EXPECT_EQ(fullYear("07"), "2007");
    sample::Line line;
    line.date = "01/22/99";
    EXPECT_NE(recordOf(line).find("<qso_date:8:d>19990122"), std::string::npos);
}

TEST(AdifFile, HasAHeadAndARecordForEachLine) {
    Session session;
    sample::fillLog(session,
                    {sample::lineOf({"50", "W1A", "FN31"}), sample::lineOf({"50", "W1A", "FN31", "", "0"})});
    const std::string record =
        "<call:3>W1A <qso_date:8:d>20070122 <time_on:4>1435 <freq:2>50 <mode:3>SSB <gridsquare:4>FN31 "
        "<eor>\r\n";
    EXPECT_EQ(adifFile(session, kSource),
              "ADIF Export from TARQEN v4.0\r\n"
              "\r\n"
              "Log for station: K3ABC\r\n"
              "Operator: K3ABC\r\n"
              "Contest: 2007 ARRL Jan. VHF Sweepstakes\r\n"
              "\r\n"
              "ASCII Log Source: jan07.lgg\r\n"
              "Export date: 01/25/2007\r\n"
              "Records exported: 2\r\n"
              "\r\n"
              "<eoh>\r\n" +
                  record + record);
}

TEST(AdifName, HasTheEndingOnceAndIsInUpperCase) {
    EXPECT_EQ(adifName("mylog"), "MYLOG.ADI");
    EXPECT_EQ(adifName("x.adi"), "X.ADI");
    EXPECT_EQ(adifName("X.Adi"), "X.ADI");
    EXPECT_EQ(adifName("x.adif"), "X.ADIF.ADI");
    EXPECT_EQ(adifName("adi"), "ADI.ADI");
    EXPECT_EQ(adifName("jan.07"), "JAN.07.ADI");
}
