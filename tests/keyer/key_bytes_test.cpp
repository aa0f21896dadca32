// SPDX-License-Identifier: MIT
#include "keyer/key_bytes.h"

#include <gtest/gtest.h>

#include "base/run_time_error.h"

namespace {

constexpr auto kUnchanged = std::nullopt;

void expectBytes(const keyer::KeyBytes& bytes, int down, int up, std::optional<int> ptt) {
    EXPECT_EQ(bytes.down, down);
    EXPECT_EQ(bytes.up, up);
    EXPECT_EQ(bytes.ptt, ptt);
}

}  // namespace

TEST(KeyBytes, OfAUart) {
    expectBytes(keyer::uartBytes(false, false), 2, 0, kUnchanged);
    expectBytes(keyer::uartBytes(false, true), 3, 1, 1);
    expectBytes(keyer::uartBytes(true, false), 1, 0, kUnchanged);
    expectBytes(keyer::uartBytes(true, true), 3, 2, 2);
}

TEST(KeyBytes, OfAParallelPort) {
    expectBytes(keyer::lptBytes(false), 1, 0, kUnchanged);
    expectBytes(keyer::lptBytes(true), 5, 4, 4);
}

TEST(KeyBytes, BasesOfTheSerialPorts) {
    EXPECT_EQ(keyer::uartBase(1), 1016);
    EXPECT_EQ(keyer::uartBase(2), 760);
    EXPECT_EQ(keyer::uartBase(3), 1000);
    EXPECT_EQ(keyer::uartBase(4), 744);
    EXPECT_EQ(keyer::uartBase(5), 0);
    EXPECT_EQ(keyer::uartBase(0), 0);
}

TEST(KeyBytes, AddressesAreHexadecimalAndFitSixteenBits) {
    EXPECT_EQ(keyer::portAddress("&H378"), 888);
    EXPECT_EQ(keyer::portAddress("&h2f0"), 752);
    EXPECT_EQ(keyer::portAddress("888"), 888);
    EXPECT_EQ(keyer::portAddress("&HD010"), -12272);
    EXPECT_EQ(keyer::portAddress("&H12345"), 0);
    EXPECT_EQ(keyer::portAddress("&H7FFF"), 0);
    EXPECT_EQ(keyer::portAddress("99999999999"), 0);
    EXPECT_EQ(keyer::portAddress("USB"), 0);
    EXPECT_EQ(keyer::portAddress(""), 0);
}

TEST(KeyBytes, APortIsANumberOrTheDeviceItself) {
    EXPECT_EQ(keyer::commPort("6"), "6");
    EXPECT_EQ(keyer::commPort("6  usb-FTDI"), "6");
    EXPECT_EQ(keyer::commPort("-"), "0");
    EXPECT_EQ(keyer::commPort("/dev/ttyACM0"), "/dev/ttyACM0");
}
