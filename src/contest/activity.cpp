// SPDX-License-Identifier: MIT
#include "contest/activity.h"

#include <algorithm>
#include <vector>

#include "base/number.h"
#include "base/text.h"
#include "core/entry_fields.h"
#include "core/qso_line.h"
#include "core/say.h"
#include "core/tally.h"

namespace {

constexpr forms::Colour kActivityColour = 16777088;
constexpr std::string_view kHomeClub = "PRAITUNA";

double dayOfMonth(std::string_view date) { return number::valueOf(text::columns(date, 4, 5)); }

std::string captionOf(std::string_view rest, bool lookForMembers) {
    if (rest == "FM bands") return "FM Bands";
    if (rest == "903 and up") return "903 and up";
    if (rest == "Check List") return lookForMembers ? "Look for Rats" : "Check List";
    return std::string(rest) + " MHz";
}

/// Whether two columns of an entry hold a number; what is no number must not pass for midnight.
bool says(std::string_view columns, int number) {
    const std::string_view figures = text::trim(columns);
    return columns.size() == 2 && !figures.empty() &&
           std::all_of(figures.begin(), figures.end(), text::isDigit) && number::valueOf(figures) == number;
}

}  // namespace

std::string activityFile(std::string_view contestNumber) {
    if (contestNumber == "2") return "June_ACTIVITY.DAT";
    if (contestNumber == "3") return "UHF_ACTIVITY.DAT";
    if (contestNumber == "4") return "Sept_ACTIVITY.DAT";
    return "ACTIVITY.DAT";
}

void loadActivityHours(Station& s, const std::string& file) {
    Session& session = s.session;
    session.ActivityCount = 0;
    try {
        touch(s.platform.files, file);
        for (const std::string& entry : text::items(s.platform.files.read(file))) {
            session.ActivityHours(session.ActivityCount + 1) = entry;
            ++session.ActivityCount;
        }
    } catch (const RunTimeError&) {
        // A timetable that is gone or too long ends here; what was read holds.
    }
}

int contestDay(std::string_view utcDate, std::string_view startDate) {
    const double ahead = dayOfMonth(utcDate) - dayOfMonth(startDate);
    if (ahead == 1) return 2;
    return ahead == 2 ? 3 : 1;
}

std::string activityCaption(std::span<const std::string> entries, int day, int hour, bool lookForMembers,
                            std::string caption) {
    for (const std::string& entry : entries) {
        if (says(text::columns(entry, 1, 2), day) && says(text::columns(entry, 3, 4), hour))
            caption = captionOf(text::from(entry, 5), lookForMembers);
    }
    return caption == " MHz" ? "Normal" : caption;
}

void Activity(Station& s) {
    LogForm& form = s.forms.frmLog;
    const Session& session = s.session;
    if (!form.menu.mReal.checked()) return;
    const std::string before = form.Text1.caption();
    form.Text1.setBackColour(kActivityColour);
    const bool member = text::upper(text::left(s.PersonalData(personal::Club),
                                               static_cast<int>(kHomeClub.size()))) == kHomeClub;
    const std::vector<std::string> entries(session.ActivityHours.begin(),
                                           session.ActivityHours.begin() + session.ActivityCount);
    const int hour = static_cast<int>(number::valueOf(text::left(session.UTCTime, 2)));
    const std::string after = activityCaption(entries, contestDay(session.UTCDate, session.StartDate), hour,
                                              session.ContestNumber == "1" && member, before);
    form.Text1.setCaption(after);
    if (after != before) tell(s, "Activity hour change:  " + after);
}

void mStartDate_Click(Station& s) {
    LogForm& form = s.forms.frmLog;
    Session& session = s.session;
    const std::string known = session.LogLineCount >= kFirstQsoLine
                                  ? std::string(qso::date(session.LogLines(kFirstQsoLine)))
                                  : std::string();
    std::string answer =
        s.platform.dialogs
            .prompt({std::string("The contest UTC start date is used to initialize Activity") + kCrLf +
                         "Hours. Enter the correct date, or hit <OK> if the date" + kCrLf +
                         "is OK. Make sure the computer`s system date is correct.",
                     "Contest start date", known})
            .value_or("");
    if (answer.empty()) answer = known;
    session.StartDate = answer;
    form.menu.mStartDate.setCaption("Start Date = " + answer);
    if (bandIndex(session, form.tBand.text()) == 0) return form.focus(form.CallS);
    // The band entered as a command brings the entry fields up to date.
    form.CallS.setText(form.tBand.text());
    forms::KeyPress enter{13};
    CallS_KeyPress(s, enter);
}
