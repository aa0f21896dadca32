// SPDX-License-Identifier: MIT
#include "keyer/cw_setup.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sstream>

#include "keyer/calibration.h"
#include "shell/headless/headless_machine.h"
#include "shell/headless/player.h"
#include "shell/linux/posix_files.h"
#include "shell/program.h"
#include "support/played_station.h"
#include "support/temp_folder.h"

namespace {

using testing::HasSubstr;

/// A serial port that is open and can't be closed.
class StuckPorts : public Ports {
public:
    void write(int, int) override {}
    int read(int) override { return 0; }
    void reach(int) override {}
    void commIsAt(int) override {}
    void openComm(const std::string&) override {}
    void closeComm() override { throw PortError("stuck"); }
    bool commOpen() override { return true; }
    void setDtr(bool) override {}
    void setRts(bool) override {}
    bool dsrHolding() override { return false; }
    std::vector<std::string> commPorts() override { return {}; }
    void dropLines() override {}
};

TEST(CwSetup, TellsOfAPortThatCannotBeGivenBackAndDoesNotOpenItsForm) {
    const TempFolder folder;
    PosixFiles files(folder.path());
    std::ostringstream out;
    HeadlessMachine machine(files, out);
    StuckPorts ports;
    Platform platform{machine.clock,   machine.dialogs, machine.files, machine.programs,
                      machine.windows, ports,           machine.delay};
    Program program(platform);
    cmdCom_Click(program.station());
    EXPECT_THAT(out.str(), HasSubstr("message \"That port is not available...\""));
    EXPECT_FALSE(program.station().forms.ConfigScrn.visible());
}

TEST(Calibration, ShowsItsFormBelowTheSettingsWithTheTime) {
    const TempFolder folder;
    PosixFiles files(folder.path());
    PlayedStation played(files);
    ASSERT_TRUE(played.play("start\n")) << played.reason();
    Station& s = played.station();
    TransmitForm& form = s.forms.frmTX;
    form.Label3.hide();
    int top = 0;
    bool timeShown = false;
    form.onRightClick = [&] {
        top = form.top();
        timeShown = form.Label3.visible();
    };
    s.forms.CWSetup.show();
    ASSERT_TRUE(played.play("pump 1 rightclick frmTX\npump 2 key Space\nclick CWSetup.cmdCal\n"))
        << played.reason();
    EXPECT_EQ(top, 4870);
    EXPECT_TRUE(timeShown);
}

}  // namespace
