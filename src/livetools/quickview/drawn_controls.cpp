// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "livetools/quickview/drawn_controls.h"

#include "cougar/handle_list.h"

namespace zeph {

namespace {

constexpr QStringView throttleFile = u"Throttle.bmp";
constexpr QStringView shippedHandle = u"F-16 Block 50.bmp";
constexpr QStringView triggerSpot = u"TRIG";

/// The places that our drawing of that name tells, in pixels of a picture of that size.
void addDrawn(DrawnControls &controls, QStringView fileName, const QSize &picture, bool onThrottle)
{
    const auto drawing = drawingNamed(fileName);
    if (!drawing || picture.isEmpty()) {
        return;
    }
    const qreal across = qreal(picture.width()) / drawing->size.width();
    const qreal down = qreal(picture.height()) / drawing->size.height();
    for (const ControlPlace &each : placesOn(drawing->name)) {
        if (const int row = rowOfControl(each.control); row > 0) {
            controls.rows[size_t(row - 1)] = {
                onThrottle,
                QRectF(each.place.x() * across, each.place.y() * down, each.place.width() * across,
                       each.place.height() * down)
            };
        }
    }
}

/// The places that a handle file tells, which hold for its picture whatever is drawn on it.
void addSpots(DrawnControls &controls, const QList<HotSpot> &spots)
{
    for (const HotSpot &spot : spots) {
        const DrawnPlace place{ false, QRectF(spot.place) };
        if (spot.id.startsWith(u"HAT_")) {
            controls.hats[size_t(spot.id.back().digitValue()) % hatCount] = place;
        } else if (spot.id == triggerSpot) {
            for (const QStringView stage : { u"TG1", u"TG2" }) {
                DrawnPlace &row = controls.rows[size_t(rowOfControl(stage) - 1)];
                row = row.place.isEmpty() ? place : row;
            }
        } else if (const int row = rowOfControl(controlOf(spot.id)); row > 0) {
            controls.rows[size_t(row - 1)] = place;
        }
    }
}

} // namespace

const DrawnPlace &DrawnControls::joinedTo(int row) const
{
    const int hat = hatOfRow(row);
    return hat < 0 ? ofRow(row) : hats[size_t(hat)];
}

DrawnControls drawnControls(const QString &appFolder, const QString &iniPath)
{
    DrawnControls controls;
    if (auto picture = DrawnPicture::load(appFolder, throttleFile.toString())) {
        controls.throttle = *picture;
    }
    addDrawn(controls, throttleFile, controls.throttle.size(), true);
    const HandleList handles = listHandles(ProfileFile(iniPath), appFolder);
    const auto handle = loadHandleFile(handlePath(appFolder, handles.chosen));
    const QString file = handle ? handle->picture : shippedHandle.toString();
    if (auto picture = DrawnPicture::load(appFolder, file)) {
        controls.stick = *picture;
    }
    addDrawn(controls, file, controls.stick.size(), false);
    if (handle) {
        addSpots(controls, handle->spots);
    } else if (const auto drawing = drawingNamed(file); drawing && !controls.stick.isNull()) {
        addSpots(controls, hotSpotsOn(*drawing, controls.stick.size()));
    }
    return controls;
}

QRectF drawingOnWidget(const DrawnControls &controls, const PicturePlan &plan, bool throttle)
{
    const DrawnPicture &picture = throttle ? controls.throttle : controls.stick;
    const QRectF &room = throttle ? plan.throttle : plan.stick;
    const QSizeF shown = QSizeF(picture.size()).scaled(room.size(), Qt::KeepAspectRatio);
    return { room.center() - QPointF(shown.width() / 2, shown.height() / 2), shown };
}

QRectF placeOnWidget(const DrawnControls &controls, const PicturePlan &plan,
                     const DrawnPlace &place)
{
    if (place.place.isEmpty()) {
        return {};
    }
    const QRectF shown = drawingOnWidget(controls, plan, place.onThrottle);
    const QSizeF picture = (place.onThrottle ? controls.throttle : controls.stick).size();
    const qreal scale = shown.width() / picture.width();
    return { shown.topLeft() + place.place.topLeft() * scale, place.place.size() * scale };
}

} // namespace zeph
