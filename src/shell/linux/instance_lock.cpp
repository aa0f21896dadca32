// SPDX-License-Identifier: MIT
#include "shell/linux/instance_lock.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <cerrno>

InstanceLock::InstanceLock(const std::string& folder)
    // O_CLOEXEC: a companion program started from here must not go on holding the mark when this one has
    // ended.
    : number_(::open((folder + "/.tarqen.lock").c_str(),
                     O_RDWR | O_CREAT | O_CLOEXEC | O_NONBLOCK | O_NOFOLLOW, 0666)) {
    if (number_ >= 0 && ::flock(number_, LOCK_EX | LOCK_NB) != 0) heldByAnother_ = errno == EWOULDBLOCK;
}

InstanceLock::~InstanceLock() {
    if (number_ >= 0) ::close(number_);
}
