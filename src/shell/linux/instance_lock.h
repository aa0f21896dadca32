// SPDX-License-Identifier: MIT
#pragma once

#include <string>

/// The mark by which a program that runs in a folder is known to a second one started there. It goes with the
/// process, however that ends. Where the folder takes no mark, nobody can be known and the program counts as
/// the only one.
class InstanceLock {
public:
    explicit InstanceLock(const std::string& folder);
    InstanceLock(const InstanceLock&) = delete;
    InstanceLock& operator=(const InstanceLock&) = delete;
    ~InstanceLock();
    bool heldByAnother() const { return heldByAnother_; }

private:
    int number_;
    bool heldByAnother_ = false;
};
