// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "platform/fakes/fake_keyboard.h"
#include "platform/input/system_keyboard.h"

#include <gtest/gtest.h>

#include <QGuiApplication>
#include <QInputMethod>
#include <QLocale>
#include <QRegularExpression>

#ifdef Q_OS_WIN
#include <qt_windows.h>

#include <array>
#endif

using namespace zeph;

#ifdef Q_OS_WIN

namespace {

/// Sets a lock of the keyboard as this thread sees it, and puts all back at the end.
class Locks
{
public:
    Locks() { EXPECT_TRUE(GetKeyboardState(m_before.data())); }
    ~Locks() { SetKeyboardState(m_before.data()); }
    Locks(const Locks &) = delete;
    Locks &operator=(const Locks &) = delete;

    void set(int key, bool on)
    {
        auto state = m_before;
        state[size_t(key)] = on ? 1 : 0;
        EXPECT_TRUE(SetKeyboardState(state.data()));
    }

private:
    std::array<BYTE, 256> m_before{};
};

} // namespace

TEST(SystemKeyboard, TellsTheLayoutByItsNumber)
{
    const QString name = SystemKeyboard().layoutName();
    EXPECT_TRUE(QRegularExpression(u"^[0-9A-Fa-f]{8}$"_s).match(name).hasMatch())
        << name.toStdString();
}

TEST(SystemKeyboard, PutsALayoutBack)
{
    SystemKeyboard keyboard;
    const QString name = keyboard.layoutName();
    EXPECT_TRUE(keyboard.loadLayout(name));
    EXPECT_EQ(keyboard.layoutName(), name);
    const QString german = u"00000407"_s;
    EXPECT_TRUE(keyboard.loadLayout(german));
    if (keyboard.layoutName() == name && name != german) {
        GTEST_SKIP() << "this system's layout is not changed by programs";
    }
    EXPECT_EQ(keyboard.layoutName(), german);
    EXPECT_TRUE(keyboard.loadLayout(name));
    EXPECT_EQ(keyboard.layoutName(), name);
}

TEST(SystemKeyboard, TellsTheLocksAndTurnsCapsLockOff)
{
    Locks locks;
    SystemKeyboard keyboard;
    for (const bool on : { true, false }) {
        locks.set(VK_NUMLOCK, on);
        EXPECT_EQ(keyboard.numLockOn(), on);
        locks.set(VK_CAPITAL, on);
        EXPECT_EQ(keyboard.capsLockOn(), on);
    }
    locks.set(VK_CAPITAL, true);
    EXPECT_TRUE(keyboard.turnOffCapsLock());
    EXPECT_FALSE(keyboard.capsLockOn());
}

#else

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

#endif

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
