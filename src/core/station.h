// SPDX-License-Identifier: MIT
// The program's whole state: the one object that every routine takes as its first argument.
// Leans on the session, the forms and the platform's interfaces; shell/program.h builds it and wires it.
#pragma once

#include <string>

#include "base/table.h"
#include "core/session.h"
#include "core/settings.h"
#include "shell/forms/all_forms.h"
#include "shell/platform/platform.h"

struct Station {
    explicit Station(Platform& machine) : platform(machine) {}
    Station(const Station&) = delete;
    Station& operator=(const Station&) = delete;

    Platform& platform;
    Session session;
    Settings ControlValues;
    Personal PersonalData;
    Forms forms;
};
