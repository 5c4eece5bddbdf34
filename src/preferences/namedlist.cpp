// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "preferences/namedlist.h"

#include "ui_namedlist.h"

#include <QShortcut>
#include <QSignalBlocker>

namespace zeph {

namespace {

/// The list is high enough for this many entries.
constexpr int fewestRows = 4;

void dress(QPushButton &button, const NamedListTexts::Control &texts)
{
    button.setObjectName(texts.name.toString());
    button.setText(texts.caption.toString());
    button.setToolTip(texts.tip.toString());
}

} // namespace

NamedList::NamedList(const NamedListTexts &texts, QWidget *parent)
    : QWidget(parent), m_ui(std::make_unique<Ui::NamedList>())
{
    m_ui->setupUi(this);
    setObjectName(u"NamedList_"_s + texts.list.name.toString());
    m_ui->label->setText(texts.list.caption.toString());
    m_ui->list->setObjectName(texts.list.name.toString());
    m_ui->list->setToolTip(texts.list.tip.toString());
    m_ui->list->setAccessibleName(texts.list.caption.toString().remove(u'&').remove(u':'));
    m_ui->list->setMinimumHeight(fewestRows * m_ui->list->fontMetrics().lineSpacing());
    dress(*m_ui->add, texts.add);
    dress(*m_ui->remove, texts.remove);
    dress(*m_ui->sort, texts.sort);

    connect(m_ui->list, &QListWidget::currentRowChanged, this, &NamedList::chosen);
    connect(m_ui->add, &QPushButton::clicked, this, &NamedList::addAsked);
    connect(m_ui->remove, &QPushButton::clicked, this, &NamedList::removeAsked);
    connect(m_ui->sort, &QPushButton::clicked, this, &NamedList::sortAsked);
    auto *removal = new QShortcut(QKeySequence(Qt::Key_Delete), m_ui->list);
    removal->setContext(Qt::WidgetShortcut);
    connect(removal, &QShortcut::activated, m_ui->remove, &QPushButton::click);
}

NamedList::~NamedList() = default;

void NamedList::setNames(const QStringList &names, qsizetype row)
{
    {
        const QSignalBlocker quiet(m_ui->list);
        m_ui->list->clear();
        m_ui->list->addItems(names);
        m_ui->list->setCurrentRow(int(row));
    }
    m_ui->remove->setEnabled(row >= 0);
    m_ui->sort->setEnabled(names.size() > 1);
}

void NamedList::setName(qsizetype row, const QString &name)
{
    m_ui->list->item(int(row))->setText(name);
}

void NamedList::setMarked(qsizetype row, const QString &tip)
{
    for (int i = 0; i < m_ui->list->count(); ++i) {
        QListWidgetItem &item = *m_ui->list->item(i);
        QFont font = m_ui->list->font();
        font.setBold(i == row);
        item.setFont(font);
        item.setToolTip(i == row ? tip : QString());
    }
}

void NamedList::setRoom(bool room)
{
    m_ui->add->setEnabled(room);
}

qsizetype NamedList::row() const
{
    return m_ui->list->currentRow();
}

} // namespace zeph
