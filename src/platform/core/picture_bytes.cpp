// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "platform/core/picture_bytes.h"

#include <QtEndian>

#include <algorithm>
#include <cstdlib>
#include <limits>

namespace zeph {

namespace {

/// Reads numbers out of bytes; what lies after the end reads as 0 and is noted.
class Numbers
{
public:
    explicit Numbers(const QByteArray &bytes) : m_bytes(bytes) { }

    qint64 size() const { return m_bytes.size(); }
    bool has(qint64 at, qint64 count) const { return at >= 0 && at + count <= m_bytes.size(); }
    quint8 byte(qint64 at) const { return has(at, 1) ? quint8(m_bytes[qsizetype(at)]) : 0; }
    template <class T> T little(qint64 at) const
    {
        return has(at, sizeof(T)) ? qFromLittleEndian<T>(m_bytes.constData() + at) : T(0);
    }
    template <class T> T big(qint64 at) const
    {
        return has(at, sizeof(T)) ? qFromBigEndian<T>(m_bytes.constData() + at) : T(0);
    }

private:
    const QByteArray &m_bytes;
};

/// The header of a bitmap, which is of one of two kinds.
struct BitmapHeader {
    explicit BitmapHeader(const Numbers &file) : isOld(file.little<quint32>(14) == oldLength)
    {
        width = isOld ? file.little<quint16>(18) : file.little<qint32>(18);
        height = isOld ? file.little<quint16>(20) : file.little<qint32>(22);
        depth = file.little<quint16>(isOld ? 24 : 28);
    }

    static constexpr quint32 oldLength = 12;
    bool isOld;
    qint64 width = 0;
    qint64 height = 0; ///< below 0 when the lines go from top to bottom
    qint64 depth = 0; ///< bits of a pixel
};

bool isWholeBitmap(const Numbers &file)
{
    constexpr quint32 bitFields = 3;
    const BitmapHeader header(file);
    const qint64 pixels = file.little<quint32>(10);
    const quint32 compression = header.isOld ? 0 : file.little<quint32>(30);
    if (!file.has(0, header.isOld ? 26 : 54) || header.width <= 0 || header.height == 0
        || header.depth == 0) {
        return false;
    }
    if (compression != 0 && compression != bitFields) {
        return file.has(pixels, file.little<quint32>(34));
    }
    const qint64 line = (header.width * header.depth + 31) / 32 * 4;
    return file.size() >= pixels && (file.size() - pixels) / line >= std::abs(header.height);
}

constexpr quint8 startOfScan = 0xDA;

/// Whether the segment says how large the picture is.
bool isFrame(quint8 kind)
{
    constexpr quint8 huffmanTables = 0xC4;
    constexpr quint8 reserved = 0xC8;
    constexpr quint8 arithmeticTables = 0xCC;
    return kind >= 0xC0 && kind <= 0xCF && kind != huffmanTables && kind != reserved
        && kind != arithmeticTables;
}

/// The place of the first segment of a jpg that is wanted, or -1.
template <class Wanted> qint64 findSegment(const Numbers &file, Wanted isWanted)
{
    constexpr quint8 mark = 0xFF;
    qint64 at = 2;
    while (file.byte(at) == mark) {
        const quint8 kind = file.byte(at + 1);
        if (kind == mark) {
            ++at;
        } else if (isWanted(kind)) {
            return at;
        } else {
            at += 2 + file.big<quint16>(at + 2);
        }
    }
    return -1;
}

bool isWholeJpeg(const QByteArray &bytes, const Numbers &file)
{
    const qint64 scan = findSegment(file, [](quint8 kind) { return kind == startOfScan; });
    return scan >= 0 && bytes.indexOf("\xFF\xD9", qsizetype(scan)) >= 0;
}

QSize jpegSize(const Numbers &file)
{
    const qint64 frame = findSegment(file, isFrame);
    return frame < 0 ? QSize() : QSize(file.big<quint16>(frame + 7), file.big<quint16>(frame + 5));
}

QSize sizeOf(qint64 width, qint64 height)
{
    constexpr qint64 most = std::numeric_limits<int>::max();
    return { int(std::clamp(width, qint64(0), most)), int(std::min(std::abs(height), most)) };
}

/// The place after a table of colours, if the flags say that there is one.
qint64 afterColours(qint64 at, quint8 flags)
{
    constexpr quint8 hasTable = 0x80;
    constexpr quint8 sizeBits = 7;
    return (flags & hasTable) != 0 ? at + 3 * (qint64(2) << (flags & sizeBits)) : at;
}

/// The place after blocks that each begin with their length, up to one without length; -1 when it
/// is missing.
qint64 afterBlocks(const Numbers &file, qint64 at)
{
    while (file.has(at, 1)) {
        const quint8 length = file.byte(at);
        at += 1 + length;
        if (length == 0) {
            return at;
        }
    }
    return -1;
}

bool isWholeGif(const Numbers &file)
{
    constexpr quint8 extension = 0x21;
    constexpr quint8 image = 0x2C;
    qint64 at = afterColours(13, file.byte(10));
    while (at >= 0 && file.byte(at) == extension) {
        at = afterBlocks(file, at + 2);
    }
    return at >= 0 && file.byte(at) == image
        && afterBlocks(file, afterColours(at + 10, file.byte(at + 9)) + 1) >= 0;
}

bool isWholePng(const QByteArray &bytes, const Numbers &file)
{
    constexpr qint64 around = 12; // length, name and check sum of a chunk
    for (qint64 at = 8; file.has(at, around); at += around + file.big<quint32>(at)) {
        if (bytes.mid(qsizetype(at) + 4, 4) == "IEND") {
            return true;
        }
    }
    return false;
}

} // namespace

PictureKind pictureKind(const QByteArray &bytes)
{
    if (bytes.startsWith("BM")) {
        return PictureKind::Bitmap;
    }
    if (bytes.startsWith("\xFF\xD8\xFF")) {
        return PictureKind::Jpeg;
    }
    if (bytes.startsWith("GIF87a") || bytes.startsWith("GIF89a")) {
        return PictureKind::Gif;
    }
    return bytes.startsWith("\x89PNG\r\n\x1A\n") ? PictureKind::Png : PictureKind::None;
}

QSize claimedSize(const QByteArray &bytes)
{
    const Numbers file(bytes);
    switch (pictureKind(bytes)) {
    case PictureKind::Bitmap: {
        const BitmapHeader header(file);
        return sizeOf(header.width, header.height);
    }
    case PictureKind::Jpeg:
        return jpegSize(file);
    case PictureKind::Gif:
        return sizeOf(file.little<quint16>(6), file.little<quint16>(8));
    case PictureKind::Png:
        return sizeOf(file.big<quint32>(16), file.big<quint32>(20));
    case PictureKind::None:
        break;
    }
    return {};
}

bool isWholePicture(const QByteArray &bytes)
{
    const Numbers file(bytes);
    switch (pictureKind(bytes)) {
    case PictureKind::Bitmap:
        return isWholeBitmap(file);
    case PictureKind::Jpeg:
        return isWholeJpeg(bytes, file);
    case PictureKind::Gif:
        return isWholeGif(file);
    case PictureKind::Png:
        return isWholePng(bytes, file);
    case PictureKind::None:
        break;
    }
    return false;
}

} // namespace zeph
