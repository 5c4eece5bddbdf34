// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/core/base.h"

#include <QAbstractListModel>
#include <QSet>
#include <QStringList>

namespace zeph {

/// The macros under the heading that is shown, each with its tick. Ticks belong to names, so that
/// an entry has the same one under every heading; pilots cannot set them.
class MacroListModel : public QAbstractListModel
{
    Q_OBJECT
public:
    using QAbstractListModel::QAbstractListModel;

    /// Names by heading, the first list holding all. No entry is ticked and no heading shown.
    void setNames(const QList<QStringList> &names);
    /// Shows the macros under a heading, 0 for all; one that there is not shows none.
    void showHeading(qsizetype heading);
    const QStringList &allNames() const;
    QString nameAt(const QModelIndex &index) const;

    void clearTicks();
    /// Ticks or unticks every entry of that name, in any case.
    void setTick(const QString &name, bool ticked);
    /// Ticks exactly these names.
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
