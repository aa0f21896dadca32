// SPDX-License-Identifier: MIT
#pragma once

#include "shell/forms/controls.h"

/// The menu bar of the main form, in the order of the bar, with the captions of a program just started.
struct LogMenu {
    explicit LogMenu(forms::Form& owner) : form(owner) {
        mdupes.hide();
        mnuPopUp.hide();
        mReal.setChecked(true);
        mShowDupe.setChecked(true);
        mNoLastGrid.setChecked(true);
        mClockSeconds.setChecked(true);
        mCWSet.setEnabled(false);
        mMorse.setEnabled(false);
    }

    forms::Form& form;
    forms::MenuItem ffile{form, "ffile", nullptr, "File"};
    forms::MenuItem mViewBU{form, "mViewBU", &ffile, "Backup drive\\path"};
    forms::MenuItem dummy1{form, "dummy1", &ffile, "-"};
    forms::MenuItem cmdExit{form, "cmdExit", &ffile, "Exit"};

    forms::MenuItem rView{form, "rView", nullptr, "View"};
    forms::MenuItem mBeac{form, "mBeac", &rView, "Beacon Frequency"};
    forms::MenuItem rCkList{form, "rCkList", &rView, "Check List"};
    forms::MenuItem mGAct{form, "mGAct", &rView, "Grid Activity"};
    forms::MenuItem mMenuSum{form, "mMenuSum", &rView, "Menu Summary"};
    forms::MenuItem mMemsWrkd{form, "mMemsWrkd", &rView, "Members worked"};
    forms::MenuItem dummy2{form, "dummy2", &rView, "-"};
    forms::MenuItem mBoldW{form, "mBoldW", &rView, "QSOs - Bold"};
    forms::MenuItem mNormW{form, "mNormW", &rView, "QSOs - Normal"};
    forms::MenuItem mFont10{form, "mFont10", &rView, "QSOs - font 10"};
    forms::MenuItem mFont12{form, "mFont12", &rView, "QSOs - font 12"};
    forms::MenuItem dummy3{form, "dummy3", &rView, "-"};
    forms::MenuItem mShort{form, "mShort", &rView, "Shortcuts"};
    forms::MenuItem mRecip{form, "mRecip", &rView, "Show Recip"};
    forms::MenuItem mShowLoaded{form, "mShowLoaded", &rView, "Show loaded files"};
    forms::MenuItem mYourBands{form, "mYourBands", &rView, "Use your Bands needed"};
    forms::MenuItem mMasterCalls{form, "mMasterCalls", &rView, "Use master lookup file"};
    forms::MenuItem mMasterSet{form, "mMasterSet", &rView, "Set master adif - tqn4k.adi"};

    forms::MenuItem menuView{form, "menuView", nullptr, "Grids"};
    forms::MenuItem rGridMap{form, "rGridMap", &menuView, "Map (East)"};
    forms::MenuItem rGMidMap{form, "rGMidMap", &menuView, "Map (Mid)"};
    forms::MenuItem tGWMap{form, "tGWMap", &menuView, "Map (West)"};
    forms::MenuItem rNorthAmer2{form, "rNorthAmer2", &menuView, "Map (U.S. font 8)"};
    forms::MenuItem rAllGrids{form, "rAllGrids", &menuView, "All Bands (East)"};

    forms::MenuItem mnuOption1{form, "mnuOption1", nullptr, "Printer"};
    forms::MenuItem pCheck{form, "pCheck", &mnuOption1, "Alpha Check Sheets"};
    forms::MenuItem pAllCheck{form, "pAllCheck", &pCheck, "Print All Check Sheets"};
    forms::MenuItem pOneCheck{form, "pOneCheck", &pCheck, "Print Check Sheet (1 band)"};
    forms::MenuItem pSummary{form, "pSummary", &mnuOption1, "Print Summary"};
    forms::MenuItem pLogs{form, "pLogs", &mnuOption1, "Print Log"};
    forms::MenuItem pAllLogs{form, "pAllLogs", &pLogs, "Print Log by Bands"};
    forms::MenuItem p1Band{form, "p1Band", &pLogs, "Print Log (1 band)"};
    forms::MenuItem pLogOrder{form, "pLogOrder", &pLogs, "Print Log (Entry order)"};
    forms::MenuItem mPrRats{form, "mPrRats", &mnuOption1, "Print Club Members"};
    forms::MenuItem mMorse{form, "mMorse", &mnuOption1, "Print CW Setup"};
    forms::MenuItem pEquipList{form, "pEquipList", &mnuOption1, "Print Equip List"};
    forms::MenuItem pGridList{form, "pGridList", &mnuOption1, "Print Grid List"};
    forms::MenuItem pQSORate{form, "pQSORate", &mnuOption1, "Print QSO rate"};
    forms::MenuItem dummy4{form, "dummy4", &mnuOption1, "-"};
    forms::MenuItem mSetPrinterFont{form, "mSetPrinterFont", &mnuOption1, "Printer Set Font12"};
    forms::MenuItem m1Blank{form, "m1Blank", &mnuOption1, "1 blank line, top of page"};
    forms::MenuItem m2Blank{form, "m2Blank", &mnuOption1, "2 blank lines, top of page"};
    forms::MenuItem pFormFeed{form, "pFormFeed", &mnuOption1, "Form Feed"};

