// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "composer/tumbo/key_board.h"

#include "livetools/board_keys.h"
#include "platform/colours.h"

#include <QAbstractButton>
#include <QKeyEvent>
#include <QPainter>
#include <QResizeEvent>

#include <algorithm>

namespace zeph {

namespace {

/// A key without a caption of more than one letter, in pixels of the window.
constexpr int usualKey = 36;
constexpr int smallestKey = 24;
constexpr int cellsPerKey = 4;

constexpr QColor heldColour(0xFF, 0xC0, 0x80);
constexpr qreal smallestText = 7;

// The mouse's body goes on below its buttons; the POV is around the middle of its positions.
constexpr QRect mouseCells(92, 0, 12, 11);
constexpr QRect bellyCells(92, 6, 12, 5);
constexpr QRect povCells(96, 17, 4, 4);

} // namespace

class KeyButton : public QAbstractButton
{
public:
    KeyButton(const BoardKey &key, KeyBoard *board)
        : QAbstractButton(board), m_key(key), m_board(board)
    {
        setObjectName(u"Command1_"_s + QString::number(key.index));
        setFocusPolicy(Qt::ClickFocus);
        setAttribute(Qt::WA_Hover);
        setShifted(false);
    }

    const BoardKey &key() const { return m_key; }
    bool isHeld = false;
    bool isShown = false;

    void setShifted(bool shifted)
    {
        const QString caption = m_key.caption(shifted);
        setText(QString(caption).replace(u'&', u"&&"_s));
        const QString spoken = caption == m_key.shifted ? caption : m_key.spokenName();
        setAccessibleName(spoken);
        setToolTip(spoken == m_key.name ? spoken : spoken + u": "_s + m_key.name.toString());
    }

protected:
    void keyPressEvent(QKeyEvent *event) override
    {
        switch (event->key()) {
        case Qt::Key_Left:
        case Qt::Key_Right:
        case Qt::Key_Up:
        case Qt::Key_Down:
            m_board->moveFocus(m_key.index, Qt::Key(event->key()));
            return;
        case Qt::Key_Return:
        case Qt::Key_Enter:
            // Enter is for the window's default button.
            event->ignore();
            return;
        default:
            QAbstractButton::keyPressEvent(event);
        }
    }
    void focusInEvent(QFocusEvent *event) override
    {
        m_board->setTabStop(this);
        QAbstractButton::focusInEvent(event);
    }
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        const QRectF frame = QRectF(rect()).adjusted(1.5, 1.5, -1.5, -1.5);
        const qreal round = std::min(frame.width(), frame.height()) / 7;
        painter.setPen(QPen(edge(), isShown ? 2 : 1));
        painter.setBrush(face());
        painter.drawRoundedRect(frame, round, round);
        if (hasFocus()) {
            painter.setPen(QPen(ink(), 1, Qt::DotLine));
            painter.setBrush(Qt::NoBrush);
            painter.drawRoundedRect(frame.adjusted(2.5, 2.5, -2.5, -2.5), round, round);
        }
        const QString caption = text().replace(u"&&"_s, u"&"_s);
        painter.setFont(fitted(caption));
        painter.setPen(ink());
        painter.drawText(frame, Qt::AlignCenter | Qt::TextSingleLine, caption);
    }

private:
    bool isOrange() const { return isHeld && !isDown(); }
    QColor ink() const
    {
        return isOrange() ? QColor(Qt::black) : palette().color(QPalette::ButtonText);
    }
    QColor edge() const
    {
        return isShown
            ? palette().color(QPalette::Highlight)
            : mixed(palette().color(QPalette::Window), palette().color(QPalette::WindowText), 0.45);
    }
    QColor face() const
    {
        const QColor plain = palette().color(QPalette::Button);
        const QColor text = palette().color(QPalette::ButtonText);
        return isOrange()  ? heldColour
            : isDown()     ? mixed(plain, text, 0.3)
            : underMouse() ? mixed(plain, text, 0.1)
                           : plain;
    }
    /// The font in which a caption has room; the same for all captions that have it.
    QFont fitted(const QString &caption) const
    {
        constexpr qreal margins = 7;
        const qreal cell = m_board->cellWidth();
        const qreal room = cell * m_key.cell.width - margins;
        qreal size = (cell * cellsPerKey - margins) * (caption.size() > 1 ? 0.43 : 0.55);
        QFont chosen = font();
        chosen.setPixelSize(int(std::max(smallestText, size)));
        const qreal width = QFontMetricsF(chosen).horizontalAdvance(caption);
        if (width > room) {
            size = chosen.pixelSize() * room / width;
            chosen.setPixelSize(int(std::max(smallestText, size)));
        }
        return chosen;
    }

