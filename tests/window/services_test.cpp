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

TEST(Programs, FileOfAnEditorIsKnown) {
    EXPECT_EQ(editedFile("NOTEPAD.exe dupefile.txt"), "dupefile.txt");
    EXPECT_EQ(editedFile("C:\\log\\EditPad.exe \"my log.lgg\""), "my log.lgg");
    EXPECT_EQ(editedFile("XNOTEPAD.exe dupefile.txt"), "");
    EXPECT_EQ(editedFile("PLAZAS.exe"), "");
}
