// SPDX-License-Identifier: MIT
// Contests typed key by key at random, with dupes, rovers and mobiles, and a scorer that reads nothing but
// the lines.
#pragma once

#include <random>
#include <string>
#include <vector>

#include "support/played_station.h"

struct ContestEntry {
    int number;
    /// What is picked in the two lists; the second is empty where there is none.
    const char* contest;
    const char* sprint;
    std::vector<const char*> bands;
    /// The points of a QSO on each of these bands; none where kilometres count.
    std::vector<int> points;
};

/// The contests that are played, with all bands that earn points in them.
const std::vector<ContestEntry>& playedContests();
const ContestEntry& playedContest(int number);

/// One line of the log, as it must become.
struct ExpectedLine {
    std::string band, time, call, grid;
    bool dupe = false;
};

/// Types contacts into a station and notes down what must come of them.
class TypedContest {
public:
    TypedContest(PlayedStation& station, const ContestEntry& contest, unsigned seed);
    /// Starts a new log and types so many contacts; false where the run broke off.
    bool play(int contacts);
    /// The whole file as it must be, computed from what was typed alone.
    std::string expectedFile() const;
    /// Types the last contact once more, in the same minute.
    bool repeatLast();

private:
    struct Choice {
        std::string call, grid;
    };
    Choice randomStation();
    std::string keysOf(const Choice& choice, const std::string& band);
    bool isDupe(const std::string& call, const std::string& band) const;
    std::string lastGridOf(const std::string& call) const;
    std::string clockCommand(int minute) const;

    PlayedStation& station_;
    const ContestEntry& contest_;
    std::mt19937 random_;
    std::vector<ExpectedLine> lines_;
    std::string band_, lastKeys_;
};

/// The score of a file, from its QSO lines alone.
struct Score {
    double qsoPoints = 0;
    int grids = 0, qsos = 0;
    double total() const { return qsoPoints * grids; }
};
Score scoreOfLines(const std::string& file);
