// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "composer/generators/bands.h"

#include "language/words.h"

namespace zeph {

using namespace language;

namespace {

constexpr int centredMacros = 3;

// Two borders that print alike are one percent apart: 11.5 and 12.5 both print as 12.
bool partHalves(QList<float> &borders)
{
    constexpr float half = 0.5F;
    float &before = borders[borders.size() - 2];
    float &last = borders.last();
    const int percent = rounded(last);
    const bool canBeHalves = percent % 2 == 0 && percent > 0 && percent < lastPercent;
    if (before != last || !canBeHalves)
        return false;
    before -= half;
    last += half;
    return borders.size() == 2 || borders[borders.size() - 3] < before;
}

} // namespace

std::optional<Bands> Bands::withBorders(int type, const QList<int> &percents)
{
    Bands bands(type);
    const int count = int(percents.size()) - 1;
    if (count < 1 || count > lastBandCount)
        return {};
    bands.setCount(count);
    bands.m_borders.clear();
    for (const int percent : percents) {
        if (percent < 0 || percent > lastPercent)
            return {};
        bands.m_borders.append(float(percent));
        const auto size = bands.m_borders.size();
        const bool rises = size == 1 || bands.m_borders[size - 2] < bands.m_borders[size - 1];
        if (!rises && !partHalves(bands.m_borders))
            return {};
    }
    return bands;
}

std::optional<Refusal> Bands::apply(QStringView count)
{
    const int bands = wholeOf(count);
    if (bands < 1 || bands > lastBandCount)
        return Refusal{ u"Zeph"_s, u"The number of bands is invalid"_s };
    setCount(bands);
    return {};
}

void Bands::reset()
{
    m_borders.clear();
    m_macros.clear();
}

// The list's own comparison passes null pointers to memcmp where there are no borders.
bool Bands::operator==(const Bands &other) const
{
    return m_type == other.m_type && m_macros == other.m_macros
        && std::ranges::equal(m_borders, other.m_borders);
}

void Bands::setCount(int count)
{
    m_borders.clear();
    for (int border = 0; border < count; ++border)
        m_borders.append(float(double(lastPercent) / count * border));
    m_borders.append(lastPercent);
    m_macros = QStringList(m_type == 5 ? count : centredMacros);
}

float Bands::moveBorder(int band, Side side, double percent)
{
    const int moved = borderOf(band, side);
    auto value = float(std::clamp(percent, 0.0, double(lastPercent)));
    // The lower neighbour has the last word.
    if (moved < count())
        value = std::min(value, m_borders[moved + 1] - 1);
    if (moved > 0)
        value = std::max(value, m_borders[moved - 1] + 1);
    m_borders[moved] = value;
    return value;
}

void Bands::typeBorder(int band, Side side, QStringView text)
{
    const int percent = wholeOf(text);
    if (percent != shownBorder(borderOf(band, side)))
        moveBorder(band, side, percent);
}

void Bands::setMacro(int index, const QString &macro)
{
    if (m_type == 5 || index != centre || takesCentre())
        m_macros[index] = macro;
}

Bands::Span Bands::barOf(int band, double width, double offset) const
{
    const double left = border(band);
    const double right = border(band + 1);
    return { left / lastPercent * width + offset, (right - left) / lastPercent * width };
}

int Bands::percentAt(double x, double width)
{
    return width > 0 ? rounded(x / width * lastPercent) : 0;
}

std::optional<int> Bands::bandAt(int percent) const
{
    for (int band = 0; band < count(); ++band) {
        if (border(band) <= float(percent) && float(percent) < border(band + 1))
            return band;
    }
    return {};
}

bool Bands::isMiddleDivider(int divider) const
{
    const int middle = count() / 2;
    const bool exists = divider >= 0 && divider < count() - 1;
    return takesCentre() && exists && (divider == middle - 1 || divider == middle);
}

} // namespace zeph
