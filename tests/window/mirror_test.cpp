// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <QAction>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QSignalSpy>

#include "desk.h"
#include "shell/qt/look.h"

namespace {

class Mirror : public testing::Test {
protected:
    Desk desk;
    LogForm& log = desk.forms.frmLog;
    SetupForm& setup = desk.forms.frmSetup;
    QLineEdit& edit(forms::TextBox& box) { return desk.widget<QLineEdit>(box); }
};

}  // namespace

TEST(Codec, EveryByteComesBackAsItWent) {
    std::string all;
    for (int byte = 0; byte < 256; ++byte) all.push_back(static_cast<char>(byte));
    EXPECT_EQ(codec::fromQt(codec::toQt(all)), all);
    EXPECT_EQ(codec::toQt("\x80\xb0\x99"), QStringView(u"\u20ac\u00b0\u2122").toString());
}

TEST(Codec, CharacterThatTheProgramLacksIsOneQuestionMark) {
    EXPECT_EQ(codec::fromQt(QStringView(u"a\u0416b\U0001F600c").toString()), "a?b?c");
}

TEST(Look, InkIsReadOnEveryGround) {
    for (const int ground : {0, 255, 0x80FF80, 0x80FFFF, 0xFFFFFF, 0xFFFF80}) {
        const QColor colour = look::colourOf(ground);
        EXPECT_GE(look::contrast(look::inkFor(colour), colour), 4.5) << ground;
        EXPECT_GE(look::contrast(look::readable(QColor(Qt::red), colour), colour), 4.5) << ground;
    }
}

TEST(Look, FontIsScaledFromTheOneOfTheLayout) {
    QFont layout("Sans", 11);
    EXPECT_DOUBLE_EQ(look::fontOf(layout, {}).pointSizeF(), 11);
    EXPECT_DOUBLE_EQ(look::fontOf(layout, {"MS Sans Serif", 16.5, true}).pointSizeF(), 22);
    EXPECT_TRUE(look::fontOf(layout, {"MS Sans Serif", 16.5, true}).bold());
    EXPECT_EQ(look::fontOf(layout, {"COURIER", 8.25, false}).family(), "Liberation Mono");
}

TEST_F(Mirror, TextTypedIsInTheControlAndOnTheScreen) {
    desk.show(log);
    desk.type(log, "w2abc");
    EXPECT_EQ(log.CallS.text(), "w2abc");
    EXPECT_EQ(edit(log.CallS).text(), "w2abc");
    EXPECT_EQ(edit(log.CallS).cursorPosition(), 5);
}

TEST_F(Mirror, KeyThatAHandlerSwallowsIsNotOnTheScreen) {
    desk.show(log);
    log.CallS.onKeyPress = [](forms::KeyPress& key) { key.swallowed = key.code == '-'; };
    desk.type(log, "a-b");
    EXPECT_EQ(edit(log.CallS).text(), "ab");
}

