// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/sample_form.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class Timers : public testing::Test {
protected:
    Timers() {
        form.show();
        form.slow.onTimer = [this] { events.push_back("slow " + std::to_string(now)); };
        form.fast.onTimer = [this] { events.push_back("fast " + std::to_string(now)); };
    }
    /// Goes to a moment as a front does: from one due time to the next.
    void passTo(std::int64_t moment) {
        for (auto due = screen.nextDue(now); due >= 0 && due <= moment; due = screen.nextDue(now)) {
            now = due;
            screen.runTimers(now);
        }
        now = moment;
    }

    forms::Screen screen;
    SampleForm form{screen};
    Events events;
    std::int64_t now = 5;
};

TEST_F(Timers, FireInTheOrderInWhichTheyAreDue) {
    form.slow.start();
    form.fast.start();
    passTo(1010);
    EXPECT_THAT(events, ElementsAre("fast 305", "fast 605", "fast 905", "slow 1005"));
}

TEST_F(Timers, DoNotDriftWhereTheyAreLookedAtInTime) {
    form.slow.start();
    passTo(10005);
    ASSERT_EQ(events.size(), 10u);
    EXPECT_EQ(events.back(), "slow 10005");
}

TEST_F(Timers, PassOverTheTicksThatNobodyCouldTake) {
    form.fast.start();
    screen.nextDue(now);
    now = 2000;
    screen.runTimers(now);
    EXPECT_THAT(events, ElementsAre("fast 2000"));
    EXPECT_EQ(screen.nextDue(now), 2300);
}

TEST_F(Timers, FireEachOnceTheLongestDueFirst) {
    form.slow.start();
    form.fast.start();
    screen.nextDue(now);
    now = 2000;
    screen.runTimers(now);
    EXPECT_THAT(events, ElementsAre("fast 2000", "slow 2000"));
}

TEST_F(Timers, CountAnewWhenTheyAreStoppedAndStarted) {
    form.slow.start();
    passTo(900);
    form.slow.stop();
    form.slow.start();
    passTo(1800);
    EXPECT_THAT(events, IsEmpty());
    passTo(1900);
    EXPECT_THAT(events, ElementsAre("slow 1900"));
}

TEST_F(Timers, GoOnWhenTheyAreStartedAgainWhileTheyRun) {
    form.slow.start();
    passTo(900);
    form.slow.start();
    passTo(1100);
    EXPECT_THAT(events, ElementsAre("slow 1005"));
}

TEST_F(Timers, FireNoMoreOnceTheirHandlerStopsThem) {
    form.fast.onTimer = [this] {
        events.push_back("fast");
        form.fast.stop();
    };
    form.fast.start();
    passTo(2000);
    EXPECT_THAT(events, ElementsAre("fast"));
}

TEST_F(Timers, StandStillWhereNoneRuns) { EXPECT_EQ(screen.nextDue(now), -1); }

TEST_F(Timers, StandStillWithoutAnInterval) {
    form.fast.setInterval(0);
    form.fast.start();
    EXPECT_EQ(screen.nextDue(now), -1);
}

TEST_F(Timers, WaitWhileADialogIsOpen) {
    form.fast.start();
    screen.nextDue(now);
    screen.dialogOpens();
    EXPECT_EQ(screen.nextDue(now), -1);
    now = 1000;
    screen.runTimers(now);
    EXPECT_THAT(events, IsEmpty());
    screen.dialogCloses();
    screen.runTimers(now);
    EXPECT_THAT(events, ElementsAre("fast 1000"));
}

TEST_F(Timers, RunOnAHiddenFormAndStopWithAnUnloadedOne) {
    form.fast.start();
    form.hide();
    passTo(310);
    EXPECT_THAT(events, ElementsAre("fast 305"));
    form.unload();
    passTo(1000);
    EXPECT_EQ(events.size(), 1u);
}

}  // namespace
