// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "livetools/key_names.h"

#include "language/words.h"
#include "livetools/virtual_keys.h"
#include "platform/core/file_io.h"
#include "platform/core/text1252.h"
#include "platform/core/units.h"
#include "platform/dialogs.h"

#include <algorithm>
#include <array>
#include <limits>

namespace zeph {

namespace {

using language::operator""_w;

/// The code of the table's first entry; no key has it.
constexpr int noKeyCode = 65535;

/// Indexed by the shift state.
constexpr std::array<QStringView, 8> prefixes = {
    u"",     u"Shift ",     u"Ctrl ",     u"Shift Ctrl ",
    u"Alt ", u"Shift Alt ", u"Ctrl Alt ", u"Shift Ctrl Alt ",
};

bool isModifier(int keycode)
{
    return keycode >= shiftKeyCode && keycode <= altKeyCode;
}

std::optional<qint16> codeFrom(QStringView text)
{
    const double number = roundHalfEven(leadingNumber(text));
    if (number < std::numeric_limits<qint16>::min() || number > noKeyCode) {
        return std::nullopt;
    }
    return qint16(int(number));
}

QString lowerCharacter(int keycode)
{
    const char byte = char(keycode);
    return fromText1252(QByteArrayView(&byte, 1)).toLower();
}

QString eventName(const KeyTable &table, int keycode)
{
    constexpr std::array<QStringView, 3> modifiers = { u"SHF"_w, u"CTL"_w, u"ALT"_w };
    if (isModifier(keycode)) {
        return modifiers[size_t(keycode - shiftKeyCode)].toString();
    }
    const bool isDigit = keycode >= u'0' && keycode <= u'9';
    const bool isLetter = keycode >= u'A' && keycode <= u'Z';
    if (isDigit || isLetter) {
        return lowerCharacter(keycode);
    }
    const QString name = WhichKey(table, keycode, 0).text;
    return name.isEmpty() ? QString::number(qint16(keycode)) : name;
}

} // namespace

KeyTable keyTableFrom(QStringView file)
{
    KeyTable table = { { qint16(noKeyCode), u" "_s } };
    for (QStringView line : file.split(u'\n')) {
        if (line.endsWith(u'\r')) {
            line.chop(1);
        }
        const qsizetype comma = line.indexOf(u',');
        if (comma < 0) {
            continue;
        }
        if (const auto code = codeFrom(line.first(comma))) {
            table.append({ *code, line.sliced(comma + 1).toString() });
        }
    }
    return table;
}

QString nameOf(const KeyTable &table, int keycode)
{
    const auto entry = std::find_if(table.crbegin(), table.crend(), [keycode](const KeyName &each) {
        return each.code == qint16(keycode);
    });
    return entry == table.crend() ? QString() : entry->name;
}

KeyText WhichKey(const KeyTable &table, int keycode, int shift)
{
    if (keycode == ctrlKeyCode || keycode == altKeyCode) {
        return { {}, true };
    }
    const QString name = nameOf(table, keycode);
    const QString prefix = prefixes[size_t(shift) % prefixes.size()].toString();
    if (!name.isEmpty()) {
        return { prefix + name };
    }
    if (shift < CtrlDown) {
        // The character that the key types is shown instead.
        return {};
    }
    return isModifier(keycode) ? KeyText{ {}, true } : KeyText{ prefix + lowerCharacter(keycode) };
}

QString eventLine(const KeyTable &table, KeyDirection direction, int keycode)
{
    const QString start = direction == KeyDirection::Down ? u"Down: "_s : u"Up: "_s;
    return start + eventName(table, keycode);
}

namespace {

constexpr QStringView keyCodesFile = u"KeyCodes.txt";

/// Tells the user that KeyCodes.txt is missing, and copies it from the Info folder. True when the
/// file exists afterwards.
bool restoreKeyCodes(const Context &context, const QString &path)
{
    context.dialogs.tell(
        u"KeyCodes.txt is missing !!!"_s,
        u"You're missing a critical file, called KeyCodes.txt which should be located in Zeph's "
        "directory. A backup copy is in your Info subdirectory. I shall attempt to copy this "
        "across and restore the file. Please wait ..."_s,
        BoxIcon::Exclamation);
    const QString copy = existingPath(context.paths.infoFolder() + keyCodesFile.toString());
    if (const auto bytes = readWholeFile(copy)) {
        // A failure shows below, where the file is looked for.
        (void)writeFileAtomically(path, *bytes);
    }
    if (fileExists(path)) {
        context.dialogs.tell(
            u"Well I saved your butt!"_s,
            path
                + u" has been successfully restored. Please stop misbehaving with my file system!"_s);
        return true;
    }
    context.dialogs.tell(u"It didn't work :("_s,
                         u"I was unable to restore "_s + path
                             + u" - please close down the Key Tester and restore the file "
                               "manually."_s,
                         BoxIcon::Stop);
    return false;
}

} // namespace

std::optional<KeyTable> readKeyCodes(const Context &context)
{
    const QString path = context.paths.inApp(keyCodesFile);
    if (!fileExists(path) && !restoreKeyCodes(context, path)) {
        return std::nullopt;
    }
    const auto bytes = readWholeFile(existingPath(path));
    if (!bytes) {
        context.dialogs.tell(u"Key Tester"_s,
                             u"I can't read "_s + bytes.error().path + u":\n"_s
                                 + bytes.error().reason,
                             BoxIcon::Stop);
        return std::nullopt;
    }
    return keyTableFrom(fromText1252(*bytes));
}

} // namespace zeph
