// SPDX-License-Identifier: MIT
#include "setup/settings_on_screen.h"

#include "base/text.h"
#include "contest/contest_table.h"
#include "core/accept_prompt.h"
#include "core/search.h"
#include "keyer/cw_setup.h"

namespace {

const std::string& value(const Station& s, int index) { return s.ControlValues(index); }

bool is(const Station& s, int index, std::string_view text) { return value(s, index) == text; }

bool uses(const Station& s, int index) { return text::upper(text::left(value(s, index), 3)) == "USE"; }

void markBox(forms::CheckBox& box, bool on) {
    box.setChecked(on);
    box.setForeColour(on ? forms::kRed : forms::kBlack);
}

void showAccept(Station& s) {
    std::string& mode = s.ControlValues(setting::AcceptMode);
    if (mode == "Mouse click") mode = kEnterKey;
    s.forms.frmLog.Combo3.setText(mode);
}

void showRecall(Station& s) {
    LogForm& form = s.forms.frmLog;
    if (is(s, setting::LastRoverGrid, "Last Rover Grid")) {
        form.menu.mYesLastGrid.setChecked(true);
        form.menu.mNoLastGrid.setChecked(false);
    }
    std::string& lastCall = s.ControlValues(setting::LoadLastCall);
    if (text::trim(lastCall).empty()) lastCall = "no Last Call";
    markBox(form.LastCall, lastCall == "Last Call");
    form.PCalls.setLeft(0);
    form.PLogSort.setLeft(0);
}

void showFileNames(Station& s) {
    LogMenu& menu = s.forms.frmLog.menu;
    const std::string& call = s.PersonalData(personal::Call);
    menu.mCabrillo.setCaption("Write Cabrillo E-log - " + call + ".log");
    menu.mnonARRL.setCaption("Write ASCII E-log - " + call + ".log");
    menu.mWriteSum.setCaption("Write summary E-file - " + call + ".sum");
    if (!contest::hasSummaryFile(contest::numberOf(s.session.ContestNumber))) return;
    menu.mWriteSum.setCaption("Write summary file - " + call + ".sum");
    menu.mnonARRL.setEnabled(false);
}

void showHardware(Station& s) {
    LogForm& form = s.forms.frmLog;
    const bool printer = is(s, setting::Printer, "1");
    form.fPrinter.setCaption(printer ? "Printer ON" : "Printer OFF");
    markBox(form.fPrinter, printer);
    showCwSwitch(s);
    const bool minutes = text::lower(value(s, setting::ClockDisplay)) == "minutes";
    form.menu.mClockMinutes.setChecked(minutes);
    form.menu.mClockSeconds.setChecked(!minutes);
    markBox(form.cmdDVK, is(s, setting::Dvk, "DVK"));
    form.DVKStatus.setVisible(form.cmdDVK.checked());
}

void showLogWindow(Station& s) {
    LogForm& form = s.forms.frmLog;
    const bool bold = is(s, setting::LogFontBold, "Bold");
    form.QSOs.setFontBold(bold);
    form.menu.m1Blank.setChecked(is(s, setting::PrintLine1, "print1line"));
    form.menu.m2Blank.setChecked(is(s, setting::PrintLine2, "print2lines"));
    form.menu.mRecip.setChecked(is(s, setting::Recip, "Recip"));
    const bool ten = is(s, setting::LogFontSize, "10"), twelve = is(s, setting::LogFontSize, "12");
    form.menu.mFont10.setChecked(ten);
    form.menu.mFont12.setChecked(twelve);
    if (ten) form.QSOs.setFontSize(10);
    if (twelve) form.QSOs.setFontSize(12);
    form.menu.mBoldW.setChecked(bold);
    form.menu.mNormW.setChecked(!bold);
    markBox(form.LogWindow, is(s, setting::LogView, "Band"));
}

void showHelpAndPorts(Station& s) {
    LogMenu& menu = s.forms.frmLog.menu;
    if (is(s, setting::HelpKind, "HTML (chm) Selected")) {
        menu.mHelpSet.setChecked(true);
        menu.mHelpSet.setCaption("HTML (chm) selected");
    }
    if (value(s, setting::LptAddress).empty()) s.ControlValues(setting::LptAddress) = "&H378";
    if (value(s, setting::CwCalibration).empty()) s.ControlValues(setting::CwCalibration) = "100";
}

int mapIndex(std::string_view name) {
    if (name == "East") return 1;
    if (name == "Mid") return 2;
    if (name == "West") return 3;
    if (name == "NA") return 4;
    return name == "All Band East" ? 5 : 0;
}

void showMaps(Station& s) {
    LogMenu& menu = s.forms.frmLog.menu;
    s.session.SelectedMap = mapIndex(value(s, setting::LastMap));
    const std::string& font = value(s, setting::UsMapFont);
    if (font == "7.5" || font == "8" || font == "9")
        menu.rNorthAmer2.setCaption("Map (U.S. font " + font + ")");
    if (is(s, setting::MapFont, "Font10")) {
        menu.mSetPrinterFont.setCaption("Printer Set Font10");
        menu.mSetPrinterFont.setChecked(true);
    }
}

void showLookups(Station& s) {
    LogMenu& menu = s.forms.frmLog.menu;
    const std::string_view master = text::trim(value(s, setting::MasterLookup));
    menu.mMasterCalls.setChecked(master.empty() || text::upper(text::left(master, 3)) == "USE");
    std::string& file = s.ControlValues(setting::MasterFile);
    if (file.empty()) file = "tqn4k.adi";
    menu.mMasterSet.setCaption("Set master adif - " + text::lower(file));
    menu.mYourBands.setChecked(uses(s, setting::YourBands));
}

void toCallField(Station& s) { s.forms.frmLog.focus(s.forms.frmLog.CallS); }

/// Turns a mark over and stores its text.
void toggle(Station& s, forms::MenuItem& item, int setting, const char* on, const char* off) {
    item.setChecked(!item.checked());
    s.ControlValues(setting) = item.checked() ? on : off;
    toCallField(s);
}

}  // namespace

