// SPDX-License-Identifier: MIT
#include "shell/show.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>
#include <regex>

#include "shell/headless/headless_machine.h"
#include "structure/source_dir.h"
#include "support/sample_desk.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

std::vector<std::string> shown(SampleDesk& desk, const std::string& what) {
    const Outcome outcome = desk.play("show " + what + "\n");
    EXPECT_EQ(outcome.status, 0) << what << ": " << outcome.errors;
    desk.out.str("");
    return outcome.lines;
}

class ShowControls : public testing::Test {
protected:
    ShowControls() { desk.form.show(); }
    std::string line(const std::string& what) {
        const auto lines = shown(desk, what);
        return lines.size() == 1 ? lines[0] : std::to_string(lines.size()) + " lines";
    }
    SampleDesk desk;
    SampleForm& form = desk.form;
};

TEST_F(ShowControls, PrintsTextsAndCaptions) {
    form.first.setText("a \"b\" \\ \xE9\r\n\t\x01");
    EXPECT_EQ(line("Sample.first"), R"(Sample.first "a \"b\" \\ \xE9\r\n\t\x01")");
    EXPECT_EQ(line("Sample.button(3)"), "Sample.button(3) \"Press\"");
    EXPECT_EQ(line("Sample.item"), "Sample.item \"Item\"");
    EXPECT_EQ(line("Sample.box"), "Sample.box \"Mark\"");
}

TEST_F(ShowControls, PrintsProperties) {
    form.box.setChecked(true);
    form.item.setChecked(true);
    form.list.setItems({"a", "b"});
    form.combo.add("one");
    form.label.hide();
    form.label.setForeColour(forms::rgb(1, 2, 3));
    form.label.setBackColour(forms::kRed);
    form.label.setFontBold(true);
    form.label.setFontSize(12);
    form.label.setFontName("COURIER NEW");
    form.label.setToolTip(" tip ");
    form.label.setLeft(6480);
    form.label.setWidth(972);
    const char* const expected[] = {
        "Sample.label.Visible no",
        "Sample.first.Visible yes",
        "Sample.label.Enabled yes",
        "Sample.box.Checked yes",
        "Sample.item.Checked yes",
        "Sample.option.Checked no",
        "Sample.label.ForeColor 197121",
        "Sample.label.BackColor 255",
        "Sample.first.BackColor 16777215",
        "Sample.list.BackColor 16777215",
        "Sample.button(3).BackColor -2147483633",
        "Sample.first.ForeColor -2147483640",
        "Sample.label.FontName \"COURIER NEW\"",
        "Sample.label.FontSize 12",
        "Sample.first.FontSize 8.25",
        "Sample.label.FontBold yes",
        "Sample.label.ToolTip \" tip \"",
        "Sample.list.ListIndex -1",
        "Sample.list.ListCount 2",
        "Sample.combo.ListCount 1",
        "Sample.combo.ListIndex -1",
        "Sample.slow.Interval 1000",
        "Sample.slow.Enabled no",
        "Sample.label.Left 6480",
        "Sample.label.Width 972",
        "Sample.Visible yes",
        "Sample.Caption \"A sample\"",
        "Sample.FontSize 8.25",
        "Sample.BackColor -2147483633",
    };
    for (const std::string answer : expected) EXPECT_EQ(line(answer.substr(0, answer.find(' '))), answer);
}

TEST_F(ShowControls, PrintsTheEntriesOfAList) {
    EXPECT_THAT(shown(desk, "Sample.list.List"), IsEmpty());
    form.list.setItems({"a", "", "\xE9"});
    EXPECT_THAT(shown(desk, "Sample.list.List"),
                ElementsAre("Sample.list.List(0) \"a\"", "Sample.list.List(1) \"\"",
                            R"(Sample.list.List(2) "\xE9")"));
    form.combo.add("one");
    EXPECT_THAT(shown(desk, "Sample.combo.List"), ElementsAre("Sample.combo.List(0) \"one\""));
}

TEST_F(ShowControls, PrintsTheFocusAndTheVisibleForms) {
    SampleForm other(desk.screen, "Other");
    EXPECT_EQ(line("focus"), "focus Sample.first");
    EXPECT_THAT(shown(desk, "forms"), ElementsAre("form Sample"));
    form.first.hide();
    EXPECT_EQ(line("focus"), "focus Sample");
    other.show();
    // What its being shown has put into the transcript.
    desk.out.str("");
    EXPECT_THAT(shown(desk, "forms"), ElementsAre("form Sample", "form Other"));
}

TEST_F(ShowControls, PrintsFieldsWithTheirIndices) { EXPECT_EQ(line("Sum(40,2)"), "Sum(40,2) 42"); }

