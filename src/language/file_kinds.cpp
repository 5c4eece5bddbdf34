// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "language/file_kinds.h"

#include <algorithm>
#include <array>

namespace zeph {

namespace {

constexpr QStringView untitled = u"Untitled";

struct ExtensionPair {
    QStringView joystick;
    QStringView macro;
};

constexpr std::array extensionPairs = {
    ExtensionPair{ u"tmj", u"tmm" },
    ExtensionPair{ u"f22", u"m22" },
    ExtensionPair{ u"b50", u"m50" },
    ExtensionPair{ u"adv", u"mdf" },
};

const ExtensionPair *pairWith(QStringView ExtensionPair::*side, QStringView extension)
{
    const auto found = std::ranges::find(extensionPairs, extension, side);
    return found == extensionPairs.end() ? nullptr : &*found;
}

} // namespace

QString lastThree(QStringView name)
{
    return name.right(3).toString().toLower();
}

bool isMacroExtension(QStringView extension)
{
    return pairWith(&ExtensionPair::macro, extension) != nullptr;
}

bool isJoystickExtension(QStringView extension)
{
    return pairWith(&ExtensionPair::joystick, extension) != nullptr;
}

DocumentKind kindOfName(QStringView name)
{
    return isMacroExtension(lastThree(name)) ? DocumentKind::Macro : DocumentKind::Joystick;
}

QString macroExtensionFor(QStringView joystickName)
{
    const auto *pair = pairWith(&ExtensionPair::joystick, lastThree(joystickName));
    return (pair ? pair->macro : extensionPairs[0].macro).toString();
}

QString joystickExtensionFor(QStringView macroName)
{
    const auto *pair = pairWith(&ExtensionPair::macro, lastThree(macroName));
    return (pair ? pair->joystick : extensionPairs[0].joystick).toString();
}

QString baseWithDot(QStringView name)
{
    return name.chopped(std::min<qsizetype>(3, name.size())).toString();
}

QString extensionOf(DocumentKind kind)
{
    const ExtensionPair &own = extensionPairs[0];
    return (kind == DocumentKind::Joystick ? own.joystick : own.macro).toString();
}

QString fileFilter(DocumentKind kind)
{
    return u"%1 file (*.%2)|*.%2|All files (*.*)|*.*"_s.arg(
        kind == DocumentKind::Joystick ? u"Joystick"_s : u"Macro"_s, extensionOf(kind));
}

QString tabCaption(const QString &name)
{
    return baseWithDot(name) + lastThree(name);
}

bool isUntitled(QStringView name)
{
    return name.startsWith(untitled);
}

QString freshName(DocumentKind kind)
{
    return untitled.toString() + u'.' + extensionOf(kind);
}

QString withProfileExtension(const QString &name)
{
    return name.endsWith(profileExtension, Qt::CaseInsensitive)
        ? name
        : name + profileExtension.toString();
}

} // namespace zeph
