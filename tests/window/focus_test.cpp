// SPDX-License-Identifier: MIT
// The whole program in its windows: after every command, click, menu item and box a letter is typed, and the
// test says where it landed: in the call field, but for the few that are named below.
#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QListView>
#include <QMenu>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <fstream>
#include <map>
#include <set>

#include "shell/program.h"
#include "shell/qt/qt_platform.h"

namespace {

constexpr auto kLog =
    "2026 ARRL Jan. VHF Sweepstakes\r\n"
    "v2.0        K3TEST          1\r\n"
    "50    PH  01/17/26  1900  W2ABC        FN20xa FN12   1-50     1 \r\n"
    "50    PH  01/17/26  1901  K1XYZ        FN20xa FN31pr 2-50     1 \r\n"
    "144   PH  01/17/26  1902  N3RG         FN20xa FN20   1-144    1 \r\n";

/// A station at its main form, with a log of three QSOs; whatever box opens is answered with Esc.
class AtTheLog {
public:
    AtTheLog() {
        write("jan.lgg", kLog);
        write("Name.dat", "\"K3TEST\"\r\n\"Jane\"\r\n\"\"\r\n\"\"\r\n\"FN20XA\"\r\n");
        QObject::connect(&answers_, &QTimer::timeout, &front_, [this] { answer(); });
        answers_.start(5);
        machine_.attach(&front_);
        dispatch([this] { setup().show(); });
        dispatch([this] {
            setup().logFile.clickRow(0);
            setup().cmdDone.click();
        });
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window()));
    }
    ~AtTheLog() { machine_.attach(nullptr); }

    LogForm& log() { return program_.station().forms.frmLog; }
    QWidget& window() { return front_.find("frmLog")->window(); }
    FormWindow& formWindow() { return *front_.find("frmLog"); }
    int boxes() const { return boxes_; }

    void type(const QString& text) {
        for (const QChar character : text) QTest::keyClick(keyboard(), character.toLatin1());
    }
    void press(Qt::Key key) { QTest::keyClick(keyboard(), key); }

    /// Clears the entry and puts the focus where a contest goes on.
    void beginAnew() {
        dispatch([this] { log().focus(log().CallS); });
        press(Qt::Key_Escape);
        ASSERT_EQ(log().focused(), &log().CallS);
    }
    /// Types a letter and tells which field has it.
    std::string landing() {
        std::map<const forms::TextLine*, std::string> before;
        for (const auto* line : lines()) before[line] = line->text();
        type("q");
        for (const auto* line : lines()) {
            if (line->text() != before[line]) return line->name();
        }
        return log().focused() ? "lost at " + log().focused()->name() : "lost";
    }

private:
    void write(const std::string& name, const std::string& content) {
        std::ofstream(folder_.filePath(QString::fromStdString(name)).toStdString(), std::ios::binary)
            << content;
    }
    SetupForm& setup() { return program_.station().forms.frmSetup; }
    void dispatch(const std::function<void()>& event) {
        front_.enter([&](forms::Screen& screen) { screen.dispatch(event); });
    }
    QWidget* keyboard() { return window().focusWidget() ? window().focusWidget() : &window(); }
    std::vector<const forms::TextLine*> lines() {
        std::vector<const forms::TextLine*> found;
        for (const forms::Control* control : log().controls()) {
            if (const auto* line = dynamic_cast<const forms::TextLine*>(control)) found.push_back(line);
        }
        return found;
    }
    void answer() {
        QWidget* const box = QApplication::activePopupWidget() ? QApplication::activePopupWidget()
                                                               : QApplication::activeModalWidget();
        if (box == nullptr || !box->isVisible()) return;
        ++boxes_;
        QTest::keyClick(box, Qt::Key_Escape);
    }

    QTemporaryDir folder_;
    QtPlatform machine_{folder_.path().toStdString()};
    Program program_{machine_.platform()};
    WindowsFront front_{program_.screen(), machine_.platform().clock};
    QTimer answers_;
    int boxes_ = 0;
};

/// Where the keys don't go to the call field: a field that was clicked, and the button at which a QSO waits
/// that a command called up with its grid.
const std::map<std::string, std::string> kElsewhere = {
    {"click tGrid", "tGrid"},
    {"command L2", "lost at cUpdate"},
};

void expectLanding(AtTheLog& desk, const std::string& what) {
    const auto elsewhere = kElsewhere.find(what);
    EXPECT_EQ(desk.landing(), elsewhere == kElsewhere.end() ? "CallS" : elsewhere->second)
        << "after " << what;
}

}  // namespace

TEST(Focus, AfterEveryCommandTheCallFieldHasTheKeys) {
    AtTheLog desk;
    for (const char* command : {"B",  "L1", "L2", "S",  "CW", "PH", "PC",  "GL", "RF", "CL",
                                "MB", "MW", "SC", "SS", "KS", "DL", "144", "50", "X",  "12"}) {
        desk.beginAnew();
        desk.type(command);
        desk.press(Qt::Key_Return);
        expectLanding(desk, std::string("command ") + command);
    }
    EXPECT_GT(desk.boxes(), 2);
}

TEST(Focus, AfterEveryClickTheKeysGoWhereTheOperatorMeans) {
    AtTheLog desk;
    int clicked = 0;
    for (const auto& view : desk.formWindow().views()) {
        forms::Control& control = view->control();
        for (const Qt::MouseButton button : {Qt::LeftButton, Qt::RightButton}) {
            if (!control.usable() || dynamic_cast<forms::ComboBox*>(&control)) continue;
            desk.beginAnew();
            auto* const list = qobject_cast<QListView*>(&view->widget());
            QWidget* const target = list ? list->viewport() : &view->widget();
            QTest::mouseClick(target, button, {}, QPoint(8, std::min(8, target->height() / 2)));
            expectLanding(desk, (button == Qt::LeftButton ? "click " : "right click ") + control.name());
            ++clicked;
        }
    }
    EXPECT_GT(clicked, 40);
}

TEST(Focus, AfterEveryMenuItemTheCallFieldHasTheKeys) {
    AtTheLog desk;
    int chosen = 0;
    for (const forms::Control* const control : desk.log().controls()) {
        const auto* const item = dynamic_cast<const forms::MenuItem*>(control);
        const bool leaf = item && item->children().empty() && item->caption() != "-";
        // One item ends the program, and one opens a form of its own, which takes the keys.
        const bool stays = leaf && item->name() != "cmdExit" && item->name() != "mBands";
        if (!stays || !item->reachable()) continue;
        desk.beginAnew();
        desk.formWindow().menu()->actionOf(*item)->trigger();
        expectLanding(desk, "menu " + item->name());
        ++chosen;
    }
    EXPECT_GE(chosen, 20);
}