TEST_F(ShowControls, EndsTheRunForWhatCannotBeShown) {
    for (const char* const what :
         {"Sample", "Other.first", "Sample.label.Checked", "Sample.label.ListIndex", "Sample.label.List",
          "Sample.first.Interval", "Sample.first.Nothing", "Sample.Nothing", "Sample.List", "Sample.Page",
          "sample.first", "Sum", "Sum(1)", "Sum(1,)", "Sum(,1)", "Sum(1,x)", "Sum(1,2", "Sum()",
          "Nothing(1,2)"}) {
        EXPECT_EQ(desk.play(std::string("show ") + what + "\n").status, 2) << what;
    }
}

class ShowFields : public testing::Test {
protected:
    std::string value(std::string_view name, const std::vector<int>& indices = {}) const {
        return fieldValue(station, name, indices).value_or("nothing");
    }
    std::ostringstream out;
    TempFolder folder;
    PosixFiles disk{folder.path()};
    HeadlessMachine machine{disk, out};
    Station station{machine.platform};
};

TEST_F(ShowFields, PrintsEachKindOfValue) {
    station.session.LogLineCount = 12;
    station.session.CurrentCall = "W1\"XYZ";
    station.session.LogIsEmpty = true;
    station.session.TXActive = -1;
    station.session.TotalScore = 8.25f;
    station.session.TotalQSOPoints = 100000;
    EXPECT_EQ(value("LogLineCount"), "12");
    EXPECT_EQ(value("CurrentCall"), R"("W1\"XYZ")");
    EXPECT_EQ(value("LogIsEmpty"), "yes");
    EXPECT_EQ(value("GridEntered"), "no");
    EXPECT_EQ(value("TXActive"), "-1");
    EXPECT_EQ(value("TotalScore"), "8.25");
    EXPECT_EQ(value("TotalQSOPoints"), "100000");
}

TEST_F(ShowFields, PrintsElementsByTheirIndices) {
    station.session.LogLines(3) = "50    PH";
    station.session.BandQSOs(2) = 4;
    station.session.BandWorked(14) = true;
    station.session.MatchList(30)(2) = "FN31";
    station.ControlValues(8) = "<Enter> key";
    station.PersonalData(1) = "W1ABC";
    EXPECT_EQ(value("LogLines", {3}), "\"50    PH\"");
    EXPECT_EQ(value("BandQSOs", {2}), "4");
    EXPECT_EQ(value("BandWorked", {14}), "yes");
    EXPECT_EQ(value("MatchList", {30, 2}), "\"FN31\"");
    EXPECT_EQ(value("ControlValues", {8}), "\"<Enter> key\"");
    EXPECT_EQ(value("PersonalData", {1}), "\"W1ABC\"");
}

TEST_F(ShowFields, PrintsNothingForOtherNamesAndIndices) {
    EXPECT_EQ(value("Missing"), "nothing");
    EXPECT_EQ(value("loglinecount"), "nothing");
    EXPECT_EQ(value("LogLineCount", {0}), "nothing");
    EXPECT_EQ(value("LogLines"), "nothing");
    EXPECT_EQ(value("LogLines", {-1}), "nothing");
    EXPECT_EQ(value("LogLines", {3002}), "nothing");
    EXPECT_EQ(value("LogLines", {3, 0}), "nothing");
    EXPECT_EQ(value("MatchList", {1}), "nothing");
    EXPECT_EQ(value("MatchList", {1, 3}), "nothing");
    EXPECT_EQ(value("ActivityHours", {0}), "nothing");
}

/// The fixed names of the fields that a struct of the sources declares, by their text. Those begin with a
/// capital.
std::vector<std::string> fieldNames(const std::string& header) {
    std::ifstream in(structure::sourceDir() / header);
    std::vector<std::string> names;
    const std::regex field(R"(^    [A-Za-z_][\w:<>, ]* ([A-Z]\w*)( = [^;]*)?;$)");
    bool inside = false;
    for (std::string line; std::getline(in, line);) {
        if (line.starts_with("struct ")) inside = true;
        if (line == "};") inside = false;
        std::smatch match;
        if (inside && std::regex_match(line, match, field)) names.push_back(match[1]);
    }
    return names;
}

TEST_F(ShowFields, KnowsEveryFieldOfTheSession) {
    const std::vector<std::string> names = fieldNames("src/core/session.h");
    ASSERT_GT(names.size(), 50u);
    for (const std::string& name : names) {
        const bool shows =
            value(name) != "nothing" || value(name, {1}) != "nothing" || value(name, {1, 1}) != "nothing";
        EXPECT_TRUE(shows) << name << " cannot be shown";
    }
}

}  // namespace
