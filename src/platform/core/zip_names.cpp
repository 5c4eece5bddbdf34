// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "platform/core/zip_names.h"

#include <QStringDecoder>
#include <QStringList>

#include <algorithm>

namespace zeph {

namespace {

constexpr qsizetype longestNameBytes = 255;
constexpr qsizetype deepestPath = 32;
constexpr QStringView refusedCharacters = u"<>:\"|?*/\\";

// The upper half of the code page of the first zip programs, from 80 on.
constexpr QStringView oldUpperHalf =
    u"ÇüéâäàåçêëèïîìÄÅÉæÆôöòûùÿÖÜ¢£¥₧ƒáíóúñÑªº¿⌐¬½¼¡«»░▒▓│┤╡╢╖╕╣║╗╝╜╛┐└┴┬├─┼╞╟╚╔╩╦╠═╬╧╨╤╥╙╘╒╓╫╪┘┌█▄"
    u"▌▐▀αßΓπΣσµτΦΘΩδ∞φε∩≡±≥≤⌠⌡÷≈°∙·√ⁿ²■\u00A0";
static_assert(oldUpperHalf.size() == 128);

/// Characters that nobody sees but that turn the text around them, so that "exe.txt" may be shown
/// for "txt.exe".
bool isDirectionMark(QChar c)
{
    const char16_t code = c.unicode();
    return code == 0x061C || code == 0x200E || code == 0x200F || (code >= 0x202A && code <= 0x202E)
        || (code >= 0x2066 && code <= 0x2069);
}

bool isDevice(const QString &name)
{
    static const QStringList devices{ u"CON"_s, u"PRN"_s,    u"AUX"_s,
                                      u"NUL"_s, u"CONIN$"_s, u"CONOUT$"_s };
    // Windows takes the raised digits for digits.
    constexpr QStringView digits = u"123456789¹²³";
    const QString base = name.section(u'.', 0, 0).trimmed().toUpper();
    const bool numbered = base.size() == 4 && (base.startsWith(u"COM") || base.startsWith(u"LPT"))
        && digits.contains(base[3]);
    return numbered || devices.contains(base);
}

} // namespace

QString zipNameText(const QByteArray &bytes)
{
    QStringDecoder utf8(QStringDecoder::Utf8);
    const QString text = utf8(bytes);
    if (!utf8.hasError()) {
        return text;
    }
    QString old;
    for (const char byte : bytes) {
        const auto value = uchar(byte);
        old += value < 0x80 ? QChar(char16_t(value)) : oldUpperHalf[value - 0x80];
    }
    return old;
}

Expected<void, QString> checkFileName(const QString &name)
{
    if (name.trimmed().isEmpty()) {
        return Unexpected<QString>(u"it has no name"_s);
    }
    if (name.toUtf8().size() > longestNameBytes) {
        return Unexpected<QString>(u"its name is too long"_s);
    }
    const bool refused = std::any_of(name.begin(), name.end(), [](QChar each) {
        return each < u' ' || each == QChar(0x7F) || refusedCharacters.contains(each);
    });
    if (refused || !name.isValidUtf16()) {
        return Unexpected<QString>(u"its name holds characters that no file may have"_s);
    }
    if (std::any_of(name.begin(), name.end(), isDirectionMark)) {
        return Unexpected<QString>(u"its name holds marks that turn the direction of reading"_s);
    }
    if (name.endsWith(u'.') || name.endsWith(u' ') || name.startsWith(u' ')) {
        return Unexpected<QString>(u"its name begins or ends with a blank or a dot"_s);
    }
    if (isDevice(name)) {
        return Unexpected<QString>(u"its name is that of a device"_s);
    }
    return {};
}

Expected<QString, QString> safeEntryName(const QString &name)
{
    QString path = name;
    path.replace(u'\\', u'/');
    if (path.startsWith(u'/')) {
        return Unexpected<QString>(u"it names a place outside the folder"_s);
    }
    if (path.size() >= 2 && path[1] == u':') {
        return Unexpected<QString>(u"it names a drive"_s);
    }
    QStringList parts;
    for (const QString &part : path.split(u'/', Qt::SkipEmptyParts)) {
        if (part == u".") {
            continue;
        }
        if (part == u"..") {
            return Unexpected<QString>(u"it leads outside the folder"_s);
        }
        if (const auto checked = checkFileName(part); !checked) {
            return Unexpected<QString>(checked.error());
        }
        parts.append(part);
    }
    if (parts.isEmpty()) {
        return Unexpected<QString>(u"it has no name"_s);
    }
    if (parts.size() > deepestPath) {
        return Unexpected<QString>(u"it lies too deep"_s);
    }
    return parts.join(u'/');
}

} // namespace zeph
