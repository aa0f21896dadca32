// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "structure/include_rules.h"
#include "structure/source_dir.h"

namespace structure {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(Includes, PointDownOnly) { EXPECT_THAT(includeFaults(readTree(sourceDir()).files), IsEmpty()); }

TEST(Includes, FormNoCircle) { EXPECT_THAT(includeCircles(readTree(sourceDir()).files), IsEmpty()); }

struct Case {
    const char* from;
    const char* to;
    bool allowed;
};

class IncludeBetween : public testing::TestWithParam<Case> {};

TEST_P(IncludeBetween, FollowsTheFloors) {
    const std::string from = GetParam().from;
    const std::string to = GetParam().to;
    const std::vector<SourceFile> files{{"src/" + from, "#include \"" + to + "\"\n"}, {"src/" + to, ""}};
    EXPECT_EQ(includeFaults(files).empty(), GetParam().allowed) << from << " includes " << to;
}

INSTANTIATE_TEST_SUITE_P(Layers, IncludeBetween,
                         testing::Values(Case{"shell/platform/files.h", "base/text.h", true},
                                         Case{"base/text.h", "shell/platform/files.h", false},
                                         Case{"shell/forms/log_form.h", "shell/platform/clock.h", true},
                                         Case{"shell/platform/clock.h", "shell/forms/log_form.h", false},
                                         Case{"core/accept.cpp", "shell/forms/log_form.h", true},
                                         Case{"shell/forms/log_form.h", "core/session.h", false},
                                         Case{"core/accept.cpp", "grid/square.h", true},
                                         Case{"grid/square.h", "base/numbers.h", true},
                                         Case{"base/numbers.h", "grid/square.h", false},
                                         Case{"shell/program.cpp", "core/accept.h", true},
                                         Case{"core/accept.h", "shell/program.h", false},
                                         Case{"shell/qt/main.cpp", "shell/program.h", true},
                                         Case{"shell/program.h", "shell/qt/binder.h", false},
                                         Case{"shell/program.h", "shell/linux/clock.h", false},
                                         Case{"shell/qt/main.cpp", "shell/linux/clock.h", true},
                                         Case{"shell/headless/main.cpp", "shell/linux/files.h", true},
                                         Case{"shell/headless/main.cpp", "shell/qt/binder.h", false},
                                         Case{"shell/qt/main.cpp", "shell/headless/script.h", false},
                                         Case{"shell/linux/clock.cpp", "shell/platform/clock.h", true},
                                         Case{"shell/linux/clock.cpp", "base/text.h", true},
                                         Case{"shell/linux/clock.cpp", "core/session.h", false},
                                         Case{"shell/linux/clock.cpp", "shell/forms/form.h", false},
                                         Case{"shell/linux/clock.cpp", "shell/program.h", false}));

struct AngledCase {
    const char* from;
    const char* header;
    bool allowed;
};

class AngledInclude : public testing::TestWithParam<AngledCase> {};

TEST_P(AngledInclude, FollowsTheRooms) {
    const std::string from = GetParam().from;
    const std::string header = GetParam().header;
    const std::vector<SourceFile> files{{from, "  #  include <" + header + ">\n"}};
    EXPECT_EQ(includeFaults(files).empty(), GetParam().allowed) << from << " includes " << header;
}

INSTANTIATE_TEST_SUITE_P(Rooms, AngledInclude,
                         testing::Values(AngledCase{"src/core/a.cpp", "string_view", true},
                                         AngledCase{"src/core/a.cpp", "QString", false},
                                         AngledCase{"src/core/a.cpp", "QtCore/QString", false},
                                         AngledCase{"src/core/a.cpp", "qglobal.h", false},
                                         AngledCase{"src/core/a.cpp", "unistd.h", false},
                                         AngledCase{"src/core/a.cpp", "sys/stat.h", false},
                                         AngledCase{"src/shell/qt/a.cpp", "QString", true},
                                         AngledCase{"src/shell/qt/a.cpp", "qglobal.h", true},
                                         AngledCase{"src/shell/qt/a.cpp", "fcntl.h", false},
                                         AngledCase{"src/shell/linux/a.cpp", "fcntl.h", true},
                                         AngledCase{"src/shell/linux/a.cpp", "linux/ppdev.h", true},
                                         AngledCase{"src/shell/linux/a.cpp", "QTimer", false},
                                         AngledCase{"src/shell/headless/a.cpp", "signal.h", false},
                                         AngledCase{"src/shell/headless/a.cpp", "QTimer", false},
                                         AngledCase{"tests/support/a.cpp", "unistd.h", true},
                                         AngledCase{"bench/a.cpp", "benchmark/benchmark.h", true}));

TEST(Includes, OfNoFileAreFaults) {
    EXPECT_THAT(includeFaults({{"src/core/a.cpp", "#include \"core/gone.h\"\n"}}),
                ElementsAre("src/core/a.cpp includes \"core/gone.h\", which is no file"));
}

TEST(Includes, OfWhatQtGeneratesAreNone) {
    EXPECT_THAT(includeFaults({{"src/shell/qt/a.cpp", "#include \"ui_frmLog.h\"\n#include \"a.moc\"\n"}}),
                IsEmpty());
    EXPECT_EQ(includeFaults({{"src/core/a.cpp", "#include \"ui_frmLog.h\"\n"}}).size(), 1u);
}

TEST(Includes, FromAFolderOutsideTheLayersAreFaults) {
    EXPECT_EQ(includeFaults({{"src/misc/a.cpp", ""}}).size(), 1u);
    EXPECT_EQ(includeFaults({{"src/a.cpp", ""}}).size(), 1u);
    EXPECT_EQ(includeFaults({{"src/shell/misc/a.cpp", ""}}).size(), 1u);
}

TEST(Includes, InACircleAreTold) {
    EXPECT_THAT(includeCircles({{"src/core/a.h", "#include \"core/b.h\"\n"},
                                {"src/core/b.h", "#include \"c.h\"\n"},
                                {"src/core/c.h", "#include \"core/a.h\"\n"}}),
                ElementsAre("src/core/a.h > src/core/b.h > src/core/c.h > src/core/a.h"));
}

TEST(Includes, OfOneFileByTwoWaysAreNoCircle) {
    EXPECT_THAT(includeCircles({{"src/core/a.h", "#include \"core/b.h\"\n#include \"core/c.h\"\n"},
                                {"src/core/b.h", "#include \"core/d.h\"\n"},
                                {"src/core/c.h", "#include \"core/d.h\"\n"},
                                {"src/core/d.h", ""}}),
                IsEmpty());
}

}  // namespace
}  // namespace structure
