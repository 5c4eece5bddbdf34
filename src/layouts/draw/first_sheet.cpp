// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "layouts/draw/first_sheet.h"

#include "cougar/handle_list.h"
#include "layouts/arrange/arrange.h"
#include "layouts/draw/overflow.h"

#include <algorithm>

namespace zeph {

ControlsImage controlsImage(SheetKind kind, const QString &appFolder, const ProfileFile &store)
{
    ControlsImage image;
    QList<HotSpot> spots;
    if (kind == SheetKind::Joystick) {
        const QString handle = listHandles(store, appFolder).chosen;
        if (const auto file = loadHandleFile(handlePath(appFolder, handle))) {
            image.name = file->picture;
            spots = file->spots;
        }
    } else if (kind == SheetKind::Throttle) {
        image.name = u"Throttle.bmp"_s;
    }
    if (image.name.isEmpty()) {
        return image;
    }
    image.picture = DrawnPicture::load(appFolder, image.name).value_or(DrawnPicture());
    const auto drawing = drawingNamed(image.name);
    // The drawing knows axes too, of which a handle file says nothing.
    image.controls = image.picture.isDrawing() && drawing
        ? controlsOn(kind, *drawing)
        : controlsOn(kind, image.picture.size(), spots);
    return image;
}

SheetLook lookOf(const ControlsImage &image, const CharFormat &plain)
{
    return { .pictures = { image.picture }, .controls = image.controls, .plain = plain };
}

Sheet firstSheet(SheetKind kind, const QSize &size, const std::vector<RichText> &texts,
                 const ControlsImage &image, const CharFormat &plain)
{
    Sheet sheet;
    sheet.kind = kind;
    sheet.width = size.width();
    sheet.height = size.height();
    sheet.pictures.push_back({ .path = image.name });
    for (const RichText &text : texts) {
        sheet.boxes.push_back({ .text = text });
    }
    RepositionTextBoxes(sheet, image.controls, plain);
    fitAllTexts(sheet, plain);
    return sheet;
}

Sheet firstSheetForAll(SheetKind kind, QSize size, const std::vector<RichText> &texts,
                       const ControlsImage &image, const CharFormat &plain)
{
    constexpr double growth = 1.25;
    constexpr int most = 32767;
    for (;;) {
        Sheet sheet = firstSheet(kind, size, texts, image, plain);
        const bool canGrow = size.width() < most && size.height() < most;
        if (!canGrow || overflowingBoxes(sheet, plain).empty()) {
            return sheet;
        }
        size = (size.toSizeF() * growth).toSize().boundedTo(QSize(most, most));
    }
}

} // namespace zeph
