// SPDX-License-Identifier: MIT
// The hours in which everybody meets on one band: the timetable, the label that tells of it, the start date.
// Leans on the session and the forms; the clock, the refresh and the start of the main form call it.
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "core/station.h"

/// The timetable file of a contest.
std::string activityFile(std::string_view contestNumber);
/// Reads a timetable, made where it is missing. At most 40 entries fit; what is beyond them is left out.
void loadActivityHours(Station& s, const std::string& file);
/// Day of the contest, 1 to 3, by the day numbers alone: a month's end stays day 1.
int contestDay(std::string_view utcDate, std::string_view startDate);
/// The label after the entries of an hour: the last one that fits wins, and `caption` stays where none does.
std::string activityCaption(std::span<const std::string> entries, int day, int hour, bool lookForMembers,
                            std::string caption);
/// Shows what the hour is dedicated to, and tells of a change once.
void Activity(Station& s);
void mStartDate_Click(Station& s);
