// SPDX-License-Identifier: MIT
#include "keyer/calibration.h"

#include <cmath>
#include <limits>
#include <optional>

#include "base/number.h"
#include "base/text.h"
#include "core/say.h"
#include "keyer/lines.h"
#include "keyer/sender.h"

namespace {

constexpr int kSpeed = 30, kMostFurtherWords = 12, kTop = 4870;
/// The word is 51 dots long as it is timed, each 40 ms at this speed.
constexpr double kWordSeconds = 51 * 0.040;
constexpr double kPauseSeconds = 1.0, kSecondsOfADay = 86400;
/// The run doesn't key the rig: it works on a register beyond that of the key.
constexpr int kBeyond = 2;

std::string timeOfDay(const DateTime& now) {
    return text::digits(now.hour, 2) + ":" + text::digits(now.minute, 2) + ":" + text::digits(now.second, 2);
}

float secondsNow(Station& s) { return static_cast<float>(s.platform.clock.secondsSinceMidnight()); }

void waitWithoutEvents(Station& s) {
    Clock& clock = s.platform.clock;
    const double start = clock.secondsSinceMidnight();
    for (double passed = 0; passed < kPauseSeconds;) {
        clock.idle(kPauseSeconds - passed);
        const double now = clock.secondsSinceMidnight();
        passed = now - start + (now < start ? kSecondsOfADay : 0);
    }
}

void showPass(Station& s, int pass, double ratio) {
    TransmitForm& form = s.forms.frmTX;
    if (pass == 0) return form.Label2.setCaption("TX Speed calibration @ 30 wpm");
    form.Label2.setCaption("Cal: " + number::toText(pass) +
                           "    delta = " + number::toText(keyer::deviationPercent(ratio)) + " %");
    form.Label3.setCaption(timeOfDay(s.platform.clock.local()));
}

/// What is shown meanwhile is how the run goes. The length of the word in parts of what it should be; nothing
/// where the operator stopped it.
std::optional<double> timedWord(Station& s, int address) {
    const Keying keying(s.platform.delay);
    Sending sending;
    sending.address = address;
    sending.timing = CWTiming(s);
    s.session.CWBuffer = "PARIS";
    const float start = secondsNow(s);
    if (sendBuffer(s, sending, nullptr) == Sent::Cancelled) return std::nullopt;
    // The last gap belongs to the word.
    s.platform.delay.settle();
    const double ratio = static_cast<double>(secondsNow(s) - start) / kWordSeconds;
    return ratio == 0 ? 0.1 : ratio;
}

void calibrate(Station& s) {
    const int address = s.session.PortAddress + kBeyond;
    double ratio = 0;
    for (int pass = 0; pass <= kMostFurtherWords; ++pass) {
        showPass(s, pass, ratio);
        waitWithoutEvents(s);
        const auto measured = timedWord(s, address);
        if (!measured) return;
        ratio = *measured;
        if (keyer::isCalibrated(ratio)) return;
        s.session.CWLoopConstant = keyer::calibratedConstant(s.session.CWLoopConstant, ratio);
    }
}

}  // namespace

namespace keyer {

bool isCalibrated(double ratio) { return ratio > 0.96 && ratio < 1.04; }

int calibratedConstant(int loopConstant, double ratio) {
    const double constant = std::floor(loopConstant / ratio);
    if (!(std::fabs(constant) <= std::numeric_limits<std::int32_t>::max())) throw overflowError();
    return constant < 1 ? 1 : static_cast<int>(constant);
}

double deviationPercent(double ratio) { return std::floor((1 - ratio) * 10000) / 100; }

}  // namespace keyer

void cmdCal_Click(Station& s) {
    Session& session = s.session;
    TransmitForm& form = s.forms.frmTX;
    CwSetupForm& setup = s.forms.CWSetup;
    setup.cmdOK.setEnabled(false);
    form.setTop(kTop);
    form.show();
    form.Frame3D1.setCaption("CW Transmit Calibration Routine @ 30 wpm");
    form.Label3.show();
    const Int16 speed = session.CWSpeed;
    session.CWSpeed = kSpeed;
    session.CWCancel = 0;
    s.forms.frmLog.Timer1.stop();
    std::string fault;
    try {
        calibrate(s);
        session.CWSpeed = speed;
        CWTiming(s);
    } catch (const RunTimeError& error) {
        fault = error.what();
    }
    session.CWSpeed = speed;
    if (!fault.empty()) tell(s, fault);
    setup.cmdOK.setEnabled(true);
    form.hide();
    form.setTop(0);
    s.forms.frmLog.Timer1.start();
}
