// SPDX-License-Identifier: MIT
// Any bytes as a log: loading ends in order, the log that was read is written back as it was, and every
// reader of its lines gets through.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "base/text.h"
#include "contest/summary.h"
#include "core/dupe_check.h"
#include "core/log_file.h"
#include "core/qso_line.h"
#include "core/rate.h"
#include "core/search.h"
#include "export/adif.h"
#include "export/cabrillo.h"
#include "export/grid_list.h"
#include "export/summary_sheet.h"

namespace {

/// One file in memory, whatever its name.
class OneFile : public Files {
public:
    explicit OneFile(std::string content) : content_(std::move(content)) {}
    std::unique_ptr<OutFile> append(const std::string& name) override { throw refusal(name); }
    std::unique_ptr<OutFile> create(const std::string& name) override { throw refusal(name); }
    void replace(const std::string&, std::string_view content) override { content_ = content; }
    std::string read(const std::string&) override { return content_; }
    bool exists(const std::string&) override { return true; }
    void remove(const std::string&) override { content_.clear(); }
    std::vector<std::string> list(const std::string&) override { return {}; }
    std::string path(const std::string& name) override { return "/" + name; }

private:
    static FileError refusal(const std::string& name) {
        return {"Path/File access error", name, "read only"};
    }
    std::string content_;
};

class Recorder : public Dialogs {
public:
    Answer message(const Message& message) override {
        texts.push_back(message.text);
        return message.defaultAnswer;
    }
    std::optional<std::string> prompt(const Prompt&) override { return std::nullopt; }
    void beep() override {}
    void pointer(Pointer) override {}
    void fault(const std::string& text) override { texts.push_back(text); }
    std::vector<std::string> texts;
};

class StandingClock : public Clock {
    DateTime local() override { return {}; }
    DateTime utc() override { return {}; }
    double secondsSinceMidnight() override { return 0; }
    std::int64_t milliseconds() override { return 0; }
    void idle(double) override {}
};

class NoPrograms : public Programs {
    bool start(const std::string&) override { return false; }
    void help(const std::string&, const std::string&) override {}
    bool previousInstance() override { return false; }
};

class NoWindows : public Windows {
    void pump() override {}
    void rest() override {}
    void saveSize(const std::string&) override {}
    void restoreSize(const std::string&) override {}
    void popUp(const std::string&, const std::string&) override {}
};

class NoPorts : public Ports {
    void write(int, int) override {}
    int read(int) override { return 0; }
    void reach(int) override {}
    void commIsAt(int) override {}
    void openComm(const std::string&) override {}
    void closeComm() override {}
    bool commOpen() override { return false; }
    void setDtr(bool) override {}
    void setRts(bool) override {}
    bool dsrHolding() override { return false; }
    std::vector<std::string> commPorts() override { return {}; }
    void dropLines() override {}
};

class NoDelay : public Delay {
    void begin() override {}
    void end() override {}
    void wait(std::int64_t) override {}
    void settle() override {}
};

struct Desk {
    explicit Desk(std::string log) : files(std::move(log)) { InputLogFile(station); }

    OneFile files;
    Recorder dialogs;
    StandingClock clock;
    NoPrograms programs;
    NoWindows windows;
    NoPorts ports;
    NoDelay delay;
    Platform platform{clock, dialogs, files, programs, windows, ports, delay};
    Station station{platform};
};

void must(bool holds) {
    if (!holds) std::abort();
}

void countsHold(const Session& session) {
    must(session.LogLineCount >= 0 && session.LogLineCount <= kLogLineLimit);
    int counted = session.DupeCount;
    for (int band = kFirstBand; band <= kLastBand; ++band) {
        must(session.BandGrids(band) <= session.BandQSOs(band));
        must(session.BandQSOs(band) == 0 || session.BandWorked(band));
        counted += session.BandQSOs(band);
    }
    must(counted <= std::max(0, session.LogLineCount - 2));
}

/// What was read and written back is read the same.
void loadsTheSame(const Desk& first) {
    const Session& one = first.station.session;
    const Desk second(wholeLog(one));
    const Session& other = second.station.session;
    must(one.LogLineCount == other.LogLineCount && one.DupeCount == other.DupeCount);
    must(one.ContestNumber == other.ContestNumber);
    for (int line = 1; line <= one.LogLineCount; ++line) must(one.LogLines(line) == other.LogLines(line));
    for (int band = kFirstBand; band <= kLastBand; ++band) {
        must(one.BandQSOs(band) == other.BandQSOs(band) && one.BandGrids(band) == other.BandGrids(band));
    }
}

void readersGetThrough(Station& s) {
    const Session& session = s.session;
    for (int line = kFirstQsoLine; line <= session.LogLineCount; ++line) searchRow(session.LogLines(line));
    const std::string last = session.LogLines(session.LogLineCount);
    const Dupe dupe = scanLog(s.session, qso::call(last), qso::band(last));
    must(session.LogLineCount < kFirstQsoLine || dupe.line == session.LogLineCount);
    sortMatches(s.session);
    UpdateQSORate(session);
    summaryLines(session);
    RefillLogWindow(s);
    CallSearch(s, "1");
}

/// Each line of the log is a line of the exports, whatever it holds.
void exportsGetThrough(const Station& s) {
    constexpr std::size_t kCabrilloHead = 17, kAdifHead = 11;
    const Session& session = s.session;
    const auto qsos = static_cast<std::size_t>(std::max(0, session.LogLineCount - 2));
    const std::string score = s.forms.frmLog.tScore.caption();
    must(text::lines(exporting::cabrilloFile(session, s.PersonalData, score)).size() ==
         kCabrilloHead + qsos + 1);
    must(text::lines(exporting::adifFile(session, {})).size() == kAdifHead + qsos);
    must(!exporting::summarySheet(session, s.PersonalData, "01/20/07").empty());
    std::string grids;
    exporting::addGridList(grids, session, "");
}

}  // namespace

// The name and the signature are libFuzzer's.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Desk desk(std::string(reinterpret_cast<const char*>(data), size));
    must(desk.dialogs.texts.size() <= 2);
    countsHold(desk.station.session);
    loadsTheSame(desk);
    try {
        readersGetThrough(desk.station);
        exportsGetThrough(desk.station);
        RefreshLogCount(desk.station);
    } catch (const RunTimeError&) {
        // Figures beyond their width end a routine in order.
    }
    return 0;
}
