// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "livetools/quickview/sender_search.h"

#include "livetools/board_keys.h"
#include "tests/support/fixture.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QCompleter>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QVBoxLayout>

using namespace zeph;

namespace {

class SenderSearchTest : public test::WorldTest
{
protected:
    void SetUp() override
    {
        auto *row = new QVBoxLayout(&window);
        search = new SenderSearch(dialogs, &window);
        row->addWidget(search);
        other = new QLineEdit(&window);
        row->addWidget(other);
        QObject::connect(search, &SenderSearch::soughtChanged, &window,
                         [this](const QString &sought) { asked.append(sought); });
        window.show();
        QApplication::setActiveWindow(&window);
        search->focusField();
        QApplication::processEvents();
    }
    QLineEdit &field() { return *search->findChild<QLineEdit *>(u"TextSought"_s); }
    QPushButton &button() { return *search->findChild<QPushButton *>(u"CommandListen"_s); }
    QString told() { return search->findChild<QLabel *>(u"LabelSenders"_s)->text(); }
    void listen() { QTest::mouseClick(&button(), Qt::LeftButton); }
    void press(int key, Qt::KeyboardModifiers held = {})
    {
        QTest::keyClick(window.focusWidget(), Qt::Key(key), held);
    }

    QWidget window;
    SenderSearch *search = nullptr;
    QLineEdit *other = nullptr;
    QStringList asked;
};

QString soughtFor(QStringView key, Qt::KeyboardModifiers held)
{
    return soughtKey(*boardKeyNamed(key), held);
}

} // namespace

TEST(SendersInWords, CountControlsAndPositions)
{
    EXPECT_EQ(sendersInWords({}), u"Nothing sends it."_s);
    EXPECT_EQ(sendersInWords({ { 15, 1 } }), u"Sent by 1 control in 1 position."_s);
    EXPECT_EQ(sendersInWords({ { 15, 1 }, { 15, 2 } }), u"Sent by 1 control in 2 positions."_s);
    EXPECT_EQ(sendersInWords({ { 1, 3 }, { 15, 1 }, { 15, 2 }, { 20, 6 }, { 20, 5 } }),
              u"Sent by 3 controls in 5 positions."_s);
}

TEST(SoughtKey, HasItsModifiersWithoutASide)
{
    EXPECT_EQ(soughtFor(u"a", {}), u"a"_s);
    EXPECT_EQ(soughtFor(u"1", Qt::ShiftModifier), u"SHF 1"_s);
    EXPECT_EQ(soughtFor(u"F1", Qt::ShiftModifier | Qt::ControlModifier | Qt::AltModifier),
              u"CTL ALT SHF F1"_s);
    EXPECT_EQ(soughtFor(u"KP7", Qt::KeypadModifier), u"KP7"_s);
    EXPECT_EQ(soughtFor(u"e", Qt::GroupSwitchModifier), u"ALT e"_s);
}

TEST(SoughtKey, AModifierItselfIsNotToldTwice)
{
    EXPECT_EQ(soughtFor(u"LSHF", Qt::ShiftModifier), u"SHF"_s);
    EXPECT_EQ(soughtFor(u"RSHF", {}), u"SHF"_s);
    EXPECT_EQ(soughtFor(u"RCTL", Qt::ShiftModifier), u"CTL SHF"_s);
    EXPECT_EQ(soughtFor(u"RALT", {}), u"ALT"_s);
}

TEST_F(SenderSearchTest, WhatIsTypedIsAskedForWithoutBlanksAroundIt)
{
    QTest::keyClicks(&field(), u" a"_s);
    EXPECT_EQ(asked, QStringList{ u"a"_s });
    QTest::keyClicks(&field(), u" b"_s);
    EXPECT_EQ(asked, (QStringList{ u"a"_s, u"a b"_s }));
    EXPECT_EQ(search->sought(), u"a b"_s);
}

TEST_F(SenderSearchTest, TheResultIsToldUntilSomethingElseIsSought)
{
    QTest::keyClicks(&field(), u"a"_s);
    search->showResult({ { 15, 1 }, { 16, 2 } });
    EXPECT_EQ(told(), u"Sent by 2 controls in 2 positions."_s);
    QTest::keyClicks(&field(), u"b"_s);
    EXPECT_EQ(told(), QString());
    search->showResult({});
    EXPECT_EQ(told(), u"Nothing sends it."_s);
}

TEST_F(SenderSearchTest, NothingIsToldWhileNothingIsSought)
{
    search->showResult({});
    EXPECT_EQ(told(), QString());
}

TEST_F(SenderSearchTest, EscapeEmptiesTheFieldAndIsTheWindowsAfterwards)
{
    QTest::keyClicks(&field(), u"a"_s);
    search->showResult({});
    QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, {});
    QApplication::sendEvent(&field(), &escape);
    EXPECT_EQ(field().text(), QString());
    EXPECT_EQ(told(), QString());
    EXPECT_EQ(asked.last(), QString());
    EXPECT_TRUE(escape.isAccepted());
    QKeyEvent again(QEvent::KeyPress, Qt::Key_Escape, {});
    QApplication::sendEvent(&field(), &again);
    EXPECT_FALSE(again.isAccepted());
}

