// SPDX-License-Identifier: MIT
// Real time and post contest: which clock a QSO gets, and how it is accepted.
// Leans on the session and the forms; the accept and the menus call it.
#pragma once

#include <string>

#include "core/station.h"

/// MM/DD/YY and HHMM.
struct QsoMoment {
    std::string date, time;
};

/// What a QSO entered after the contest is offered: the last line's date and time, or the first of its kind.
QsoMoment momentOfLastLine(const Session& session);
/// Asks for date and time until both have the right shape; midnight is stored as a minute past.
QsoMoment PromptQSODateTime(Station& s, const QsoMoment& offered);
void mReal_Click(Station& s);
void mPost_Click(Station& s);
