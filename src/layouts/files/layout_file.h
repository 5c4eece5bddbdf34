// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// Layouts as bytes: positions files (.jfl, .ttl, .cll), the folders of layouts with text (.jft,
// .ttt, .clt), and the records that carry texts to the custom sheet. Numbers are written whole,
// truncated towards minus infinity. What one of the writers wrote and a reader read is written
// again as the same bytes. A damaged file gives an error and nothing else.

#include "layouts/files/layout_lines.h"
#include "layouts/files/sheet_kinds.h"

#include <QRectF>

namespace zeph {

/// The sheet's size, pictures and boxes, without texts. The file holds no path of the joystick and
/// throttle sheets' picture, and of the custom sheet's fourth picture no place and no lock: these
/// are as in emptySheet(). Lines after the last box are not read. `file` is named in errors.
Expected<Sheet, LayoutError> readPositions(SheetKind kind, QByteArrayView bytes,
                                           const QString &file);
/// An error for a picture whose path a layout file cannot hold.
Expected<QByteArray, LayoutError> writePositions(const Sheet &sheet, const QString &file);

/// The files of a layout with text.
struct LayoutFolder {
    QByteArray positions;
    std::vector<QByteArray> texts; ///< RTF, one a box

    friend bool operator==(const LayoutFolder &, const LayoutFolder &) = default;
};

/// As readPositions(), with the boxes' texts. The path is that of the positions; errors name the
/// texts beside it.
Expected<Sheet, LayoutError> readLayoutFolder(SheetKind kind, const LayoutFolder &files,
                                              const QString &path);
Expected<LayoutFolder, LayoutError> writeLayoutFolder(const Sheet &sheet, const QString &path);
/// The file of a box's text (0-based) in such a folder.
QString layoutTextName(SheetKind kind, int box);

/// One rich text of a layout. Its error names the line at which reading gave up.
Expected<RichText, LayoutError> readLayoutText(QByteArrayView rtf, const QString &file);

/// The sheet that is open with the places of a layout: sizes, what is shown and what is locked. The
/// texts stay, and so does what the file does not hold of the pictures. Both of one kind.
Sheet withPlacesOf(Sheet open, const Sheet &layout);

// Boxes on their way to the custom sheet.

/// The places of all boxes sent: the count, then a record each. Without boxes the count alone.
QByteArray writeTransferList(const std::vector<QRectF> &places);
Expected<std::vector<QRectF>, LayoutError> readTransferList(QByteArrayView bytes,
                                                            const QString &file);
/// The place of the one box sent.
QByteArray writeTransferPlace(const QRectF &place);
Expected<QRectF, LayoutError> readTransferPlace(QByteArrayView bytes, const QString &file);

} // namespace zeph
