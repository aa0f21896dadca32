// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "structure/file_rules.h"
#include "structure/source_dir.h"

namespace structure {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

const std::string kLicence = "// SPDX-License-Identifier: MIT\n";

TEST(Files, OfThisCheckoutFollowTheRules) {
    const SourceTree tree = readTree(sourceDir());
    // Reading nothing must not look like finding nothing.
    EXPECT_GT(tree.files.size(), 10u);
    EXPECT_THAT(fileFaults(tree.files), IsEmpty());
}

TEST(Files, WithoutALicenceLineAreFaults) {
    EXPECT_THAT(fileFaults({{"src/a.cpp", "int a;\n"}}), ElementsAre("src/a.cpp has no licence line"));
    EXPECT_THAT(fileFaults({{"src/a.cpp", "int a;\nint b;\n" + kLicence}}),
                ElementsAre("src/a.cpp has no licence line"));
    EXPECT_THAT(fileFaults({{"run", "#!/bin/sh\n# SPDX-License-Identifier: MIT\n"}}), IsEmpty());
}

TEST(Files, ThatAreHeadersNeedPragmaOnce) {
    EXPECT_THAT(fileFaults({{"src/a.h", kLicence}}), ElementsAre("src/a.h has no #pragma once"));
    EXPECT_THAT(fileFaults({{"src/a.h", kLicence + "#pragma once\n"}, {"src/a.cpp", kLicence}}), IsEmpty());
}

TEST(Files, MayHaveFiveHundredLinesAndNoMore) {
    std::string text = kLicence;
    for (int line = 2; line <= 500; ++line) text += "\n";
    EXPECT_THAT(fileFaults({{"src/a.cpp", text}}), IsEmpty());
    EXPECT_THAT(fileFaults({{"src/a.cpp", text + "\n"}}), ElementsAre("src/a.cpp has 501 lines"));
}

}  // namespace
}  // namespace structure
