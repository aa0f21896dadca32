// SPDX-License-Identifier: MIT
#include "shell/linux/program_starter.h"

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <sstream>
#include <vector>

#include "shell/linux/code_page.h"
#include "shell/linux/command_line.h"
#include "shell/linux/path_lookup.h"

namespace {

bool isProgram(const std::string& path) {
    std::error_code error;
    return std::filesystem::is_regular_file(path, error) && ::access(path.c_str(), X_OK) == 0;
}

/// Everything a new process needs, made before it is: behind a fork no memory may be asked for.
struct Launch {
    explicit Launch(const command_line::Parts& parts) : path(parts.program) {
        texts.push_back(path);
        for (const std::string& argument : parts.arguments) texts.push_back(code_page::toUtf8(argument));
        for (std::string& text : texts) pointers.push_back(text.data());
        pointers.push_back(nullptr);
    }
    Launch(const Launch&) = delete;
    Launch& operator=(const Launch&) = delete;
    std::string path;
    std::vector<std::string> texts;
    std::vector<char*> pointers;
};

void freeTheSignals() {
    sigset_t none;
    sigemptyset(&none);
    ::sigprocmask(SIG_SETMASK, &none, nullptr);
    ::signal(SIGPIPE, SIG_DFL);
    ::signal(SIGINT, SIG_DFL);
}

/// The new program's side. Writes to `report` where it can't become the program; a success closes it by
/// itself.
[[noreturn]] void becomeProgram(const Launch& launch, const char* folder, int report) {
    ::setsid();
    const pid_t grandchild = ::fork();
    // The one in between goes at once: its child is then the system's, which looks after it when it ends.
    if (grandchild > 0) ::_exit(0);
    if (grandchild == 0) {
        const int nothing = ::open("/dev/null", O_RDONLY | O_CLOEXEC);
        if (nothing >= 0) ::dup2(nothing, STDIN_FILENO);
        freeTheSignals();
        if (::chdir(folder) == 0) ::execv(launch.path.c_str(), launch.pointers.data());
    }
    const char failed = 1;
    const auto written = ::write(report, &failed, 1);
    ::_exit(written == 1 ? 1 : 2);
}

/// Waits until the program runs, or tells that it doesn't.
bool hearReport(int report) {
    char failed = 0;
    ssize_t count = ::read(report, &failed, 1);
    while (count < 0 && errno == EINTR) count = ::read(report, &failed, 1);
    return count == 0;
}

}  // namespace

std::optional<std::string> ProgramStarter::find(const std::string& program) const {
    const std::string here = path_lookup::find(folder_, program);
    if (isProgram(here)) return here;
    if (program.find_first_of("/\\") != std::string::npos) return std::nullopt;
    const char* const searched = std::getenv("PATH");
    std::istringstream folders(searched ? searched : "/usr/local/bin:/usr/bin:/bin");
    for (std::string folder; std::getline(folders, folder, ':');) {
        const std::string path = folder + "/" + code_page::toUtf8(program);
        if (!folder.empty() && isProgram(path)) return path;
    }
    return std::nullopt;
}

bool ProgramStarter::start(const std::string& commandLine) const {
    const auto parts = command_line::split(commandLine, [&](const std::string& name) { return find(name); });
    if (!parts) return false;
    const Launch launch(*parts);
    std::array<int, 2> ends{};
    if (::pipe2(ends.data(), O_CLOEXEC) != 0) return false;
    const pid_t child = ::fork();
    if (child == 0) becomeProgram(launch, folder_.c_str(), ends[1]);
    ::close(ends[1]);
    const bool started = child > 0 && hearReport(ends[0]);
    ::close(ends[0]);
    while (child > 0 && ::waitpid(child, nullptr, 0) < 0 && errno == EINTR) {
    }
    return started;
}
