// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/core/base.h"

#include <QImage>

namespace zeph {

/// A picture as its file has it.
struct PictureFile {
    QImage image;
    QSize size; ///< of the picture in the file, in its own pixels
};

/// Reads a picture: bmp, jpg, gif (its first frame) or png, whatever its name. What is transparent
/// becomes white. A picture that is larger than atMost is read as large as fits into that. The
/// error is a sentence for the user that says why it cannot be shown; a header alone never makes
/// this take much memory.
Expected<PictureFile, QString> readPicture(const QString &path, const QSize &atMost = {});

/// The picture as the bytes of a bmp file.
QByteArray bitmapOf(const QImage &image);

} // namespace zeph
