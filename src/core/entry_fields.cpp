// SPDX-License-Identifier: MIT
#include "core/entry_fields.h"

#include <array>

#include "base/text.h"
#include "core/accept.h"
#include "core/accept_prompt.h"
#include "core/call_commands.h"
#include "core/dupe_check.h"
#include "core/grid_format.h"
#include "core/log_file.h"
#include "core/qso_line.h"
#include "core/say.h"
#include "core/search.h"
#include "grid/heading.h"

namespace {

constexpr int kEnter = 13, kSpace = 32;

bool refusedInCall(int code) {
    constexpr std::array<int, 12> kCodes{9, 34, 39, 44, 45, 46, 59, 61, 91, 92, 93, 96};
    for (const int refused : kCodes) {
        if (code == refused) return true;
    }
    return false;
}

/// As in the call field, but a slash is refused and a double quote is let through.
bool refusedInGrid(int code) { return code == 47 || (code != 34 && refusedInCall(code)); }

bool entersData(int code) { return code == kEnter || code == kSpace; }

/// Headers without a QSO are no log: the file goes, and the count begins anew.
void dropEmptyLog(Station& s) {
    Files& files = s.platform.files;
    const std::string& log = s.session.LogFileName;
    const auto removeIfEmpty = [&files](const std::string& name) {
        if (files.exists(name) && holdsNoQso(files, name)) files.remove(name);
    };
    try {
        if (files.exists(log) && !holdsNoQso(files, log)) return RefreshLogCount(s);
        removeIfEmpty(log);
        s.session.LogLineCount = 0;
        if (backupOn(s)) removeIfEmpty(backupName(s));
    } catch (const FileError& error) {
        tellFileFault(s, "Error. A log file without QSOs can't be removed:", error,
                      "Mend the folder and go on.");
    }
}

void enterCallField(Station& s) {
    LogForm& form = s.forms.frmLog;
    if (s.session.LogLineCount == 2) dropEmptyLog(s);
    form.cUpdate.hide();
    form.Heading.hide();
    if (form.CallS.text().empty()) {
        s.session.DupeCheckDone = false;
        return;
    }
    s.session.LookupHit = 0;
    form.CallS.setText(text::upper(text::trim(form.CallS.text())));
    if (isCall(s)) enterCall(s);
}

}  // namespace

void CallS_KeyPress(Station& s, forms::KeyPress& key) {
    LogForm& form = s.forms.frmLog;
    form.Query.hide();
    s.session.DupeCheckDone = false;
    ClearCallStatus(s);
    form.Label6.setBackColour(kLightYellow);
    if (refusedInCall(key.code)) {
        beep(s);
        key.swallowed = true;
        return;
    }
    // The hints stand in the log window until the first key of an empty log.
    if (s.session.LogLineCount == 0) form.QSOs.clear();
    if (key.code == kSpace && form.CallS.text().size() < 3) {
        key.swallowed = true;
        return;
    }
    if (!entersData(key.code)) return;
    key.swallowed = true;
    enterCallField(s);
}

void CallS_GotFocus(Station& s) {
    LogForm& form = s.forms.frmLog;
    form.Label5.setBackColour(kLightGreen);
    form.Label4.setBackColour(forms::kRed);
    form.Label7.setBackColour(kLightGreen);
}

void enterCall(Station& s) {
    LogForm& form = s.forms.frmLog;
    form.Worked.clear();
    form.NeedBands.clear();
    form.WorkCall.hide();
    DupeCheck(s);
    if (form.CallS.text().size() < 3) {
        form.focus(form.CallS);
        return;
    }
    const bool gridKnown = !form.tGrid.text().empty();
    if (form.CallS.text().size() < 6 && form.partial3D.checked() && s.session.LookupHit == 0) {
        const std::string call = form.CallS.text();
        PartialSearch(s);
        // Keys run during the long search; an Esc there has taken the entry back.
        if (form.CallS.text() != call) return;
    }
    // A grid that the operator began to type during the search is not yet one.
    if (gridKnown) {
        s.session.GridEntered = true;
        QueryState(s);
        if (!autoAccept(s)) return;
    }
    form.focus(form.tGrid);
}

namespace {

void warnOfBadGrid(Station& s, const std::string& grid) {
    Files& files = s.platform.files;
    touch(files, "ckgrid.dat");
    for (const std::string& line : text::lines(files.read("ckgrid.dat"))) {
        if (line != text::left(grid, 4)) continue;
        warn(
            s,
            grid + " is in the [ckgrid.dat] data file." + kCrLf + kCrLf + " Verify that this is a good grid.",
            " Check grid !");
    }
}

void enterGridField(Station& s) {
    LogForm& form = s.forms.frmLog;
    form.tGrid.setText(text::upper(text::trim(form.tGrid.text())));
    form.Heading.show();
    CalcSixDigit(s, form.tGrid.text());
    form.tGrid.setText(qso::subSquareForm(form.tGrid.text()));
    if (form.tGrid.text().empty() || form.CallS.text().size() < 3) {
        form.cUpdate.hide();
        if (form.CallS.text().size() >= 3) form.focus(form.tGrid);
        return;
    }
    s.session.CurrentCall = text::upper(text::trim(form.CallS.text()));
    if (form.tGrid.text().size() < 4) {
        form.tGrid.setText("");
        form.cUpdate.hide();
        // The calculation took the focus to the call field; the grid is still wanted.
        form.focus(form.tGrid);
        return;
    }
    CheckGridFormat(s);
    try {
        warnOfBadGrid(s, form.tGrid.text());
    } catch (const FileError& error) {
        tellFileFault(s, "Error. The list of grids to be checked can't be used:", error,
                      "The QSO goes on without the check.");
    }
    s.session.GridEntered = true;
    QueryState(s);
    // A mode that is none of the two leads to the accept as well, which says so.
    if (s.ControlValues(setting::AcceptMode) != kEnterKey) cUpDate_Click(s);
}

}  // namespace

void tGrid_KeyPress(Station& s, forms::KeyPress& key) {
    if (refusedInGrid(key.code)) {
        beep(s);
        key.swallowed = true;
        return;
    }
    if (!entersData(key.code)) return;
    key.swallowed = true;
    enterGridField(s);
}

void tGrid_GotFocus(Station& s) {
    LogForm& form = s.forms.frmLog;
    if (!form.CallS.text().empty() && !s.session.DupeCheckDone) DupeCheck(s);
    // A dupe that was declined has sent the focus back.
    if (form.focused() != &form.tGrid) return;
    form.Label5.setBackColour(forms::kRed);
    form.Label4.setBackColour(kLightGreen);
    form.Label7.setBackColour(kLightGreen);
}

void ResetQSO(Station& s) {
    LogForm& form = s.forms.frmLog;
    // Whatever waits runs first, so that Esc takes effect on the lines before the screen is cleared.
    for (int turn = 0; turn < 3; ++turn) s.platform.windows.pump();
    ClearCallStatus(s);
    form.CallS.setText("");
    form.tGrid.setText("");
    form.focus(form.CallS);
    form.Timer6.stop();
    s.session.TXActive = 0;
    s.session.CWCancel = 1;
    form.QSummary.clear();
    form.QSummary.hide();
    form.cmdQSum.setChecked(false);
    form.cmdQSum.setForeColour(forms::kBlack);
    form.CList.clear();
    form.CList.hide();
    form.Search1.hide();
    form.Search2.show();
    form.Heading.setCaption("");
}
