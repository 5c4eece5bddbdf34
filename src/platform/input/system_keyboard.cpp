// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "platform/input/system_keyboard.h"

#include <QGuiApplication>
#include <QInputMethod>
#include <QLocale>

#ifdef Q_OS_WIN
#include <windows.h>

#include <array>
#else
#include "platform/input/x11_keyboard.h"
#endif

namespace zeph {

#ifdef Q_OS_WIN

namespace {

bool isToggled(int virtualKey)
{
    return (GetKeyState(virtualKey) & 1) != 0;
}

} // namespace

QString SystemKeyboard::layoutName() const
{
    std::array<char, KL_NAMELENGTH> name{};
    return GetKeyboardLayoutNameA(name.data()) ? QString::fromLatin1(name.data()) : QString();
}

bool SystemKeyboard::loadLayout(const QString &name)
{
    return LoadKeyboardLayoutA(name.toLatin1().constData(), KLF_ACTIVATE) != nullptr;
}

bool SystemKeyboard::numLockOn() const
{
    return isToggled(VK_NUMLOCK);
}

bool SystemKeyboard::capsLockOn() const
{
    return isToggled(VK_CAPITAL);
}

bool SystemKeyboard::turnOffCapsLock()
{
    std::array<BYTE, 256> state{};
    if (!GetKeyboardState(state.data())) {
        return false;
    }
    state[VK_CAPITAL] = 0;
    return SetKeyboardState(state.data()) != 0;
}

#else

namespace {

// The bits of the locks among native modifiers, in the key maps that desktops come with.
constexpr quint32 capsLockModifier = 1U << 1;
constexpr quint32 numLockModifier = 1U << 4;

} // namespace

QString SystemKeyboard::layoutName() const
{
    if (const X11Keyboard *x11 = X11Keyboard::get()) {
        return x11->layoutName();
    }
    const QLocale locale = QGuiApplication::inputMethod()->locale();
    return locale == QLocale::c() ? QString() : locale.name();
}

bool SystemKeyboard::loadLayout(const QString &name)
{
    const X11Keyboard *x11 = X11Keyboard::get();
    return x11 && x11->loadLayout(name);
}

bool SystemKeyboard::numLockOn() const
{
    const X11Keyboard *x11 = X11Keyboard::get();
    return x11 ? x11->numLockOn() : (m_nativeModifiers & numLockModifier) != 0;
}

bool SystemKeyboard::capsLockOn() const
{
    const X11Keyboard *x11 = X11Keyboard::get();
    return x11 ? x11->capsLockOn() : (m_nativeModifiers & capsLockModifier) != 0;
}

bool SystemKeyboard::turnOffCapsLock()
{
    const X11Keyboard *x11 = X11Keyboard::get();
    return x11 && x11->turnOffCapsLock();
}

#endif

} // namespace zeph
