// SPDX-License-Identifier: MIT
#include "grid/heading.h"

#include "base/number.h"
#include "base/text.h"
#include "contest/scoring.h"
#include "core/say.h"
#include "grid/path.h"

namespace {

std::optional<grid::Path> pathFromHere(Station& s, const std::string& locator) {
    const auto here = grid::positionOf(text::upper(s.PersonalData(personal::Grid)));
    if (!here) return std::nullopt;
    s.session.RecipGrid = locator;
    const auto there = grid::positionOf(locator);
    if (!there) return std::nullopt;
    return grid::pathBetween(*here, *there);
}

void passKilometres(Station& s, const grid::Path& path) {
    if (!scoresByDistance(s)) return;
    const std::string kilometres = number::toText(static_cast<std::int64_t>(grid::wholeKilometres(path)));
    s.forms.frmLog.NewGrid.setCaption(kilometres);
    s.session.QSOPoints = kilometres;
}

bool showsMiles(const Station& s) { return s.ControlValues(setting::DistanceUnit) == "Mi."; }

}  // namespace

void CalcSixDigit(Station& s, std::string grid) {
    LogForm& form = s.forms.frmLog;
    form.focus(form.CallS);
    grid = text::upper(grid);
    try {
        const auto path = pathFromHere(s, grid);
        if (!path) return;
        passKilometres(s, *path);
        form.Heading.setEnabled(true);
        form.Heading.show();
        form.Heading.setCaption(grid::headingText(grid, *path, showsMiles(s)));
        if (s.ControlValues(setting::Recip) == "Recip") CalcRecip(s);
    } catch (const RunTimeError&) {
        tell(s, "Calculation error, check grid!");
    }
}

void CalcSixDigit2(Station& s, std::string grid) {
    try {
        const auto path = pathFromHere(s, text::upper(grid));
        if (path) passKilometres(s, *path);
    } catch (const RunTimeError&) {
        tell(s, "Calculation error, check grid!");
    }
}

void CalcRecip(Station& s) {
    const auto there = grid::positionOf(s.session.RecipGrid);
    const auto here = grid::positionOf(text::upper(s.PersonalData(personal::Grid)));
    if (!there || !here) return;
    LogForm& form = s.forms.frmLog;
    const grid::Path back = grid::pathBetween(*there, *here);
    form.Heading.setCaption(form.Heading.caption() + "   rec: " + number::toText(grid::wholeDegrees(back)) +
                            "\xB0");
}
