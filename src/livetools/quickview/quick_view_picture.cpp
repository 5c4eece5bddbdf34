// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "livetools/quickview/quick_view_picture.h"

#include "livetools/quickview/statement_label.h"
#include "platform/elided_label.h"

#include <QEvent>
#include <QLabel>
#include <QPainter>
#include <QPainterPath>
#include <QPushButton>

#include <cmath>

namespace zeph {

namespace {

constexpr int textPixels = 12;
constexpr int hatTextPixels = 11;
constexpr int titlePixels = 15;
constexpr int positionPixels = 14;

struct PositionWords {
    QStringView text;
    QStringView spoken;
    QColor lit;
};

/// The three of the dogfight switch share a colour, S3's two another.
constexpr QColor dogfightLit(0x00, 0xC0, 0x00);
constexpr QColor shiftLit(0xFF, 0x80, 0x80);
constexpr std::array<PositionWords, positionCount> positionWords = {
    PositionWords{ u"/U", u"Dogfight switch up", dogfightLit },
    PositionWords{ u"/M", u"Dogfight switch in the middle", dogfightLit },
    PositionWords{ u"/D", u"Dogfight switch down", dogfightLit },
    PositionWords{ u"/I", u"S3 held in", shiftLit },
    PositionWords{ u"/O", u"S3 let out", shiftLit },
};

constexpr QColor ringColour(0x00, 0xA0, 0x00);
constexpr qreal ringWidth = 2.5;
constexpr qreal ringRoom = 3;
constexpr qreal lineWidth = 1;
constexpr qreal dotRadius = 2.5;
constexpr qreal frameCorner = 5;

/// What stands before a row's text: the direction of a hat, else the control's name.
QString shownName(int row)
{
    const QString name = controlName(row).toString();
    return hatOfRow(row) < 0 ? name : name.sliced(2);
}

QFont sized(QFont font, qreal pixels)
{
    font.setPixelSize(std::max(1, int(std::lround(pixels))));
    return font;
}

} // namespace

QuickViewPicture::QuickViewPicture(QWidget *parent)
    : QWidget(parent), m_plan(picturePlan(pictureSize)), m_title(new ElidedLabel(this)),
      m_microstick(new QLabel(this))
{
    m_title->setObjectName(u"LabelTitle"_s);
    m_microstick->setObjectName(u"LabelBTN_4"_s);
    m_microstick->setTextFormat(Qt::PlainText);
    makePositions();
    makeLabels();
}

void QuickViewPicture::makePositions()
{
    for (int at = 0; at < positionCount; ++at) {
        const PositionWords &words = positionWords[size_t(at)];
        auto *button = new QPushButton(words.text.toString(), this);
        button->setObjectName(u"Label3_"_s + QString::number(at));
        button->setToolTip(words.spoken.toString());
        button->setAccessibleName(words.spoken.toString());
        connect(button, &QPushButton::clicked, this, [this, at] { Q_EMIT positionClicked(at); });
        m_positions[size_t(at)] = button;
    }
}

void QuickViewPicture::makeLabels()
{
    for (int row = 1; row <= rowCount; ++row) {
        const QStringView name = controlName(row);
        if (name.isEmpty()) {
            continue;
        }
        auto *label = new StatementLabel(shownName(row), name.toString(), this);
        label->setObjectName(u"Label1_"_s + QString::number(row - 1));
        connect(label, &StatementLabel::activated, this, [this, row] { Q_EMIT activated(row); });
        connect(label, &StatementLabel::focused, this, [this, row] { Q_EMIT focused(row); });
        m_labels[size_t(row - 1)] = label;
    }
}

void QuickViewPicture::showControls(const DrawnControls &controls)
{
    m_controls = controls;
    m_ground = {};
    update();
}

void QuickViewPicture::setTitle(const QString &title)
{
    m_title->setText(title);
    m_title->setToolTip(Qt::convertFromPlainText(title, Qt::WhiteSpaceNormal));
}

void QuickViewPicture::setMicrostickTitle(const QString &title)
{
    m_microstick->setText(title);
}

void QuickViewPicture::light(const std::bitset<positionCount> &lit)
{
    for (size_t at = 0; at < positionWords.size(); ++at) {
        QPalette look;
        if (lit[at]) {
            look.setColor(QPalette::Button, positionWords[at].lit);
            look.setColor(QPalette::ButtonText, Qt::black);
        }
        if (lit[at] != m_lit[at]) {
            m_positions[at]->setPalette(look);
            const QString spoken = positionWords[at].spoken.toString();
            m_positions[at]->setAccessibleName(lit[at] ? spoken + u", in force"_s : spoken);
        }
    }
    m_lit = lit;
}

void QuickViewPicture::setPressed(int row, bool pressed)
{
    StatementLabel *shown = label(row);
    if (!shown || shown->isPressed() == pressed) {
        return;
    }
    shown->setPressed(pressed);
    const qreal room = (ringRoom + ringWidth) * m_plan.scale;
    update(placeOnWidget(m_controls, m_plan, m_controls.ofRow(row))
               .adjusted(-room, -room, room, room)
               .toAlignedRect());
}

QSize QuickViewPicture::sizeHint() const
{
    return pictureSize + QSize(2 * pictureMargin, 2 * pictureMargin);
}

void QuickViewPicture::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    RepositionOnResize();
}

