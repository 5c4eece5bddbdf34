// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "platform/input/x11_keyboard.h"

#include <QGuiApplication>
#include <QLibrary>

#include <utility>

namespace zeph {

QStringList layoutNames(QStringView layouts, QStringView variants)
{
    const auto parts = layouts.split(u',');
    const auto kinds = variants.split(u',');
    QStringList names;
    for (qsizetype i = 0; i < parts.size(); ++i) {
        const QString kind = i < kinds.size() ? kinds[i].trimmed().toString() : QString();
        const QString name = parts[i].trimmed().toString();
        names.append(kind.isEmpty() ? name : name + u'(' + kind + u')');
    }
    return names;
}

namespace {

// The server's own numbers and forms, which its protocol fixes.
constexpr unsigned coreKeyboard = 0x100;
constexpr unsigned lockModifier = 1U << 1;
constexpr unsigned long numLockSymbol = 0xFF7F;
constexpr unsigned long stringAtom = 31;
constexpr long longestProperty = 1024;

struct KeyboardState {
    unsigned char group;
    unsigned char lockedGroup;
    unsigned short baseGroup;
    unsigned short latchedGroup;
    unsigned char modifiers;
    unsigned char baseModifiers;
    unsigned char latchedModifiers;
    unsigned char lockedModifiers;
    unsigned char compatState;
    unsigned char grabModifiers;
    unsigned char compatGrabModifiers;
    unsigned char lookupModifiers;
    unsigned char compatLookupModifiers;
    unsigned short pointerButtons;
};

void *display()
{
#if QT_CONFIG(xcb)
    if (const auto *x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>()) {
        return x11->display();
    }
#endif
    return nullptr;
}

template <class Function> void resolve(QLibrary &library, const char *name, Function &function)
{
    function = reinterpret_cast<Function>(library.resolve(name));
}

} // namespace

struct X11Keyboard::Library {
    int (*getState)(void *, unsigned, KeyboardState *) = nullptr;
    int (*lockModifiers)(void *, unsigned, unsigned, unsigned) = nullptr;
    int (*lockGroup)(void *, unsigned, unsigned) = nullptr;
    unsigned (*modifiersOf)(void *, unsigned long) = nullptr;
    unsigned long (*internAtom)(void *, const char *, int) = nullptr;
    unsigned long (*rootWindow)(void *) = nullptr;
    int (*getProperty)(void *, unsigned long, unsigned long, long, long, int, unsigned long,
                       unsigned long *, int *, unsigned long *, unsigned long *,
                       unsigned char **) = nullptr;
    int (*flush)(void *) = nullptr;
    int (*release)(void *) = nullptr;

    Library()
    {
        QLibrary x11(u"X11"_s, 6);
        resolve(x11, "XkbGetState", getState);
        resolve(x11, "XkbLockModifiers", lockModifiers);
        resolve(x11, "XkbLockGroup", lockGroup);
        resolve(x11, "XkbKeysymToModifiers", modifiersOf);
        resolve(x11, "XInternAtom", internAtom);
        resolve(x11, "XDefaultRootWindow", rootWindow);
        resolve(x11, "XGetWindowProperty", getProperty);
        resolve(x11, "XFlush", flush);
        resolve(x11, "XFree", release);
    }
    bool isWhole() const
    {
        return getState && lockModifiers && lockGroup && modifiersOf && internAtom && rootWindow
            && getProperty && flush && release;
    }
    KeyboardState state() const
    {
        KeyboardState state{};
        getState(display(), coreKeyboard, &state);
        return state;
    }
};

X11Keyboard::X11Keyboard()
    : m_library([]() -> const Library & {
          static const Library library;
          return library;
      }())
{
}

const X11Keyboard *X11Keyboard::get()
{
    if (!display()) {
        return nullptr;
    }
    static const X11Keyboard keyboard;
    return keyboard.isUsable() ? &keyboard : nullptr;
}

bool X11Keyboard::isUsable() const
{
    return m_library.isWhole();
}

bool X11Keyboard::isLocked(unsigned modifiers) const
{
    return (m_library.state().lockedModifiers & modifiers) != 0;
}

bool X11Keyboard::numLockOn() const
{
    return isLocked(m_library.modifiersOf(display(), numLockSymbol));
}

bool X11Keyboard::capsLockOn() const
{
    return isLocked(lockModifier);
}

bool X11Keyboard::turnOffCapsLock() const
{
    const int sent = m_library.lockModifiers(display(), coreKeyboard, lockModifier, 0);
    m_library.flush(display());
    return sent != 0;
}

QStringList X11Keyboard::layouts() const
{
    // Rules, model, layouts, variants and options, each closed with a NUL.
    const unsigned long atom = m_library.internAtom(display(), "_XKB_RULES_NAMES", 1);
    if (atom == 0) {
        return {};
    }
    unsigned long type = 0;
    int format = 0;
    unsigned long length = 0;
    unsigned long rest = 0;
    unsigned char *bytes = nullptr;
    m_library.getProperty(display(), m_library.rootWindow(display()), atom, 0, longestProperty, 0,
                          stringAtom, &type, &format, &length, &rest, &bytes);
    if (!bytes) {
        return {};
    }
    const QString rules =
        QString::fromLatin1(reinterpret_cast<const char *>(bytes), qsizetype(length));
    m_library.release(bytes);
    const QStringList parts = rules.split(QChar(u'\0'));
    return layoutNames(parts.value(2), parts.value(3));
}

QString X11Keyboard::layoutName() const
{
    return layouts().value(m_library.state().group);
}

bool X11Keyboard::loadLayout(const QString &name) const
{
    const qsizetype index = layouts().indexOf(name);
    if (index < 0 || name.isEmpty()) {
        return false;
    }
    const int sent = m_library.lockGroup(display(), coreKeyboard, unsigned(index));
    m_library.flush(display());
    return sent != 0;
}

} // namespace zeph
