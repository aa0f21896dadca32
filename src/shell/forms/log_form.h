// SPDX-License-Identifier: MIT
#pragma once

#include "shell/forms/controls.h"
#include "shell/forms/form.h"
#include "shell/forms/log_menu.h"

/// The main form: entry fields, bands, lists, score, clock and log. Its order is the tab order.
struct LogForm : forms::Form {
    explicit LogForm(forms::Screen& screen);

    forms::TextBox CallS{*this, "CallS"};
    forms::TextBox tGrid{*this, "tGrid"};
    forms::Button cUpdate{*this, "cUpdate", "Log QSO"};
    forms::ComboBox Combo3{*this, "Combo3"};
    forms::ComboBox Mode{*this, "Mode"};
    forms::TextBox tBand{*this, "tBand"};
    forms::ListBox Bands{*this, "Bands"};
    forms::ListBox Worked{*this, "Worked"};
    forms::ListBox NeedBands{*this, "NeedBands"};
    forms::Button Search1{*this, "Search1", "Search"};
    forms::Button Search2{*this, "Search2", "Search call"};
    forms::Button Rfresh{*this, "Rfresh", "Refresh"};
    forms::Button DeleteQSO{*this, "DeleteQSO", "Delete last QSO"};
    forms::Button ChangeFile{*this, "ChangeFile", "Log editor"};
    forms::CheckBox cmdQSum{*this, "cmdQSum", "Summary"};
    forms::Button cmdPLL{*this, "cmdPLL", "PLL"};
    forms::CheckBox LastCall{*this, "LastCall", "Last call"};
    forms::CheckBox partial3D{*this, "partial3D", "Partials"};
    forms::CheckBox LogWindow{*this, "LogWindow", "By band"};
    forms::CheckBox cmdCkOK{*this, "cmdCkOK", "CW"};
    forms::CheckBox cmdDVK{*this, "cmdDVK", "DVK"};
    forms::CheckBox fPrinter{*this, "fPrinter", "Printer OFF"};
    forms::ListBox QSOs{*this, "QSOs"};
    // These four lie over the log while they have something to show.
    forms::ListBox PCalls{*this, "PCalls"};
    forms::ListBox PLogSort{*this, "PLogSort"};
    forms::ListBox QSummary{*this, "QSummary"};
    forms::ListBox CList{*this, "CList"};

    forms::Label Query{*this, "Query"};
    forms::Label Label2{*this, "Label2", "Mode"};
    forms::Label Label4{*this, "Label4", "Grid"};
    forms::Label Label5{*this, "Label5", "Call"};
    forms::Label Label6{*this, "Label6", "New grid"};
    forms::Label Label7{*this, "Label7", "Band"};
    forms::Label Label13{*this, "Label13", "Score"};
    forms::Label Label18{*this, "Label18", "Needed"};
    forms::Label Label20{*this, "Label20", "Activity"};
    forms::Label Label21{*this, "Label21", "Alarm"};
    forms::Label Label23{*this, "Label23", "QSO accept"};
    forms::Label NewGrid{*this, "NewGrid"};
    forms::Label Heading{*this, "Heading"};
    forms::Label WorkCall{*this, "WorkCall"};
    forms::Label Name1{*this, "Name1"};
    forms::Label UTCTime{*this, "UTCTime"};
    forms::Label tDate{*this, "tDate"};
    forms::Label Alarm{*this, "Alarm", "Alarm"};
    forms::Label Text1{*this, "Text1"};
    forms::Label IfOffSet{*this, "IfOffSet"};
    forms::Label UsingBand{*this, "UsingBand"};
    forms::Label Freq{*this, "Freq"};
    forms::Label QSO{*this, "QSO"};
    forms::Label Grid{*this, "Grid"};
    forms::Label tQSOs{*this, "tQSOs"};
    forms::Label tGridTotal{*this, "tGridTotal"};
    forms::Label tScore{*this, "tScore"};
    forms::Label QsoRat{*this, "QsoRat"};
    forms::Label cSignText{*this, "cSignText"};
    forms::Label ContName{*this, "ContName"};
    forms::Label DOSFile{*this, "DOSFile"};
    forms::Label DVKStatus{*this, "DVKStatus", "DVK Normal"};

    forms::Timer Timer1{*this, "Timer1", 1000};
    forms::Timer Timer2{*this, "Timer2", 1000, false};
    forms::Timer Timer4{*this, "Timer4", 1000, false};
    forms::Timer Timer5{*this, "Timer5", 1000, false};
    forms::Timer Timer6{*this, "Timer6", 1000, false};

    LogMenu menu{*this};
};
