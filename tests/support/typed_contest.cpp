// SPDX-License-Identifier: MIT
#include "support/typed_contest.h"

#include <algorithm>
#include <set>

#include "base/text.h"
#include "grid/path.h"

namespace {

constexpr const char* kOwnGrid = "FN20JK";
const std::vector<const char*> kAllBands{"50",   "144",  "222",   "432",   "903",   "1296", "2304",
                                         "3456", "5760", "10368", "24000", "47000", "Laser"};

std::vector<const char*> bandsFrom(std::size_t first, std::size_t count) {
    return {kAllBands.begin() + static_cast<std::ptrdiff_t>(first),
            kAllBands.begin() + static_cast<std::ptrdiff_t>(first + count)};
}

bool moves(const std::string& call) { return text::endsWith(call, "/R") || text::endsWith(call, "/M"); }

bool byDistance(const ContestEntry& contest) { return contest.points.empty(); }

std::string kilometresTo(const std::string& locator) {
    const auto here = grid::positionOf(kOwnGrid), there = grid::positionOf(text::upper(locator));
    return std::to_string(grid::wholeKilometres(grid::pathBetween(*here, *there)));
}

}  // namespace

const std::vector<ContestEntry>& playedContests() {
    static const std::vector<ContestEntry> contests{
        {1, "ARRL Jan. VHF Sweepstakes", "", kAllBands, {1, 1, 2, 2, 4, 4, 8, 8, 8, 8, 8, 8, 8}},
        {2, "ARRL June QSO Party", "", kAllBands, {1, 1, 2, 2, 3, 3, 4, 4, 4, 4, 4, 4, 4}},
        {3, "ARRL UHF Contest", "", bandsFrom(2, 11), {3, 3, 6, 6, 12, 12, 12, 12, 12, 12, 12}},
        {6, "ARRL Sprints", "ARRL 144 MHz Sprint", {"144"}, {1}},
        {12, "Generic Sprints", "903 and up Sprint", bandsFrom(4, 9), {1, 1, 1, 1, 1, 1, 1, 1, 1}},
        {13, "ARRL Sprints", "ARRL 903 1296 2304 MHz Sprints", bandsFrom(4, 3), {1, 1, 1}},
        {19, "Generic Sprints", "903 to 5760 Sprints", bandsFrom(4, 5), {1, 1, 1, 1, 1}},
        {20, "RVHFG All Band Fall Sprint", "", kAllBands, {1, 1, 2, 2, 4, 4, 8, 8, 8, 8, 8, 8, 8}},
        {21, "Spring Sprints", "50 MHz Spring Sprint", {"50"}, {}},
        {26, "SVHFS Fall Sprints", "50 MHz Fall Sprint", {"50"}, {1}},
        {28, "SVHFS Fall Sprints", "222 MHz Fall Sprint", {"222"}, {2}},
        {30, "SVHFS Fall Sprints", "Microwave Fall Sprint", bandsFrom(4, 9), {3, 3, 4, 4, 4, 4, 4, 4, 4}},
        {31, "CQ WW VHF Contest", "", {"50", "144"}, {1, 2}},
    };
    return contests;
}

const ContestEntry& playedContest(int number) {
    return *std::find_if(playedContests().begin(), playedContests().end(),
                         [&](const ContestEntry& contest) { return contest.number == number; });
}

TypedContest::TypedContest(PlayedStation& station, const ContestEntry& contest, unsigned seed)
    : station_(station), contest_(contest), random_(seed) {}

TypedContest::Choice TypedContest::randomStation() {
    const unsigned who = random_() % 60;
    const char letter = static_cast<char>('A' + who % 26);
    std::string call = std::string("W") + std::to_string(1 + who % 9) + "A" + letter;
    // A fixed station stays where it is; the others turn up anywhere.
    unsigned square = 3 + who * 7 % 40;
    if (who % 6 == 4) call += "/R";
    if (who % 6 == 5) call += "/M";
    if (moves(call)) square = random_() % 45;
    std::string grid =
        (square % 3 == 0 ? "EM" : "FN") + std::to_string(square / 10) + std::to_string(square % 10);
    if (who % 4 == 1) grid += "pr";
    return {call, grid};
}

bool TypedContest::isDupe(const std::string& call, const std::string& band) const {
    return std::any_of(lines_.begin(), lines_.end(),
                       [&](const ExpectedLine& line) { return line.call == call && line.band == band; });
}

