// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/core/base.h"

#include <QAbstractListModel>
#include <QSet>
#include <QStringList>

namespace zeph {

/// The macros under the shown heading, each with its tick. A tick belongs to a name, so an entry
/// has the same one under every heading. Only the program sets ticks.
class MacroListModel : public QAbstractListModel
{
    Q_OBJECT
public:
    using QAbstractListModel::QAbstractListModel;

    /// Replaces the names, listed by heading; the first list holds all. Clears the ticks and shows
    /// all.
    void setNames(const QList<QStringList> &names);
    /// Shows the macros under a heading, 0 for all; an unknown heading shows none.
    void showHeading(qsizetype heading);
    const QStringList &allNames() const;
    QString nameAt(const QModelIndex &index) const;

    void clearTicks();
    /// Ticks or unticks a name, in any case of its letters.
    void setTick(const QString &name, bool ticked);
    /// Ticks these names and no others.
    void setTicked(const QStringList &names);
    bool isTicked(const QString &name) const;
    /// All names with a tick, lower-cased.
    QStringList tickedNames() const { return m_ticked.values(); }

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;
    QStringList mimeTypes() const override;
    QMimeData *mimeData(const QModelIndexList &indexes) const override;
    Qt::DropActions supportedDragActions() const override { return Qt::CopyAction; }

private:
    void ticksChanged();

    QList<QStringList> m_names{ {} };
    qsizetype m_heading = 0;
    QSet<QString> m_ticked; ///< lower-cased
};

} // namespace zeph