void showSettings(Station& s) {
    showRecall(s);
    showAccept(s);
    showFileNames(s);
    showHardware(s);
    showLogWindow(s);
}

void showLaterSettings(Station& s) {
    showHelpAndPorts(s);
    showMaps(s);
    showLookups(s);
}

void chooseLogFontWeight(Station& s, bool bold) {
    LogForm& form = s.forms.frmLog;
    form.menu.mBoldW.setChecked(bold);
    form.menu.mNormW.setChecked(!bold);
    s.ControlValues(setting::LogFontBold) = bold ? "Bold" : "Normal";
    form.QSOs.setFontBold(bold);
    Rfresh_Click(s);
    toCallField(s);
}

void chooseLogFontSize(Station& s, bool large) {
    LogForm& form = s.forms.frmLog;
    form.menu.mFont10.setChecked(!large);
    form.menu.mFont12.setChecked(large);
    s.ControlValues(setting::LogFontSize) = large ? "12" : "10";
    form.QSOs.setFontSize(large ? 12 : 10);
    Rfresh_Click(s);
    toCallField(s);
}

void mRecip_Click(Station& s) { toggle(s, s.forms.frmLog.menu.mRecip, setting::Recip, "Recip", "no Recip"); }

void mYourBands_Click(Station& s) {
    toggle(s, s.forms.frmLog.menu.mYourBands, setting::YourBands, "Use your Bands", "Don`t use your Bands");
}

void mMasterCalls_Click(Station& s) {
    toggle(s, s.forms.frmLog.menu.mMasterCalls, setting::MasterLookup, "Use Master file",
           "Don`t use Master file");
}

void LastCall_Click(Station& s) {
    forms::CheckBox& box = s.forms.frmLog.LastCall;
    box.setForeColour(box.checked() ? forms::kRed : forms::kBlack);
    s.ControlValues(setting::LoadLastCall) = box.checked() ? "Last Call" : "no Last Call";
    toCallField(s);
}

void chooseDupePrompt(Station& s, bool shown) {
    s.forms.frmLog.menu.mShowDupe.setChecked(shown);
    s.forms.frmLog.menu.mDontShow.setChecked(!shown);
    toCallField(s);
}

void chooseLastGrid(Station& s, bool kept) {
    LogMenu& menu = s.forms.frmLog.menu;
    menu.mYesLastGrid.setChecked(kept);
    menu.mNoLastGrid.setChecked(!kept);
    s.ControlValues(setting::LastRoverGrid) = kept ? "Last Rover Grid" : "No Rover Grid";
    toCallField(s);
}

void Mode_Change(Station& s) {
    forms::ComboBox& mode = s.forms.frmLog.Mode;
    if (text::trim(mode.text()).empty()) mode.setText("PH");
    mode.setText(text::left(mode.text(), 2));
}

void Mode_LostFocus(Station& s) {
    forms::ComboBox& mode = s.forms.frmLog.Mode;
    if (mode.text().size() < 2) mode.setText("PH");
    mode.setText(text::left(mode.text(), 2));
}
