// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/core/base.h"

#include <QList>
#include <QRect>

class QImage;
class QPrinter;

namespace zeph {

/// The size of a page between its margins, in pixels of a screen; a picture is printed as large as
/// it is on one.
QSize pageInPixels(const QPrinter &printer);

/// The parts of a picture that go to a page each, row by row.
QList<QRect> pagesOf(const QSize &picture, const QSize &page);

/// Prints a picture at its natural size, on as many pages as it takes. The error says why not.
Expected<void, QString> printPicture(QPrinter &printer, const QImage &picture, const QString &name);

} // namespace zeph