TEST_F(Mirror, PasteIsOneChange) {
    desk.show(log);
    int changes = 0;
    log.CallS.onChange = [&] { ++changes; };
    QGuiApplication::clipboard()->setText("W2ABC/1");
    desk.key(log, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(log.CallS.text(), "W2ABC/1");
    EXPECT_EQ(changes, 1);
}

TEST_F(Mirror, PasteInTheMiddleLeavesTheCaretBehindIt) {
    desk.show(log);
    log.CallS.setText("WBC");
    log.CallS.select(1, 1);
    QGuiApplication::clipboard()->setText("2A");
    desk.key(log, Qt::Key_V, Qt::ControlModifier);
    desk.type(log, "x");
    EXPECT_EQ(log.CallS.text(), "W2AxBC");
}

TEST_F(Mirror, PasteThatAHandlerChangesShowsWhatTheHandlerLeft) {
    desk.show(log);
    log.CallS.onChange = [this] { log.CallS.setText("N0CALL"); };
    QGuiApplication::clipboard()->setText("W2ABC");
    desk.key(log, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(edit(log.CallS).text(), "N0CALL");
    EXPECT_EQ(log.CallS.text(), "N0CALL");
}

TEST_F(Mirror, TextSelectedWithShiftIsReplacedByTheNextKey) {
    desk.show(log);
    desk.type(log, "w2abc");
    desk.key(log, Qt::Key_Home, Qt::ShiftModifier);
    desk.type(log, "k");
    EXPECT_EQ(log.CallS.text(), "k");
}

TEST_F(Mirror, ComposedCharacterIsTyped) {
    desk.show(setup);
    QInputMethodEvent event;
    event.setCommitString(QStringView(u"\u00e9").toString());
    QCoreApplication::sendEvent(&desk.keyboard(setup), &event);
    EXPECT_EQ(setup.Combo4.text(), "\xe9");
}

TEST_F(Mirror, MouseInAFieldTakesTheFocusAndPlacesTheCaret) {
    desk.show(log);
    log.tGrid.setText("FN20");
    QTest::mouseClick(&edit(log.tGrid), Qt::LeftButton, {}, QPoint(4, edit(log.tGrid).height() / 2));
    EXPECT_EQ(log.focused(), &log.tGrid);
    desk.type(log, "x");
    EXPECT_EQ(log.tGrid.text(), "xFN20");
}

TEST_F(Mirror, CheckBoxTurnsOverOnceWithAClick) {
    desk.show(log);
    int clicks = 0;
    log.partial3D.onClick = [&] { ++clicks; };
    auto& box = desk.widget<QCheckBox>(log.partial3D);
    QTest::mouseClick(&box, Qt::LeftButton, {}, QPoint(8, box.height() / 2));
    EXPECT_EQ(clicks, 1);
    EXPECT_TRUE(log.partial3D.checked());
    EXPECT_TRUE(box.isChecked());
}

TEST_F(Mirror, HandlerThatTakesTheMarkBackIsObeyed) {
    desk.show(log);
    log.partial3D.onClick = [this] { log.partial3D.setChecked(false); };
    auto& box = desk.widget<QCheckBox>(log.partial3D);
    QTest::mouseClick(&box, Qt::LeftButton, {}, QPoint(8, box.height() / 2));
    EXPECT_FALSE(box.isChecked());
}

TEST_F(Mirror, LabelsAreClickedWithBothButtons) {
    desk.show(log);
    std::string heard;
    log.Label5.onClick = [&] { heard += "left "; };
    log.Label5.onRightClick = [&] { heard += "right "; };
    QTest::mouseClick(&desk.widget(log.Label5), Qt::LeftButton);
    QTest::mouseClick(&desk.widget(log.Label5), Qt::RightButton);
    EXPECT_EQ(heard, "left right ");
}

TEST_F(Mirror, BareSurfaceIsClicked) {
    desk.show(log);
    int clicks = 0;
    log.onClick = [&] { ++clicks; };
    QTest::mouseClick(desk.front.find("frmLog")->window().findChild<QWidget*>("decoEntryFrame"),
                      Qt::LeftButton);
    EXPECT_EQ(clicks, 1);
}

TEST_F(Mirror, ListTellsTheRowThatWasClicked) {
    desk.show(log);
    log.QSOs.setItems({"one", "two", "three"});
    int row = -2, doubled = -2;
    log.QSOs.onClick = [&] { row = log.QSOs.listIndex(); };
    log.QSOs.onDoubleClick = [&] { doubled = log.QSOs.listIndex(); };
    desk.clickRow(log.QSOs, 2);
    EXPECT_EQ(row, 2);
    auto& view = desk.widget<QListView>(log.QSOs);
    QTest::mouseDClick(view.viewport(), Qt::LeftButton, {},
                       view.visualRect(view.model()->index(1, 0)).center());
    EXPECT_EQ(doubled, 1);
    EXPECT_EQ(view.currentIndex().row(), 1);
}

TEST_F(Mirror, ManyRowsAddNoWidgets) {
    desk.show(log);
    QWidget& window = desk.front.find("frmLog")->window();
    log.QSOs.add("first");
    const auto before = window.findChildren<QWidget*>().size();
    for (int row = 0; row < 2500; ++row) log.QSOs.add("144   PH  01/20/07  1435  W2ABC       FN12");
    log.QSOs.select(log.QSOs.listCount() - 1);
    QTest::qWait(20);
    EXPECT_EQ(window.findChildren<QWidget*>().size(), before);
    EXPECT_EQ(desk.widget<QListView>(log.QSOs).model()->rowCount(), 2501);
}

TEST_F(Mirror, OneMoreRowIsToldAsOneMoreRow) {
    desk.show(log);
    log.QSOs.setItems({"one", "two"});
    auto& view = desk.widget<QListView>(log.QSOs);
    const QSignalSpy resets(view.model(), &QAbstractItemModel::modelReset);
    const QSignalSpy inserts(view.model(), &QAbstractItemModel::rowsInserted);
    log.QSOs.add("three");
    EXPECT_EQ(resets.size(), 0);
    ASSERT_EQ(inserts.size(), 1);
    EXPECT_EQ(inserts[0][1].toInt(), 2);
    EXPECT_EQ(view.model()->index(2, 0).data().toString(), "three");
}

TEST_F(Mirror, RowTakenOutOfTheMiddleIsGoneFromTheScreen) {
    desk.show(log);
    log.QSOs.setItems({"one", "two", "three"});
    log.QSOs.remove(1);
    const auto& model = *desk.widget<QListView>(log.QSOs).model();
    ASSERT_EQ(model.rowCount(), 2);
    EXPECT_EQ(model.index(1, 0).data().toString(), "three");
}

TEST_F(Mirror, PickFromAComboBoxIsAClickAndNoChange) {
    desk.show(log);
    log.Combo3.add("<Enter> key");
    log.Combo3.add("Auto Accept");
    std::string heard;
    log.Combo3.onClick = [&] { heard += "click " + log.Combo3.text(); };
    log.Combo3.onChange = [&] { heard += "change "; };
    auto& combo = desk.widget<QComboBox>(log.Combo3);
    combo.setCurrentIndex(1);
    emit combo.activated(1);
    EXPECT_EQ(heard, "click Auto Accept");
    EXPECT_EQ(combo.currentText(), "Auto Accept");
}

TEST_F(Mirror, ComboBoxThatIsLeftHasNotBeenPickedFrom) {
    desk.show(log);
    log.Combo3.add("<Enter> key");
    log.Combo3.add("Auto Accept");
    log.Combo3.setText("Auto Accept");
    log.focus(log.Combo3);
    int clicks = 0;
    log.Combo3.onClick = [&] { ++clicks; };
    log.focus(log.CallS);
    EXPECT_TRUE(desk.widget(log.CallS).hasFocus());
    EXPECT_EQ(clicks, 0);
}

TEST_F(Mirror, MenuFollowsItsItems) {
    desk.show(log);
    const MenuView& menu = *desk.front.find("frmLog")->menu();
    EXPECT_EQ(menu.actionOf(log.menu.ffile)->text(), "&File");
    EXPECT_FALSE(menu.actionOf(log.menu.mdupes)->isVisible());
    log.menu.mdupes.show();
    log.menu.mdupes.setCaption("Dupes: 3");
    EXPECT_TRUE(menu.actionOf(log.menu.mdupes)->isVisible());
    EXPECT_EQ(menu.actionOf(log.menu.mdupes)->text().remove('&'), "Dupes: 3");
    log.menu.mBoldW.setChecked(true);
    EXPECT_TRUE(menu.actionOf(log.menu.mBoldW)->isChecked());
    EXPECT_TRUE(menu.actionOf(log.menu.dummy1)->isSeparator());
    log.menu.mCabrillo.setEnabled(false);
    EXPECT_FALSE(menu.actionOf(log.menu.mCabrillo)->isEnabled());
}

TEST_F(Mirror, MenuItemIsClickedOnce) {
    desk.show(log);
    int clicks = 0;
    log.menu.mReal.onClick = [&] { ++clicks; };
    QAction& action = *desk.front.find("frmLog")->menu()->actionOf(log.menu.mReal);
    action.trigger();
    EXPECT_EQ(clicks, 1);
    // The item kept its mark, so the menu does.
    EXPECT_TRUE(action.isChecked());
}

TEST_F(Mirror, WindowClosedByItsFrameAsksTheForm) {
    desk.show(log);
    int asked = 0;
    log.onQueryClose = [&](bool& refuse) {
        ++asked;
        refuse = true;
    };
    QWidget& window = desk.front.find("frmLog")->window();
    window.close();
    EXPECT_EQ(asked, 1);
    EXPECT_TRUE(window.isVisible());
    log.onQueryClose = nullptr;
    window.close();
    EXPECT_FALSE(window.isVisible());
    EXPECT_FALSE(log.visible());
}

TEST_F(Mirror, FaultOfAHandlerDoesNotReachQt) {
    desk.show(log);
    log.CallS.onKeyPress = [](forms::KeyPress&) { throw std::logic_error("broken"); };
    desk.type(log, "a");
    EXPECT_EQ(desk.fault, "broken");
    EXPECT_TRUE(desk.forms.screen.ended());
}

TEST_F(Mirror, ColoursAreReadable) {
    desk.show(log);
    log.Label4.setBackColour(forms::kRed);
    log.fPrinter.setForeColour(forms::kRed);
    const QPalette label = desk.widget(log.Label4).palette(), box = desk.widget(log.fPrinter).palette();
    EXPECT_EQ(label.color(QPalette::Window), QColor(255, 0, 0));
    EXPECT_GE(look::contrast(label.color(QPalette::WindowText), label.color(QPalette::Window)), 4.5);
    EXPECT_GE(look::contrast(box.color(QPalette::WindowText), box.color(QPalette::Window)), 4.5);
}
