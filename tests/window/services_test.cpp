// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <QApplication>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTimer>
#include <filesystem>
#include <fstream>

#include "desk.h"
#include "shell/linux/posix_files.h"
#include "shell/qt/qt_dialogs.h"
#include "shell/qt/qt_programs.h"
#include "shell/qt/station_folder.h"

namespace {

namespace fs = std::filesystem;

/// The dialogs over the log's window, with a hand that presses keys in the next box that opens.
class Boxes : public testing::Test {
protected:
    void SetUp() override {
        dialogs.attach(&desk.front);
        desk.show(desk.forms.frmLog);
    }
    void inNextBox(const std::function<void(QWidget&)>& hand) {
        QTimer::singleShot(50, &desk.front, [hand] {
            QWidget* const box = QApplication::activeModalWidget();
            ASSERT_NE(box, nullptr);
            hand(*box);
        });
    }
    void pressInNextBox(std::vector<Qt::Key> keys) {
        inNextBox([keys](QWidget& box) {
            for (const Qt::Key key : keys) QTest::keyClick(box.focusWidget() ? box.focusWidget() : &box, key);
        });
    }
    Answer ask(Answer standard) {
        return dialogs.message(
            {.text = "Accept ?", .title = " Dupe", .buttons = Buttons::YesNo, .defaultAnswer = standard});
    }
    Desk desk;
    QtDialogs dialogs;
};

}  // namespace

TEST_F(Boxes, EnterPressesTheDefaultButton) {
    pressInNextBox({Qt::Key_Return});
    EXPECT_EQ(ask(Answer::No), Answer::No);
    pressInNextBox({Qt::Key_Return});
    EXPECT_EQ(ask(Answer::Yes), Answer::Yes);
}

TEST_F(Boxes, TabReachesTheOtherButtonAndBothKeysPressIt) {
    pressInNextBox({Qt::Key_Tab, Qt::Key_Return});
    EXPECT_EQ(ask(Answer::No), Answer::Yes);
    pressInNextBox({Qt::Key_Tab, Qt::Key_Space});
    EXPECT_EQ(ask(Answer::No), Answer::Yes);
}

TEST_F(Boxes, EscIsTheNegativeAnswer) {
    pressInNextBox({Qt::Key_Escape});
    EXPECT_EQ(ask(Answer::Yes), Answer::No);
    pressInNextBox({Qt::Key_Escape});
    EXPECT_EQ(dialogs.message({.text = "Quit ?", .title = "", .buttons = Buttons::OkCancel}), Answer::Cancel);
    pressInNextBox({Qt::Key_Escape});
    EXPECT_EQ(dialogs.message({.text = "Told.", .title = ""}), Answer::Ok);
}

TEST_F(Boxes, TextIsPlainAndKeepsItsLines) {
    QString shown;
    inNextBox([&](QWidget& box) {
        const auto& message = dynamic_cast<QMessageBox&>(box);
        shown = message.text();
        EXPECT_EQ(message.textFormat(), Qt::PlainText);
        box.close();
    });
    dialogs.message({.text = "Click <OK>\r\nor\nnot", .title = ""});
    EXPECT_EQ(shown, "Click <OK>\nor\nnot");
}

TEST_F(Boxes, PromptOffersItsTextSelected) {
    inNextBox([](QWidget& box) {
        QTest::keyClicks(box.focusWidget(), "1800");
        QTest::keyClick(box.focusWidget(), Qt::Key_Return);
    });
    EXPECT_EQ(dialogs.prompt({"Enter Alarm Time", "UTC Alarm Set", "1435"}), "1800");
    pressInNextBox({Qt::Key_Escape});
    EXPECT_EQ(dialogs.prompt({"Enter Alarm Time", "UTC Alarm Set", "1435"}), std::nullopt);
}

