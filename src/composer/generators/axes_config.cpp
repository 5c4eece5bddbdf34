// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "composer/generators/axes_config.h"
#include "composer/generators/parted_statement.h"

#include "language/scan.h"

namespace zeph {

using namespace language;

using enum AxesConfig::Cell;

QString AxesConfig::caption(int row, int column) const
{
    switch (cell(row, column)) {
    case Plus:
        return u"+"_s;
    case Minus:
        return u"-"_s;
    case Unset:
        break;
    }
    return {};
}

int AxesConfig::rowOf(int column) const
{
    for (int row = 0; row < axes; ++row) {
        if (cell(row, column) != Unset)
            return row;
    }
    return -1;
}

int AxesConfig::columnOf(int row) const
{
    for (int column = 0; column < axes; ++column) {
        if (cell(row, column) != Unset)
            return column;
    }
    return -1;
}

void AxesConfig::setExtraAxes(bool on)
{
    m_extraAxes = on;
    for (int row = 0; row < axes && !on; ++row) {
        for (int column = firstExtra; column < axes; ++column)
            at(row, column) = Unset;
    }
}

void AxesConfig::click(int row, int column)
{
    if (!isEnabled(column))
        return;
    Cell &clicked = at(row, column);
    if (clicked != Unset) {
        clicked = clicked == Plus ? Minus : Unset;
        return;
    }
    // The column that the row leaves is free for the axis that it displaces.
    if (const int left = columnOf(row); left >= 0)
        at(row, left) = Unset;
    const int displaced = rowOf(column);
    clicked = Plus;
    if (displaced >= 0)
        moveToFreeColumn(displaced, std::exchange(at(displaced, column), Unset));
}

void AxesConfig::moveToFreeColumn(int row, Cell sign)
{
    for (int column = 0; column < axes; ++column) {
        if (rowOf(column) >= 0)
            continue;
        if (isEnabled(column))
            at(row, column) = sign;
        return;
    }
}

bool AxesConfig::assign(int row, int column, Cell sign)
{
    if (columnOf(row) >= 0 || rowOf(column) >= 0)
        return false;
    at(row, column) = sign;
    return true;
}

void AxesConfig::apply(const CommonConfiguration &configuration)
{
    clear();
    for (int index = 0; index < configuration.forwardCount; ++index)
        m_cells[size_t(configuration.forward[size_t(index)])] = Plus;
    if (configuration.reversed >= 0)
        m_cells[size_t(configuration.reversed)] = Minus;
}

Generated generateAxesConfig(const AxesConfig &grid)
{
    if (grid.rowOf(0) < 0 || grid.rowOf(1) < 0)
        return Unexpected(Refusal{
            u"Axes 1 and 2 are missing"_s,
            u"You must assign Cougar axes to DirectX axes 1 and 2, as this is a requirement of "
            u"DirectX that to see a joystick, it must see axes 1 and 2."_s });
    QStringList items;
    for (int column = 0; column < AxesConfig::axes; ++column) {
        const int row = grid.rowOf(column);
        if (row < 0)
            continue;
        const QString sign = grid.cell(row, column) == Minus ? u"-"_s : QString();
        items.append(
            u"(%1, %2%3)"_s.arg(QString::number(column + 1), sign, cougarAxes[size_t(row)]));
    }
    return plainStatement(u"USE AXES_CONFIG "_s + items.join(u", "_s), true);
}

std::optional<AxesConfig> readAxesConfig(QStringView statement)
{
    const auto parts = PartedStatement::of(statement);
    if (!parts || parts->useHead() != u"AXES_CONFIG"_w)
        return {};
    AxesConfig grid;
    for (int part = 0; part < parts->size(); ++part) {
        if (parts->text(part) == u",")
            continue;
        const auto arguments = parts->groupArguments(part);
        if (!arguments || arguments->size() != 2)
            return {};
        const int number = wholeNumber((*arguments)[0].text).value_or(0);
        QStringView axis = (*arguments)[1].text;
        const bool isReversed = axis.startsWith(u'-');
        if (isReversed || axis.startsWith(u'+'))
            axis = axis.sliced(1).trimmed();
        const int row = indexIn(cougarAxes, axis);
        if (row < 0 || number < 1 || number > AxesConfig::axes
            || !grid.assign(row, number - 1, isReversed ? Minus : Plus))
            return {};
        if (number > AxesConfig::firstExtra)
            grid.setExtraAxes(true);
    }
    return grid;
}

} // namespace zeph