TEST_F(SenderSearchTest, EscapeIsNoShortcutWhileThereIsSomethingToEmpty)
{
    QKeyEvent empty(QEvent::ShortcutOverride, Qt::Key_Escape, {});
    empty.ignore();
    QApplication::sendEvent(&field(), &empty);
    EXPECT_FALSE(empty.isAccepted());
    QTest::keyClicks(&field(), u"a"_s);
    QKeyEvent full(QEvent::ShortcutOverride, Qt::Key_Escape, {});
    full.ignore();
    QApplication::sendEvent(&field(), &full);
    EXPECT_TRUE(full.isAccepted());
    EXPECT_EQ(field().text(), u"a"_s);
}

TEST_F(SenderSearchTest, MacroNamesAreOfferedByAnyPartInAnyCase)
{
    search->setMacroNames({ u"Gun_Fire"_s, u"Gear_Up"_s, u"Fire_Missile"_s });
    QTest::keyClicks(&field(), u"fire"_s);
    const QAbstractItemModel &offered = *field().completer()->completionModel();
    ASSERT_EQ(offered.rowCount(), 2);
    EXPECT_EQ(offered.index(0, 0).data().toString(), u"Gun_Fire"_s);
    EXPECT_EQ(offered.index(1, 0).data().toString(), u"Fire_Missile"_s);
    QAbstractItemView *list = field().completer()->popup();
    EXPECT_TRUE(list->isVisible());
    QTest::keyClick(list, Qt::Key_Down);
    QTest::keyClick(list, Qt::Key_Return);
    EXPECT_EQ(search->sought(), u"Gun_Fire"_s);
    EXPECT_EQ(asked.last(), u"Gun_Fire"_s);
}

TEST_F(SenderSearchTest, AKeyIsTakenWithItsModifiersWhileItListens)
{
    listen();
    EXPECT_TRUE(button().isChecked());
    EXPECT_TRUE(told().startsWith(u"Listening"));
    press(Qt::Key_A, Qt::ShiftModifier);
    EXPECT_EQ(field().text(), u"SHF a"_s);
    press(Qt::Key_F5);
    press(Qt::Key_Tab);
    EXPECT_EQ(asked, (QStringList{ u"SHF"_s, u"SHF a"_s, u"F5"_s, u"TAB"_s }));
    EXPECT_TRUE(button().isChecked());
}

TEST_F(SenderSearchTest, ItTellsWhatWasFoundOfAPressedKey)
{
    QObject::connect(search, &SenderSearch::soughtChanged, search, [this] {
        search->showResult({ { 15, 1 } });
    });
    listen();
    press(Qt::Key_A);
    EXPECT_EQ(told(), u"Sent by 1 control in 1 position."_s);
    press(Qt::Key_A);
    EXPECT_EQ(told(), u"Sent by 1 control in 1 position."_s);
    press(Qt::Key_F13);
    EXPECT_TRUE(told().contains(u"no such key")) << told().toStdString();
    EXPECT_EQ(field().text(), u"a"_s);
    listen();
    EXPECT_EQ(told(), u"Sent by 1 control in 1 position."_s);
}

TEST_F(SenderSearchTest, EscapeTwiceOrAClickElsewhereEndsListening)
{
    listen();
    press(Qt::Key_Escape);
    EXPECT_EQ(field().text(), u"ESC"_s);
    EXPECT_TRUE(button().isChecked());
    press(Qt::Key_Escape);
    EXPECT_FALSE(button().isChecked());
    listen();
    QTest::mouseClick(other, Qt::LeftButton);
    EXPECT_FALSE(button().isChecked());
    EXPECT_EQ(field().text(), u"ESC"_s);
}

TEST_F(SenderSearchTest, ItEndsListeningWhenItsWindowIsHiddenOrNoLongerActive)
{
    listen();
    window.hide();
    EXPECT_FALSE(button().isChecked());
    window.show();
    QApplication::setActiveWindow(&window);
    listen();
    QWidget another;
    another.show();
    QApplication::setActiveWindow(&another);
    EXPECT_FALSE(button().isChecked());
}

TEST_F(SenderSearchTest, ItEndsListeningWhenItIsHiddenItself)
{
    listen();
    search->hide();
    EXPECT_FALSE(button().isChecked());
    other->setFocus();
    press(Qt::Key_A);
    EXPECT_EQ(other->text(), u"a"_s);
}

TEST_F(SenderSearchTest, TheResultIsNeverCutOff)
{
    listen();
    const auto *label = search->findChild<QLabel *>(u"LabelSenders"_s);
    window.resize(window.minimumSizeHint());
    QApplication::processEvents();
    EXPECT_GE(label->width(), label->fontMetrics().horizontalAdvance(label->text()));
}
