// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "composer/wizards/lesson_picture.h"

#include "cougar/places.h"
#include "platform/core/paths.h"

#include <QDir>
#include <QPainter>
#include <QSvgRenderer>

#include <algorithm>

namespace zeph {

namespace {

constexpr QSize usualSize(250, 300);
constexpr int margin = 8;
constexpr double corner = 6;
/// Room between a control and its ring, in pixels of the picture.
constexpr int ringGap = 4;
constexpr QColor ringColour(230, 80, 0);

} // namespace

QList<QRect> ringsOf(const LessonPage &page)
{
    const auto drawing = drawingNamed(page.picture);
    if (!drawing) {
        return {};
    }
    QList<QRect> rings;
    const QList<QStringView> controls = page.controls.split(u' ', Qt::SkipEmptyParts);
    for (const ControlPlace &each : placesOn(drawing->name)) {
        if (!controls.contains(each.control)) {
            continue;
        }
        const QRect ring = each.place.adjusted(-ringGap, -ringGap, ringGap, ringGap);
        const auto under = std::ranges::find_if(
            rings, [&ring](const QRect &other) { return other.contains(ring.center()); });
        if (under == rings.end()) {
            rings.append(ring);
        } else {
            *under |= ring;
        }
    }
    return rings;
}

LessonPicture::LessonPicture(const QString &appFolder, const LessonPage &page, QWidget *parent)
    : QWidget(parent), m_appFolder(appFolder), m_page(page)
{
    setAccessibleName(page.says.toString());
    setToolTip(page.says.toString());
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Expanding);
    setMinimumWidth(usualSize.width() * 2 / 3);
}

LessonPicture::~LessonPicture() = default;

QSize LessonPicture::sizeHint() const
{
    return usualSize;
}

void LessonPicture::load()
{
    if (std::exchange(m_isLoaded, true)) {
        return;
    }
    if (drawingNamed(m_page.picture)) {
        m_cougar =
            DrawnPicture::load(m_appFolder, m_page.picture.toString()).value_or(DrawnPicture());
        return;
    }
    const QString path = existingPath(QDir(m_appFolder).filePath(m_page.picture.toString()));
    auto drawing = std::make_unique<QSvgRenderer>();
    if (!path.isEmpty() && drawing->load(path)) {
        m_drawing = std::move(drawing);
    }
}

QSize LessonPicture::pictureSize() const
{
    return m_drawing ? m_drawing->defaultSize() : m_cougar.size();
}

void LessonPicture::drawRings(QPainter &painter, const QRectF &target) const
{
    const double scale = target.width() / m_cougar.size().width();
    painter.setPen(QPen(ringColour, std::max(2.0, 4 * scale)));
    for (const QRect &each : ringsOf(m_page)) {
        painter.drawEllipse(QRectF(target.topLeft() + QPointF(each.topLeft()) * scale,
                                   QSizeF(each.size()) * scale));
    }
}

void LessonPicture::paintEvent(QPaintEvent *)
{
    load();
    const QSize size = pictureSize();
    if (size.isEmpty()) {
        return;
    }
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    QSizeF fitted = size;
    fitted.scale(QSizeF(width() - 2 * margin, height() - 2 * margin), Qt::KeepAspectRatio);
    const QRectF target(QPointF((width() - fitted.width()) / 2, margin), fitted);
    // The lines of all pictures are made for white paper, on dark desktops too.
    painter.setPen(QPen(QColor(128, 128, 128), 1));
    painter.setBrush(Qt::white);
    painter.drawRoundedRect(
        target.adjusted(-margin + 0.5, -margin + 0.5, margin - 0.5, margin - 0.5), corner, corner);
    painter.setBrush(Qt::NoBrush);
    if (m_drawing) {
        m_drawing->render(&painter, target);
    } else {
        m_cougar.draw(painter, target);
        drawRings(painter, target);
    }
}

} // namespace zeph
