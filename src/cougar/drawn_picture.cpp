// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "cougar/drawn_picture.h"

#include "cougar/places.h"
#include "platform/core/paths.h"

#include <QBuffer>
#include <QCryptographicHash>
#include <QDir>
#include <QImageReader>
#include <QPainter>
#include <QPixmap>
#include <QSvgRenderer>

namespace zeph {

namespace {

/// The drawing of a bitmap file with these bytes, as SVG; empty when it does not ship or its
/// drawing is gone.
QByteArray drawingOf(const QString &appFolder, const QString &fileName, const QByteArray &bytes)
{
    const auto drawing = drawingNamed(fileName);
    if (!drawing
        || QCryptographicHash::hash(bytes, QCryptographicHash::Sha256).toHex() != drawing->digest) {
        return {};
    }
    const QString path =
        existingPath(QDir(appFolder).filePath(drawing->name.toString() + u".svg"_s));
    return path.isEmpty() ? QByteArray() : readWholeFile(path).value_or(QByteArray());
}

} // namespace

Expected<DrawnPicture, FileError> DrawnPicture::load(const QString &appFolder,
                                                     const QString &fileName)
{
    const QString path = nativeSeparators(QDir(appFolder).filePath(nativeSeparators(fileName)));
    const QString existing = existingPath(path);
    auto bytes = readWholeFile(existing.isEmpty() ? path : existing);
    if (!bytes) {
        return Unexpected<FileError>(bytes.error());
    }
    DrawnPicture picture;
    if (const QByteArray svg = drawingOf(appFolder, fileName, *bytes); !svg.isEmpty()) {
        if (auto drawing = std::make_shared<QSvgRenderer>(svg); drawing->isValid()) {
            picture.m_svg = svg;
            picture.m_drawing = std::move(drawing);
            picture.m_size = drawingNamed(fileName)->size;
            return picture;
        }
    }
    QBuffer buffer(&*bytes);
    QImageReader reader(&buffer);
    if (!reader.read(&picture.m_image)) {
        return Unexpected<FileError>({ path, reader.errorString() });
    }
    picture.m_size = picture.m_image.size();
    return picture;
}

void DrawnPicture::draw(QPainter &painter, const QRectF &target) const
{
    if (m_drawing) {
        painter.fillRect(target, Qt::white);
        m_drawing->render(&painter, target);
    } else if (!isNull()) {
        painter.save();
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.drawImage(target, m_image);
        painter.restore();
    }
}

QPixmap DrawnPicture::scaledTo(const QSize &pixels, qreal scale) const
{
    if (isNull() || pixels.isEmpty()) {
        return {};
    }
    // A painter only mixes neighbouring pixels, which loses lines when a picture becomes much
    // smaller.
    QPixmap pixmap = m_drawing ? QPixmap(pixels)
                               : QPixmap::fromImage(m_image.scaled(pixels, Qt::IgnoreAspectRatio,
                                                                   Qt::SmoothTransformation));
    if (m_drawing) {
        QPainter painter(&pixmap);
        painter.setRenderHint(QPainter::Antialiasing);
        draw(painter, QRectF(QPointF(), QSizeF(pixels)));
    }
    pixmap.setDevicePixelRatio(scale);
    return pixmap;
}

} // namespace zeph
