// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

// Tumbo while it listens to the real keyboard.

#include "tests/composer/tumbo/tumbo_fixture.h"

#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>

using namespace zeph;

namespace tumbo_listening_test {

namespace {

/// Places of keys as the system reports them.
namespace place {
#ifdef Q_OS_WIN
enum : quint32 {
    digit7 = 0x08,
    a = 0x1E,
    leftShift = 0x2A,
    rightShift = 0x36,
    leftAlt = 0x38,
    pad7 = 0x47,
    padEnter = 0x11C,
    rightControl = 0x11D,
    rightAlt = 0x138
};
#else
// X servers count eight on from Linux.
enum : quint32 {
    digit7 = 8 + 8,
    a = 8 + 30,
    leftShift = 8 + 42,
    rightShift = 8 + 54,
    leftAlt = 8 + 56,
    pad7 = 8 + 71,
    padEnter = 8 + 96,
    rightControl = 8 + 97,
    rightAlt = 8 + 100
};
#endif
} // namespace place

class Listening : public test::TumboTest
{
protected:
    void SetUp() override
    {
        TumboTest::SetUp();
        option(&TumboSettings::AddTumboCR, false);
        clickPart(u"CommandListen"_s);
    }
    bool isListening() { return part<QPushButton>(u"CommandListen"_s).isChecked(); }
    QString line() { return part<QLabel>(u"LabelListen"_s).text(); }
    QString syntax() { return shown()[0]; }
    /// A key as a system reports it that tells places and symbols.
    void strike(int key, Qt::KeyboardModifiers modifiers, quint32 place, quint32 symbol = 0)
    {
        QWidget *focus = tumbo().focusWidget() ? tumbo().focusWidget() : &tumbo();
        for (const auto type : { QEvent::KeyPress, QEvent::KeyRelease }) {
            QKeyEvent event(type, key, modifiers, place, symbol, 0);
            QApplication::sendEvent(focus, &event);
        }
    }
    void strike(Qt::Key key)
    {
        QWidget *focus = tumbo().focusWidget() ? tumbo().focusWidget() : &tumbo();
        QTest::keyClick(focus, key);
    }
};

} // namespace

TEST_F(Listening, AKeyPressesTheBoards)
{
    EXPECT_TRUE(isListening());
    strike(Qt::Key_Q);
    EXPECT_EQ(syntax(), u"q"_s);
    strike(Qt::Key_Q, {}, place::a);
    EXPECT_EQ(syntax(), u"a"_s);
}

TEST_F(Listening, LeftAndRightModifiersAndTheNumberPadAreToldApart)
{
    strike(Qt::Key_Shift, Qt::ShiftModifier, place::rightShift);
    EXPECT_EQ(syntax(), u"RSHF"_s);
    strike(Qt::Key_Shift, Qt::ShiftModifier, place::leftShift);
    EXPECT_EQ(syntax(), u"LSHF"_s);
    strike(Qt::Key_Control, Qt::ControlModifier, 0, 0xFFE4);
    EXPECT_EQ(syntax(), u"RCTL"_s);
    strike(Qt::Key_Control, Qt::ControlModifier, place::rightControl);
    EXPECT_EQ(syntax(), u"RCTL"_s);
    strike(Qt::Key_Alt, Qt::AltModifier, place::leftAlt);
    EXPECT_EQ(syntax(), u"LALT"_s);
    strike(Qt::Key_AltGr, {}, place::rightAlt);
    EXPECT_EQ(syntax(), u"RALT"_s);
    strike(Qt::Key_7, Qt::KeypadModifier, place::pad7);
    EXPECT_EQ(syntax(), u"KP7"_s);
    strike(Qt::Key_Home, Qt::KeypadModifier, 0);
    EXPECT_EQ(syntax(), u"KP7"_s);
    strike(Qt::Key_7, {}, place::digit7);
    EXPECT_EQ(syntax(), u"7"_s);
    strike(Qt::Key_Enter, Qt::KeypadModifier, place::padEnter);
    EXPECT_EQ(syntax(), u"KPENT"_s);
}

TEST_F(Listening, TheBoardsOwnTogglesAddTheModifiers)
{
    clickPart(u"ToggleButton2"_s);
    part<QPushButton>(u"CommandListen"_s).setChecked(true);
    strike(Qt::Key_A);
    EXPECT_EQ(syntax(), u"CTL a"_s);
}

TEST_F(Listening, NoKeyIsAShortcutAndALineSaysSo)
{
    EXPECT_TRUE(line().contains(u"No key is a shortcut"_s)) << line().toStdString();
    QSignalSpy composer(editor->action(u"mnuAppsComposer"), &QAction::triggered);
    QSignalSpy help(tools, &ComposerTools::helpWanted);
    strike(Qt::Key_F3);
    EXPECT_EQ(syntax(), u"F3"_s);
    strike(Qt::Key_F1);
    EXPECT_EQ(syntax(), u"F1"_s);
    EXPECT_EQ(composer.count(), 0);
    EXPECT_EQ(help.count(), 0);
    QKeyEvent asked(QEvent::ShortcutOverride, Qt::Key_F3, Qt::NoModifier);
    asked.ignore();
    QApplication::sendEvent(&tumbo(), &asked);
    EXPECT_TRUE(asked.isAccepted());
}

TEST_F(Listening, NeitherEnterNorTabNorArrowsNorSpaceDoAnythingElse)
{
    key(u"a"_s).setFocus();
    strike(Qt::Key_A);
    strike(Qt::Key_Return);
    EXPECT_EQ(syntax(), u"ENT"_s);
    EXPECT_EQ(joystick().text(), QString());
    strike(Qt::Key_Tab);
    EXPECT_EQ(syntax(), u"TAB"_s);
    strike(Qt::Key_Right);
    EXPECT_EQ(syntax(), u"RARROW"_s);
    strike(Qt::Key_Space);
    EXPECT_EQ(syntax(), u"SPC"_s);
    EXPECT_TRUE(key(u"a"_s).hasFocus());
}

TEST_F(Listening, TypesNothingIntoAField)
{
    box(u"TotalCombinedText"_s).setFocus();
    QTest::keyClicks(&box(u"TotalCombinedText"_s), u"ab"_s);
    EXPECT_EQ(total(), QString());
    EXPECT_EQ(syntax(), u"b"_s);
}

TEST_F(Listening, EscapeIsAKeyAndPressedTwiceItEnds)
{
    strike(Qt::Key_Escape);
    EXPECT_EQ(syntax(), u"ESC"_s);
    EXPECT_TRUE(isListening());
    EXPECT_FALSE(tumbo().isHidden());
    strike(Qt::Key_A);
    strike(Qt::Key_Escape);
    EXPECT_TRUE(isListening());
    strike(Qt::Key_Escape);
    EXPECT_FALSE(isListening());
    EXPECT_FALSE(tumbo().isHidden());
    EXPECT_EQ(line(), QString());
    QTest::keyClick(&tumbo(), Qt::Key_Escape);
    EXPECT_TRUE(tumbo().isHidden());
}

TEST_F(Listening, AnEscapeThatIsHeldDownIsPressedOnce)
{
    strike(Qt::Key_Escape);
    QKeyEvent again(QEvent::KeyPress, Qt::Key_Escape, {}, QString(), true);
    QApplication::sendEvent(&tumbo(), &again);
    EXPECT_TRUE(isListening());
}

TEST_F(Listening, AClickEndsItAndDoesWhatItDoes)
{
    QTest::mouseClick(&key(u"w"_s), Qt::LeftButton);
    EXPECT_FALSE(isListening());
    EXPECT_EQ(syntax(), u"w"_s);
}

TEST_F(Listening, AClickOnItsOwnButtonEndsIt)
{
    QTest::mouseClick(&part<QPushButton>(u"CommandListen"_s), Qt::LeftButton);
    EXPECT_FALSE(isListening());
    QTest::mouseClick(&part<QPushButton>(u"CommandListen"_s), Qt::LeftButton);
    EXPECT_TRUE(isListening());
}

TEST_F(Listening, ItEndsWhenTheWindowLosesTheFocus)
{
    QApplication::setActiveWindow(editor->window());
    EXPECT_FALSE(isListening());
}

TEST_F(Listening, ItEndsWhenTheWindowIsHidden)
{
    tumbo().hide();
    EXPECT_FALSE(isListening());
}

TEST_F(Listening, KeysOfOtherWindowsAreTheirs)
{
    QLineEdit other;
    QTest::keyClicks(&other, u"ab"_s);
    EXPECT_EQ(other.text(), u"ab"_s);
    EXPECT_EQ(syntax(), QString());
}

TEST_F(Listening, AKeyThatTheBoardLacksIsTold)
{
    strike(Qt::Key_F13);
    EXPECT_EQ(syntax(), QString());
    EXPECT_TRUE(line().contains(u"no such key"_s)) << line().toStdString();
    EXPECT_TRUE(isListening());
}

TEST_F(Listening, AfterwardsKeysAreShortcutsAgain)
{
    strike(Qt::Key_Escape);
    strike(Qt::Key_Escape);
    QSignalSpy help(tools, &ComposerTools::helpWanted);
    QTest::keyClick(&tumbo(), Qt::Key_F1);
    EXPECT_EQ(help.count(), 1);
}

} // namespace tumbo_listening_test
