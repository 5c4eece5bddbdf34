// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "layouts/window/sheet_canvas.h"

#include "layouts/files/sheet_kinds.h"
#include "layouts/window/box_editor.h"
#include "layouts/window/sheet_model.h"
#include "platform/colours.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QMouseEvent>
#include <QPainter>

#include <cmath>

namespace zeph {

namespace {

constexpr QColor gridColour(222, 230, 240);
constexpr double selectionWidth = 1.5;
constexpr double handleSize = 6;
constexpr QColor selectionColour(38, 110, 200);

SheetButton sheetButton(Qt::MouseButtons buttons)
{
    if (buttons & Qt::LeftButton) {
        return SheetButton::Left;
    }
    if (buttons & Qt::RightButton) {
        return SheetButton::Right;
    }
    return buttons ? SheetButton::Other : SheetButton::None;
}

} // namespace

SheetCanvas::SheetCanvas(SheetModel &model, QWidget *parent)
    : QWidget(parent), m_model(model), m_editor(new BoxEditor(this))
{
    setObjectName(u"Picture3"_s);
    setAccessibleName(u"Sheet"_s);
    setMouseTracking(true);
    m_editor->hide();
    m_editor->setMouseTracking(true);
    m_editor->installEventFilter(this);
    m_editor->viewport()->setMouseTracking(true);
    m_editor->viewport()->installEventFilter(this);
    connect(m_editor, &BoxEditor::textChanged, this, [this] {
        if (!m_isSetting && m_model.selected() >= 0) {
            m_edited = m_editor->richText();
            m_model.type(m_model.selected(), m_edited);
        }
    });
    connect(&m_model, &SheetModel::selectedChanged, this, [this] {
        showEditor();
        update();
    });
    showSheet(m_model.sheet());
}

RichTextBox &SheetCanvas::editor() const
{
    return *m_editor;
}

bool SheetCanvas::isEditing() const
{
    const LayoutTextBox *box = m_model.selectedBox();
    return box && box->Visible;
}

void SheetCanvas::editorFocus()
{
    m_editor->setFocus();
}

int SheetCanvas::overflowing()
{
    int count = 0;
    for (size_t i = 0; i < m_shown.boxes.size(); ++i) {
        const LayoutTextBox &box = m_shown.boxes[i];
        count += box.Visible && !m_renderer.text(m_shown, m_look, i).fits(box.Height);
    }
    return count;
}

void SheetCanvas::showSheet(const Sheet &shown)
{
    m_shown = shown;
    resize(shown.width, shown.height);
    showEditor();
    update();
}

void SheetCanvas::setLook(const SheetLook &look)
{
    m_look = look;
    const bool wasSetting = std::exchange(m_isSetting, true);
    m_editor->setPlain(look.plain);
    m_isSetting = wasSetting;
    update();
    Q_EMIT lookChanged();
}

void SheetCanvas::setGrid(int cell)
{
    m_grid = cell;
    update();
}

/// Lays the control over the selected box, with the box's text.
void SheetCanvas::showEditor()
{
    const LayoutTextBox *box = m_model.selectedBox();
    if (!isEditing()) {
        m_editor->hide();
        return;
    }
    const int number = m_model.selected();
    m_editor->setGeometry(QRectF(box->Left, box->Top, box->Width, box->Height).toRect());
    const QString name = u"TxtRTF_"_s + QString::number(number);
    if (m_editor->objectName() != name || m_edited != box->text) {
        const bool isSame = m_editor->objectName() == name;
        const bool wasSetting = std::exchange(m_isSetting, true);
        m_editor->showBoxText(box->text, isSame);
        m_isSetting = wasSetting;
        m_edited = box->text;
        m_editor->setObjectName(name);
        m_editor->setAccessibleName(sheetKind(m_shown.kind).boxNames[size_t(number)].toString());
    }
    m_editor->setVisible(true);
}

void SheetCanvas::showPointer()
{
    const bool sizes = m_mouse.pointer() == SheetPointer::Sizing;
    setCursor(sizes ? Qt::SizeAllCursor : Qt::ArrowCursor);
    m_editor->setCursor(sizes ? Qt::SizeAllCursor : Qt::ArrowCursor);
    m_editor->viewport()->setCursor(sizes ? Qt::SizeAllCursor : Qt::IBeamCursor);
}

int SheetCanvas::movablePictureAt(const QPointF &at) const
{
    const std::vector<SheetPicture> &pictures = m_model.sheet().pictures;
    for (size_t i = std::min(pictures.size(), m_look.pictures.size()); i-- > 0;) {
        const QRectF place(QPointF(pictures[i].Left, pictures[i].Top),
                           QSizeF(m_look.pictures[i].size()));
        if (pictures[i].Visible && !pictures[i].Locked && place.contains(at)) {
            return int(i);
        }
    }
    return -1;
}

SheetMouseEvent SheetCanvas::eventOf(const QMouseEvent &event, SheetButton button) const
{
    const QPointF at = mapFromGlobal(event.globalPosition());
    const bool isHeld = button != SheetButton::None && event.type() != QEvent::MouseButtonPress;
    return { .at = at,
             .button = button,
             .box = isHeld ? m_pressedOn : boxAt(m_model.sheet(), m_model.selected(), at),
             .picture = movablePictureAt(at) };
}

void SheetCanvas::pressed(const QMouseEvent &event)
{
    const SheetMouseEvent mouse = eventOf(event, sheetButton(event.button()));
    m_pressedOn = mouse.box;
    fulfil(m_mouse.pressed(m_model.sheet(), m_model.selected(), mouse));
    showPointer();
}

void SheetCanvas::moved(const QMouseEvent &event)
{
    const SheetMouseEvent mouse = eventOf(event, sheetButton(event.buttons()));
    fulfil(m_mouse.moved(m_model.sheet(), m_model.selected(), mouse));
    showPointer();
}

bool SheetCanvas::released(const QMouseEvent &event)
{
    const bool wasCarrying = m_mouse.isCarrying();
    const SheetMouseEvent mouse = eventOf(event, sheetButton(event.button()));
    fulfil(m_mouse.released(m_model.sheet(), m_model.selected(), mouse));
    m_model.commit();
    showPointer();
    if (!wasCarrying && mouse.box >= 0 && mouse.button == SheetButton::Right) {
        Q_EMIT menuWanted(event.globalPosition().toPoint());
        return true;
    }
    return wasCarrying;
}

void SheetCanvas::fulfil(const MouseWish &wish)
{
    if (wish.select) {
        m_model.select(*wish.select);
    }
    Sheet sheet = m_model.sheet();
    if (wish.place) {
        LayoutTextBox &box = sheet.boxes[size_t(m_model.selected())];
        box.Left = float(wish.place->left());
        box.Top = float(wish.place->top());
        box.Width = float(wish.place->width());
        box.Height = float(wish.place->height());
    }
    if (wish.picture) {
        SheetPicture &picture = sheet.pictures[size_t(wish.picture->first)];
        picture.Left = float(wish.picture->second.x());
        picture.Top = float(wish.picture->second.y());
    }
    m_model.preview(std::move(sheet));
    if (wish.whenMoving) {
        Q_EMIT boxMoved();
    }
}

/// Hands an event on the sheet to the control that has just come up under it, so that a press on a
/// box puts the caret there, and marks text when the mouse goes on.
void SheetCanvas::forward(const QMouseEvent &event)
{
    QWidget *target = m_editor->viewport();
    QMouseEvent same(event.type(), target->mapFromGlobal(event.globalPosition()),
                     event.globalPosition(), event.button(), event.buttons(), event.modifiers(),
                     event.pointingDevice());
    QApplication::sendEvent(target, &same);
}

void SheetCanvas::mousePressEvent(QMouseEvent *event)
{
    pressed(*event);
    m_isForwarding = event->button() == Qt::LeftButton && m_pressedOn >= 0 && !m_mouse.isCarrying();
    if (m_pressedOn >= 0) {
        m_editor->setFocus(Qt::MouseFocusReason);
    }
    if (m_isForwarding) {
        forward(*event);
    }
}

void SheetCanvas::mouseMoveEvent(QMouseEvent *event)
{
    moved(*event);
    if (m_isForwarding) {
        forward(*event);
    }
}

void SheetCanvas::mouseReleaseEvent(QMouseEvent *event)
{
    released(*event);
    if (m_isForwarding) {
        forward(*event);
        m_isForwarding = false;
    }
}

/// The right button carries boxes, so that a menu comes at its release.
void SheetCanvas::contextMenuEvent(QContextMenuEvent *event)
{
    event->accept();
}

bool SheetCanvas::eventFilter(QObject *watched, QEvent *event)
{
    if (m_isForwarding) {
        return false;
    }
    switch (event->type()) {
    case QEvent::MouseButtonPress: {
        pressed(*static_cast<QMouseEvent *>(event));
        if (static_cast<QMouseEvent *>(event)->button() == Qt::RightButton) {
            m_editor->setFocus(Qt::MouseFocusReason);
            return true;
        }
        return m_mouse.isCarrying();
    }
    case QEvent::MouseMove:
        moved(*static_cast<QMouseEvent *>(event));
        return m_mouse.isCarrying();
    case QEvent::MouseButtonRelease:
        return released(*static_cast<QMouseEvent *>(event));
    case QEvent::ContextMenu: {
        auto *menu = static_cast<QContextMenuEvent *>(event);
        if (menu->reason() == QContextMenuEvent::Keyboard) {
            Q_EMIT menuWanted(
                m_editor->viewport()->mapToGlobal(m_editor->cursorRect().bottomLeft()));
        }
        return true;
    }
    default:
        return QWidget::eventFilter(watched, event);
    }
}

void SheetCanvas::drawGrid(QPainter &painter, const QRect &exposed) const
{
    QVector<QLine> lines;
    for (int x = exposed.left() / m_grid * m_grid; x <= exposed.right(); x += m_grid) {
        lines.append(QLine(x, exposed.top(), x, exposed.bottom()));
    }
    for (int y = exposed.top() / m_grid * m_grid; y <= exposed.bottom(); y += m_grid) {
        lines.append(QLine(exposed.left(), y, exposed.right(), y));
    }
    painter.setPen(QPen(gridColour, 0));
    painter.drawLines(lines);
}

/// A frame around the selected box, with a handle where it is sized unless it is locked.
void SheetCanvas::drawSelection(QPainter &painter) const
{
    const LayoutTextBox &box = *m_model.selectedBox();
    const QRectF place(box.Left, box.Top, box.Width, box.Height);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(selectionColour, selectionWidth, box.Locked ? Qt::DashLine : Qt::SolidLine,
                        Qt::FlatCap, Qt::MiterJoin));
    painter.drawRect(
        place.adjusted(-selectionWidth, -selectionWidth, selectionWidth, selectionWidth));
    if (!box.Locked) {
        painter.setPen(QPen(Qt::white, 1));
        painter.setBrush(selectionColour);
        painter.drawRect(QRectF(place.bottomRight() - QPointF(handleSize / 2, handleSize / 2),
                                QSizeF(handleSize, handleSize)));
    }
    if (m_look.overflowMarks && m_editor->isOverflowing()) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(toColor(overflowColour));
        painter.drawPolygon(overflowMark(place).data(), 3);
    }
}

void SheetCanvas::paintEvent(QPaintEvent *event)
{
    QPainter painter(this);
    SheetRenderer::drawPaper(painter, m_shown);
    if (m_grid > 0) {
        drawGrid(painter, event->rect());
    }
    m_renderer.draw(painter, m_shown, m_look, isEditing() ? m_model.selected() : -1);
    if (isEditing()) {
        drawSelection(painter);
    }
}

} // namespace zeph
