// SPDX-License-Identifier: MIT
// The desktop program in the folder it is started in, which sends its message of F3 once: prints how long
// that took in seconds and how much of a processor it used. The edges are stamped by the tap; bench/keying
// puts both together.
#include <sys/resource.h>

#include <QApplication>
#include <QTimer>
#include <chrono>
#include <filesystem>
#include <iostream>

#include "shell/program.h"
#include "shell/qt/qt_platform.h"
#include "shell/qt/windows_front.h"

namespace {

double processorSeconds() {
    rusage usage{};
    ::getrusage(RUSAGE_SELF, &usage);
    const auto seconds = [](const timeval& time) {
        return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) / 1e6;
    };
    return seconds(usage.ru_utime) + seconds(usage.ru_stime);
}

void openLog(WindowsFront& front, Program& program) {
    front.enter([&](forms::Screen&) { program.start(); });
    SetupForm& setup = program.station().forms.frmSetup;
    front.enter([&](forms::Screen& screen) { screen.click(setup.logFile, 0); });
    front.enter([&](forms::Screen& screen) { screen.click(setup.cmdDone); });
}

void sendOnce(WindowsFront& front) {
    using Clock = std::chrono::steady_clock;
    const double before = processorSeconds();
    const Clock::time_point start = Clock::now();
    front.enter([](forms::Screen& screen) { screen.press({forms::Key::F3}); });
    const std::chrono::duration<double> passed = Clock::now() - start;
    std::cout << passed.count() << ' ' << (processorSeconds() - before) / passed.count() << '\n';
}

}  // namespace

int main(int argc, char* argv[]) {
    const QApplication application(argc, argv);
    QtPlatform machine(std::filesystem::current_path().string());
    Program program(machine.platform());
    WindowsFront front(program.screen(), machine.platform().clock);
    machine.attach(&front);
    QTimer::singleShot(0, &front, [&] {
        openLog(front, program);
        sendOnce(front);
        QCoreApplication::exit(0);
    });
    const int result = QApplication::exec();
    machine.attach(nullptr);
    return result;
}
