// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/core/file_io.h"

#include <QImage>

#include <memory>

class QPainter;
class QPixmap;
class QRectF;
class QSvgRenderer;

namespace zeph {

/// A picture of the Cougar in any size. Where the file is one that ships with the program, its
/// drawing beside it is shown, which is sharp in every size; else the file's own pixels are. Copies
/// share what they hold.
class DrawnPicture
{
public:
    /// No picture: null, of no size, draws nothing.
    DrawnPicture() = default;
    /// The picture of that file name in the program's folder. The error says why there is none.
    static Expected<DrawnPicture, FileError> load(const QString &appFolder,
                                                  const QString &fileName);

    bool isNull() const { return m_size.isEmpty(); }
    bool isDrawing() const { return m_drawing != nullptr; }
    /// The size in the picture file's own pixels, in which places on it are given.
    QSize size() const { return m_size; }
    /// The drawing as SVG; empty for a picture of pixels.
    const QByteArray &svg() const { return m_svg; }
    /// The picture's pixels; null for a drawing.
    const QImage &image() const { return m_image; }

    /// Fills the target, whose shape the caller has to keep. Drawings stand on white, on dark
    /// desktops too: their thin dark lines are made for it. Vectors stay vectors on a printer.
    void draw(QPainter &painter, const QRectF &target) const;
    /// The picture in that many pixels of a screen of that scale.
    QPixmap scaledTo(const QSize &pixels, qreal scale) const;

private:
    QSize m_size;
    QImage m_image; ///< null when there is a drawing
    QByteArray m_svg;
    std::shared_ptr<QSvgRenderer> m_drawing;
};

} // namespace zeph