    const BoardKey &m_key;
    KeyBoard *m_board;
};

KeyBoard::KeyBoard(QWidget *parent) : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    for (const BoardKey &each : boardKeys()) {
        auto *made = new KeyButton(each, this);
        m_keys.emplace(each.index, made);
        connect(made, &QAbstractButton::clicked, this,
                [this, index = each.index] { Q_EMIT pressed(index); });
    }
    setTabStop(m_keys.at(boardKeyNamed(u"a")->index));
}

QAbstractButton *KeyBoard::key(int index) const
{
    return m_keys.at(index);
}

void KeyBoard::setShifted(bool shifted)
{
    for (const auto &[index, key] : m_keys) {
        key->setShifted(shifted);
    }
}

void KeyBoard::setHeld(const std::set<int> &held)
{
    for (const auto &[index, key] : m_keys) {
        const bool isHeld = held.contains(index);
        if (key->isHeld != isHeld) {
            key->isHeld = isHeld;
            key->setAccessibleDescription(isHeld ? u"Held down by the statement"_s : QString());
            key->update();
        }
    }
}

void KeyBoard::setShown(int index)
{
    for (const auto &[each, key] : m_keys) {
        if (key->isShown != (each == index)) {
            key->isShown = each == index;
            key->update();
        }
    }
}

QSize KeyBoard::sizeHint() const
{
    const QSize usual = boardCells * usualKey / cellsPerKey;
    return { usual.width(), testAttribute(Qt::WA_Resized) ? fittingHeight() : usual.height() };
}

QSize KeyBoard::minimumSizeHint() const
{
    return boardCells * smallestKey / cellsPerKey;
}

int KeyBoard::fittingHeight() const
{
    return std::max(width() * boardCells.height() / boardCells.width(), minimumSizeHint().height());
}

qreal KeyBoard::cellWidth() const
{
    return std::min(qreal(width()) / boardCells.width(), qreal(height()) / boardCells.height());
}

QRect KeyBoard::onWidget(const QRect &cells) const
{
    const qreal cell = cellWidth();
    const QPointF corner((width() - cell * boardCells.width()) / 2,
                         (height() - cell * boardCells.height()) / 2);
    // Keys that touch on the board touch on the screen too: both round the same edge.
    const auto place = [&corner, cell](const QPoint &at) {
        return (corner + QPointF(at) * cell).toPoint();
    };
    return { place(cells.topLeft()),
             place(cells.topLeft() + QPoint(cells.width(), cells.height())) - QPoint(1, 1) };
}

void KeyBoard::moveFocus(int from, Qt::Key direction)
{
    m_keys.at(neighbourOf(from, direction))->setFocus(Qt::OtherFocusReason);
}

void KeyBoard::setTabStop(KeyButton *key)
{
    if (m_tabStop) {
        m_tabStop->setFocusPolicy(Qt::ClickFocus);
    }
    m_tabStop = key;
    key->setFocusPolicy(Qt::StrongFocus);
}

void KeyBoard::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(
        mixed(palette().color(QPalette::Window), palette().color(QPalette::WindowText), 0.45), 1));
    drawMouse(painter);
    const QRectF pov = QRectF(onWidget(povCells));
    painter.drawEllipse(pov.center(), pov.width() / 3, pov.width() / 3);
    painter.setFont(sized(pov.height() / 4));
    painter.setPen(palette().color(QPalette::WindowText));
    painter.drawText(pov, Qt::AlignCenter, u"POV"_s);
    painter.setFont(sized(pov.height() / 3));
    painter.drawText(QRectF(onWidget(bellyCells)), Qt::AlignCenter, u"Mouse"_s);
}

void KeyBoard::drawMouse(QPainter &painter) const
{
    const QRectF mouse = QRectF(onWidget(mouseCells)).adjusted(1.5, 1.5, -1.5, -1.5);
    // The buttons are its upper edge; a line of its own would double theirs.
    const QRectF belly = QRectF(onWidget(bellyCells));
    painter.save();
    painter.setClipRect(belly.adjusted(0, -belly.height() / 8, 0, 0));
    painter.drawRoundedRect(mouse, mouse.width() / 8, mouse.width() / 8);
    painter.restore();
}

QFont KeyBoard::sized(qreal pixels) const
{
    QFont changed = font();
    changed.setPixelSize(int(std::max(smallestText, pixels)));
    return changed;
}

void KeyBoard::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    if (event->size().width() != event->oldSize().width()) {
        // A board with a height for its width could not give way where a window is low.
        setMaximumHeight(fittingHeight());
        updateGeometry();
    }
    for (const auto &[index, key] : m_keys) {
        key->setGeometry(onWidget(key->key().cellRect()));
    }
}

} // namespace zeph
