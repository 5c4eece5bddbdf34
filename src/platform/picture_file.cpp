// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "platform/picture_file.h"

#include "platform/core/file_io.h"
#include "platform/core/picture_bytes.h"

#include <QBuffer>
#include <QFileInfo>
#include <QImageReader>
#include <QPainter>

namespace zeph {

namespace {

/// More than eight large screens side by side.
constexpr qint64 mostPixels = 64LL * 1024 * 1024;
constexpr qint64 mostBytes = 512LL * 1024 * 1024;
constexpr int mostMegabytes = 512; // of memory for a picture; the toolkit's own limit

QByteArray formatOf(PictureKind kind)
{
    switch (kind) {
    case PictureKind::Bitmap:
        return "bmp";
    case PictureKind::Jpeg:
        return "jpeg";
    case PictureKind::Gif:
        return "gif";
    case PictureKind::Png:
        return "png";
    case PictureKind::None:
        break;
    }
    return {};
}

QImage onWhite(const QImage &image)
{
    if (!image.hasAlphaChannel()) {
        return image.convertToFormat(QImage::Format_RGB32);
    }
    QImage paper(image.size(), QImage::Format_RGB32);
    paper.fill(Qt::white);
    QPainter(&paper).drawImage(0, 0, image);
    return paper;
}

Expected<PictureFile, QString> decode(const QByteArray &bytes, const QSize &atMost)
{
    // Before any decoder sees them.
    const QSize size = claimedSize(bytes);
    if (qint64(size.width()) * size.height() > mostPixels) {
        return Unexpected<QString>(
            u"It says that it is %1 by %2 pixels, which is more than I can show."_s
                .arg(size.width())
                .arg(size.height()));
    }
    if (!isWholePicture(bytes)) {
        return Unexpected<QString>(u"It is damaged: a part of the file is missing."_s);
    }
    QBuffer buffer;
    buffer.setData(bytes);
    buffer.open(QIODevice::ReadOnly);
    QImageReader::setAllocationLimit(mostMegabytes);
    QImageReader reader(&buffer, formatOf(pictureKind(bytes)));
    if (atMost.isValid() && (size.width() > atMost.width() || size.height() > atMost.height())) {
        reader.setScaledSize(size.scaled(atMost, Qt::KeepAspectRatio).expandedTo({ 1, 1 }));
    }
    const QImage image = reader.read();
    if (image.isNull()) {
        return Unexpected<QString>(u"It is damaged: "_s + reader.errorString() + u'.');
    }
    const QImage opaque = onWhite(image);
    return PictureFile{ opaque, size };
}

} // namespace

Expected<PictureFile, QString> readPicture(const QString &path, const QSize &atMost)
{
    if (QFileInfo(path).size() > mostBytes) {
        return Unexpected<QString>(u"The file is too large for a picture."_s);
    }
    const auto bytes = readWholeFile(path);
    if (!bytes) {
        return Unexpected<QString>(u"It can't be read. The system says: "_s + bytes.error().reason);
    }
    if (bytes->isEmpty()) {
        return Unexpected<QString>(u"The file is empty."_s);
    }
    if (pictureKind(*bytes) == PictureKind::None) {
        return Unexpected<QString>(
            u"It is no picture that I know. I can show bmp, jpg, gif and png pictures."_s);
    }
    return decode(*bytes, atMost);
}

QByteArray bitmapOf(const QImage &image)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "bmp");
    return bytes;
}

} // namespace zeph