std::string TypedContest::lastGridOf(const std::string& call) const {
    for (auto line = lines_.rbegin(); line != lines_.rend(); ++line) {
        if (line->call == call) return line->grid;
    }
    return {};
}

std::string TypedContest::clockCommand(int minute) const {
    const auto two = [](int figure) { return std::string(figure < 10 ? "0" : "") + std::to_string(figure); };
    return "at 2007-01-20 " + two(15 + minute / 60) + ":" + two(minute % 60) + ":30\nwait 1\n";
}

/// The keys from the first letter of the call to the accept.
std::string TypedContest::keysOf(const Choice& choice, const std::string& band) {
    const bool dupe = isDupe(choice.call, band);
    std::string keys =
        (dupe ? "reply Yes\n" : "") + std::string("type ") + text::lower(choice.call) + "\nkey Space\n";
    const std::string known = lastGridOf(choice.call);
    if (known.empty() || (dupe && moves(choice.call))) {
        keys += "type " + text::lower(choice.grid) + "\nkey Enter\n";
    } else if (moves(choice.call)) {
        keys += "focus frmLog.tGrid\nkey End\n";
        for (std::size_t erased = 0; erased < known.size(); ++erased) keys += "key Backspace\n";
        keys += "type " + text::lower(choice.grid) + "\nkey Space\n";
    }
    return keys + "key Enter\n";
}

bool TypedContest::play(int contacts) {
    if (!station_.play(startOfNewLog(contest_.contest, contest_.sprint))) return false;
    for (int minute = 0; minute < contacts; ++minute) {
        const std::string band = contest_.bands[random_() % contest_.bands.size()];
        const Choice choice = randomStation();
        std::string script = clockCommand(minute);
        if (band != band_) script += "type " + text::lower(band) + "\nkey Enter\n";
        band_ = band;
        const bool dupe = isDupe(choice.call, band);
        if (dupe && random_() % 4 == 0) {
            script += "reply No\ntype " + text::lower(choice.call) + "\nkey Enter\n";
        } else {
            lastKeys_ = keysOf(choice, band);
            script += lastKeys_;
            const bool sameSquare = std::any_of(lines_.begin(), lines_.end(), [&](const ExpectedLine& line) {
                return line.call == choice.call && line.band == band &&
                       text::left(line.grid, 4) == text::left(choice.grid, 4);
            });
            // "at 2007-01-20 HH:MM:30"
            const std::string time = script.substr(14, 2) + script.substr(17, 2);
            lines_.push_back(
                {band, time, choice.call, choice.grid, dupe && (!moves(choice.call) || sameSquare)});
        }
        if (!station_.play(script)) return false;
        station_.transcript();
    }
    return true;
}

bool TypedContest::repeatLast() { return station_.play(lastKeys_); }

std::string TypedContest::expectedFile() const {
    const std::string name = *contest_.sprint == '\0' ? contest_.contest : contest_.sprint;
    std::string file =
        "2007 " + name + "\r\nv2.0        W1ABC           " + std::to_string(contest_.number) + "\r\n";
    std::set<std::string> squares;
    std::vector<int> ordinals(contest_.bands.size());
    for (const ExpectedLine& line : lines_) {
        const auto band =
            std::find(contest_.bands.begin(), contest_.bands.end(), line.band) - contest_.bands.begin();
        const bool fresh = squares.insert(line.band + " " + line.grid.substr(0, 4)).second;
        std::string mark, points = "0";
        if (fresh && !line.dupe && !byDistance(contest_))
            mark = std::to_string(++ordinals[static_cast<std::size_t>(band)]) + "-" + line.band;
        if (!line.dupe)
            points = byDistance(contest_) ? kilometresTo(line.grid)
                                          : std::to_string(contest_.points[static_cast<std::size_t>(band)]);
        file += text::pad(line.band, 6) + "PH  01/20/07  " + line.time + "  " + text::pad(line.call, 13) +
                "FN20jk " + text::pad(line.grid, 7) + text::pad(mark, 9) +
                text::pad(points, byDistance(contest_) ? 6 : 2) + "\r\n";
    }
    return file;
}

Score scoreOfLines(const std::string& file) {
    Score score;
    std::set<std::string> squares;
    const std::vector<std::string> lines = text::lines(file);
    for (std::size_t at = 2; at < lines.size(); ++at) {
        const std::string& line = lines[at];
        const double points = std::stod(line.substr(62));
        if (points == 0) continue;
        ++score.qsos;
        score.qsoPoints += points;
        if (squares.insert(line.substr(0, 6) + line.substr(46, 4)).second) ++score.grids;
    }
    return score;
}
