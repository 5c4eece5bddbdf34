// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "platform/core/units.h"

#include <cmath>

namespace zeph {

namespace {

constexpr double twipsPerPixel = 15;

bool isDigit(QStringView text, qsizetype at)
{
    return at < text.size() && text[at] >= u'0' && text[at] <= u'9';
}

qsizetype skipDigits(QStringView text, qsizetype at)
{
    while (isDigit(text, at)) {
        ++at;
    }
    return at;
}

qsizetype skipSign(QStringView text, qsizetype at)
{
    return at < text.size() && (text[at] == u'+' || text[at] == u'-') ? at + 1 : at;
}

} // namespace

int pixelsFromTwips(double twips)
{
    return int(roundHalfEven(twips / twipsPerPixel));
}

int twipsFromPixels(int pixels)
{
    return pixels * int(twipsPerPixel);
}

double roundHalfEven(double value)
{
    return std::nearbyint(value);
}

double leadingNumber(QStringView text)
{
    QString digits;
    for (const QChar c : text) {
        if (c != u' ' && c != u'\t' && c != u'\n') {
            digits += c == u'd' || c == u'D' ? QChar(u'e') : c;
        }
    }
    const qsizetype sign = skipSign(digits, 0);
    qsizetype end = skipDigits(digits, sign);
    if (end < digits.size() && digits[end] == u'.') {
        end = skipDigits(digits, end + 1);
    }
    if (end < digits.size() && digits[end].toLower() == u'e') {
        const qsizetype exponent = skipSign(digits, end + 1);
        if (isDigit(digits, exponent)) {
            end = skipDigits(digits, exponent);
        }
    }
    return QStringView(digits).left(end).toDouble();
}

std::optional<ColorRef> colorRefFromText(QStringView text)
{
    const qsizetype nul = text.indexOf(QChar(0));
    if (nul >= 0) {
        text = text.left(nul);
    }
    bool good = false;
    const qint64 number = text.trimmed().toLongLong(&good);
    if (!good || number < INT32_MIN || number > UINT32_MAX) {
        return std::nullopt;
    }
    return ColorRef(quint32(number) & 0xFFFFFF);
}

QString textFromColorRef(ColorRef colour)
{
    return QString::number(colour);
}

} // namespace zeph