void QuickViewPicture::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::PaletteChange) {
        m_ground = {};
    } else if (event->type() == QEvent::FontChange) {
        RepositionOnResize();
    }
    QWidget::changeEvent(event);
}

void QuickViewPicture::RepositionOnResize()
{
    m_plan = picturePlan(size());
    m_ground = {};
    m_title->setGeometry(m_plan.title.toRect());
    m_title->setFont(sized(font(), titlePixels * m_plan.scale));
    m_microstick->setGeometry(m_plan.microstick.toRect());
    m_microstick->setFont(sized(font(), hatTextPixels * m_plan.scale));
    for (size_t at = 0; at < m_positions.size(); ++at) {
        m_positions[at]->setGeometry(m_plan.positions[at].toRect());
        m_positions[at]->setFont(sized(font(), positionPixels * m_plan.scale));
    }
    for (int row = 1; row <= rowCount; ++row) {
        if (StatementLabel *shown = label(row)) {
            const int pixels = hatOfRow(row) < 0 ? textPixels : hatTextPixels;
            shown->setGeometry(m_plan.label(row).toRect());
            shown->setFont(sized(shown->font(), pixels * m_plan.scale));
        }
    }
}

void QuickViewPicture::paintEvent(QPaintEvent *)
{
    const qreal ratio = devicePixelRatioF();
    if (m_ground.isNull() || m_ground.devicePixelRatio() != ratio) {
        m_ground = QPixmap((QSizeF(size()) * ratio).toSize());
        m_ground.setDevicePixelRatio(ratio);
        QPainter painter(&m_ground);
        paintGround(painter);
    }
    QPainter painter(this);
    painter.drawPixmap(0, 0, m_ground);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(ringColour, ringWidth * m_plan.scale));
    painter.setBrush(Qt::NoBrush);
    const qreal room = ringRoom * m_plan.scale;
    for (int row = 1; row <= rowCount; ++row) {
        const QRectF place = placeOnWidget(m_controls, m_plan, m_controls.ofRow(row));
        if (label(row) && label(row)->isPressed() && !place.isEmpty()) {
            painter.drawEllipse(place.adjusted(-room, -room, room, room));
        }
    }
}

void QuickViewPicture::paintGround(QPainter &painter) const
{
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillRect(rect(), palette().color(QPalette::Window));
    for (const bool throttle : { true, false }) {
        const DrawnPicture &picture = throttle ? m_controls.throttle : m_controls.stick;
        if (!picture.isNull()) {
            picture.draw(painter, drawingOnWidget(m_controls, m_plan, throttle));
        }
    }
    paintFrames(painter);
    paintLines(painter);
}

void QuickViewPicture::paintFrames(QPainter &painter) const
{
    QFont nameFont = sized(font(), textPixels * m_plan.scale);
    nameFont.setBold(true);
    painter.setFont(nameFont);
    for (int hat = 0; hat < hatCount; ++hat) {
        const QRectF &frame = m_plan.hats[size_t(hat)];
        painter.setPen(palette().color(QPalette::Mid));
        painter.setBrush(palette().color(QPalette::Window));
        painter.drawRoundedRect(frame, frameCorner, frameCorner);
        painter.setPen(palette().color(QPalette::WindowText));
        painter.drawText(
            QRectF(frame.topLeft(), QSizeF(frame.width(), m_plan.hatNames[size_t(hat)])),
            Qt::AlignCenter, u"Hat "_s + QString::number(hat + 1));
    }
}

void QuickViewPicture::paintLines(QPainter &painter) const
{
    // The drawings are light on every desktop, and the lines end on them.
    const QColor colour(0x60, 0x70, 0x90);
    for (int row = 1; row <= rowCount; ++row) {
        const bool isAgain = hatOfRow(row) >= 0 && (row - firstHatRow) % hatRowCount != 0;
        const QRectF control = placeOnWidget(m_controls, m_plan, m_controls.joinedTo(row));
        if (isAgain || control.isEmpty()) {
            continue;
        }
        const std::vector<QPointF> line = joiningLine(m_plan, row, control.center());
        painter.setPen(QPen(colour, lineWidth * m_plan.scale));
        painter.drawPolyline(line.data(), int(line.size()));
        painter.setPen(Qt::NoPen);
        painter.setBrush(colour);
        painter.drawEllipse(control.center(), dotRadius * m_plan.scale, dotRadius * m_plan.scale);
    }
}

} // namespace zeph
