// SPDX-License-Identifier: MIT
#include "core/call_commands.h"

#include <functional>
#include <optional>

#include "bandsw/band_change.h"
#include "base/number.h"
#include "base/text.h"
#include "contest/summary.h"
#include "core/accept_prompt.h"
#include "core/call_check.h"
#include "core/delete_qso.h"
#include "core/qso_line.h"
#include "core/say.h"
#include "core/search.h"
#include "grid/heading.h"

namespace {

/// What a test of the chain says of the text: a call, a command that is done, or nothing yet.
enum class Verdict { Call, Done };
using Found = std::optional<Verdict>;

Verdict cleared(Station& s) {
    LogForm& form = s.forms.frmLog;
    form.CallS.setText("");
    form.focus(form.CallS);
    return Verdict::Done;
}

Verdict did(Station& s, const std::function<void()>& effect) {
    s.forms.frmLog.CallS.setText("");
    effect();
    s.forms.frmLog.focus(s.forms.frmLog.CallS);
    return Verdict::Done;
}

Verdict bandChosen(Station& s, int band) {
    s.session.CurrentBand = band;
    showBand(s);
    // The keys leave an empty offset in its place; a command takes it away.
    if (s.forms.frmLog.IfOffSet.caption().empty()) s.forms.frmLog.IfOffSet.hide();
    return Verdict::Done;
}

void recall(Station& s, int line) {
    s.session.CurrentCall = qso::call(s.session.LogLines(line));
    s.forms.frmLog.CallS.setText(s.session.CurrentCall);
}

/// L1 to L4: the last four calls of the log.
Found recallCommand(Station& s, const std::string& text) {
    const bool possible =
        text.size() <= 3 && s.ControlValues(setting::LogView) != "Band" && s.session.LogLineCount >= 5;
    if (!possible || text.size() != 2 || text[0] != 'L' || text[1] < '1' || text[1] > '4')
        return std::nullopt;
    recall(s, s.session.LogLineCount - (text[1] - '1'));
    return Verdict::Call;
}

Found singleCharacter(Station& s, const std::string& text) {
    Session& session = s.session;
    LogForm& form = s.forms.frmLog;
    if (text.size() != 1) return std::nullopt;
    if (text == "B") return did(s, [&] { mBeac_Click(s); });
    if (text == "L" && !session.LastCall.empty()) {
        form.CallS.setText(session.LastCall);
        session.CurrentCall = session.LastCall;
        form.tGrid.setText(session.LastGrid);
        return Verdict::Call;
    }
    if (text == "S") {
        recall(s, session.LogLineCount);
        form.tGrid.setText(qso::grid(session.LogLines(session.LogLineCount)));
        return Verdict::Call;
    }
    return cleared(s);
}

void askForGrid(Station& s) {
    const std::string grid =
        s.platform.dialogs.prompt({"Enter the 4 or 6-digit to calculate heading, distance etc.", "", ""})
            .value_or("");
    if (grid.size() >= 4) CalcSixDigit(s, grid);
}

void togglePartials(Station& s) {
    s.forms.frmLog.partial3D.setChecked(!s.forms.frmLog.partial3D.checked());
    partial3D_Click(s);
}

void showSummary(Station& s) {
    s.forms.frmLog.cmdQSum.setChecked(true);
    cmdQSum_Click(s);
}

Found twoOrThreeCharacters(Station& s, const std::string& text) {
    LogForm& form = s.forms.frmLog;
    if (text.size() < 2 || text.size() > 3) return std::nullopt;
    // The mode is set and the text runs on through the chain, which clears it in the end.
    if (text == "CW" || text == "PH") form.Mode.setText(text);
    if (text == "PC") return did(s, [&] { togglePartials(s); });
    if (text == "GL") return did(s, [&] { askForGrid(s); });
    if (text == "RF") return did(s, [&] { Rfresh_Click(s); });
    if (text == "CL" || text == "MB" || text == "MW") return cleared(s);
    if (text == "SC" && form.Search1.usable()) return did(s, [&] { Search1_Click(s); });
    if (text == "SS") {
        form.CallS.setText("");
        showSummary(s);
        form.focus(form.CallS);
        return Verdict::Done;
    }
    if (text == "SC" && form.Search2.usable()) return did(s, [&] { Search2_Click(s); });
    if (const int band = call::shortBandCommand(text, s.session.ContestNumber)) return bandChosen(s, band);
    return std::nullopt;
}

Found markedText(Station& s, const std::string& text) {
    if (text[0] == '~' && text.size() >= 5) return did(s, [&] { CalcSixDigit(s, text.substr(1)); });
    if (text[0] == '!' && text.size() < 7) return did(s, [&] { CallSearch(s, text.substr(1)); });
    if (text[0] == '`') return cleared(s);
    return std::nullopt;
}

void setSpeed(Station& s, std::string_view figures) {
    const double speed = number::valueOf(figures);
    if (speed > 60) return;
    s.session.CWSpeed = static_cast<int>(speed);
    s.forms.CWSetup.Label15.setCaption(number::toText(std::int64_t{s.session.CWSpeed}));
}

Found twoCharacterCommand(Station& s, const std::string& text) {
    if (text.size() != 2) return std::nullopt;
    if (text == "DL") {
        beep(s);
        return did(s, [&] { DeleteQSO_Click(s); });
    }
    if (text == "KS") return did(s, [&] { mShort_Click(s); });
    if (text == "PZ" || text == "GA") return cleared(s);
    if (const int band = call::bandCommand(text, s.session.ContestNumber)) return bandChosen(s, band);
    return cleared(s);
}

void warnOfDigits(Station& s, const std::string& text) {
    for (int pair = call::pairsOfDigits(text); pair > 0; --pair) {
        beep(s);
        warn(s, text + " has 2 consecutive numerals...  !!!");
    }
}

/// The test of a callsign. Where a text fails, it is gone from the field; `CallOK` tells.
void CheckCall(Station& s) {
    LogForm& form = s.forms.frmLog;
    const std::string text(text::trimRight(form.CallS.text()));
    if (text.size() == 1 || twoCharacterCommand(s, text)) return;
    if (text.empty()) return;
    if (text == "F00" || text == "F000" || text == "F0000") {
        form.CallS.setText("F001");
        form.focus(form.CallS);
        return;
    }
    if (call::isIfCommand(text)) {
        cleared(s);
        return;
    }
    warnOfDigits(s, text);
    if (!form.partial3D.checked() && !call::hasNumeral(text)) {
        beep(s);
        warn(s, text + " has no numeral in correct position... NG !");
        cleared(s);
        return;
    }
    if (text.size() >= 4) s.session.LastCall = text;
    s.session.CallOK = true;
}

bool passesAsCall(Station& s) {
    LogForm& form = s.forms.frmLog;
    s.session.CallOK = false;
    CheckCall(s);
    if (!s.session.CallOK) {
        ClearCallStatus(s);
        return false;
    }
    if (form.CallS.text().size() < 3) {
        cleared(s);
        return false;
    }
    s.session.CurrentCall = text::trim(form.CallS.text());
    return true;
}

}  // namespace

