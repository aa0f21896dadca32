// SPDX-License-Identifier: MIT
#pragma once

#include "core/session.h"

/// QSOs per hour over the last ten QSOs, from their times as plain numbers: a span across an hour reads 40
/// too high, one across midnight negative. 0 until there are ten QSOs, and for a span that isn't above 0.
int UpdateQSORate(const Session& session);
