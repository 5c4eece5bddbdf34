// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "composer/macro_mirror.h"

#include <QComboBox>
#include <QContextMenuEvent>
#include <QLabel>
#include <QMimeData>
#include <QPainter>
#include <QStackedWidget>
#include <QVBoxLayout>

namespace zeph {

namespace {

const QString noMacros =
    u"There are no macros yet. Open a macro file, or go to the Editor with F2 and type the keys "
    "themselves after the control."_s;

Qt::CheckState tickOf(bool isUsed)
{
    return isUsed ? Qt::Checked : Qt::Unchecked;
}

} // namespace

MacroMirrorList::MacroMirrorList(QWidget *parent) : QListWidget(parent)
{
    setAccessibleName(u"Macro list"_s);
    setUniformItemSizes(true);
    setDragDropMode(QAbstractItemView::DragOnly);
    setToolTip(u"Double click a macro to insert it, or drag it into a file or a box. Shift and a "
               "click finds it in the joystick file."_s);
}

QString MacroMirrorList::currentName() const
{
    return currentItem() ? currentItem()->text() : QString();
}

void MacroMirrorList::choose(bool alsoFinds)
{
    const QString name = currentName();
    if (name.isEmpty()) {
        return;
    }
    Q_EMIT chosen(name);
    if (alsoFinds) {
        Q_EMIT findWanted(name);
    }
}

void MacroMirrorList::mousePressEvent(QMouseEvent *event)
{
    const bool hits = itemAt(event->position().toPoint()) != nullptr;
    QListWidget::mousePressEvent(event);
    if (hits) {
        choose(event->button() == Qt::LeftButton && event->modifiers() == Qt::ShiftModifier);
    }
}

void MacroMirrorList::mouseDoubleClickEvent(QMouseEvent *event)
{
    QListWidget::mouseDoubleClickEvent(event);
    if (event->button() == Qt::LeftButton && itemAt(event->position().toPoint())) {
        Q_EMIT insertWanted(currentName());
    }
}

void MacroMirrorList::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        if (!currentName().isEmpty()) {
            Q_EMIT insertWanted(currentName());
        }
        return;
    }
    const QListWidgetItem *before = currentItem();
    QListWidget::keyPressEvent(event);
    if (currentItem() != before) {
        choose(event->modifiers() == Qt::ShiftModifier);
    }
}

void MacroMirrorList::contextMenuEvent(QContextMenuEvent *event)
{
    const bool byMouse = event->reason() == QContextMenuEvent::Mouse;
    if (byMouse ? itemAt(event->pos()) != nullptr : currentItem() != nullptr) {
        Q_EMIT menuWanted(byMouse
                              ? event->globalPos()
                              : viewport()->mapToGlobal(visualItemRect(currentItem()).center()));
    }
}

void MacroMirrorList::paintEvent(QPaintEvent *event)
{
    QListWidget::paintEvent(event);
    if (count() > 0) {
        return;
    }
    constexpr int margin = 6;
    QPainter painter(viewport());
    painter.setPen(palette().color(QPalette::PlaceholderText));
    painter.drawText(viewport()->rect().adjusted(margin, margin, -margin, -margin),
                     Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap, noMacros);
}

QStringList MacroMirrorList::mimeTypes() const
{
    return { u"text/plain"_s };
}

QMimeData *MacroMirrorList::mimeData(const QList<QListWidgetItem *> &items) const
{
    auto *dragged = new QMimeData;
    dragged->setText(items.isEmpty() ? QString() : u' ' + items.first()->text() + u' ');
    return dragged;
}

MacroMirror::MacroMirror(QWidget *parent)
    : QWidget(parent), m_headings(new QComboBox(this)), m_lists(new QStackedWidget(this))
{
    m_headings->setObjectName(u"Combo1"_s);
    m_headings->setAccessibleName(u"Macro headings"_s);
    m_headings->setToolTip(u"The headings of the macro file; \"All\" lists every macro"_s);
    // A heading may be long, and the window must not grow with it.
    m_headings->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_headings->setMinimumContentsLength(12);
    auto *label = new QLabel(u"Macro headin&gs:"_s, this);
    label->setBuddy(m_headings);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(label);
    layout->addWidget(m_headings);
    layout->addWidget(m_lists);
    setFocusProxy(m_headings);
    addList();
    connect(m_headings, &QComboBox::currentIndexChanged, m_lists, &QStackedWidget::setCurrentIndex);
}

MacroMirrorList *MacroMirror::addList()
{
    auto *list = new MacroMirrorList(m_lists);
    list->setObjectName(u"List1_"_s + QString::number(m_lists->count()));
    connect(list, &MacroMirrorList::chosen, this, &MacroMirror::chosen);
    connect(list, &MacroMirrorList::findWanted, this, &MacroMirror::findWanted);
    connect(list, &MacroMirrorList::insertWanted, this, &MacroMirror::insertWanted);
    connect(list, &MacroMirrorList::menuWanted, this,
            [this, list](const QPoint &at) { Q_EMIT menuWanted(list->currentName(), at); });
    m_lists->addWidget(list);
    return list;
}

MacroMirrorList *MacroMirror::list() const
{
    return static_cast<MacroMirrorList *>(m_lists->currentWidget());
}

void MacroMirror::ClearAllForNewMacroFile()
{
    m_items.clear();
    const QSignalBlocker blocker(m_headings);
    m_headings->clear();
    while (m_lists->count() > 1) {
        delete m_lists->widget(m_lists->count() - 1);
    }
    list()->clear();
}

void MacroMirror::CopyMacroList(const QList<MacroGroup> &groups)
{
    const QString before = m_headings->currentText();
    ClearAllForNewMacroFile();
    for (qsizetype i = 0; i < groups.size(); ++i) {
        auto *list = i == 0 ? static_cast<MacroMirrorList *>(m_lists->widget(0)) : addList();
        for (const MacroGroup::Macro &macro : groups[i].macros) {
            auto *item = new QListWidgetItem(macro.name);
            item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsDragEnabled);
            item->setCheckState(tickOf(macro.isUsed));
            list->addItem(item);
            m_items.insert(macro.name.toLower(), item);
        }
        m_headings->addItem(groups[i].heading);
    }
    const int kept = m_headings->findText(before, Qt::MatchFixedString);
    const int all = m_headings->findText(u"All"_s, Qt::MatchFixedString);
    m_headings->setCurrentIndex(kept >= 0 ? kept : all);
    m_lists->setCurrentIndex(std::max(m_headings->currentIndex(), 0));
}

void MacroMirror::TickMacroList(const QString &macro, bool isUsed)
{
    for (QListWidgetItem *item : m_items.values(macro.toLower())) {
        item->setCheckState(tickOf(isUsed));
    }
}

void MacroMirror::showTicks(const QList<MacroGroup> &groups)
{
    if (groups.isEmpty()) {
        return;
    }
    // The first group has all macros.
    for (const MacroGroup::Macro &macro : groups.first().macros) {
        TickMacroList(macro.name, macro.isUsed);
    }
}

void MacroMirror::select(const QString &macro)
{
    const auto found = list()->findItems(macro, Qt::MatchFixedString);
    if (!found.isEmpty()) {
        list()->setCurrentItem(found.first());
    }
}

} // namespace zeph
