// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sstream>

#include "base/text.h"
#include "shell/headless/headless_machine.h"
#include "shell/headless/player.h"
#include "shell/linux/posix_files.h"
#include "shell/program.h"
#include "support/temp_folder.h"

namespace {

/// A desktop on which this program runs already.
class AnotherRuns : public Programs {
public:
    bool start(const std::string&) override { return false; }
    void help(const std::string&, const std::string&) override {}
    bool previousInstance() override { return true; }
};

TEST(OtherInstance, IsToldAndEndsThisOneBeforeItTouchesAFile) {
    const TempFolder folder;
    PosixFiles files(folder.path());
    std::ostringstream out, errors;
    HeadlessMachine machine(files, out);
    AnotherRuns programs;
    Platform platform{machine.clock,   machine.dialogs, machine.files, programs,
                      machine.windows, machine.ports,   machine.delay};
    Program program(platform);
    Player player(machine, {program.screen(), [&] { program.start(); }, {}});
    std::istringstream script("start\nclick frmSetup.cmdDone\n");
    EXPECT_EQ(player.play(script, errors), 0) << errors.str();
    EXPECT_THAT(text::lines(out.str()),
                testing::ElementsAre(
                    "form frmStart shown", "form frmStart hidden",
                    R"(message "TARQEN is already running! Find the\napplication and continue, or close it.")"
                    R"( title "" icon exclamation buttons OK default OK -> OK (unasked))",
                    "end"));
    EXPECT_TRUE(program.screen().ended());
    EXPECT_THAT(folder.entries(), testing::IsEmpty());
}

}  // namespace
