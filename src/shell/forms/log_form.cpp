// SPDX-License-Identifier: MIT
#include "shell/forms/log_form.h"

LogForm::LogForm(forms::Screen& screen) : Form(screen, "frmLog", "TARQEN") {
    setHome(CallS);
    CallS.named("Call sign or command");
    tGrid.named("Grid square");
    Combo3.named("QSO accept");
    Mode.named("Mode");
    tBand.named("Band in use");
    Bands.named("Bands of the contest");
    Worked.named("Bands worked");
    NeedBands.named("Bands needed");
    QSOs.named("Log");
    PCalls.named("Calls found");
    PLogSort.named("Search results");
    QSummary.named("Summary list");
    CList.named("Check list");
    Query.named("What to do next");
    NewGrid.named("New grid");
    Heading.named("Heading and distance");
    WorkCall.named("Station worked before");
    Name1.named("Name of the operator");
    UTCTime.named("UTC time");
    tDate.named("UTC date");
    Text1.named("Activity hour");
    IfOffSet.named("IF frequency");
    UsingBand.named("Band");
    Freq.named("Frequency band");
    QSO.named("QSOs on the band");
    Grid.named("Grids on the band");
    tQSOs.named("QSOs in all");
    tGridTotal.named("Grids in all");
    tScore.named("Score");
    QsoRat.named("QSOs per hour");
    cSignText.named("Own call sign");
    ContName.named("Contest");
    DOSFile.named("Log file");
    partial3D.setToolTip(" Check this box to use ADIF partial search - <Enter> 3 char or more ");
    tBand.setTabStop(false);
    Bands.setTabStop(false);
    for (forms::ListBox* const list : {&Worked, &NeedBands, &QSOs, &PCalls, &PLogSort, &QSummary, &CList}) {
        list->setTabStop(false);
    }
    for (forms::Control* const control :
         std::initializer_list<forms::Control*>{&cUpdate, &Query, &Search1, &PCalls, &PLogSort, &QSummary,
                                                &CList, &Heading, &WorkCall, &Name1, &IfOffSet, &DVKStatus}) {
        control->hide();
    }
}
