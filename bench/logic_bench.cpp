// SPDX-License-Identifier: MIT
// What the logic takes of the time between two keys: with a log of 2,500 QSOs and a master file of 50,000
// lines, each beside the least that the machine needs for the same bytes.
#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "bench_log.h"
#include "contest/points.h"
#include "contest/scoring.h"
#include "core/accept.h"
#include "core/dupe_check.h"
#include "core/log_file.h"
#include "core/search.h"
#include "grid/path.h"
#include "lookup/master_file.h"
#include "setup/control_text.h"
#include "shell/headless/headless_machine.h"
#include "shell/linux/posix_files.h"
#include "shell/program.h"

namespace {

using namespace bench;

constexpr int kStations = 50000;
/// Part of the call of a few stations in the master file.
constexpr const char* kPart = "1LL";

/// Files whose syncs are left out.
class Unsynced : public Files {
public:
    explicit Unsynced(Files& disk) : disk_(disk) {}
    std::unique_ptr<OutFile> append(const std::string& name) override {
        return std::make_unique<File>(disk_.append(name));
    }
    std::unique_ptr<OutFile> create(const std::string& name) override { return disk_.create(name); }
    void replace(const std::string& name, std::string_view content) override { disk_.replace(name, content); }
    std::string read(const std::string& name) override { return disk_.read(name); }
    bool exists(const std::string& name) override { return disk_.exists(name); }
    void remove(const std::string& name) override { disk_.remove(name); }
    std::vector<std::string> list(const std::string& pattern) override { return disk_.list(pattern); }
    std::string path(const std::string& name) override { return disk_.path(name); }

private:
    class File : public OutFile {
    public:
        explicit File(std::unique_ptr<OutFile> file) : file_(std::move(file)) {}
        std::int64_t length() override { return file_->length(); }
        void write(std::string_view bytes) override { file_->write(bytes); }
        void sync() override {}
        void cutTo(std::int64_t length) override { file_->cutTo(length); }
        int lastByte() override { return file_->lastByte(); }
        void close() override { file_->close(); }

    private:
        std::unique_ptr<OutFile> file_;
    };
    Files& disk_;
};

std::string masterContent() {
    std::string content = "Made for a benchmark\r\n<EOH>\r\n";
    for (int number = 0; number < kStations; ++number) {
        const std::string call = callOf(number * 3 + 1), grid = gridOf(number);
        content += "<CALL:" + std::to_string(call.size()) + ">" + call + ",<GRIDSQUARE:6>" + grid +
                   ",<NAME:3>Joe,<EOR>\r\n";
    }
    return content;
}

/// A station in the middle of a contest, in a folder of its own.
struct Desk {
    explicit Desk(bool synced = true) : machine(choose(synced), out), program(machine.platform) {
        machine.attach(program.screen());
        folder.write("bench.lgg", logContent("1"));
        folder.write("tqn4k.adi", masterContent());
        Station& s = station();
        s.session.LogFileName = "bench.lgg";
        s.session.LogOpenMode = 1;
        s.PersonalData(personal::Call) = "K3ABC";
        s.PersonalData(personal::Grid) = "FN20JK";
        control::setDefaults(s.ControlValues);
        s.ControlValues(setting::MasterFile) = "tqn4k.adi";
        s.forms.frmLog.show();
        if (s.session.LogLineCount != kQsos + 2) std::abort();
    }
    Station& station() { return program.station(); }
    LogForm& form() { return station().forms.frmLog; }

