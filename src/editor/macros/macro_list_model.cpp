// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "editor/macros/macro_list_model.h"

#include <QMimeData>

namespace zeph {

void MacroListModel::setNames(const QList<QStringList> &names)
{
    beginResetModel();
    m_names = names.isEmpty() ? QList<QStringList>{ {} } : names;
    m_heading = 0;
    m_ticked.clear();
    endResetModel();
}

void MacroListModel::showHeading(qsizetype heading)
{
    beginResetModel();
    m_heading = heading;
    endResetModel();
}

const QStringList &MacroListModel::allNames() const
{
    return m_names.first();
}

QString MacroListModel::nameAt(const QModelIndex &index) const
{
    return index.isValid() ? m_names.value(m_heading).value(index.row()) : QString();
}

void MacroListModel::clearTicks()
{
    m_ticked.clear();
    ticksChanged();
}

void MacroListModel::setTick(const QString &name, bool ticked)
{
    if (ticked) {
        m_ticked.insert(name.toLower());
    } else {
        m_ticked.remove(name.toLower());
    }
    ticksChanged();
}

void MacroListModel::setTicked(const QStringList &names)
{
    m_ticked.clear();
    for (const QString &name : names) {
        m_ticked.insert(name.toLower());
    }
    ticksChanged();
}

bool MacroListModel::isTicked(const QString &name) const
{
    return m_ticked.contains(name.toLower());
}

void MacroListModel::ticksChanged()
{
    if (rowCount() > 0) {
        Q_EMIT dataChanged(index(0), index(rowCount() - 1), { Qt::CheckStateRole });
    }
}

int MacroListModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_names.value(m_heading).size());
}

QVariant MacroListModel::data(const QModelIndex &index, int role) const
{
    if (role == Qt::DisplayRole) {
        return nameAt(index);
    }
    if (role == Qt::CheckStateRole) {
        return isTicked(nameAt(index)) ? Qt::Checked : Qt::Unchecked;
    }
    return {};
}

Qt::ItemFlags MacroListModel::flags(const QModelIndex &) const
{
    return Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsDragEnabled;
}

QStringList MacroListModel::mimeTypes() const
{
    return { u"text/plain"_s };
}

QMimeData *MacroListModel::mimeData(const QModelIndexList &indexes) const
{
    if (indexes.isEmpty()) {
        return nullptr;
    }
    auto *data = new QMimeData;
    data->setText(u' ' + nameAt(indexes.first()) + u' ');
    return data;
}

} // namespace zeph
