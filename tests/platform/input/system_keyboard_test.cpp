// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "platform/fakes/fake_keyboard.h"
#include "platform/input/system_keyboard.h"

#include <gtest/gtest.h>

#include <QGuiApplication>
#include <QInputMethod>
#include <QLocale>

using namespace zeph;

TEST(SystemKeyboard, TellsTheInputMethodsLanguageOrNothing)
{
    const QLocale locale = QGuiApplication::inputMethod()->locale();
    const QString name = SystemKeyboard().layoutName();
    EXPECT_TRUE(name.isEmpty() || name == locale.name());
    EXPECT_NE(name, u"C"_s);
}

TEST(SystemKeyboard, CannotPutALayoutBack)
{
    EXPECT_FALSE(SystemKeyboard().loadLayout(u"de_DE"_s));
}

TEST(SystemKeyboard, WithoutAServerToAskTheLocksAreThoseOfTheLastKeyEvent)
{
    SystemKeyboard keyboard;
    EXPECT_FALSE(keyboard.numLockOn());
    EXPECT_FALSE(keyboard.capsLockOn());
    keyboard.noteNativeModifiers(0x10);
    EXPECT_TRUE(keyboard.numLockOn());
    EXPECT_FALSE(keyboard.capsLockOn());
    keyboard.noteNativeModifiers(0x03);
    EXPECT_FALSE(keyboard.numLockOn());
    EXPECT_TRUE(keyboard.capsLockOn());
    EXPECT_FALSE(keyboard.turnOffCapsLock()) << "nobody lets it";
}

TEST(FakeKeyboard, TurnsItsCapsLockOff)
{
    FakeKeyboard keyboard;
    keyboard.capsLock = true;
    EXPECT_TRUE(keyboard.turnOffCapsLock());
    EXPECT_FALSE(keyboard.capsLockOn());
    EXPECT_EQ(keyboard.timesCapsLockTurnedOff, 1);
}

TEST(FakeKeyboard, RecordsWhatIsLoaded)
{
    FakeKeyboard keyboard;
    keyboard.layout = u"en_GB"_s;
    EXPECT_TRUE(keyboard.loadLayout(u"de_DE"_s));
    EXPECT_EQ(keyboard.layoutName(), u"de_DE"_s);
    keyboard.canLoad = false;
    EXPECT_FALSE(keyboard.loadLayout(u"fr_FR"_s));
    EXPECT_EQ(keyboard.layoutName(), u"de_DE"_s);
    EXPECT_EQ(keyboard.loaded, (QStringList{ u"de_DE"_s, u"fr_FR"_s }));
}
