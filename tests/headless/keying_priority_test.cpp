// SPDX-License-Identifier: MIT
#include "shell/linux/keying_priority.h"

#include <gtest/gtest.h>
#include <sched.h>
#include <sys/prctl.h>

namespace {

int policy() { return ::sched_getscheduler(0) & ~SCHED_RESET_ON_FORK; }

}  // namespace

TEST(KeyingPriority, GivesBackWhatTheThreadHad) {
    const int before = policy(), slack = ::prctl(PR_GET_TIMERSLACK);
    KeyingPriority priority;
    for (int message = 0; message < 2; ++message) {
        priority.ask();
        priority.ask();
        EXPECT_EQ(policy(), priority.granted() ? SCHED_FIFO : before);
        EXPECT_LE(::prctl(PR_GET_TIMERSLACK), 1);
        priority.giveBack();
        EXPECT_EQ(policy(), before);
        EXPECT_EQ(::prctl(PR_GET_TIMERSLACK), slack);
        EXPECT_FALSE(priority.granted());
        priority.giveBack();
    }
}
