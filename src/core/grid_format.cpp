// SPDX-License-Identifier: MIT
#include "core/grid_format.h"

#include "base/text.h"
#include "core/say.h"

bool looksLikeGrid(std::string_view grid) {
    if (grid.size() < 4) return false;
    const auto letter = [](char c) { return text::upper(c) >= 'A' && text::upper(c) <= 'Z'; };
    return letter(grid[0]) && letter(grid[1]) && text::isDigit(grid[2]) && text::isDigit(grid[3]);
}

bool CheckGridFormat(Station& s) {
    LogForm& form = s.forms.frmLog;
    const std::size_t length = form.tGrid.text().size();
    if (length != 4 && length != 6) {
        form.cUpdate.hide();
        form.focus(form.tGrid);
        return true;
    }
    form.tGrid.setText(text::upper(form.tGrid.text()));
    if (looksLikeGrid(form.tGrid.text())) return true;
    form.cUpdate.hide();
    tell(s, length == 4 ? "Check grid format LL##" : "Check grid format LL##LL");
    form.focus(form.tGrid);
    return false;
}
