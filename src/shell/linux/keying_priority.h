// SPDX-License-Identifier: MIT
#pragma once

/// What the system grants a thread that has to wake up in time: real-time priority, or else the shortest
/// slice and no slack. The thread's own ways come back with giveBack().
class KeyingPriority {
public:
    KeyingPriority() = default;
    ~KeyingPriority() { giveBack(); }
    KeyingPriority(const KeyingPriority&) = delete;
    KeyingPriority& operator=(const KeyingPriority&) = delete;

    void ask();
    void giveBack();
    /// Whether the thread runs with real-time priority, so that spinning for a moment takes nothing from its
    /// rhythm.
    bool granted() const { return granted_; }

private:
    bool asked_ = false, granted_ = false;
    int formerPolicy_ = 0, formerPriority_ = 0;
    int formerSlack_ = 0;
};
