// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "tests/composer/mouse/mouse_fixture.h"

#include <QLineEdit>
#include <QTabWidget>
#include <QTextBrowser>

using namespace zeph;

namespace mousemanual_tests {

namespace {

class ManualMouse : public test::MouseTest
{
protected:
    void SetUp() override { editor->action(u"mnuMouseManual")->trigger(); }
    MouseManual &manual() { return *windows.get<MouseManual>(); }
    void write(const QString &box, const QString &text)
    {
        manual().findChild<QLineEdit *>(box)->setText(text);
    }
    void choose(const QString &list, const QString &entry)
    {
        manual().findChild<QComboBox *>(list)->setCurrentText(entry);
    }
    /// What Insert writes into an empty joystick file from a tab.
    QString inserted(MouseManual::Tab tab)
    {
        setJoystick(QString());
        manual().showTab(tab);
        pressInsert();
        return joystick().text();
    }
    void pressInsert() { manual().findChild<QPushButton *>(u"Command1"_s)->click(); }
    QString preview() { return manual().findChild<QLabel *>(u"LBL_MouseStatement"_s)->text(); }
};

} // namespace

TEST_F(ManualMouse, OpensOnItsIntroductionWhichRefuses)
{
    auto &tabs = *manual().findChild<QTabWidget *>(u"SSTab1"_s);
    EXPECT_EQ(tabs.currentIndex(), MouseManual::Introduction);
    EXPECT_EQ(tabs.count(), 5);
    EXPECT_TRUE(manual()
                    .findChild<QTextBrowser *>(u"TextLesson_0"_s)
                    ->toPlainText()
                    .contains(u"MOUSEROTATE"));
    dialogs.answer(u"You're joking, right?!"_s, BoxButton::Ok);
    pressInsert();
    EXPECT_TRUE(dialogs.boxes().last().text.startsWith(
        u"You're having me on aren't you? Really, now what would you like me to insert into your "
        "joystick file from this introduction? How does every third word grab you? :)"));
    EXPECT_EQ(joystick().text(), QString());
}

TEST_F(ManualMouse, EachTabInsertsItsStatement)
{
    choose(u"ComboScreenRes"_s, u"1024,768"_s);
    EXPECT_EQ(inserted(MouseManual::Resolution), u"USE SCREEN_RESOLUTION (1024,768) \n\n");
    choose(u"ComboOrigin_0"_s, u"CENTER"_s);
    write(u"Text1_0"_s, u"200, -140"_s);
    EXPECT_EQ(inserted(MouseManual::Place), u"MOUSEXY (CENTER, 200, -140) ");
    write(u"Text1_1"_s, u"5%, 0%"_s);
    EXPECT_EQ(inserted(MouseManual::Move), u"MOUSEMOVE (5%, 0%) ");
    choose(u"ComboOrigin_1"_s, u"DR"_s);
    write(u"Text1_2"_s, u"90, 75"_s);
    write(u"Text1_3"_s, u"20"_s);
    write(u"Text1_4"_s, u"10"_s);
    write(u"RTB_Macro"_s, u"MOUSE_RB"_s);
    write(u"Text1_5"_s, u"0"_s);
    choose(u"ComboSteps"_s, u"3"_s);
    EXPECT_EQ(inserted(MouseManual::Rotate),
              u"MOUSEROTATE (DR, 90, 75, 20, 10, [MOUSE_RB], CW, 0, 3)");
    manual().findChild<QAbstractButton *>(u"OPT_CounterClockwise"_s)->click();
    EXPECT_EQ(inserted(MouseManual::Rotate),
              u"MOUSEROTATE (DR, 90, 75, 20, 10, [MOUSE_RB], CCW, 0, 3)");
    EXPECT_EQ(preview(), u"MOUSEROTATE (DR, 90, 75, 20, 10, [MOUSE_RB], CCW, 0, 3)");
}

TEST_F(ManualMouse, WhatIsTypedGoesInUncheckedEvenNothing)
{
    EXPECT_EQ(inserted(MouseManual::Place), u"MOUSEXY (UL, ) ");
    EXPECT_EQ(inserted(MouseManual::Move), u"MOUSEMOVE () ");
    EXPECT_EQ(inserted(MouseManual::Rotate), u"MOUSEROTATE (UL, , , , [], CW, , 1)");
    choose(u"ComboScreenRes"_s, u"as large as life"_s);
    EXPECT_EQ(inserted(MouseManual::Resolution), u"USE SCREEN_RESOLUTION (as large as life) \n\n");
}

TEST_F(ManualMouse, TheListsHaveTheirEntries)
{
    const auto entries = [this](const QString &name) {
        const auto &list = *manual().findChild<QComboBox *>(name);
        QStringList texts;
        for (int i = 0; i < list.count(); ++i) {
            texts.append(list.itemText(i));
        }
        return texts.join(u' ');
    };
    EXPECT_EQ(entries(u"ComboScreenRes"_s),
              u"640,480 800,600 1024,768 1152,864 1280,960 1280,1024 1600,1200");
    EXPECT_EQ(entries(u"ComboOrigin_0"_s), u"UL DL UR DR CENTER CENTRE");
    EXPECT_EQ(entries(u"ComboOrigin_1"_s), u"UL DL UR DR CENTER CENTRE");
    EXPECT_EQ(entries(u"ComboSteps"_s), u"1 2 3 4 5 6 7 8 9 10");
}

TEST_F(ManualMouse, AProtectedMacroFileRefusesWhileItsTabIsSelected)
{
    setJoystick(u"BTN S1 "_s);
    setMacro(u"Fire = a"_s);
    editor->documents().setProtected(true);
    manual().showTab(MouseManual::Move);
    dialogs.answer(u"File protected"_s, BoxButton::Ok);
    pressInsert();
    EXPECT_EQ(joystick().text(), u"BTN S1 ");
    EXPECT_EQ(macro().text(), u"Fire = a");
}

TEST_F(ManualMouse, ANumberThatIsNoTabShowsTheIntroduction)
{
    manual().showTab(MouseManual::Rotate);
    manual().showTab(7);
    EXPECT_EQ(manual().findChild<QTabWidget *>(u"SSTab1"_s)->currentIndex(),
              MouseManual::Introduction);
}

TEST_F(ManualMouse, EscapeClosesIt)
{
    QTest::keyClick(&manual(), Qt::Key_Escape);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(windows.get<MouseManual>(), nullptr);
}

} // namespace mousemanual_tests
