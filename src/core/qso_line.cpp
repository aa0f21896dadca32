// SPDX-License-Identifier: MIT
#include "core/qso_line.h"

#include "base/number.h"
#include "base/text.h"

namespace qso {

std::string_view band(std::string_view line) { return text::trim(text::columns(line, 1, 5)); }
std::string_view mode(std::string_view line) { return text::columns(line, 7, 8); }
std::string_view longMode(std::string_view line) { return text::trim(text::columns(line, 7, 9)); }
std::string_view date(std::string_view line) { return text::columns(line, 11, 18); }
std::string_view month(std::string_view line) { return text::columns(line, 11, 12); }
std::string_view day(std::string_view line) { return text::columns(line, 14, 15); }
std::string_view year(std::string_view line) { return text::columns(line, 17, 18); }
std::string_view time(std::string_view line) { return text::columns(line, 21, 24); }
std::string_view call(std::string_view line) { return text::trim(text::columns(line, 27, 38)); }
std::string_view ownGrid(std::string_view line) { return text::trim(text::columns(line, 40, 45)); }
std::string_view grid(std::string_view line) { return text::trim(text::columns(line, 47, 52)); }
std::string_view square(std::string_view line) { return text::columns(line, 47, 50); }

bool isNewGrid(std::string_view line) {
    const std::string_view mark = text::columns(line, 54, 54);
    return !mark.empty() && mark != " ";
}

std::string_view newGridMark(std::string_view line) { return text::trim(text::columns(line, 54, 61)); }

bool isDupe(std::string_view line) { return text::columns(line, 63, 63) == "0"; }

std::string_view points(std::string_view line) { return text::columns(line, 63, 68); }

std::string compose(const QsoFields& fields, bool byDistance) {
    return text::pad(fields.band, 6) + text::pad(fields.mode, 4) + text::pad(fields.date, 8) +
           text::blanks(2) + text::pad(fields.time, 4) + text::blanks(2) + text::pad(fields.call, 13) +
           text::pad(fields.ownGrid, 7) + text::pad(fields.grid, 7) + text::pad(fields.newGridMark, 9) +
           text::pad(fields.points, byDistance ? 6 : 2);
}

std::string header(std::string_view ownCall, std::string_view contestNumber) {
    return "v2.0" + text::blanks(8) + text::pad(ownCall, 16) + std::string(contestNumber);
}

std::string_view headerCall(std::string_view line) { return text::trim(text::columns(line, 13, 24)); }
std::string_view headerContest(std::string_view line) { return text::trim(text::right(line, 2)); }

std::string subSquareForm(std::string_view grid) {
    if (grid.size() != 6) return std::string(grid);
    return std::string(text::left(grid, 4)) + text::lower(text::right(grid, 2));
}

std::string storedTime(std::string_view time) {
    const bool midnight = number::valueOf(time) > 2400 || time == "2400" || time == "0000";
    return midnight ? "0001" : std::string(time);
}

bool endsInRover(std::string_view call) { return text::endsWith(call, "/R"); }
bool endsInMobile(std::string_view call) { return text::endsWith(call, "/M"); }
bool isMoving(std::string_view call) { return endsInRover(call) || endsInMobile(call); }

}  // namespace qso
