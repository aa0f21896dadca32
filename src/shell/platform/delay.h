// SPDX-License-Identifier: MIT
// The one thing that times Morse: a wait of so many units.
// Leans on nothing; shell/linux waits on the steady clock, shell/headless records; the keyer calls it.
#pragma once

#include <cstdint>

/// The length of a unit where it is not a script that sets it. With it the standard constants give the
/// standard speed: a dot of D units lasts 1.2 s / speed.
constexpr double kUnitNanoseconds = 1200;

/// Waits follow one another on one scale of time: the next begins where the last one was due to end, not
/// where it did end, so that small errors don't add up over a message. Nothing interrupts a wait, and no
/// event runs in it.
class Delay {
public:
    virtual ~Delay() = default;
    /// A message begins: gets what the machine has for exact timing, and starts the scale anew. Messages may
    /// lie within one another.
    virtual void begin() = 0;
    /// Gives back what begin() got.
    virtual void end() = 0;
    /// Lets `units` pass, none where they are not above 0. The last part of the wait may be left to settle(),
    /// so that events pumped in between take nothing from the rhythm.
    virtual void wait(std::int64_t units) = 0;
    /// Waits for the moment at which the next edge is due; at once where no wait came before.
    virtual void settle() = 0;
};

/// While one lives, a message is being keyed.
class Keying {
public:
    explicit Keying(Delay& delay) : delay_(delay) { delay_.begin(); }
    ~Keying() { delay_.end(); }
    Keying(const Keying&) = delete;
    Keying& operator=(const Keying&) = delete;

private:
    Delay& delay_;
};

/// While one lives, the message in hand pauses.
class Resting {
public:
    explicit Resting(Delay& delay) : delay_(delay) { delay_.end(); }
    ~Resting() { delay_.begin(); }
    Resting(const Resting&) = delete;
    Resting& operator=(const Resting&) = delete;

private:
    Delay& delay_;
};