bool isCall(Station& s) {
    const std::string text = s.forms.frmLog.CallS.text();
    if (text.empty()) return false;
    for (const auto test : {recallCommand, singleCharacter, twoOrThreeCharacters, markedText}) {
        if (const Found found = test(s, text)) return found == Verdict::Call;
    }
    if (const int band = call::longBandCommand(text)) {
        bandChosen(s, band);
        return false;
    }
    if (text.size() == 3 && text[0] == 'S') {
        setSpeed(s, text::right(text, 2));
        cleared(s);
        return false;
    }
    return passesAsCall(s);
}

void mBeac_Click(Station& s) {
    LogForm& form = s.forms.frmLog;
    std::vector<std::string> items;
    try {
        items = text::items(s.platform.files.read("Beacon.dat"));
    } catch (const FileError&) {
        return;
    }
    for (std::size_t at = 0; at + 1 < items.size(); at += 2) {
        const std::string& beacon = items[at];
        if (beacon.empty() || beacon.substr(0, beacon.find('.')) != form.tBand.text()) continue;
        s.session.IFOffsetDummy = beacon + " beacon: " + items[at + 1] + " on the dial";
        form.IfOffSet.setCaption(s.session.IFOffsetDummy);
        form.IfOffSet.show();
        return;
    }
}

std::vector<std::string> shortcutLines() {
    return {"Keyboard shortcuts - <Entered> in the call field.",
            "            [] are not typed in",
            "[L1]    last call sign in the log.",
            "[L2]    2nd to-the-last call sign in the log.",
            "[L3]    3nd to-the-last call sign in the log.",
            "[L4]    4rd to-the-last call sign in the log.",
            "Or - click the mouse on a QSO line.",
            "[G]     open the selected grid map.",
            "[B]     beacon`s dial frequency.",
            "[L]     last call sign entered.",
            "[S]     same callsign as the last QSO.",
            "[CW]    change to CW mode.",
            "[PH]    change to Phone mode.",
            "[PC]    toggles `Partials` checkbox = partial calls.",
            "[GL]    input 4,6-digit to calculate heading, distance.",
            "[RF]    refresh log window and external datafiles.",
            "[CL]    toggles the check list screen on/off.",
            "[MB]    toggles club members worked.",
            "[MW]    toggles club members worked.",
            "[SC]    search the log for a callsign.",
            "[SS]    show the score summary.",
            "[~grid] to calculate heading, distance.",
            "[!partial call] search the log/ADIF for partials.",
            "[S##]   CW TX speed to ## wpm.",
            "[DL]    delete last QSO. <Enter> L for last call.",
            "[GA]    input Grid Activity search.",
            "[KS]    view these keyboard shortcuts.",
            "[F###]  output the IF frequency, ex: [F125].",
            "[##]    to change band to new frequency.",
            "<Esc> or click text to close."};
}

void mShort_Click(Station& s) {
    LogForm& form = s.forms.frmLog;
    form.QSummary.setLeft(0);
    form.QSummary.setFontName("Courier New");
    form.QSummary.setItems(shortcutLines());
    form.QSummary.show();
    form.focus(form.CallS);
}

void partial3D_Click(Station& s) {
    LogForm& form = s.forms.frmLog;
    const bool on = form.partial3D.checked();
    form.partial3D.setForeColour(on ? forms::kRed : forms::kBlack);
    form.partial3D.setToolTip(on ? " Un-check this box to use valid callsign check "
                                 : " Check this box to use ADIF partial search - <Enter> 3 char or more ");
    form.focus(form.CallS);
}
