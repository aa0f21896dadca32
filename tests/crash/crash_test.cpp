// SPDX-License-Identifier: MIT
// A program that is killed at any moment leaves a log with every contact whose accept had returned.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <signal.h>
#include <spawn.h>
#include <sys/wait.h>

#include <algorithm>
#include <chrono>
#include <random>
#include <string>
#include <thread>
#include <vector>

#include "base/text.h"
#include "support/played_station.h"

extern char** environ;

namespace {

namespace fs = std::filesystem;
using Microseconds = std::chrono::microseconds;

#if defined(__SANITIZE_ADDRESS__)
constexpr int kRuns = 20;
#else
constexpr int kRuns = 200;
#endif
constexpr int kContacts = 150;
constexpr std::size_t kLineLength = 64;

std::string callOf(int number) {
    std::string call = "W" + std::to_string(number % 10);
    for (int rest = number + 27; rest > 0; rest /= 26) call += static_cast<char>('A' + rest % 26);
    return call;
}

/// A session that tells after each accept how many lines the log has.
std::string session() {
    std::string lines = startOfNewLog("ARRL Jan. VHF Sweepstakes");
    for (int number = 0; number < kContacts; ++number) {
        lines += "type " + callOf(number) + "\nkey Space\ntype FN" + std::to_string(10 + number % 80) +
                 "\nkey Enter\nkey Enter\nshow LogLineCount\n";
    }
    return lines;
}

/// The scripted operator beside this test, playing "session.ops" of a folder.
class Operator {
public:
    explicit Operator(const TempFolder& folder);
    void kill() const { ::kill(child_, SIGKILL); }
    /// Waits for its end; true where it was killed.
    bool wait() const {
        int status = 0;
        ::waitpid(child_, &status, 0);
        return WIFSIGNALED(status);
    }

private:
    pid_t child_ = 0;
};

Operator::Operator(const TempFolder& folder) {
    const std::string program =
        (fs::read_symlink("/proc/self/exe").parent_path() / "tarqen-operator").string();
    const std::string out = folder.path() + "/transcript";
    posix_spawn_file_actions_t actions;
    ::posix_spawn_file_actions_init(&actions);
    ::posix_spawn_file_actions_addchdir_np(&actions, folder.path().c_str());
    ::posix_spawn_file_actions_addopen(&actions, 1, out.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0666);
    std::string name = program, script = "session.ops";
    char* const arguments[] = {name.data(), script.data(), nullptr};
    const int result = ::posix_spawn(&child_, program.c_str(), &actions, nullptr, arguments, environ);
    ::posix_spawn_file_actions_destroy(&actions);
    if (result != 0) throw std::runtime_error("the scripted operator does not start: " + program);
}

/// A folder with the session in it and no log yet.
struct Desk {
    Desk() {
        std::filesystem::create_directory(folder / "BU");
        folder.write("TARQEN32Control.Ini", settingsWithBackup());
        folder.write("Name.dat", personalData());
        folder.write("session.ops", session());
    }
    TempFolder folder;
};

/// How many lines the session has told of last, in a line that is complete.
int linesTold(const std::string& transcript) {
    const std::string mark = "LogLineCount ";
    const std::size_t end = transcript.rfind('\n');
    if (end == std::string::npos) return 0;
    const std::size_t at = transcript.rfind(mark, end);
    return at == std::string::npos ? 0 : std::stoi(transcript.substr(at + mark.size()));
}

void expectWholeLines(const std::string& log) {
    if (log.empty()) return;
    EXPECT_TRUE(text::endsWith(log, "\r\n"));
    const std::vector<std::string> lines = text::lines(log);
    ASSERT_GE(lines.size(), 3u);
    EXPECT_EQ(lines[0], "2007 ARRL Jan. VHF Sweepstakes");
    EXPECT_EQ(lines[1], "v2.0        W1ABC           1");
    for (std::size_t at = 2; at < lines.size(); ++at) {
        EXPECT_EQ(lines[at].size(), kLineLength) << lines[at];
        EXPECT_EQ(text::trim(text::columns(lines[at], 27, 38)), callOf(static_cast<int>(at) - 2));
    }
}

/// The log goes on where it was: one contact more, which brings the backup level with it.
void expectLoads(const TempFolder& folder, std::size_t lines) {
    PosixFiles files(folder.path());
    PlayedStation station(files);
    ASSERT_TRUE(station.play(startOfOldLog())) << station.reason();
    EXPECT_FALSE(text::contains(station.transcript(), "message"));
    EXPECT_EQ(station.station().session.LogLineCount, static_cast<int>(lines));
    EXPECT_EQ(station.station().session.BandQSOs(1), static_cast<int>(lines) - 2);
    ASSERT_TRUE(station.play("type k9zz\nkey Space\ntype em59\nkey Enter\nkey Enter\n"));
    EXPECT_EQ(text::lines(contentOf(folder, "JAN.lgg")).size(), lines + 1);
    EXPECT_EQ(contentOf(folder, "BU/JAN.lgg"), contentOf(folder, "JAN.lgg"));
}

Microseconds timeOfAWholeRun() {
    const Desk desk;
    const auto start = std::chrono::steady_clock::now();
    EXPECT_FALSE(Operator(desk.folder).wait());
    EXPECT_EQ(linesTold(contentOf(desk.folder, "transcript")), kContacts + 2);
    return std::chrono::duration_cast<Microseconds>(std::chrono::steady_clock::now() - start);
}

}  // namespace

TEST(Crash, EveryContactWhoseAcceptHadReturnedIsInTheLog) {
    // The middle one of some: a run that the machine held up would spread the kills beyond the end of the
    // others.
    std::vector<Microseconds> runs;
    while (runs.size() < 7) runs.push_back(timeOfAWholeRun());
    std::nth_element(runs.begin(), runs.begin() + 3, runs.end());
    const auto whole = static_cast<double>(runs[3].count());
    std::mt19937 random(20070120);
    int killed = 0, amid = 0;
    for (int run = 0; run < kRuns; ++run) {
        const Desk desk;
        const double delay = whole * static_cast<double>(random() % 1000) / 1000;
        SCOPED_TRACE("run " + std::to_string(run));
        const Operator played(desk.folder);
        std::this_thread::sleep_for(Microseconds(static_cast<std::int64_t>(delay)));
        played.kill();
        if (played.wait()) ++killed;
        const std::string log = contentOf(desk.folder, "JAN.lgg");
        const int told = linesTold(contentOf(desk.folder, "transcript"));
        const std::size_t lines = text::lines(log).size();
        EXPECT_GE(lines, static_cast<std::size_t>(told));
        ASSERT_NO_FATAL_FAILURE(expectWholeLines(log));
        if (log.empty()) continue;
        ++amid;
        ASSERT_NO_FATAL_FAILURE(expectLoads(desk.folder, lines));
    }
    // The delays must have hit sessions at work.
    EXPECT_GT(killed, kRuns / 2);
    EXPECT_GT(amid, kRuns / 2);
}
