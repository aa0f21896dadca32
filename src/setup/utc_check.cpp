// SPDX-License-Identifier: MIT
#include "setup/utc_check.h"

#include "base/number.h"
#include "base/text.h"
#include "core/accept_prompt.h"
#include "core/say.h"
#include "setup/control_file.h"
#include "setup/utc_clock.h"

int hoursToUtc(int utcHour, int localHour) {
    const int difference = utcHour - localHour;
    if (difference < -12) return difference + 24;
    return difference > 12 ? difference - 24 : difference;
}

namespace {

std::string offsetQuestion(double stored, int reported) {
    const std::string end = kCrLf, hours = number::toText(reported);
    return "The UTC offset in your ini file of [ " + number::toText(stored) + " hrs ] is different than" +
           end + "the [ " + hours + " hrs ] reported by your PC`s Time Zone setup." + end + end +
           "Click {OK} to change the offset to [ " + hours + " hrs ]." + end + end +
           "Or - Click {Cancel} to use your own offset." + end +
           "Your own offset can only be in 0.5 hour increments.";
}

/// True where the offset of the machine is to be stored.
bool takeMachinesOffset(Station& s, int reported) {
    const double stored = number::valueOf(s.ControlValues(setting::UtcOffset));
    if (stored == reported) return true;
    return s.platform.dialogs.message({offsetQuestion(stored, reported), " Check the UTC Offset...",
                                       Icon::None, Buttons::OkCancel, Answer::Ok}) == Answer::Ok;
}

int machinesOffset(Station& s) {
    const auto hour = [](const std::string& time) { return number::wholeOf(text::left(time, 2)); };
    return hoursToUtc(hour(GetUtcClockText(s)), hour(timeText(s.platform.clock.local())));
}

void prepareSettings(Station& s) {
    SetupForm& form = s.forms.frmSetup;
    Settings& values = s.ControlValues;
    if (values(setting::AcceptMode) == "[Enter] key") values(setting::AcceptMode) = kEnterKey;
    if (text::trim(values(setting::BackupPath)).empty()) values(setting::BackupPath) = "OFF";
    form.Combo1.present(values(setting::BackupPath));
    form.Combo14.present(values(setting::BandsToWork));
    form.Combo15.present(values(setting::Offsets));
    form.Combo17.present(values(setting::SixDigit));
    form.Combo19.present(values(setting::ActivityDisplay));
    form.Combo20.present(values(setting::DistanceUnit));
    s.forms.CWSetup.repeatDelay.present(values(setting::CwRepeatTime));
    s.forms.UTCfrm.load();
    s.forms.UTCfrm.Offset.setText(values(setting::UtcOffset));
    if (values(setting::CwPort) == "0" || values(setting::CwPort).empty()) values(setting::CwPort) = "1";
    if (values(setting::SixDigit) == "Six-Digit") {
        form.Combo20.setEnabled(true);
        values(setting::RoverPrompts) = "Yes";
    }
}

}  // namespace

void CheckUtcOffset(Station& s) {
    Session& session = s.session;
    std::string& offset = s.ControlValues(setting::UtcOffset);
    session.AppPath = s.platform.files.path("");
    ReadControlFile(s);
    if (offset.empty()) offset = "4";
    const int reported = machinesOffset(s);
    session.SetupLoaded = -1;
    if (session.UtcCheckDone != "1") {
        if (takeMachinesOffset(s, reported)) offset = number::toText(reported);
        session.UtcCheckDone = "1";
    }
    prepareSettings(s);
}
