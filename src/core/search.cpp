// SPDX-License-Identifier: MIT
#include "core/search.h"

#include "base/number.h"
#include "base/text.h"
#include "contest/activity.h"
#include "contest/scoring.h"
#include "core/dupe_check.h"
#include "core/log_file.h"
#include "core/qso_line.h"
#include "core/say.h"
#include "lookup/lookups.h"
#include "lookup/master_file.h"

namespace {

bool bandView(const Station& s) { return s.ControlValues(setting::LogView) == "Band"; }

void refill(Station& s) {
    LogForm& form = s.forms.frmLog;
    if (s.session.LogLineCount == 0) return;
    std::vector<std::string> rows;
    for (int line = kFirstQsoLine; line <= s.session.LogLineCount; ++line) {
        const std::string& text = s.session.LogLines(line);
        if (!bandView(s) || qso::band(text) == form.tBand.text()) rows.push_back(text);
    }
    form.QSOs.setItems(std::move(rows));
    form.QSOs.select(form.QSOs.listCount() - 1);
}

}  // namespace

void RefillLogWindow(Station& s) {
    try {
        refill(s);
    } catch (const RunTimeError&) {
        warn(s, "Check the .LGG file format...\n    Is it a TARQEN v2.0 or higher log file ?");
        endProgram();
    }
}

void Rfresh_Click(Station& s) {
    if (!bandView(s)) RefreshLogCount(s);
    RefillLogWindow(s);
    getScore(s);
    if (s.forms.frmLog.menu.mReal.checked() && s.session.ContestNumber == "1") {
        loadActivityHours(s, "ACTIVITY.DAT");
        Activity(s);
    }
    try {
        rereadSixDigit(s);
    } catch (const FileError&) {
        // A lookup that is gone leaves the station unknown, and nothing else.
    }
}

void LogWindow_Click(Station& s) {
    LogForm& form = s.forms.frmLog;
    const bool byBand = form.LogWindow.checked();
    s.ControlValues(setting::LogView) = byBand ? "Band" : "Log";
    form.LogWindow.setForeColour(byBand ? forms::kRed : forms::kBlack);
    RefillLogWindow(s);
    form.focus(form.CallS);
}

void QSOs_Click(Station& s) {
    LogForm& form = s.forms.frmLog;
    if (bandView(s)) {
        form.focus(form.CallS);
        return;
    }
    // Before the first QSO the window holds hints, which name no station.
    const std::string line = s.session.LogLineCount < kFirstQsoLine ? std::string() : form.QSOs.content();
    s.session.CurrentCall = qso::call(line);
    form.CallS.setText(s.session.CurrentCall);
    form.tGrid.setText(qso::grid(line));
    form.Heading.hide();
    form.Worked.clear();
    form.NeedBands.clear();
    DupeCheck(s);
    if (form.focused() == &form.QSOs) form.focus(form.CallS);
}

std::string searchRow(std::string_view line) {
    const std::string when =
        std::string(text::left(qso::date(line), 5)) + " at " + std::string(qso::time(line));
    const std::string call(qso::call(line)), band(qso::band(line));
    if (qso::isDupe(line)) return call + " on " + band + " -- " + when + " dupe, 0 pts.";
    return call + "  " + std::string(qso::square(line)) + " on " + band + " -- " + when;
}

namespace {

/// A search empties the call field: a QSO that waits there must not be logged without its call on the screen.
void dropWaitingQso(Station& s) {
    s.forms.frmLog.cUpdate.hide();
    s.forms.frmLog.Query.hide();
}

void openResults(Station& s) {
    LogForm& form = s.forms.frmLog;
    form.PLogSort.clear();
    form.PLogSort.setLeft(0);
}

void addResult(Station& s, const std::string& row) {
    s.forms.frmLog.PLogSort.show();
    s.forms.frmLog.PLogSort.add(row);
}

void offerFreeSearch(Station& s) {
    LogForm& form = s.forms.frmLog;
    form.focus(form.CallS);
    form.Search1.hide();
    form.Search2.show();
}

}  // namespace

void Search1_Click(Station& s) {
    LogForm& form = s.forms.frmLog;
    dropWaitingQso(s);
    openResults(s);
    form.CallS.setText("");
    for (int line = kFirstQsoLine; line <= s.session.LogLineCount; ++line) {
        const std::string& text = s.session.LogLines(line);
        if (text::startsWith(text::from(text, 27), s.session.LastCall)) addResult(s, searchRow(text));
    }
    offerFreeSearch(s);
}

void Search2_Click(Station& s) {
    LogForm& form = s.forms.frmLog;
    dropWaitingQso(s);
    form.CallS.setText("");
    form.PLogSort.hide();
    form.PLogSort.clear();
    const std::string gap = std::string(kCrLf) + kCrLf;
    const std::string wanted = text::upper(
        s.platform.dialogs
            .prompt({"Enter call {or partial} to search for." + gap + "Must be at least 2 characters..." +
                         gap + "Call sign KB shortcut = SC  or   ! + call ex: !K8G !8GU",
                     " Call Sign Search", s.session.CurrentCall})
            .value_or(""));
    if (wanted.empty()) {
        form.focus(form.CallS);
        return;
    }
    CallSearch(s, wanted);
}

void CallSearch(Station& s, const std::string& wanted) {
    LogForm& form = s.forms.frmLog;
    dropWaitingQso(s);
    form.CallS.setText("");
    form.PLogSort.hide();
    openResults(s);
    if (wanted.empty()) return;
    for (int line = kFirstQsoLine; line <= s.session.LogLineCount; ++line) {
        const std::string& text = s.session.LogLines(line);
        if (text::contains(text::from(text, 27), wanted)) addResult(s, searchRow(text));
    }
    if (text::lower(text::left(s.ControlValues(setting::MasterLookup), 3)) == "use") {
        for (const std::string& row : master::callRows(master::content(s), wanted)) addResult(s, row);
    }
    form.focus(form.CallS);
}

namespace {

void searchLogForPart(Station& s, const std::string& part) {
    LogForm& form = s.forms.frmLog;
    bool found = false;
    for (int line = kFirstQsoLine; line <= s.session.LogLineCount; ++line) {
        const std::string& text = s.session.LogLines(line);
        if (!text::contains(text::from(text, 27), part)) continue;
        if (!found) {
            form.PCalls.setItems({"Partial Call:  " + part, " "});
            form.PCalls.show();
            found = true;
        }
        form.PCalls.add(std::string(qso::call(text)) + " worked on " + std::string(qso::band(text)));
    }
}

void searchLogsortForPart(Station& s, const std::string& part) {
    std::vector<std::string> items;
    try {
        items = text::items(s.platform.files.read("LOGSORT.DAT"));
    } catch (const FileError&) {
        return;
    }
    for (std::size_t at = 0; at + 2 < items.size(); at += 3) {
        if (text::contains(items[at], part)) addResult(s, items[at] + "     " + items[at + 1]);
    }
}

}  // namespace

void PartialSearch(Station& s) {
    LogForm& form = s.forms.frmLog;
    const std::string part = form.CallS.text();
    form.PCalls.setLeft(0);
    searchLogForPart(s, part);
    form.PLogSort.setItems({"Partial Call:  " + part, " "});
    searchLogsortForPart(s, part);
    if (qso::endsInRover(part) || !form.menu.mMasterCalls.checked()) return;
    const std::string content = master::content(s);
    for (const std::string& row : master::partialRows(content, part)) {
        addResult(s, row);
        s.platform.windows.pump();
        if (form.CallS.text() != part) return;
    }
}