    forms::MenuItem LogF{form, "LogF", nullptr, "Log"};
    forms::MenuItem fBackup{form, "fBackup", &LogF, "Manually Save BU file"};
    forms::MenuItem mCabrillo{form, "mCabrillo", &LogF, "Write Cabrillo format"};
    forms::MenuItem mnonARRL{form, "mnonARRL", &LogF, "Write non-ARRL"};
    forms::MenuItem mWritegrids{form, "mWritegrids", &LogF, "Write grids file"};
    forms::MenuItem mWriteSum{form, "mWriteSum", &LogF, "Write summary"};
    forms::MenuItem mADIF{form, "mADIF", &LogF, "Export ADIF file"};
    forms::MenuItem dummy5{form, "dummy5", &LogF, "-"};
    forms::MenuItem mReal{form, "mReal", &LogF, "Real Time"};
    forms::MenuItem mPost{form, "mPost", &LogF, "Post Contest"};
    forms::MenuItem dummy6{form, "dummy6", &LogF, "-"};
    forms::MenuItem mShowDupe{form, "mShowDupe", &LogF, "Show /R /M dupe"};
    forms::MenuItem mDontShow{form, "mDontShow", &LogF, "Don't show /R /M dupe"};
    forms::MenuItem dummy7{form, "dummy7", &LogF, "-"};
    forms::MenuItem mNoLastGrid{form, "mNoLastGrid", &LogF, "Don't Insert last Grid"};
    forms::MenuItem mYesLastGrid{form, "mYesLastGrid", &LogF, "Insert last Rover Grid"};

    forms::MenuItem mInitHelp{form, "mInitHelp", nullptr, "Help"};
    forms::MenuItem mHelp{form, "mHelp", &mInitHelp, "Contents"};
    forms::MenuItem fAbout{form, "fAbout", &mInitHelp, "About..."};
    forms::MenuItem mHelpSet{form, "mHelpSet", &mInitHelp, "Default - WinHelp32"};

    forms::MenuItem mCWSet{form, "mCWSet", nullptr, "CW"};

    forms::MenuItem mDVKSet{form, "mDVKSet", nullptr, "DVK"};

    forms::MenuItem rRun{form, "rRun", nullptr, "Applications"};
    forms::MenuItem rFarTiles{form, "rFarTiles", &rRun, "Run FarTiles"};
    forms::MenuItem rXtalia{form, "rXtalia", &rRun, "Run XTALIA"};
    forms::MenuItem rTempra{form, "rTempra", &rRun, "Run Tempra"};
    forms::MenuItem rPlazas{form, "rPlazas", &rRun, "Run PLAZAS"};
    forms::MenuItem rSumTiles{form, "rSumTiles", &rRun, "Run SumTiles"};
    forms::MenuItem dummy8{form, "dummy8", &rRun, "-"};
    forms::MenuItem mUseFarTiles{form, "mUseFarTiles", &rRun, "Using FarTiles"};
    forms::MenuItem mUseXtalia{form, "mUseXtalia", &rRun, "Using XTALIA"};
    forms::MenuItem mUseTempra{form, "mUseTempra", &rRun, "Using Tempra"};
    forms::MenuItem mUseApps{form, "mUseApps", &rRun, "Using PLAZAS"};
    forms::MenuItem mUseSumTiles{form, "mUseSumTiles", &rRun, "Using SumTiles"};

    forms::MenuItem mBands{form, "mBands", nullptr, "Bands"};

    forms::MenuItem mOptions{form, "mOptions", nullptr, "Options"};
    forms::MenuItem mClockMinutes{form, "mClockMinutes", &mOptions, "Display clock hh:mm"};
    forms::MenuItem mClockSeconds{form, "mClockSeconds", &mOptions, "Display clock hh:mm:ss"};
    forms::MenuItem mnuBlnk{form, "mnuBlnk", &mOptions, "-"};
    forms::MenuItem mStartDate{form, "mStartDate", &mOptions, "Start Date"};

    forms::MenuItem mdupes{form, "mdupes", nullptr, "Dupes: 0"};
    forms::MenuItem mWriteDupes{form, "mWriteDupes", &mdupes, "Write [ dupefile.txt ]"};

    forms::MenuItem mnuPopUp{form, "mnuPopUp", nullptr, "PopUp"};
    forms::MenuItem mPopUpMessage{form, "mPopUpMessage", &mnuPopUp, "What this does..."};
};
