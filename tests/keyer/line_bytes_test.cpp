// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "keyer/lines.h"
#include "support/played_station.h"

namespace {

// A pump never sees the line of an element, which is down again before the next one.
class LineBytes : public testing::Test {
protected:
    LineBytes() {
        EXPECT_TRUE(played.play("start\n")) << played.reason();
        played.transcript();
        Session& session = played.station().session;
        session.COMPortIndex = 1;
        session.PortAddress = 1020;
        session.KeyDownByte = 3;
        session.KeyUpByte = 2;
        session.PTTByte = 6;
        session.PortByte = 77;
    }
    int byte() { return played.station().session.PortByte; }

    TempFolder folder;
    PosixFiles files{folder.path()};
    PlayedStation played{files};
};

TEST_F(LineBytes, AreKeptAsTheyAreWritten) {
    Station& s = played.station();
    KeyDown(s);
    EXPECT_EQ(byte(), 3);
    KeyUp(s);
    EXPECT_EQ(byte(), 2);
    PTTOn(s);
    EXPECT_EQ(byte(), 6);
    AllOff(s);
    EXPECT_EQ(byte(), 0);
    EXPECT_EQ(played.transcript(), "out 1020 3\nout 1020 2\nout 1020 6\nout 1020 0\n");
}

TEST_F(LineBytes, StayWhereTheLinesAreThoseOfUsb) {
    Station& s = played.station();
    s.session.COMPortIndex = 5;
    s.ControlValues(setting::OtherPortAddress) = "USB";
    KeyDown(s);
    KeyUp(s);
    PTTOn(s);
    AllOff(s);
    EXPECT_EQ(byte(), 77);
    EXPECT_EQ(played.transcript(), "comm DTR on\ncomm DTR off\ncomm RTS on\ncomm RTS off\ncomm DTR off\n");
}

}  // namespace
