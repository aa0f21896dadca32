// SPDX-License-Identifier: MIT
#include "shell/linux/keying_priority.h"

#include <gtest/gtest.h>
#include <sched.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

constexpr int kGivenBack = 0, kKept = 1, kNoOtherUser = 2, kRefused = 77;

int policy() { return ::sched_getscheduler(0) & ~SCHED_RESET_ON_FORK; }

/// What becomes of real-time priority that was asked for by a user who may, and is given back by one who may
/// nothing.
int givenBackByAnybody() {
    KeyingPriority priority;
    priority.ask();
    if (!priority.granted() || policy() != SCHED_FIFO) return kRefused;
    constexpr uid_t kNobody = 65534;
    if (geteuid() == 0 && setuid(kNobody) != 0) return kNoOtherUser;
    priority.giveBack();
    return policy() == SCHED_OTHER ? kGivenBack : kKept;
}

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

TEST(KeyingPriority, IsGivenBackWithoutTheRightsItWasAskedWith) {
    const pid_t child = fork();
    ASSERT_GE(child, 0);
    if (child == 0) _exit(givenBackByAnybody());
    int status = 0;
    ASSERT_EQ(waitpid(child, &status, 0), child);
    ASSERT_TRUE(WIFEXITED(status));
    if (WEXITSTATUS(status) == kRefused || WEXITSTATUS(status) == kNoOtherUser)
        GTEST_SKIP() << "real-time priority is refused here";
    EXPECT_EQ(WEXITSTATUS(status), kGivenBack);
}
