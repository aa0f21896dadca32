// SPDX-License-Identifier: MIT
// Local time plus a stored offset: the clock that stamps every QSO, its display and the alarm.
// Leans on the platform's clock and the session; the main form's timer and the offset dialog call it.
#pragma once

#include <string>
#include <string_view>

#include "core/station.h"

/// Hours and half hour that an offset text stands for: a text that ends in ".5" adds 30 minutes to its hours,
/// also to hours below 0; any other fraction stays in the hours.
struct UtcOffset {
    float hours = 0;
    int half = 0;
};
UtcOffset offsetOf(std::string_view text);

/// UTC made of a local moment. The month is never touched, so that the day may be 0 or 32; the half hour is
/// added last, so that the hour may be 24.
struct UtcReading {
    double hour = 0;
    int day = 0, minute = 0, second = 0;
};
UtcReading utcReading(const DateTime& local, double offsetHours, int offsetHalf);

/// "MM/DD/YY", "HH:MM:SS" and "HHMM" of a moment.
std::string dateText(const DateTime& moment);
std::string timeText(const DateTime& moment);
/// The system's own UTC as "HH:MM".
std::string GetUtcClockText(Station& s);

/// Sets `UTCTime` and `UTCDate` before the first tick, so that no QSO is ever without its time.
void startClock(Station& s);
/// Once a second on the main form: refresh on request, clock, date, alarm, activity hours.
void Timer1_Timer(Station& s);
/// A click on the alarm asks for its time.
void Alarm_Click(Station& s);
void mClockMinutes_Click(Station& s);
void mClockSeconds_Click(Station& s);

// The dialog that sets the offset.
void UTCfrm_Load(Station& s);
void UTCfrm_Offset_Change(Station& s);
void UTCfrm_Timer(Station& s);
void UTCfrm_Command1_Click(Station& s);
void UTCfrm_Label3_Click(Station& s);
/// What the setup screen says of the offset.
std::string offsetCaption(const Station& s);
