// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// Pictures as bytes of files, for tests that read them.

#include <QBuffer>
#include <QImage>

namespace zeph::test {

/// A picture in which each pixel has a colour of its own, as far as that goes.
inline QImage pictureOf(const QSize &size)
{
    QImage image(size, QImage::Format_RGB32);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            image.setPixel(x, y, qRgb(x % 256, y % 256, (x / 256 * 16 + y / 256) % 256));
        }
    }
    return image;
}

inline QByteArray bytesOf(const QImage &image, const char *format)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, format);
    return bytes;
}

/// A gif of one white pixel, which the toolkit cannot write.
inline QByteArray gifBytes()
{
    return QByteArray::fromHex(
        "47494638396101000100800000FFFFFF0000002C00000000010001000002024401003B");
}

/// A bitmap of 30,000 by 30,000 pixels that claims to be packed into no bytes at all.
inline QByteArray hugeBitmap()
{
    return QByteArray::fromHex(
        "424D36000000000000003600000028000000307500003075000001000800010000000000000000000000"
        "000000000000000000000000");
}

} // namespace zeph::test
