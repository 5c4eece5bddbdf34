// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "cougar/places.h"

#include "artwork/places.h"

#include <algorithm>

namespace zeph {

namespace {

bool isHotSpot(QStringView id)
{
    return id.startsWith(u"BTN_") || id.startsWith(u"HAT_") || id == u"TRIG";
}

QString textOf(std::u16string_view text)
{
    return QStringView(text).toString();
}

} // namespace

std::optional<Drawing> drawingNamed(QStringView name)
{
    const qsizetype dot = name.lastIndexOf(u'.');
    const QStringView stem = dot < 0 ? name : name.first(dot);
    for (const artwork::Picture &each : artwork::pictures) {
        if (stem.compare(QStringView(each.name), Qt::CaseInsensitive) == 0) {
            return Drawing{ each.name,
                            { each.width, each.height },
                            QByteArrayView(each.digest.data(), qsizetype(each.digest.size())) };
        }
    }
    return {};
}

QList<ControlPlace> placesOn(QStringView drawing)
{
    QList<ControlPlace> places;
    for (const artwork::Place &each : artwork::places) {
        if (drawing == QStringView(each.picture)) {
            places.append(
                { each.id, each.control, QRect(each.left, each.top, each.width, each.height) });
        }
    }
    return places;
}

QList<HotSpot> hotSpotsOn(const Drawing &drawing, const QSize &picture)
{
    const double across = double(picture.width()) / drawing.size.width();
    const double down = double(picture.height()) / drawing.size.height();
    QList<HotSpot> spots;
    for (const ControlPlace &each : placesOn(drawing.name)) {
        if (isHotSpot(each.id)) {
            const QRect &place = each.place;
            const QRectF scaled(place.x() * across, place.y() * down, place.width() * across,
                                place.height() * down);
            spots.append({ each.id.toString(), scaled.toRect() });
        }
    }
    return spots;
}

QString controlOf(QStringView id)
{
    const auto *found = std::ranges::find_if(
        artwork::places, [id](const auto &each) { return id == QStringView(each.id); });
    return found == std::end(artwork::places) ? QString() : textOf(found->control);
}

QString idOf(QStringView control)
{
    const auto *found = std::ranges::find_if(artwork::places, [control](const auto &each) {
        return control == QStringView(each.control);
    });
    return found == std::end(artwork::places) ? QString() : textOf(found->id);
}

QString spokenName(QStringView id)
{
    if (id == u"TRIG") {
        return u"Trigger"_s;
    }
    const QString control = controlOf(id);
    if (id.startsWith(u"HAT_") && !control.isEmpty()) {
        return u"Hat H"_s + control.last(1);
    }
    return id.startsWith(u"BTN_") && !control.isEmpty() ? u"Button "_s + control : QString();
}

} // namespace zeph