    BenchFolder folder;
    PosixFiles disk{folder.path()};
    Unsynced unsynced{disk};
    std::ostringstream out;
    HeadlessMachine machine;
    Program program;

private:
    Files& choose(bool synced) {
        if (synced) return disk;
        return unsynced;
    }
};

void LoadLog(benchmark::State& state) {
    Desk desk;
    for (auto _ : state) InputLogFile(desk.station());
    state.SetItemsProcessed(state.iterations() * kQsos);
}
BENCHMARK(LoadLog)->Unit(benchmark::kMicrosecond);

/// The log in memory goes back by a line after each accept; the file grows.
void accept(benchmark::State& state, bool synced) {
    Desk desk(synced);
    Session& session = desk.station().session;
    const int lines = session.LogLineCount;
    for (auto _ : state) {
        session.CurrentCall = "N0NEW";
        session.DupeCheckDone = true;
        desk.form().CallS.setText("N0NEW");
        desk.form().tGrid.setText("EM12AB");
        cUpDate_Click(desk.station());
        session.LogLineCount = lines;
        desk.form().QSOs.remove(desk.form().QSOs.listCount() - 1);
        desk.form().Worked.clear();
        desk.out.str("");
    }
    if (!desk.form().tGrid.text().empty()) std::abort();
}
void AcceptWithSync(benchmark::State& state) { accept(state, true); }
void AcceptWithoutSync(benchmark::State& state) { accept(state, false); }

void bareAppend(benchmark::State& state, bool synced) {
    const BenchFolder folder;
    folder.write("bare.lgg", logContent("1"));
    const std::string name = folder.path() + "/bare.lgg", line(66, 'x');
    for (auto _ : state) {
        const int file = open(name.c_str(), O_WRONLY | O_APPEND | O_CREAT | O_CLOEXEC, 0666);
        if (write(file, line.data(), line.size()) != static_cast<ssize_t>(line.size())) std::abort();
        if (synced && fdatasync(file) != 0) std::abort();
        close(file);
    }
}
void BareAppendWithSync(benchmark::State& state) { bareAppend(state, true); }
void BareAppendWithoutSync(benchmark::State& state) { bareAppend(state, false); }

// In turn, for a disk has its moods.
BENCHMARK(BareAppendWithSync)->Unit(benchmark::kMicrosecond)->UseRealTime();
BENCHMARK(AcceptWithSync)->Unit(benchmark::kMicrosecond)->UseRealTime();
BENCHMARK(BareAppendWithoutSync)->Unit(benchmark::kMicrosecond)->UseRealTime();
BENCHMARK(AcceptWithoutSync)->Unit(benchmark::kMicrosecond)->UseRealTime();

void ScanLog(benchmark::State& state) {
    Desk desk;
    for (auto _ : state) benchmark::DoNotOptimize(scanLog(desk.station().session, kWanted, "144"));
    if (desk.station().session.MatchCount != kMatches) std::abort();
}
BENCHMARK(ScanLog)->Unit(benchmark::kMicrosecond);

void WholeDupeCheck(benchmark::State& state) {
    Desk desk;
    Session& session = desk.station().session;
    desk.form().tBand.setText("1296");
    for (auto _ : state) {
        session.LookupHit = 0;
        desk.form().CallS.setText(kWanted);
        DupeCheck(desk.station());
    }
    if (desk.form().Worked.listCount() != kMatches) std::abort();
}
BENCHMARK(WholeDupeCheck)->Unit(benchmark::kMicrosecond);

void SearchOfTheLog(benchmark::State& state) {
    Desk desk;
    desk.station().ControlValues(setting::MasterLookup) = "";
    for (auto _ : state) CallSearch(desk.station(), "1XYZ");
    if (desk.form().PLogSort.listCount() < kMatches) std::abort();
}
BENCHMARK(SearchOfTheLog)->Unit(benchmark::kMicrosecond);

void SearchOfLogAndMasterFile(benchmark::State& state) {
    Desk desk;
    for (auto _ : state) CallSearch(desk.station(), kPart);
}
BENCHMARK(SearchOfLogAndMasterFile)->Unit(benchmark::kMicrosecond);

void Score(benchmark::State& state) {
    Desk desk;
    for (auto _ : state) getScore(desk.station());
}
BENCHMARK(Score)->Unit(benchmark::kMicrosecond);

void ScoreByDistance(benchmark::State& state) {
    Desk desk;
    desk.station().session.ContestNumber = "21";
    for (auto _ : state) getSprintScore(desk.station());
}
BENCHMARK(ScoreByDistance)->Unit(benchmark::kMicrosecond);

void PathOfAGridPair(benchmark::State& state) {
    for (auto _ : state) {
        benchmark::DoNotOptimize(grid::pathBetween(*grid::positionOf("FN20VG"), *grid::positionOf("FN31PR")));
    }
}
BENCHMARK(PathOfAGridPair);

void PlainReadOfTheMasterFile(benchmark::State& state) {
    Desk desk;
    for (auto _ : state) benchmark::DoNotOptimize(desk.disk.read("tqn4k.adi"));
}
BENCHMARK(PlainReadOfTheMasterFile)->Unit(benchmark::kMicrosecond);

void PartialSearchOfTheMasterFile(benchmark::State& state) {
    Desk desk;
    std::size_t rows = 0;
    for (auto _ : state) rows = master::partialRows(master::content(desk.station()), kPart).size();
    state.counters["rows"] = static_cast<double>(rows);
}
BENCHMARK(PartialSearchOfTheMasterFile)->Unit(benchmark::kMicrosecond);

/// The way a line at a time, in upper case as it comes.
void LineByLineSearchOfTheMasterFile(benchmark::State& state) {
    Desk desk;
    std::size_t rows = 0;
    for (auto _ : state) {
        rows = 0;
        std::ifstream in(desk.folder.path() + "/tqn4k.adi");
        std::string line;
        while (std::getline(in, line)) {
            std::transform(line.begin(), line.end(), line.begin(),
                           [](unsigned char c) { return static_cast<char>(std::toupper(c)); });
            if (line.find(kPart, 6) != std::string::npos) ++rows;
        }
    }
    state.counters["rows"] = static_cast<double>(rows);
}
BENCHMARK(LineByLineSearchOfTheMasterFile)->Unit(benchmark::kMicrosecond);

void WholePartialSearch(benchmark::State& state) {
    Desk desk;
    desk.form().menu.mMasterCalls.setChecked(true);
    for (auto _ : state) {
        desk.form().CallS.setText(kPart);
        PartialSearch(desk.station());
    }
}
BENCHMARK(WholePartialSearch)->Unit(benchmark::kMicrosecond);

}  // namespace
