// SPDX-License-Identifier: MIT
// The program as a whole: one station with every control wired to its routine.
// Leans on every subsystem; the two fronts (shell/headless, shell/qt) build one over their platform, start it
// and feed its screen with keys, clicks and time.
#pragma once

#include "core/station.h"

class Program {
public:
    explicit Program(Platform& platform);
    Station& station() { return station_; }
    forms::Screen& screen() { return station_.forms.screen; }
    /// Shows the splash and hands over to the setup screen; returns when the program waits for the operator.
    void start();

private:
    Station station_;
};
