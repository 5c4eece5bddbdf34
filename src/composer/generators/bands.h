// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "composer/generators/generators.h"

namespace zeph {

/// The bands into which a digital axis of type 5 or 6 is divided, and their macros. Band i,
/// 0-based, goes from border i to border i + 1, in percent of the axis, so that neighbours touch;
/// the borders always rise, by one percent at least unless they were read from a file.
class Bands
{
public:
    enum class Side : quint8 { Low, High };
    /// A place on the bar that shows the bands.
    struct Span {
        double left = 0;
        double width = 0;

        bool operator==(const Span &) const = default;
    };

    /// The macros of type 6.
    static constexpr int up = 0;
    static constexpr int down = 1;
    static constexpr int centre = 2;

    /// Of type 5 or 6, without a count.
    explicit Bands(int type) : m_type(type) { }
    /// Bands with the borders as a statement tells them. No value unless they are 2 to 51 whole
    /// percents that rise. Two that are alike are taken for two halves that were rounded, where
    /// they can be that.
    static std::optional<Bands> withBorders(int type, const QList<int> &percents);

    int type() const { return m_type; }
    /// 0 while no count is applied.
    int count() const { return int(std::max<qsizetype>(m_borders.size() - 1, 0)); }
    bool isApplied() const { return count() > 0; }
    float border(int index) const { return m_borders[index]; }
    /// The border as a whole percent, as boxes, slider and statement have it.
    int shownBorder(int index) const { return rounded(m_borders[index]); }
    /// The border that a side of a band is.
    static int borderOf(int band, Side side) { return side == Side::Low ? band : band + 1; }

    /// Divides the axis into as many equal bands as the text tells, without macros. The refusal
    /// leaves all as it was.
    std::optional<Refusal> apply(QStringView count);
    void reset();

    /// Moves a border of a band to a percent, held one percent away from its neighbours. Returns
    /// where it is now.
    float moveBorder(int band, Side side, double percent);
    /// The same by a number that was typed. A text that still tells what is shown moves nothing.
    void typeBorder(int band, Side side, QStringView text);

    /// The number of macros: of type 5 one a band, of type 6 three.
    int macros() const { return int(m_macros.size()); }
    const QString &macro(int index) const { return m_macros[index]; }
    /// A centre that the count does not allow is left out.
    void setMacro(int index, const QString &macro);
    /// Whether a centre has a band in the middle: in type 6 if the count is odd.
    bool takesCentre() const { return m_type == 6 && count() % 2 != 0; }

    /// The band's bar on a bar of all bands.
    Span barOf(int band, double width, double offset) const;
    /// The percent at a point of a bar, from its left end.
    static int percentAt(double x, double width);
    /// The band that a percent of the axis is in; no value outside of all bands.
    std::optional<int> bandAt(int percent) const;
    /// Lines divide the bar at all borders but the ends: line i, 0-based, shows this border.
    static int borderOfDivider(int divider) { return divider + 1; }
    /// Whether the line is one of the two around the middle band of type 6.
    bool isMiddleDivider(int divider) const;

    bool operator==(const Bands &other) const;

private:
    void setCount(int count);

    int m_type;
    /// One more than there are bands, or none.
    QList<float> m_borders;
    QStringList m_macros;
};

} // namespace zeph
