// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "livetools/quickview/coverage.h"
#include "text/macro_keys.h"

#include <QAbstractTableModel>

namespace zeph {

/// What every control does in every combination, a row for each control that has a cell which the
/// filter shows. Cells that the filter does not show are blank and cannot be chosen.
class CoverageModel : public QAbstractTableModel
{
    Q_OBJECT
public:
    enum Role { UseRole = Qt::UserRole }; ///< the CellUse as a number; no value for a blank cell

    using QAbstractTableModel::QAbstractTableModel;

    /// Copies both. Indexes stay valid while the same controls have a row.
    void setTable(const Assignments &table, const MacroKeys &keys);
    void setFilter(CoverageFilter filter);

    /// Row and column are 0 for an index that is none or a blank cell's.
    CellPlace placeOf(const QModelIndex &index) const;
    /// No index for a place that has no cell or a blank one.
    QModelIndex indexOf(CellPlace place) const;
    /// The first cell that is not blank; no index when all are.
    QModelIndex firstShown() const;
    /// Of all controls, whatever the filter.
    const CoverageCount &count() const { return m_count; }

    /// The cells' whole texts in lines, the columns a tab apart: the smallest rectangle that holds
    /// them all, under its headings when it has more than one cell.
    QString copied(const QModelIndexList &cells) const;

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;

private:
    std::vector<CoverageRow> shownRows() const;
    void show(std::vector<CoverageRow> rows);
    const CoverageCell &cellAt(const QModelIndex &index) const;
    const QString &textAt(const QModelIndex &index) const;
    bool isBlank(const QModelIndex &index) const;
    QString toolTip(const QModelIndex &index) const;

    Assignments m_table;
    MacroKeys m_keys;
    std::vector<CoverageRow> m_all = coverage({});
    std::vector<CoverageRow> m_rows = m_all;
    CoverageCount m_count = countOf(m_all);
    CoverageFilter m_filter = CoverageFilter::All;
};

/// The sign before a cell's text, by which its use is told without colours.
QChar markOf(CellUse use);

} // namespace zeph
