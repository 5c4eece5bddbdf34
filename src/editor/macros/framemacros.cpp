// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "editor/macros/framemacros.h"

#include "editor/editor_settings.h"
#include "editor/macros/macro_list_model.h"
#include "platform/colours.h"
#include "settings/colour_settings.h"

#include <QComboBox>
#include <QContextMenuEvent>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QStyledItemDelegate>
#include <QVBoxLayout>

#include <algorithm>

namespace zeph {

namespace {

constexpr int stripWidth = 6;
/// The width in pixels that dragging always leaves to the texts.
constexpr int narrowestTexts = 200;

/// Draws the tick boxes in a shade between the list's two colours. The style would take a colour of
/// the desktop, which may be the background that the pilot chose for the list.
class TickDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override
    {
        return QStyledItemDelegate::sizeHint(option, index) + QSize(0, roomBetweenBoxes);
    }

protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override
    {
        QStyledItemDelegate::initStyleOption(option, index);
        const QColor text = option->palette.color(QPalette::Text);
        const QColor base = option->palette.color(QPalette::Base);
        option->palette.setColor(QPalette::Window,
                                 QColor((text.red() + base.red()) / 2,
                                        (text.green() + base.green()) / 2,
                                        (text.blue() + base.blue()) / 2));
    }

private:
    static constexpr int roomBetweenBoxes = 3;
};

/// The strip that is dragged to change the frame's width.
class EdgeStrip : public QWidget
{
public:
    using Moved = std::function<void(QEvent::Type, int globalX)>;

    EdgeStrip(Moved moved, QWidget *parent) : QWidget(parent), m_moved(std::move(moved))
    {
        setObjectName(u"MacroEdge"_s);
        setCursor(Qt::SizeHorCursor);
        setFixedWidth(stripWidth);
    }

protected:
    void mousePressEvent(QMouseEvent *event) override { tell(*event, event->button()); }
    void mouseReleaseEvent(QMouseEvent *event) override { tell(*event, event->button()); }
    void mouseMoveEvent(QMouseEvent *event) override { tell(*event, event->buttons()); }

private:
    void tell(const QMouseEvent &event, Qt::MouseButtons buttons)
    {
        if (buttons.testFlag(Qt::LeftButton)) {
            m_moved(event.type(), qRound(event.globalPosition().x()));
        }
    }

    Moved m_moved;
};

} // namespace

MacroListView::MacroListView(MacroListModel &model, QWidget *parent)
    : QListView(parent), m_model(model)
{
    setModel(&model);
    setItemDelegate(new TickDelegate(this));
    setUniformItemSizes(true);
    setSelectionMode(SingleSelection);
    setEditTriggers(NoEditTriggers);
    setDragDropMode(DragOnly);
    setDefaultDropAction(Qt::CopyAction);
    setToolTip(u"Double click macro to insert into Joystick file, or use drag and drop"_s);
    connect(this, &QListView::doubleClicked, this,
            [this](const QModelIndex &index) { Q_EMIT insertWanted(m_model.nameAt(index)); });
}

QString MacroListView::currentName() const
{
    return m_model.nameAt(currentIndex());
}

QString MacroListView::selectedName() const
{
    // The current entry need not be selected: the toolkit makes the first one current when the list
    // gets the focus.
    return selectionModel()->isSelected(currentIndex()) ? currentName() : QString();
}

void MacroListView::select(const QString &name)
{
    for (int row = 0; row < m_model.rowCount(); ++row) {
        if (m_model.nameAt(m_model.index(row)) == name) {
            setCurrentIndex(m_model.index(row));
            return;
        }
    }
}

bool MacroListView::selectFirst()
{
    setCurrentIndex(m_model.index(0));
    return currentIndex().isValid();
}

void MacroListView::mousePressEvent(QMouseEvent *event)
{
    const QModelIndex pressed = indexAt(event->pos());
    QListView::mousePressEvent(event);
    if (!pressed.isValid()) {
        return;
    }
    setCurrentIndex(pressed);
    Q_EMIT chosen(currentName());
    if (event->button() == Qt::LeftButton && event->modifiers().testFlag(Qt::ShiftModifier)) {
        Q_EMIT findWanted();
    }
}

