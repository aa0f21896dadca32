// SPDX-License-Identifier: MIT
// Each export of a log of 2,500 QSOs, beside writing the same bytes plainly.
#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <unistd.h>

#include <cstdlib>
#include <sstream>
#include <string>

#include "bench_log.h"
#include "export/exports.h"
#include "setup/control_text.h"
#include "shell/headless/headless_machine.h"
#include "shell/linux/posix_files.h"
#include "shell/program.h"

namespace {

using namespace bench;

struct Export {
    void (*routine)(Station&);
    const char* file;
    const char* contest;
    /// The answer to its box, or null.
    const char* reply;
};
constexpr Export kCabrillo{mCabrillo_Click, "K3ABC.log", "1", nullptr};
constexpr Export kAscii{mnonARRL_Click, "K3ABC.log", "1", nullptr};
constexpr Export kSummary{mWriteSum_Click, "K3ABC.sum", "1", "OK"};
constexpr Export kGrids{mWritegrids_Click, "2007grid.txt", "1", nullptr};
constexpr Export kGridsByDistance{mWritegrids_Click, "2007grid.txt", "25", nullptr};
constexpr Export kAdif{mADIF_Click, "BENCH.ADI", "1", "bench"};

/// A station at the end of a contest, in a folder of its own.
struct Desk {
    explicit Desk(const std::string& contest) : machine(disk, out), program(machine.platform) {
        machine.attach(program.screen());
        folder.write("bench.lgg", logContent(contest));
        Station& s = program.station();
        s.session.LogFileName = "bench.lgg";
        s.session.LogOpenMode = 1;
        s.session.ContestName = "2007 A contest";
        s.session.ProgramVersion = "v4.0";
        s.PersonalData(personal::Call) = "K3ABC";
        s.PersonalData(personal::Grid) = "FN20JK";
        control::setDefaults(s.ControlValues);
        s.forms.frmLog.show();
        if (s.session.LogLineCount != kQsos + 2) std::abort();
    }
    /// As a click on the menu does it.
    void run(const Export& what) {
        if (what.reply != nullptr) machine.dialogs.queue(what.reply);
        what.routine(program.station());
        out.str("");
    }

    BenchFolder folder;
    PosixFiles disk{folder.path()};
    std::ostringstream out;
    HeadlessMachine machine;
    Program program;
};

void written(benchmark::State& state, const Export& what) {
    Desk desk(what.contest);
    for (auto _ : state) desk.run(what);
    state.counters["bytes"] = static_cast<double>(desk.disk.read(what.file).size());
}

void plain(benchmark::State& state, const Export& what) {
    Desk desk(what.contest);
    desk.run(what);
    const std::string content = desk.disk.read(what.file), name = desk.folder.path() + "/" + what.file;
    for (auto _ : state) {
        const int file = open(name.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0666);
        if (write(file, content.data(), content.size()) != static_cast<ssize_t>(content.size())) std::abort();
        close(file);
    }
    state.counters["bytes"] = static_cast<double>(content.size());
}

// In turn, for a disk has its moods.
#define EXPORT_BENCHMARK(what)                                                             \
    BENCHMARK_CAPTURE(plain, what, k##what)->Unit(benchmark::kMicrosecond)->UseRealTime(); \
    BENCHMARK_CAPTURE(written, what, k##what)->Unit(benchmark::kMicrosecond)->UseRealTime()

EXPORT_BENCHMARK(Cabrillo);
EXPORT_BENCHMARK(Ascii);
EXPORT_BENCHMARK(Summary);
EXPORT_BENCHMARK(Grids);
EXPORT_BENCHMARK(GridsByDistance);
EXPORT_BENCHMARK(Adif);

}  // namespace
