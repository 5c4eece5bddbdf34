// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "platform/window_places.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWidget>
#include <QWindow>

#include <algorithm>

namespace zeph {

namespace {

// What a frame adds at most to a window that is not shown yet and has none.
constexpr QSize frameRoom(16, 40);

QList<QRect> screensNow()
{
    QList<QRect> places;
    for (const QScreen *screen : QGuiApplication::screens()) {
        places.append(screen->availableGeometry());
    }
    return places;
}

int area(const QRect &place)
{
    return place.isEmpty() ? 0 : place.width() * place.height();
}

/// The square of the way from a place's centre to another's.
qint64 distance(const QRect &one, const QRect &other)
{
    const QPoint way = one.center() - other.center();
    return qint64(way.x()) * way.x() + qint64(way.y()) * way.y();
}

int held(int from, int length, int start, int room)
{
    return std::max(start, std::min(from, start + room - length));
}

QRect heldTo(const QRect &screen, const QRect &place)
{
    if (screen.contains(place)) {
        return place;
    }
    const QSize room = screen.size() - frameRoom;
    const QSize size = place.size().boundedTo(room);
    return { QPoint(held(place.x(), size.width(), screen.x(), room.width()),
                    held(place.y(), size.height(), screen.y(), room.height())),
             size };
}

} // namespace

QRect heldToScreens(const QRect &place, const QList<QRect> &screens)
{
    if (screens.isEmpty()) {
        return place;
    }
    const auto isWorse = [&place](const QRect &one, const QRect &other) {
        const int covered = area(one & place);
        const int coveredByOther = area(other & place);
        return covered != coveredByOther ? covered < coveredByOther
                                         : distance(one, place) > distance(other, place);
    };
    return heldTo(*std::max_element(screens.begin(), screens.end(), isWorse), place);
}

QRect placeBeside(const QSize &size, const QRect &window, const QRect &screen)
{
    const int width = size.width() + frameRoom.width();
    const int rightRoom = screen.right() - window.right();
    const int leftRoom = window.left() - screen.left();
    const bool isRight = rightRoom >= width || rightRoom >= leftRoom;
    const int x = isRight ? window.right() + 1 : window.left() - width;
    return heldTo(screen, QRect(QPoint(x, window.top()), size));
}

QRect normalPlace(const QWidget &window)
{
    const QWindow *handle = window.windowHandle();
    if (!handle || !(window.windowState() & (Qt::WindowMaximized | Qt::WindowMinimized))) {
        return { window.pos(), window.size() };
    }
    QRect place = window.normalGeometry();
    place.moveTopLeft(place.topLeft() - (window.geometry().topLeft() - window.pos()));
    return place;
}

void restorePlace(QWidget &window, const QRect &place)
{
    const QSize wanted = place.size().isEmpty() ? window.size() : place.size();
    const QSize size = wanted.expandedTo(window.minimumSizeHint());
    const QRect held = heldToScreens({ place.topLeft(), size }, screensNow());
    window.resize(held.size());
    window.move(held.topLeft());
}

void openBeside(QWidget &window, const QWidget &main)
{
    const QRect place =
        placeBeside(window.size(), main.frameGeometry(), main.screen()->availableGeometry());
    window.resize(place.size());
    window.move(place.topLeft());
}

} // namespace zeph
