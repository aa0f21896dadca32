// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>
#include <iterator>

#include "structure/folder_rules.h"
#include "structure/source_dir.h"

namespace structure {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

const SourceTree kTree{{{"src/core/a.cpp", ""}, {"cmake/Flags.cmake", ""}},
                       {"cmake", "src", "src/core", "src/core/old"}};
const std::string kReadme =
    "# A program\n\n- `cmake/`: The build.\n- `src/`: The sources.\n- `src/core/`: The heart of it.\n";

TEST(Folders, OfThisCheckoutHaveOneSentenceEachInTheReadme) {
    std::ifstream in(sourceDir() / "README.md", std::ios::binary);
    const std::string readme{std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
    EXPECT_THAT(folderFaults(readTree(sourceDir()), readme), IsEmpty());
}

TEST(Folders, ThatAreAllListedAreNoFault) { EXPECT_THAT(folderFaults(kTree, kReadme), IsEmpty()); }

TEST(Folders, AtTheTopOrWithSourcesMustBeListed) {
    EXPECT_THAT(folderFaults(kTree, "- `cmake/`: The build.\n"),
                ElementsAre("src is listed 0 times", "src/core is listed 0 times"));
}

TEST(Folders, MayBeListedOnceOnly) {
    EXPECT_THAT(folderFaults(kTree, kReadme + "- `cmake/`: The build.\n"),
                ElementsAre("cmake is listed 2 times"));
}

TEST(Folders, ThatAreListedMustBeThere) {
    EXPECT_THAT(folderFaults(kTree, kReadme + "- `src/gone/`: What once was.\n"),
                ElementsAre("src/gone is listed but not there"));
}

TEST(Folders, HaveExactlyOneSentence) {
    const Faults two = folderFaults({{}, {"src"}}, "- `src/`: The sources. And more.\n");
    EXPECT_THAT(two, ElementsAre("src has not exactly one sentence"));
    EXPECT_THAT(folderFaults({{}, {"src"}}, "- `src/`:\n"), ElementsAre("src has not exactly one sentence"));
    EXPECT_THAT(folderFaults({{}, {"src"}}, "- `src/`: The sources\n"),
                ElementsAre("src has not exactly one sentence"));
}

}  // namespace
}  // namespace structure
