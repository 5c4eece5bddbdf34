// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "layouts/arrange/leader_lines.h"

#include <algorithm>
#include <array>

namespace zeph {

namespace {

// The ids of the boxes' controls in the pictures' table, from the first box on.
constexpr std::array<QStringView, 11> joystickControls = { u"HAT_0", u"HAT_1", u"HAT_2", u"HAT_3",
                                                           u"BTN_0", u"BTN_1", u"BTN_2", u"BTN_3",
                                                           u"TRIG",  u"JOYX",  u"JOYY" };
constexpr std::array<QStringView, 18> throttleControls = {
    u"BTN_4",  u"BTN_5", u"BTN_6", u"BTN_7", u"BTN_8", u"BTN_9", u"BTN_10", u"BTN_11", u"BTN_12",
    u"BTN_13", u"THR",   u"RDDR",  u"ANT",   u"RNG",   u"MIX",   u"MIY",    u"LBRK",   u"RBRK"
};

std::span<const QStringView> controlsOf(SheetKind kind)
{
    switch (kind) {
    case SheetKind::Joystick:
        return joystickControls;
    case SheetKind::Throttle:
        return throttleControls;
    case SheetKind::Custom:
        break;
    }
    return {};
}

template <class Places> // of anything with an id and a place
std::vector<QRectF> placesIn(const Places &places, SheetKind kind)
{
    std::vector<QRectF> result;
    for (const QStringView id : controlsOf(kind)) {
        const auto found =
            std::ranges::find_if(places, [id](const auto &each) { return each.id == id; });
        result.push_back(found == places.end() ? QRectF() : QRectF(found->place));
    }
    return result;
}

} // namespace

PictureWithControls controlsOn(SheetKind kind, const Drawing &drawing)
{
    return { drawing.size, placesIn(placesOn(drawing.name), kind) };
}

PictureWithControls controlsOn(SheetKind kind, const QSize &picture, const QList<HotSpot> &spots)
{
    return { picture, placesIn(spots, kind) };
}

QRectF controlOnSheet(const Sheet &sheet, const PictureWithControls &picture, size_t box)
{
    if (box >= picture.controls.size() || picture.controls[box].isNull()
        || sheet.pictures.empty()) {
        return {};
    }
    return picture.controls[box].translated(sheet.pictures.front().Left,
                                            sheet.pictures.front().Top);
}

QLineF leaderLine(const QRectF &box, const QRectF &control)
{
    const QPointF end = control.center();
    // Not from a corner, where the line would look like one of the frame's.
    const double x = std::min(6.0, box.width() / 2);
    const double y = std::min(6.0, box.height() / 2);
    const bool isBeside = end.x() < box.left() || end.x() > box.right();
    const QRectF ports = isBeside ? box.adjusted(0, y, 0, -y) : box.adjusted(x, 0, -x, 0);
    const QPointF start(std::clamp(end.x(), ports.left(), ports.right()),
                        std::clamp(end.y(), ports.top(), ports.bottom()));
    return start == end ? QLineF() : QLineF(start, end);
}

std::vector<QLineF> leaderLines(const Sheet &sheet, const PictureWithControls &picture)
{
    std::vector<QLineF> lines(sheet.boxes.size());
    if (sheet.pictures.empty() || !sheet.pictures.front().Visible) {
        return lines;
    }
    for (size_t i = 0; i < lines.size(); ++i) {
        const QRectF control = controlOnSheet(sheet, picture, i);
        if (sheet.boxes[i].Visible && !control.isNull()) {
            lines[i] = leaderLine(placeOf(sheet.boxes[i]), control);
        }
    }
    return lines;
}

} // namespace zeph
