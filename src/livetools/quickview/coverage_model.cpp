// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "livetools/quickview/coverage_model.h"

#include "livetools/quickview/key_texts.h"

#include <algorithm>

namespace zeph {

namespace {

QString useInWords(const CoverageCell &cell)
{
    switch (cell.use) {
    case CellUse::Empty:
        return u"empty"_s;
    case CellUse::Used:
        return u"used"_s;
    case CellUse::SameAsOtherMode:
        break;
    }
    return u"the same as in "_s + columnName(cell.sameColumn);
}

bool hasSameControls(const std::vector<CoverageRow> &one, const std::vector<CoverageRow> &other)
{
    return std::ranges::equal(one, other, {}, &CoverageRow::row, &CoverageRow::row);
}

} // namespace

QChar markOf(CellUse use)
{
    constexpr std::array marks = { u'\u2013', u'\u25CF', u'=' };
    return marks[size_t(use)];
}

void CoverageModel::setTable(const Assignments &table, const MacroKeys &keys)
{
    m_table = table;
    m_keys = keys;
    m_all = coverage(m_table);
    m_count = countOf(m_all);
    show(shownRows());
}

void CoverageModel::setFilter(CoverageFilter filter)
{
    m_filter = filter;
    show(shownRows());
}

std::vector<CoverageRow> CoverageModel::shownRows() const
{
    std::vector<CoverageRow> rows;
    std::ranges::copy_if(m_all, std::back_inserter(rows), [this](const CoverageRow &row) {
        return std::ranges::any_of(
            row.cells, [this](const CoverageCell &cell) { return isShown(cell.use, m_filter); });
    });
    return rows;
}

void CoverageModel::show(std::vector<CoverageRow> rows)
{
    if (hasSameControls(m_rows, rows)) {
        m_rows = std::move(rows);
        if (!m_rows.empty()) {
            Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
        }
        return;
    }
    beginResetModel();
    m_rows = std::move(rows);
    endResetModel();
}

const CoverageCell &CoverageModel::cellAt(const QModelIndex &index) const
{
    return m_rows[size_t(index.row())].cells[size_t(index.column())];
}

const QString &CoverageModel::textAt(const QModelIndex &index) const
{
    return m_table.at(m_rows[size_t(index.row())].row, index.column() + 1).text;
}

bool CoverageModel::isBlank(const QModelIndex &index) const
{
    return !isShown(cellAt(index).use, m_filter);
}

CellPlace CoverageModel::placeOf(const QModelIndex &index) const
{
    if (!index.isValid() || isBlank(index)) {
        return {};
    }
    return { m_rows[size_t(index.row())].row, index.column() + 1 };
}

QModelIndex CoverageModel::indexOf(CellPlace place) const
{
    const auto row = std::ranges::find(m_rows, place.row, &CoverageRow::row);
    if (row == m_rows.end() || place.column < 1) {
        return {};
    }
    const QModelIndex found = index(int(row - m_rows.begin()), place.column - 1);
    return isBlank(found) ? QModelIndex() : found;
}

QModelIndex CoverageModel::firstShown() const
{
    for (int column = 0; !m_rows.empty() && column < columnCount(); ++column) {
        const QModelIndex first = index(0, column);
        if (!isBlank(first)) {
            return first;
        }
    }
    return {};
}

QString CoverageModel::copied(const QModelIndexList &cells) const
{
    if (cells.isEmpty()) {
        return {};
    }
    const auto [top, bottom] =
        std::ranges::minmax(cells, {}, [](const QModelIndex &each) { return each.row(); });
    const auto [left, right] =
        std::ranges::minmax(cells, {}, [](const QModelIndex &each) { return each.column(); });
    const bool isOne = top.row() == bottom.row() && left.column() == right.column();
    QStringList lines;
    if (!isOne) {
        QString heading;
        for (int column = left.column(); column <= right.column(); ++column) {
            heading += u'\t' + columnName(column + 1);
        }
        lines.append(heading);
    }
    for (int row = top.row(); row <= bottom.row(); ++row) {
        QStringList texts;
        if (!isOne) {
            texts.append(controlName(m_rows[size_t(row)].row).toString());
        }
        for (int column = left.column(); column <= right.column(); ++column) {
            const QModelIndex each = index(row, column);
            texts.append(isBlank(each) ? QString() : textAt(each));
        }
        lines.append(texts.join(u'\t'));
    }
    return lines.join(u'\n');
}

int CoverageModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_rows.size());
}

int CoverageModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : zeph::columnCount;
}

QString CoverageModel::toolTip(const QModelIndex &index) const
{
    const QString place = controlName(m_rows[size_t(index.row())].row).toString() + u", "_s
        + columnName(index.column() + 1);
    QString tip = place + u": "_s + useInWords(cellAt(index));
    if (const QString &text = textAt(index); !text.isEmpty()) {
        tip += u'\n' + labelTip(text, m_keys);
    }
    return tip;
}

QVariant CoverageModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || isBlank(index)) {
        return {};
    }
    switch (role) {
    case Qt::DisplayRole: {
        const QString &text = textAt(index);
        const QString mark = markOf(cellAt(index).use);
        return text.isEmpty() ? mark : mark + u' ' + text;
    }
    case Qt::ToolTipRole:
        // Statements can hold "<" and are no mark-up.
        return Qt::convertFromPlainText(toolTip(index), Qt::WhiteSpaceNormal);
    case Qt::AccessibleTextRole:
        return toolTip(index);
    case UseRole:
        return int(cellAt(index).use);
    default:
        return {};
    }
}

QVariant CoverageModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    const bool isColumn = orientation == Qt::Horizontal;
    if (role == Qt::DisplayRole) {
        return isColumn ? columnName(section + 1)
                        : controlName(m_rows[size_t(section)].row).toString();
    }
    if (role == Qt::ToolTipRole && isColumn) {
        return columnInWords(section + 1);
    }
    return {};
}

Qt::ItemFlags CoverageModel::flags(const QModelIndex &index) const
{
    const Qt::ItemFlags shown = Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren;
    return index.isValid() && !isBlank(index) ? shown : Qt::ItemFlags();
}

} // namespace zeph
