// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "platform/core/text1252.h"

#include <array>

namespace zeph {

namespace {

constexpr uchar firstOdd = 0x80;
constexpr uchar lastOdd = 0x9F;

/// Bytes 80 to 9F; all other bytes are the character of the same number.
constexpr std::array<char16_t, lastOdd - firstOdd + 1> oddCharacters = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, // 80
    0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F, // 88
    0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014, // 90
    0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178, // 98
};

/// The character's byte, or -1.
int byteOf(char16_t character)
{
    if (character < firstOdd || (character > lastOdd && character <= 0xFF)) {
        return character;
    }
    for (size_t i = 0; i < oddCharacters.size(); ++i) {
        if (oddCharacters[i] == character) {
            return int(firstOdd + i);
        }
    }
    return -1;
}

} // namespace

QString fromText1252(QByteArrayView bytes)
{
    QString text(bytes.size(), Qt::Uninitialized);
    QChar *to = text.data();
    for (const char c : bytes) {
        const auto byte = uchar(c);
        const bool odd = byte >= firstOdd && byte <= lastOdd;
        *to++ = QChar(odd ? oddCharacters[byte - firstOdd] : char16_t(byte));
    }
    return text;
}

bool isText1252(QChar character)
{
    return byteOf(character.unicode()) >= 0;
}

QByteArray toText1252(QStringView text)
{
    QByteArray bytes(text.size(), Qt::Uninitialized);
    char *to = bytes.data();
    for (const QChar c : text) {
        const int byte = byteOf(c.unicode());
        *to++ = byte >= 0 ? char(byte) : '?';
    }
    return bytes;
}

qsizetype firstNot1252(QStringView text)
{
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (!isText1252(text[i])) {
            return i;
        }
    }
    return -1;
}

} // namespace zeph