TEST_F(Boxes, HourglassIsThePointerUntilItIsTakenBackOnce) {
    ASSERT_EQ(QApplication::overrideCursor(), nullptr);
    dialogs.pointer(Pointer::Hourglass);
    dialogs.pointer(Pointer::Hourglass);
    ASSERT_NE(QApplication::overrideCursor(), nullptr);
    EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
    dialogs.pointer(Pointer::Normal);
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
    dialogs.pointer(Pointer::Normal);
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

TEST_F(Boxes, TimersWaitWhileOneIsOpen) {
    int ticks = 0;
    LogForm& log = desk.forms.frmLog;
    log.Timer1.onTimer = [&] { ++ticks; };
    desk.front.runTimers();
    inNextBox([&](QWidget& box) {
        desk.clock.now += 5000;
        desk.front.runTimers();
        QTest::qWait(30);
        EXPECT_EQ(ticks, 0);
        box.close();
    });
    dialogs.message({.text = "Wait", .title = ""});
    desk.front.runTimers();
    EXPECT_EQ(ticks, 1);
}

TEST(StationFolder, IsTheCurrentOneElsewhereThanAtHome) {
    const QTemporaryDir home, here;
    EXPECT_EQ(stationFolder(here.path().toStdString(), home.path().toStdString(), "/nowhere"),
              here.path().toStdString());
    EXPECT_FALSE(fs::exists(home.filePath("TARQEN").toStdString()));
}

TEST(StationFolder, AtHomeIsOneOfItsOwnWithTheSamples) {
    const QTemporaryDir home, samples;
    std::ofstream(samples.filePath("CKLIST.DAT").toStdString()) << "W2ABC";
    const fs::path root = home.path().toStdString(), made = root / "TARQEN";
    EXPECT_EQ(stationFolder(root, root, samples.path().toStdString()), made);
    EXPECT_TRUE(fs::exists(made / "CKLIST.DAT"));
    EXPECT_FALSE(fs::exists(root / "TARQEN.new"));
    // What the operator has done there since then stays.
    fs::remove(made / "CKLIST.DAT");
    EXPECT_EQ(stationFolder("/", root, samples.path().toStdString()), made);
    EXPECT_FALSE(fs::exists(made / "CKLIST.DAT"));
}

TEST(Programs, FileOfTheFirstViewerIsKnown) {
    EXPECT_EQ(viewedFile("NOTEPAD.exe dupefile.txt"), "dupefile.txt");
    EXPECT_EQ(viewedFile("C:\\log\\NotePad.exe \"my log.lgg\""), "my log.lgg");
    EXPECT_EQ(viewedFile("/home/om/my logs\\NOTEPAD.exe W1ABC.log"), "W1ABC.log");
    EXPECT_EQ(viewedFile("XNOTEPAD.exe dupefile.txt"), "");
    EXPECT_EQ(viewedFile("PLAZAS.exe"), "");
}

TEST(Programs, SecondViewerNeverOpensTheFileOnceMore) {
    EXPECT_EQ(viewedFile("EDITPAD.exe dupefile.txt"), "");
    EXPECT_EQ(viewedFile("/home/om\\EDITPAD.exe W1ABC.log"), "");
}

namespace {

/// A folder with a stand-in for the desktop's opener, which writes down what it is asked to open.
class Opener : public testing::Test {
protected:
    Opener() {
        write("xdg-open", "#!/bin/sh\nprintf %s \"$1\" >told.new\nmv told.new told\n");
        fs::permissions(path() + "/xdg-open", fs::perms::owner_all);
    }
    std::string path() const { return folder.path().toStdString(); }
    void write(const std::string& name, const std::string& text) const {
        std::ofstream(path() + "/" + name) << text;
    }
    /// What was opened, once the opener has written it down.
    std::string opened() const {
        const fs::path told = path() + "/told";
        for (int i = 0; i < 1000 && !fs::exists(told); ++i) QTest::qSleep(10);
        std::ifstream in(told);
        std::string text;
        std::getline(in, text);
        return text;
    }
    QTemporaryDir folder;
    PosixFiles files{path()};
    QtDialogs dialogs;
    QtPrograms programs{path(), files, dialogs};
};

}  // namespace

TEST_F(Opener, StandsInForTheFirstViewer) {
    write("W1ABC.log", "START-OF-LOG: 3.0");
    EXPECT_TRUE(programs.start(path() + "\\NOTEPAD.exe W1ABC.log"));
    EXPECT_EQ(opened(), path() + "/W1ABC.log");
    EXPECT_FALSE(programs.start(path() + "\\EDITPAD.exe W1ABC.log"));
}

TEST_F(Opener, FindsAnExportNamedWithoutItsEnding) {
    write("MYLOG.ADI", "<eoh>");
    EXPECT_TRUE(programs.start(path() + "\\NOTEPAD.exe mylog"));
    EXPECT_EQ(opened(), path() + "/MYLOG.ADI");
}

TEST_F(Opener, IsNotAskedForAFileThatIsNotThere) {
    EXPECT_FALSE(programs.start(path() + "\\NOTEPAD.exe missing.txt"));
}
