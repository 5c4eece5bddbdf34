// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "cougar/controls_picture.h"

#include "cougar/hot_spot_button.h"

#include <QEvent>
#include <QPainter>

#include <algorithm>

namespace zeph {

namespace {

/// Room around hot spots that have no picture, in its pixels.
constexpr int margin = 10;

/// A size in which all hot spots have room; empty without any.
QSize extentOf(const QList<HotSpot> &spots)
{
    QRect all;
    for (const HotSpot &each : spots) {
        all |= each.place;
    }
    return all.isEmpty() ? QSize() : QSize(all.right() + margin, all.bottom() + margin);
}

} // namespace

ControlsPicture::ControlsPicture(QWidget *parent) : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void ControlsPicture::showPicture(const DrawnPicture &picture, const QList<HotSpot> &spots)
{
    m_picture = picture;
    m_shown = {};
    m_extent = picture.isNull() ? extentOf(spots) : picture.size();
    for (HotSpotButton *each : m_buttons) {
        each->place = {};
    }
    // What never has the focus has no place in the order of Tab after which others could be put.
    setFocusPolicy(Qt::TabFocus);
    QWidget *previous = this;
    for (const HotSpot &each : spots) {
        HotSpotButton *found = button(each.id);
        if (!found) {
            found = makeButton(each.id);
        }
        found->place = each.place & QRect(QPoint(), m_extent);
        found->setHasPicture(!picture.isNull());
        setTabOrder(previous, found);
        previous = found;
    }
    setFocusPolicy(Qt::NoFocus);
    layOut();
    updateGeometry();
}

Expected<void, FileError> ControlsPicture::showHandle(const QString &appFolder,
                                                      const HandleFile &handle)
{
    const auto picture = DrawnPicture::load(appFolder, handle.picture);
    showPicture(picture.value_or(DrawnPicture()), handle.spots);
    return picture.map([](const DrawnPicture &) {});
}

Expected<void, FileError> ControlsPicture::showDrawing(const QString &appFolder,
                                                       const QString &fileName)
{
    const auto picture = DrawnPicture::load(appFolder, fileName);
    QList<HotSpot> spots;
    if (const auto drawing = drawingNamed(fileName)) {
        spots = hotSpotsOn(*drawing, picture ? picture->size() : drawing->size);
    }
    showPicture(picture.value_or(DrawnPicture()), spots);
    return picture.map([](const DrawnPicture &) {});
}

QAbstractButton *ControlsPicture::spot(QStringView id) const
{
    HotSpotButton *found = button(id);
    return found && !found->place.isEmpty() ? found : nullptr;
}

void ControlsPicture::highlight(const QStringList &ids)
{
    m_marked = ids;
    for (HotSpotButton *each : m_buttons) {
        each->setMarked(ids.contains(each->objectName()));
    }
}

QRectF ControlsPicture::pictureRect() const
{
    if (m_extent.isEmpty()) {
        return {};
    }
    // Whole pixels of the screen, so that no line is drawn between two of them.
    const qreal scale = devicePixelRatioF();
    const QSize room = (QSizeF(size()) * scale).toSize();
    const QSize shown = m_extent.scaled(room, Qt::KeepAspectRatio);
    const QPoint corner((room.width() - shown.width()) / 2, (room.height() - shown.height()) / 2);
    return QRectF(QPointF(corner) / scale, QSizeF(shown) / scale);
}

QRectF ControlsPicture::onWidget(const QRectF &place) const
{
    const QRectF shown = pictureRect();
    if (m_extent.isEmpty()) {
        return {};
    }
    const qreal across = shown.width() / m_extent.width();
    const qreal down = shown.height() / m_extent.height();
    return { shown.x() + place.x() * across, shown.y() + place.y() * down, place.width() * across,
             place.height() * down };
}

QSize ControlsPicture::sizeHint() const
{
    return m_extent;
}

QSize ControlsPicture::minimumSizeHint() const
{
    return m_extent / 2;
}

bool ControlsPicture::eventFilter(QObject *watched, QEvent *event)
{
    const QString id = watched->objectName();
    const auto leave = [&id](QString &held) {
        if (held == id) {
            held.clear();
        }
    };
    switch (event->type()) {
    case QEvent::Enter:
        m_pointed = id;
        break;
    case QEvent::Leave:
        leave(m_pointed);
        break;
    case QEvent::FocusIn:
        m_focused = id;
        break;
    case QEvent::FocusOut:
        leave(m_focused);
        break;
    case QEvent::Hide:
        leave(m_pointed);
        leave(m_focused);
        break;
    default:
        return QWidget::eventFilter(watched, event);
    }
    tellHovered();
    return QWidget::eventFilter(watched, event);
}

void ControlsPicture::paintEvent(QPaintEvent *)
{
    const QRectF place = pictureRect();
    const qreal scale = devicePixelRatioF();
    const QSize pixels = (place.size() * scale).toSize();
    if (m_shown.size() != pixels || m_shown.devicePixelRatio() != scale) {
        m_shown = m_picture.scaledTo(pixels, scale);
    }
    QPainter(this).drawPixmap(place.topLeft(), m_shown);
}

void ControlsPicture::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    layOut();
}

HotSpotButton *ControlsPicture::button(QStringView id) const
{
    const auto found = std::ranges::find_if(
        m_buttons, [id](const HotSpotButton *each) { return each->objectName() == id; });
    return found == m_buttons.end() ? nullptr : *found;
}

HotSpotButton *ControlsPicture::makeButton(const QString &id)
{
    auto *made = new HotSpotButton(id, this);
    made->setMarked(m_marked.contains(id));
    made->installEventFilter(this);
    connect(made, &QAbstractButton::clicked, this, [this, id] { Q_EMIT clicked(id); });
    connect(made, &QWidget::customContextMenuRequested, this,
            [this, made, id](const QPoint &at) { Q_EMIT menuWanted(id, made->mapToGlobal(at)); });
    m_buttons.push_back(made);
    return made;
}

void ControlsPicture::layOut()
{
    for (HotSpotButton *each : m_buttons) {
        each->setGeometry(onWidget(each->place).toRect());
        each->setVisible(!each->place.isEmpty());
    }
    update();
    Q_EMIT laidOut();
}

void ControlsPicture::tellHovered()
{
    const QString now = m_pointed.isEmpty() ? m_focused : m_pointed;
    if (now != m_told) {
        m_told = now;
        Q_EMIT hovered(now);
    }
}

} // namespace zeph
