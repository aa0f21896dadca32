// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sstream>

#include "shell/headless/headless_ports.h"
#include "shell/linux/linux_ports.h"

namespace {

class ScriptedPorts : public testing::Test {
protected:
    std::string told() {
        std::string text = out.str();
        out.str("");
        return text;
    }
    std::ostringstream out;
    Transcript transcript{out};
    Hardware hardware;
    Faults faults;
    HeadlessClock clock;
    HeadlessPorts ports{transcript, hardware, faults};
    HeadlessDelay delay{transcript, hardware, clock};
};

TEST_F(ScriptedPorts, TellEveryOperationAndNotOnlyChanges) {
    ports.write(888, 32);
    ports.write(888, 32);
    ports.openComm("5");
    ports.setDtr(true);
    ports.setDtr(true);
    ports.setRts(false);
    ports.closeComm();
    EXPECT_EQ(told(),
              "out 888 32\nout 888 32\ncomm open 5\ncomm DTR on\ncomm DTR on\ncomm RTS off\ncomm close\n");
}

TEST_F(ScriptedPorts, ReadWhatTheScriptHasSet) {
    EXPECT_EQ(ports.read(1022), 0);
    hardware.ports[1022] = 21;
    EXPECT_EQ(ports.read(1022), 21);
    hardware.ports[-12270] = 5;
    EXPECT_EQ(ports.read(-12270), 5);
    EXPECT_EQ(ports.read(12270), 0);
    EXPECT_FALSE(ports.dsrHolding());
    hardware.linesOn.insert(InputLine::Dsr);
    EXPECT_TRUE(ports.dsrHolding());
    EXPECT_EQ(told(), "");
}

TEST_F(ScriptedPorts, FailToOpenAndNeverToBeWritten) {
    faults.fail(Device::Port);
    EXPECT_THROW(ports.openComm("1"), PortError);
    EXPECT_FALSE(ports.commOpen());
    ports.write(1020, 1);
    EXPECT_EQ(told(), "out 1020 1\n");
    faults.mend();
    ports.openComm("1");
    EXPECT_TRUE(ports.commOpen());
}

TEST_F(ScriptedPorts, ADelayTakesItsUnits) {
    delay.wait(50000);
    EXPECT_EQ(clock.nanoseconds(), 60'000'000);
    hardware.unitNanoseconds = 0;
    delay.wait(50000);
    delay.wait(0);
    delay.wait(-3);
    EXPECT_EQ(clock.nanoseconds(), 60'000'000);
    EXPECT_EQ(told(), "delay 50000\ndelay 50000\ndelay 0\ndelay 0\n");
}

TEST(LinuxPorts, NumbersAndPathsNameTheDevices) {
    EXPECT_EQ(commPath("1"), "/dev/ttyS0");
    EXPECT_EQ(commPath("4"), "/dev/ttyS3");
    EXPECT_EQ(commPath("5"), "/dev/ttyUSB0");
    EXPECT_EQ(commPath("12"), "/dev/ttyUSB7");
    EXPECT_EQ(commPath("/dev/ttyACM0"), "/dev/ttyACM0");
    EXPECT_THROW(commPath("0"), PortError);
    EXPECT_THROW(commPath(""), PortError);
}

TEST(LinuxPorts, NoPortLiesAmongTheMachinesOwnAddresses) {
    LinuxPorts ports([] { return std::vector<std::string>(); });
    ports.write(0, 0);
    ports.write(255, 1);
    EXPECT_THROW(ports.reach(2), PortError);
}

TEST(LinuxPorts, WhatIsNotOpenIsReadAsNothing) {
    LinuxPorts ports([] { return std::vector<std::string>{"5  adapter"}; });
    EXPECT_EQ(ports.read(1022), 0);
    EXPECT_FALSE(ports.dsrHolding());
    EXPECT_FALSE(ports.commOpen());
    EXPECT_THAT(ports.commPorts(), testing::ElementsAre("5  adapter"));
}

/// What the kernel says of its parallel ports: nothing, but of those that are given.
std::vector<std::optional<int>> foundAt(std::initializer_list<std::pair<std::size_t, int>> known) {
    std::vector<std::optional<int>> found(8);
    for (const auto& [number, base] : known) found[number] = base;
    return found;
}

TEST(ParallelPorts, StandInTheUsualOrderWhereTheKernelIsSilent) {
    const auto silent = foundAt({});
    EXPECT_EQ(parportOf(888, silent, 0), 0);
    EXPECT_EQ(parportOf(632, silent, 0), 1);
    EXPECT_EQ(parportOf(956, silent, 0), 2);
    EXPECT_EQ(parportOf(888, {}, 0), 0);
}

TEST(ParallelPorts, AtOtherAddressesFollowInTheOrderTheyCome) {
    const auto silent = foundAt({});
    EXPECT_EQ(parportOf(0x5000, silent, 0), 3);
    EXPECT_EQ(parportOf(-12272, silent, 1), 4);
}

TEST(ParallelPorts, AreWhereTheKernelHasFoundThem) {
    EXPECT_EQ(parportOf(888, foundAt({{1, 888}}), 0), 1);
    EXPECT_EQ(parportOf(632, foundAt({{0, 632}, {1, 888}}), 0), 0);
    EXPECT_EQ(parportOf(0x5000, foundAt({{0, 888}, {1, 0x5000}}), 0), 1);
    // An address beyond 32767 is typed and kept with its sign.
    EXPECT_EQ(parportOf(-12272, foundAt({{2, 0xD010}}), 0), 2);
}

TEST(ParallelPorts, AreNotGuessedWhereAnotherOneIsKnownToBe) {
    EXPECT_EQ(parportOf(888, foundAt({{0, 632}}), 0), std::nullopt);
    EXPECT_EQ(parportOf(632, foundAt({{1, 0xD010}}), 0), std::nullopt);
    EXPECT_EQ(parportOf(0x5000, foundAt({{3, 0xD010}}), 0), std::nullopt);
    EXPECT_EQ(parportOf(956, foundAt({{0, 888}, {1, 632}}), 0), 2);
}

}  // namespace
