// SPDX-License-Identifier: MIT
// How fast the windows are: from a key to the window painted anew, from the start to the first focus in the
// call field beside an empty window of Qt, and how much memory a full log takes beside that. The program
// starts itself anew for each start that it measures, with the folder to start in as its argument.
#include <QApplication>
#include <QKeyEvent>
#include <QProcess>
#include <QTemporaryDir>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <fstream>
#include <vector>

#include "shell/program.h"
#include "shell/qt/qt_platform.h"

namespace {

using Instant = std::chrono::steady_clock;

constexpr int kQsos = 2500;
constexpr int kKeys = 400;
constexpr int kStarts = 25;

double millisecondsSince(Instant::time_point start) {
    return std::chrono::duration<double, std::milli>(Instant::now() - start).count();
}

double medianOf(std::vector<double> values) {
    std::nth_element(values.begin(), values.begin() + std::ssize(values) / 2, values.end());
    return values[values.size() / 2];
}

double residentMegabytes() {
    std::ifstream statm("/proc/self/statm");
    double size = 0, resident = 0;
    statm >> size >> resident;
    return resident * 4096 / 1e6;
}

void writeLog(const QTemporaryDir& folder) {
    std::ofstream log(folder.filePath("full.lgg").toStdString(), std::ios::binary);
    log << "2026 ARRL Jan. VHF Sweepstakes\r\nv2.0        K3TEST          1\r\n";
    for (int qso = 0; qso < kQsos; ++qso) {
        char line[80];
        std::snprintf(line, sizeof line, "50    PH  01/17/26  %02d%02d  W%d%c%c%-8cFN20xa FN%02d   %-8s 1 ",
                      qso / 60 % 24, qso % 60, qso % 10, 'A' + qso / 10 % 26, 'A' + qso / 260 % 26, 'X',
                      qso % 100, "");
        log << line << "\r\n";
    }
    std::ofstream(folder.filePath("Name.dat").toStdString(), std::ios::binary)
        << "\"K3TEST\"\r\n\"\"\r\n\"\"\r\n\"\"\r\n\"FN20XA\"\r\n";
}

/// Tells when a widget has been painted.
class PaintWatch : public QObject {
public:
    explicit PaintWatch(QWidget& widget) { widget.installEventFilter(this); }
    bool painted = false;

protected:
    bool eventFilter(QObject*, QEvent* event) override {
        painted = painted || event->type() == QEvent::Paint;
        return false;
    }
};

/// The program at its main form with the full log of a folder.
struct FullLog {
    explicit FullLog(const QString& folder) : machine(folder.toStdString()) {
        machine.attach(&front);
        Forms& all = program.station().forms;
        enter([&] { all.frmSetup.show(); });
        enter([&] {
            all.frmSetup.logFile.clickRow(0);
            all.frmSetup.cmdDone.click();
        });
        while (!callField().hasFocus()) QCoreApplication::processEvents();
    }
    ~FullLog() { machine.attach(nullptr); }
    void enter(const std::function<void()>& event) {
        front.enter([&](forms::Screen& screen) { screen.dispatch(event); });
    }
    QWidget& callField() { return *front.find("frmLog")->window().findChild<QWidget*>("CallS"); }

    QtPlatform machine;
    Program program{machine.platform()};
    WindowsFront front{program.screen(), machine.platform().clock};
};

double keyToPaint(const QString& folder) {
    FullLog full(folder);
    QCoreApplication::processEvents();
    QWidget& field = full.callField();
    PaintWatch watch(field);
    std::vector<double> times;
    for (int at = 0; at < kKeys; ++at) {
        const bool clears = at % 6 == 5;
        QKeyEvent key(QEvent::KeyPress, clears ? Qt::Key_Escape : Qt::Key_A, Qt::NoModifier,
                      clears ? "" : "a");
        watch.painted = false;
        const auto start = Instant::now();
        QCoreApplication::sendEvent(&field, &key);
        while (!watch.painted) QCoreApplication::processEvents();
        times.push_back(millisecondsSince(start));
    }
    return medianOf(times);
}

/// One start as a child plays it, of an empty window where there is no folder: prints its resident memory
/// when the first focus is there.
int playStart(const QString& folder) {
    if (folder.isEmpty()) {
        QWidget window;
        window.show();
        window.activateWindow();
        while (!window.isActiveWindow()) QCoreApplication::processEvents();
        std::printf("%f\n", residentMegabytes());
    } else {
        const FullLog full(folder);
        QCoreApplication::processEvents();
        std::printf("%f\n", residentMegabytes());
    }
    return 0;
}

struct Starts {
    std::vector<double> milliseconds, megabytes;
};

void measureStart(const QString& folder, Starts& starts) {
    QProcess child;
    const auto start = Instant::now();
    child.start(QCoreApplication::applicationFilePath(), {folder});
    child.waitForReadyRead(60000);
    starts.milliseconds.push_back(millisecondsSince(start));
    starts.megabytes.push_back(child.readAllStandardOutput().toDouble());
    child.waitForFinished();
}

}  // namespace

int main(int argc, char* argv[]) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    QCoreApplication::setOrganizationName("TARQEN bench");
    // The platform without a screen tells at length of what it lacks.
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    if (argc > 1) return playStart(argv[1]);
    const QTemporaryDir folder;
    writeLog(folder);
    std::printf("key to painted window, %d QSOs      %8.2f ms (median of %d keys)\n", kQsos,
                keyToPaint(folder.path()), kKeys);
    Starts empty, full;
    // By turns, so that whatever else the machine does falls on both.
    for (int at = 0; at < kStarts; ++at) {
        measureStart("", empty);
        measureStart(folder.path(), full);
    }
    const double emptyTime = medianOf(empty.milliseconds), fullTime = medianOf(full.milliseconds);
    const double emptySize = medianOf(empty.megabytes), fullSize = medianOf(full.megabytes);
    std::printf("start of an empty window           %8.1f ms, %6.1f MB\n", emptyTime, emptySize);
    std::printf("start to focus in CallS, %d QSOs %8.1f ms, %6.1f MB\n", kQsos, fullTime, fullSize);
    std::printf("ratio                              %8.2f   , %6.2f\n", fullTime / emptyTime,
                fullSize / emptySize);
    return 0;
}
