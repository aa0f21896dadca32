// SPDX-License-Identifier: MIT
#include "base/table.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using testing::ElementsAre;

template <typename Elements>
auto elementsOf(const Elements& table) {
    return std::vector(table.begin(), table.end());
}

template <typename Action>
std::string faultOf(Action action) {
    try {
        action();
    } catch (const RunTimeError& error) {
        return error.what();
    }
    return "none";
}

TEST(Table, HasBothItsBounds) {
    Table<std::string, 2, 4> table;
    table(2) = "first";
    table(4) = "last";
    EXPECT_THAT(elementsOf(table), ElementsAre("first", "", "last"));
}

TEST(Table, RaisesAFaultOutsideItsBounds) {
    Table<int, 1, 3> table;
    const Table<int, 1, 3>& unchanging = table;
    EXPECT_EQ(faultOf([&] { table(1) = table(3); }), "none");
    EXPECT_EQ(faultOf([&] { table(0) = 1; }), "Subscript out of range");
    EXPECT_EQ(faultOf([&] { table(4) = 1; }), "Subscript out of range");
    EXPECT_EQ(faultOf([&] { table(-1) = 1; }), "Subscript out of range");
    EXPECT_EQ(faultOf([&] { static_cast<void>(unchanging(4)); }), "Subscript out of range");
}

TEST(Table, StartsWithEmptyValuesAndFillsWithOne) {
    Table<int, 0, 2> table;
    EXPECT_THAT(elementsOf(table), ElementsAre(0, 0, 0));
    table.fill(7);
    EXPECT_THAT(elementsOf(table), ElementsAre(7, 7, 7));
}

TEST(Counter, RaisesAFaultPastSixteenBits) {
    Int16 counter = 32766;
    ++counter;
    EXPECT_EQ(counter, 32767);
    EXPECT_EQ(faultOf([&] { ++counter; }), "Overflow");
    EXPECT_EQ(faultOf([&] { counter += 40000; }), "Overflow");
    EXPECT_EQ(counter, 32767);
    counter = -32767;
    --counter;
    EXPECT_EQ(counter, -32768);
    EXPECT_EQ(faultOf([&] { --counter; }), "Overflow");
    EXPECT_EQ(counter, -32768);
}

TEST(Counter, RaisesAFaultWhenAWiderValueIsPutIn) {
    EXPECT_EQ(faultOf([] { static_cast<void>(Int16(32768)); }), "Overflow");
    EXPECT_EQ(faultOf([] { static_cast<void>(Int16(-32769)); }), "Overflow");
    EXPECT_EQ(faultOf([] { static_cast<void>(Int32(2147483648)); }), "Overflow");
}

TEST(Counter, OfThirtyTwoBitsGoesFurther) {
    Int32 counter = 32767;
    counter += 2;
    counter -= 1;
    EXPECT_EQ(counter, 32768);
    counter = 2147483647;
    EXPECT_EQ(faultOf([&] { ++counter; }), "Overflow");
}

}  // namespace
