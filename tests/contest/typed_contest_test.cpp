// SPDX-License-Identifier: MIT
// Whole contests, typed key by key: the file is what was worked, and the score is what the lines give.
#include "support/typed_contest.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <tuple>

#include "base/number.h"
#include "base/text.h"

namespace {

/// All that is counted from the log.
struct Counts {
    explicit Counts(Session& session) {
        for (int band = kFirstBand; band <= kLastBand; ++band) {
            values.push_back(session.BandQSOs(band));
            values.push_back(session.BandGrids(band));
            values.push_back(static_cast<int>(session.BandQSOPoints(band)));
            values.push_back(static_cast<int>(session.BandScore(band)));
            values.push_back(session.BandWorked(band) ? 1 : 0);
        }
        values.push_back(session.LogLineCount);
        values.push_back(session.GridTotal);
        values.push_back(static_cast<int>(session.TotalQSOPoints));
        values.push_back(static_cast<int>(session.TotalScore));
    }
    std::vector<int> values;
};

class Desk {
public:
    Desk() : files_(folder.path()) {
        folder.write("Name.dat", personalData());
        station.emplace(files_);
    }
    Session& session() { return station->station().session; }
    std::string score() { return station->station().forms.frmLog.tScore.caption(); }
    void restart() {
        station.emplace(files_);
        ASSERT_TRUE(station->play(startOfOldLog())) << station->reason();
        ASSERT_FALSE(text::contains(station->transcript(), "message"));
    }
    TempFolder folder;
    std::optional<PlayedStation> station;

private:
    PosixFiles files_;
};

bool scoresByDistance(int contest) { return contest >= 21 && contest <= 25; }

class TypedContestOf : public testing::TestWithParam<int> {};

}  // namespace

TEST_P(TypedContestOf, ThreeHundredContactsGiveTheirFileAndItsScore) {
    Desk desk;
    const ContestEntry& entry = playedContest(GetParam());
    TypedContest contest(*desk.station, entry, static_cast<unsigned>(GetParam()));
    ASSERT_TRUE(contest.play(300)) << desk.station->reason();
    const std::string file = desk.folder.read("JAN.lgg");
    ASSERT_EQ(file, contest.expectedFile());
    const Score score = scoreOfLines(file);
    EXPECT_GT(score.qsos, 40);
    EXPECT_LT(score.qsos, static_cast<int>(text::lines(file).size()) - 2) << "some are dupes";
    if (scoresByDistance(GetParam())) {
        EXPECT_EQ(desk.score(), number::toText(static_cast<std::int64_t>(score.qsoPoints)));
        EXPECT_EQ(desk.session().GridTotal, 0);
        return;
    }
    EXPECT_EQ(desk.session().TotalScore, static_cast<float>(score.total()));
    EXPECT_EQ(static_cast<int>(desk.session().TotalQSOPoints), static_cast<int>(score.qsoPoints));
    EXPECT_EQ(desk.session().GridTotal, score.grids);
    EXPECT_EQ(desk.score(), GetParam() == 19 ? "Click Summary" : number::grouped(score.total()));
}

INSTANTIATE_TEST_SUITE_P(Contests, TypedContestOf, testing::Values(1, 3, 19, 21, 26, 31));

namespace {

/// A random session in one of the contests, by its seed.
class RandomSession : public testing::TestWithParam<unsigned> {
protected:
    const ContestEntry& entry() const { return playedContests()[GetParam() % playedContests().size()]; }
    Desk desk;
};

/// The contests in which points are multiplied by grids: kilometres have no product.
std::vector<int> contestsOfGrids() {
    std::vector<int> numbers;
    for (const ContestEntry& entry : playedContests()) {
        if (!scoresByDistance(entry.number)) numbers.push_back(entry.number);
    }
    return numbers;
}

class RandomSessionOfGrids : public testing::TestWithParam<std::tuple<int, unsigned>> {
protected:
    const ContestEntry& entry() const { return playedContest(std::get<0>(GetParam())); }
    unsigned seed() const { return std::get<1>(GetParam()); }
    Desk desk;
};

}  // namespace

TEST_P(RandomSession, CountsKeptByTheAcceptsAreThoseOfAReloadAndOfARefresh) {
    TypedContest contest(*desk.station, entry(), 1000 + GetParam());
    ASSERT_TRUE(contest.play(40)) << desk.station->reason();
    ASSERT_EQ(desk.folder.read("JAN.lgg"), contest.expectedFile());
    const Counts kept(desk.session());
    const std::string score = desk.score();
    ASSERT_TRUE(desk.station->play("type rf\nkey Enter\n"));
    EXPECT_EQ(Counts(desk.session()).values, kept.values);
    EXPECT_EQ(desk.score(), score);
    desk.restart();
    EXPECT_EQ(Counts(desk.session()).values, kept.values);
    EXPECT_EQ(desk.score(), score);
}

TEST_P(RandomSession, DeletingTheLastContactAndEnteringItAgainGivesTheSameFile) {
    TypedContest contest(*desk.station, entry(), 2000 + GetParam());
    ASSERT_TRUE(contest.play(25)) << desk.station->reason();
    const std::string file = desk.folder.read("JAN.lgg");
    const Counts kept(desk.session());
    // The contact before may have been a declined dupe, on another band: the last line's band is taken up
    // first.
    const std::string last = desk.session().LogLines(desk.session().LogLineCount);
    const std::string band = text::lower(text::trim(text::left(last, 5)));
    const std::string minute = last.substr(20, 2) + ":" + last.substr(22, 2);
    ASSERT_TRUE(desk.station->play("reply OK\ntype dl\nkey Enter\ntype " + band +
                                   "\nkey Enter\nat 2007-01-20 " + minute + ":30\nwait 1\n"));
    ASSERT_NE(desk.folder.read("JAN.lgg"), file);
    ASSERT_TRUE(contest.repeatLast()) << desk.station->reason();
    EXPECT_EQ(desk.folder.read("JAN.lgg"), file);
    EXPECT_EQ(Counts(desk.session()).values, kept.values);
}

TEST_P(RandomSessionOfGrids, TheScoreIsTheProductOfTheSumsWhateverTheOrder) {
    TypedContest contest(*desk.station, entry(), 3000 + seed());
    ASSERT_TRUE(contest.play(30)) << desk.station->reason();
    const Session& session = desk.session();
    EXPECT_EQ(session.TotalScore,
              static_cast<float>(static_cast<int>(session.TotalQSOPoints) * session.GridTotal));
    const float total = session.TotalScore;
    std::vector<std::string> lines = text::lines(desk.folder.read("JAN.lgg"));
    std::mt19937 random(seed());
    std::shuffle(lines.begin() + 2, lines.end(), random);
    std::string shuffled;
    for (const std::string& line : lines) shuffled += line + "\r\n";
    desk.folder.write("JAN.lgg", shuffled);
    desk.restart();
    EXPECT_EQ(desk.session().TotalScore, total);
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomSession, testing::Range(0U, 26U));
INSTANTIATE_TEST_SUITE_P(Seeds, RandomSessionOfGrids,
                         testing::Combine(testing::ValuesIn(contestsOfGrids()), testing::Range(0U, 2U)));
