// SPDX-License-Identifier: MIT
#include <QApplication>
#include <QDir>
#include <QIcon>
#include <QMessageBox>
#include <QTimer>
#include <filesystem>

#include "shell/program.h"
#include "shell/qt/qt_platform.h"
#include "shell/qt/station_folder.h"
#include "shell/qt/windows_front.h"

namespace {

void nameApplication() {
    QCoreApplication::setOrganizationName("TARQEN");
    QCoreApplication::setApplicationName("TARQEN");
    QGuiApplication::setDesktopFileName("io.github.tarqen.Tarqen");
    QGuiApplication::setWindowIcon(QIcon::fromTheme("io.github.tarqen.Tarqen", QIcon(":/images/tarqen.png")));
    // Between the setup screen and the log there is a moment without a window.
    QGuiApplication::setQuitOnLastWindowClosed(false);
}

int runProgram() {
    namespace fs = std::filesystem;
    const fs::path samples =
        fs::path(QCoreApplication::applicationDirPath().toStdString()) / ".." / "share" / "tarqen";
    const fs::path folder =
        stationFolder(fs::current_path(), fs::path(QDir::homePath().toStdString()), samples);
    fs::current_path(folder);
    QtPlatform machine(folder.string());
    Program program(machine.platform());
    WindowsFront front(program.screen(), machine.platform().clock);
    machine.attach(&front);
    front.onEnded = [] { QCoreApplication::exit(0); };
    QTimer::singleShot(0, &front, [&] { front.enter([&](forms::Screen&) { program.start(); }); });
    const int result = QApplication::exec();
    machine.attach(nullptr);
    return result;
}

}  // namespace

int main(int argc, char* argv[]) {
    const QApplication application(argc, argv);
    nameApplication();
    try {
        return runProgram();
    } catch (const std::exception& error) {
        QMessageBox::critical(nullptr, "TARQEN", QString("TARQEN can't start: ") + error.what());
        return 1;
    }
}