void MacroListView::keyPressEvent(QKeyEvent *event)
{
    m_pressedKey = event->key();
    if ((event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        && event->modifiers() == Qt::NoModifier && currentIndex().isValid()) {
        Q_EMIT insertWanted(currentName());
        return;
    }
    const QModelIndex before = currentIndex();
    QListView::keyPressEvent(event);
    if (currentIndex().isValid() && currentIndex() != before) {
        Q_EMIT chosen(currentName());
    }
}

void MacroListView::keyReleaseEvent(QKeyEvent *event)
{
    QListView::keyReleaseEvent(event);
    // A key pressed elsewhere does not count: Shift+Tab moves the focus here and is released here.
    if (event->modifiers().testFlag(Qt::ShiftModifier) && event->key() == m_pressedKey
        && event->key() != Qt::Key_Shift && !event->isAutoRepeat()) {
        Q_EMIT findWanted();
    }
}

void MacroListView::contextMenuEvent(QContextMenuEvent *event)
{
    const bool byKeys = event->reason() == QContextMenuEvent::Keyboard;
    Q_EMIT popUpWanted(byKeys ? viewport()->mapToGlobal(visualRect(currentIndex()).bottomLeft())
                              : event->globalPos());
}

void MacroListView::startDrag(Qt::DropActions actions)
{
    Q_EMIT dragStarted();
    QListView::startDrag(actions);
}

FrameMacros::FrameMacros(MacroListModel &model, QWidget *parent)
    : QFrame(parent), m_headings(new QComboBox), m_list(new MacroListView(model))
{
    setObjectName(u"FrameMacros"_s);
    auto *strip = new EdgeStrip(
        [this](QEvent::Type type, int globalX) {
            if (type == QEvent::MouseButtonPress) {
                m_dragStart = globalX;
                m_widthAtStart = width();
            } else {
                drag(globalX);
            }
            if (type == QEvent::MouseButtonRelease) {
                Q_EMIT widthChosen(minimumWidth());
            }
        },
        this);
    auto *caption = new QLabel(u"Macro List"_s);
    caption->setObjectName(u"lblMacros"_s);
    m_headings->setObjectName(u"Combo1"_s);
    m_headings->setToolTip(u"Macro headings"_s);
    m_headings->setAccessibleName(u"Macro headings"_s);
    // A long heading is cut off rather than making the frame wider than it was dragged.
    m_headings->setMinimumContentsLength(1);
    m_headings->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_list->setObjectName(u"List1"_s);
    m_list->setAccessibleName(u"Macro List"_s);
    connect(m_headings, &QComboBox::textActivated, this, &FrameMacros::headingChosen);

    auto *column = new QVBoxLayout;
    column->setContentsMargins(0, 4, 4, 4);
    column->setSpacing(4);
    column->addWidget(caption);
    column->addWidget(m_headings);
    column->addWidget(m_list, 1);
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(0);
    row->addWidget(strip);
    row->addLayout(column, 1);
    setFixedWidth(narrowest());
}

void FrameMacros::setHeadings(const QStringList &headings)
{
    m_headings->clear();
    m_headings->addItems(headings);
}

void FrameMacros::setCurrentHeading(int index)
{
    m_headings->setCurrentIndex(index);
}

void FrameMacros::drag(int globalX)
{
    const int widest = parentWidget() ? parentWidget()->width() - narrowestTexts : QWIDGETSIZE_MAX;
    setFixedWidth(std::max(narrowest(), std::min(widest, m_widthAtStart + m_dragStart - globalX)));
}

void FrameMacros::setColours(const ColourSettings &colours)
{
    QPalette list = m_list->palette();
    list.setColor(QPalette::Base, toColor(colours.MacroListBackground));
    list.setColor(QPalette::Text, toColor(colours.MacroListText));
    m_list->setPalette(list);

    QPalette headings = m_headings->palette();
    for (const auto role : { QPalette::Base, QPalette::Button, QPalette::Window }) {
        headings.setColor(role, toColor(colours.MacroHeadingsBackground));
    }
    for (const auto role : { QPalette::Text, QPalette::ButtonText, QPalette::WindowText }) {
        headings.setColor(role, toColor(colours.MacroHeadingsText));
    }
    m_headings->setPalette(headings);
}

int FrameMacros::narrowest()
{
    return int(rangeOf(&EditorSettings::MacroFrameWidth).least);
}

void FrameMacros::setWidth(int width)
{
    setFixedWidth(std::max(narrowest(), width));
}

} // namespace zeph
