// SPDX-License-Identifier: MIT
#include "setup/utc_clock.h"

#include <algorithm>
#include <cmath>

#include "base/number.h"
#include "base/text.h"
#include "contest/activity.h"
#include "core/say.h"
#include "core/search.h"
#include "setup/control_file.h"

namespace {

/// An offset beyond all numbers stands for none.
float hoursOf(std::string_view text) {
    try {
        return static_cast<float>(std::clamp(number::valueOf(text), -1e6, 1e6));
    } catch (const RunTimeError&) {
        return 0;
    }
}

}  // namespace

UtcOffset offsetOf(std::string_view text) {
    UtcOffset offset;
    if (!text.empty()) offset.hours = hoursOf(text);
    if (text::right(text, 2) == ".5") {
        offset.hours = hoursOf(text::left(text, static_cast<int>(text.size()) - 2));
        offset.half = 30;
    }
    return offset;
}

UtcReading utcReading(const DateTime& local, double offsetHours, int offsetHalf) {
    UtcReading reading{local.hour + offsetHours, local.day, local.minute, local.second};
    if (reading.hour < 0) {
        reading.hour += 24;
        --reading.day;
    }
    if (reading.hour >= 24) {
        reading.hour -= 24;
        ++reading.day;
    }
    if (offsetHalf != 0) {
        reading.minute += 30;
        if (reading.minute > 59) {
            reading.minute -= 60;
            reading.hour += 1;
        }
    }
    return reading;
}

namespace {

std::string twoDigits(double value) {
    // An offset far off any clock still gives two digits.
    return text::digits(static_cast<long>(std::floor(std::clamp(value, -99.0, 99.0) + 0.5)), 2);
}

UtcReading readUtc(Station& s, const DateTime& local) {
    return utcReading(local, static_cast<double>(s.session.UtcOffsetHours), s.session.UtcOffsetHalf);
}

std::string utcDateText(const DateTime& local, int day) {
    const std::string date = dateText(local);
    return std::string(text::left(date, 3)) + text::digits(day, 2) + std::string(text::right(date, 3));
}

/// The alarm can be set at any time, so its label stays and says what it is for.
void showAlarm(Station& s, const std::string& caption) {
    s.forms.frmLog.Alarm.setCaption(caption.empty() ? "Alarm" : caption);
}

void soundAlarm(Station& s) {
    if (s.session.AlarmTime.empty() || s.session.UTCTime != s.session.AlarmTime) return;
    beep(s);
    tell(s, "Alarm sounded at " + s.session.AlarmTime);
    showAlarm(s, "");
    s.session.AlarmTime.clear();
}

}  // namespace

std::string dateText(const DateTime& moment) {
    return text::digits(moment.month, 2) + "/" + text::digits(moment.day, 2) + "/" +
           text::digits(moment.year % 100, 2);
}

std::string timeText(const DateTime& moment) {
    return text::digits(moment.hour, 2) + ":" + text::digits(moment.minute, 2) + ":" +
           text::digits(moment.second, 2);
}

std::string GetUtcClockText(Station& s) {
    return std::string(text::left(timeText(s.platform.clock.utc()), 5));
}

void startClock(Station& s) {
    const DateTime local = s.platform.clock.local();
    const UtcReading utc = readUtc(s, local);
    s.session.UTCTime = twoDigits(utc.hour) + text::digits(utc.minute, 2);
    s.session.UTCDate = utcDateText(local, utc.day);
}

void Timer1_Timer(Station& s) {
    Session& session = s.session;
    LogForm& form = s.forms.frmLog;
    if (session.RefreshRequest == "Refresh") {
        session.RefreshRequest.clear();
        Rfresh_Click(s);
        s.platform.windows.pump();
    }
    const DateTime local = s.platform.clock.local();
    const UtcReading utc = readUtc(s, local);
    const std::string hour = twoDigits(utc.hour), minute = text::digits(utc.minute, 2);
    session.UTCTime = hour + minute;
    const bool seconds = text::lower(s.ControlValues(setting::ClockDisplay)) == "seconds";
    const std::string display = hour + ":" + minute + (seconds ? ":" + text::digits(utc.second, 2) : "");
    if (form.UTCTime.caption() != display) {
        form.UTCTime.setCaption(display);
        s.platform.windows.pump();
    }
    session.UTCDate = utcDateText(local, utc.day);
    form.tDate.setCaption(text::left(session.UTCDate, 5));
    soundAlarm(s);
    if (s.ControlValues(setting::ActivityDisplay) != "Display") return;
    if (number::wholeOf(text::right(display, 2)) % 10 == 0) Activity(s);
}

void Alarm_Click(Station& s) {
    Session& session = s.session;
    LogForm& form = s.forms.frmLog;
    session.AlarmTime.clear();
    showAlarm(s, "");
    session.AlarmTime = s.platform.dialogs
                            .prompt({"Enter Alarm Time, (24Hr. HHMM)\n\nCancel or clear line for no alarm.",
                                     "UTC Alarm Set", session.UTCTime})
                            .value_or("");
    if (!session.AlarmTime.empty()) {
        showAlarm(s, std::string(text::left(session.AlarmTime, 2)) + ":" +
                         std::string(text::right(session.AlarmTime, 2)));
    }
    form.focus(form.CallS);
}

namespace {

void chooseClock(Station& s, bool minutes) {
    LogForm& form = s.forms.frmLog;
    form.menu.mClockMinutes.setChecked(minutes);
    form.menu.mClockSeconds.setChecked(!minutes);
    s.ControlValues(setting::ClockDisplay) = minutes ? "Minutes" : "Seconds";
    form.focus(form.CallS);
}

}  // namespace

void mClockMinutes_Click(Station& s) { chooseClock(s, true); }
void mClockSeconds_Click(Station& s) { chooseClock(s, false); }

void UTCfrm_Load(Station& s) {
    s.forms.UTCfrm.Offset.setText(text::trim(s.ControlValues(setting::UtcOffset)));
}

void UTCfrm_Offset_Change(Station& s) {
    const std::string& text = s.forms.UTCfrm.Offset.text();
    const UtcOffset offset = offsetOf(text);
    s.session.UtcOffsetHours = offset.hours;
    s.session.UtcOffsetHalf = offset.half;
    s.ControlValues(setting::UtcOffset) = text;
}

void UTCfrm_Timer(Station& s) {
    UtcForm& form = s.forms.UTCfrm;
    const DateTime local = s.platform.clock.local();
    const UtcReading utc = readUtc(s, local);
    form.LocalTime.setCaption(timeText(local));
    form.UTCTime.setCaption(twoDigits(utc.hour) + ":" + text::digits(utc.minute, 2) + ":" +
                            text::digits(utc.second, 2));
    form.UTCDate.setCaption(utcDateText(local, utc.day));
    s.forms.frmSetup.Label17.setCaption("Local " + dateText(local));
}

std::string offsetCaption(const Station& s) {
    return "UTC Offset " + s.ControlValues(setting::UtcOffset) + " hrs.";
}

void UTCfrm_Command1_Click(Station& s) {
    WriteControlFile(s);
    s.session.UtcCheckDone = "0";
    s.forms.frmSetup.Label16.setCaption(offsetCaption(s));
    s.forms.UTCfrm.unload();
}

void UTCfrm_Label3_Click(Station& s) {
    const std::string end = kCrLf;
    tell(s,
         "First set the pc system clock (local time)." + end + "Set it using right mouse on the time on" +
             end + "the toolbar below, or in the control panel." + end + end +
             "Then enter the UTC offset for your QTH." + end + "The UTC time and date should be correct.",
         "UTC Time/Date");
}
