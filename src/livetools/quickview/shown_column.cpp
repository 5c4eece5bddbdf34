// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "livetools/quickview/shown_column.h"

#include "livetools/quickview/quick_view_picture.h"
#include "livetools/quickview/senders.h"
#include "livetools/quickview/statement_label.h"

#include <utility>

namespace zeph {

ShownColumn::ShownColumn(QuickViewPicture &picture) : m_picture(picture) { }

ShownColumn::~ShownColumn() = default;

void ShownColumn::show(int column)
{
    m_column = column;
    showTexts();
}

void ShownColumn::setContents(FileContents contents)
{
    m_senders.reset();
    m_contents = std::move(contents);
    m_caretRow = rowAtLine(m_contents.places, m_caretLine);
    m_picture.setMicrostickTitle(m_contents.table.microstickTitle());
    findSenders();
    showTexts();
}

void ShownColumn::setKeys(MacroKeys keys)
{
    m_senders.reset();
    m_keys = std::move(keys);
    findSenders();
    showTexts();
}

void ShownColumn::setOptions(const LabelOptions &options, bool showsKeys)
{
    m_options = options;
    m_showsKeys = showsKeys;
    showTexts();
}

void ShownColumn::setCaretLine(int line)
{
    m_caretLine = line;
    const int before = std::exchange(m_caretRow, rowAtLine(m_contents.places, line));
    if (before != m_caretRow) {
        showMarks(before);
        showMarks(m_caretRow);
    }
}

void ShownColumn::look(const QString &sought)
{
    m_sought = sought;
    findSenders();
    showTexts();
}

void ShownColumn::findSenders()
{
    m_sending.clear();
    if (m_sought.isEmpty()) {
        return;
    }
    if (!m_senders) {
        m_senders = std::make_unique<Senders>(m_contents.table, m_keys);
    }
    m_sending = m_senders->of(m_sought);
}

void ShownColumn::showTexts()
{
    for (int row = 1; row <= rowCount; ++row) {
        if (StatementLabel *label = m_picture.label(row)) {
            const QString &cell = m_contents.table.at(row, m_column).text;
            label->showText(labelText(row, cell, m_options, m_showsKeys ? &m_keys : nullptr),
                            tipOf({ row, m_column }), !cell.isEmpty());
            showMarks(row);
        }
    }
}

void ShownColumn::showMarks(int row)
{
    if (row == 0) {
        return;
    }
    LabelMarks marks;
    marks.hasCaret = row == m_caretRow;
    marks.isReadOtherwise = m_contents.differenceAt({ row, m_column }) != nullptr;
    for (const CellPlace &cell : m_sending) {
        if (cell.row == row && marks.sends != SendsSought::Here) {
            marks.sends = cell.column == m_column ? SendsSought::Here : SendsSought::Elsewhere;
        }
    }
    m_picture.label(row)->setMarks(marks);
}

QString ShownColumn::tipOf(CellPlace place) const
{
    QStringList tips;
    if (const QString &cell = m_contents.table.at(place.row, place.column).text; !cell.isEmpty()) {
        tips.append(labelTip(cell, m_keys));
    }
    if (const ReadingDifference *difference = m_contents.differenceAt(place)) {
        tips.append(differenceTip(*difference));
    }
    if (const QString tip = senderTip(place.row); !tip.isEmpty()) {
        tips.append(tip);
    }
    return tips.join(u'\n');
}

QString ShownColumn::senderTip(int row) const
{
    QStringList columns;
    for (const CellPlace &cell : m_sending) {
        if (cell.row == row) {
            columns.append(columnName(cell.column));
        }
    }
    return columns.isEmpty() ? QString() : u"Sends %1 in %2."_s.arg(m_sought, columns.join(u", "));
}

} // namespace zeph
