// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "layouts/window/sheet_mouse.h"

#include <algorithm>
#include <cmath>

namespace zeph {

namespace {

bool isMovable(const Sheet &sheet, int box)
{
    return box >= 0 && box < int(sheet.boxes.size()) && sheet.boxes[size_t(box)].Visible
        && !sheet.boxes[size_t(box)].Locked;
}

/// The custom sheet's pictures are carried by the place where they are held, and with either
/// button.
bool isFree(const Sheet &sheet)
{
    return sheet.kind == SheetKind::Custom;
}

QPointF truncated(const QPointF &at)
{
    return { std::floor(at.x()), std::floor(at.y()) };
}

/// On the sheet, so that nothing is carried out of sight.
QPointF heldTo(const Sheet &sheet, const QPointF &at)
{
    return { std::clamp(at.x(), 0.0, std::max(0.0, sheet.width - 1.0)),
             std::clamp(at.y(), 0.0, std::max(0.0, sheet.height - 1.0)) };
}

/// The box with that size, as far as it is not too small.
QRectF sized(const LayoutTextBox &box, double width, double height)
{
    return { box.Left, box.Top, width >= leastBoxWidth ? width : box.Width,
             height >= leastBoxHeight ? height : box.Height };
}

QRectF placeOfBox(const LayoutTextBox &box)
{
    return { box.Left, box.Top, box.Width, box.Height };
}

} // namespace

int boxAt(const Sheet &sheet, int selected, const QPointF &at)
{
    const auto covers = [&](int i) {
        const LayoutTextBox &box = sheet.boxes[size_t(i)];
        return box.Visible && at.x() >= box.Left && at.y() >= box.Top
            && at.x() < box.Left + box.Width && at.y() < box.Top + box.Height;
    };
    const int count = int(sheet.boxes.size());
    if (selected >= 0 && selected < count && covers(selected)) {
        return selected;
    }
    for (int i = count - 1; i >= 0; --i) {
        if (covers(i)) {
            return i;
        }
    }
    return -1;
}

/// Whether the mouse is at an edge of a box. On the sheet, the pointer of the box that the mouse
/// has just left stays as long as the mouse is near its edge.
void SheetMouse::point(const Sheet &sheet, const SheetMouseEvent &event)
{
    const int box = event.box >= 0 ? event.box : m_sizes;
    if (!isMovable(sheet, box)) {
        m_sizes = -1;
        return;
    }
    const QRectF place = placeOfBox(sheet.boxes[size_t(box)]);
    const QPointF in = truncated(event.at - place.topLeft());
    const bool isNear =
        in.x() + sizingMargin >= place.width() || in.y() + sizingMargin >= place.height();
    const bool isFar = in.x() >= place.width() + sizingMargin
        || in.y() >= place.height() + sizingMargin || in.x() < 0 || in.y() < 0;
    m_sizes = isNear && !isFar ? box : -1;
}

SheetMouse::Carried SheetMouse::pressedOnSheet(const Sheet &sheet, int selected,
                                               const SheetMouseEvent &event)
{
    const bool isRight = event.button == SheetButton::Right;
    m_picture = isFree(sheet) ? event.picture : 0;
    const bool hasPicture = m_picture >= 0 && m_picture < int(sheet.pictures.size())
        && sheet.pictures[size_t(m_picture)].Visible && !sheet.pictures[size_t(m_picture)].Locked;
    const bool sizes = event.button == SheetButton::Left && m_sizes >= 0 && m_sizes == selected
        && isMovable(sheet, selected);
    if (hasPicture && (isRight || (isFree(sheet) && event.button == SheetButton::Left && !sizes))) {
        const SheetPicture &picture = sheet.pictures[size_t(m_picture)];
        m_grip =
            isFree(sheet) ? truncated(event.at) - QPointF(picture.Left, picture.Top) : QPointF();
        return Carried::Picture;
    }
    if (isRight && pointer() == SheetPointer::Normal && isMovable(sheet, selected)) {
        return Carried::Box;
    }
    return sizes ? Carried::SizeFromSheet : Carried::Nothing;
}

MouseWish SheetMouse::pressed(const Sheet &sheet, int selected, const SheetMouseEvent &event)
{
    if (event.box < 0) {
        m_carried = pressedOnSheet(sheet, selected, event);
        return follow(sheet, selected, event);
    }
    const bool sizes =
        event.button == SheetButton::Left && m_sizes == event.box && isMovable(sheet, event.box);
    m_carried = sizes ? Carried::Size : Carried::Nothing;
    return { .select = event.box };
}

MouseWish SheetMouse::moved(const Sheet &sheet, int selected, const SheetMouseEvent &event)
{
    if (m_carried != Carried::Nothing) {
        return follow(sheet, selected, event);
    }
    if (event.button == SheetButton::None
        || (event.button == SheetButton::Right && event.box >= 0)) {
        point(sheet, event);
    }
    return {};
}

MouseWish SheetMouse::released(const Sheet &, int selected, const SheetMouseEvent &event)
{
    const Carried carried = std::exchange(m_carried, Carried::Nothing);
    MouseWish wish;
    wish.whenMoving = selected >= 0 && carried != Carried::Nothing && carried != Carried::Picture;
    if (event.box >= 0) {
        wish.select = event.box;
    }
    return wish;
}

MouseWish SheetMouse::follow(const Sheet &sheet, int selected, const SheetMouseEvent &event) const
{
    const QPointF at = truncated(event.at);
    if (m_carried == Carried::Picture) {
        return { .picture = std::pair(m_picture, heldTo(sheet, at) - m_grip) };
    }
    if (m_carried == Carried::Nothing || !isMovable(sheet, selected)) {
        return {};
    }
    const LayoutTextBox &box = sheet.boxes[size_t(selected)];
    const QPointF corner(box.Left, box.Top);
    switch (m_carried) {
    case Carried::Size: {
        const QPointF in = truncated(event.at - corner);
        return { .place = sized(box, in.x() + 1, in.y() + 1) };
    }
    case Carried::SizeFromSheet:
        return { .place = sized(box, at.x() - corner.x(), at.y() - corner.y()) };
    default:
        return { .place = QRectF(heldTo(sheet, at), placeOfBox(box).size()) };
    }
}

} // namespace zeph
