// SPDX-License-Identifier: MIT
#include "bandsw/band_change.h"

#include "base/number.h"
#include "contest/contest_table.h"
#include "core/entry_fields.h"
#include "core/search.h"
#include "core/tally.h"

namespace {

constexpr int kHighestByKey = 10;

bool fromTwoTwentyTwo(const Station& s) { return s.session.ContestNumber == "3"; }

void recallLastCall(Station& s) {
    LogForm& form = s.forms.frmLog;
    if (!form.LastCall.checked()) return;
    form.CallS.setText("S");
    forms::KeyPress enter{13};
    CallS_KeyPress(s, enter);
}

/// The transverter's IF belongs to the band; without offsets there is nothing to show.
void showOffset(Station& s) {
    LogForm& form = s.forms.frmLog;
    form.IfOffSet.setCaption("");
    const bool wanted = s.ControlValues(setting::Offsets) != "OFF" && form.tBand.text() != "Laser";
    form.IfOffSet.setVisible(wanted);
}

}  // namespace

int bandAfter(int band, bool fromTwoTwentyTwo) {
    if (band + 1 <= kHighestByKey) return band + 1;
    return fromTwoTwentyTwo ? 3 : 1;
}

int bandBefore(int band, bool fromTwoTwentyTwo) {
    return band - 1 < (fromTwoTwentyTwo ? 3 : 1) ? kHighestByKey : band - 1;
}

void NextBand(Station& s) {
    s.session.CurrentBand = bandAfter(s.session.CurrentBand, fromTwoTwentyTwo(s));
    showBand(s);
    recallLastCall(s);
}

void BandDown(Station& s) {
    s.session.CurrentBand = bandBefore(s.session.CurrentBand, fromTwoTwentyTwo(s));
    showBand(s);
    recallLastCall(s);
}

void selectBandRow(Station& s) {
    forms::ListBox& list = s.forms.frmLog.Bands;
    const int row = contest::rowOfBand(contest::numberOf(s.session.ContestNumber), s.session.CurrentBand,
                                       list.listCount());
    if (row >= 0 && row < list.listCount()) list.select(row);
}

void showBand(Station& s) {
    Session& session = s.session;
    LogForm& form = s.forms.frmLog;
    selectBandRow(s);
    const std::string& label = session.BandName(session.CurrentBand);
    form.Freq.setCaption(label);
    form.UsingBand.setCaption(label);
    form.tBand.setText(label);
    form.QSO.setCaption(number::toText(session.BandQSOs(session.CurrentBand)));
    form.Grid.setCaption(number::toText(session.BandGrids(session.CurrentBand)));
    if (s.ControlValues(setting::LogView) == "Band") Rfresh_Click(s);
    form.CallS.setText("");
    form.focus(form.CallS);
    form.cUpdate.hide();
    form.Query.hide();
    showOffset(s);
}

void Bands_Click(Station& s) {
    LogForm& form = s.forms.frmLog;
    const int band = bandIndex(s.session, form.Bands.content());
    if (band != 0) {
        s.session.CurrentBand = band;
        showBand(s);
    }
    form.focus(form.CallS);
}

void LoadBands(Station& s) {
    std::vector<std::string> labels;
    for (const int band : contest::bandsOf(contest::numberOf(s.session.ContestNumber))) {
        labels.push_back(s.session.BandName(band));
    }
    s.forms.frmLog.Bands.setItems(std::move(labels));
}
