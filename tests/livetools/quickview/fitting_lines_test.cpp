// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "livetools/quickview/fitting_lines.h"

#include <gtest/gtest.h>

#include <QFontMetricsF>

using namespace zeph;

namespace {

struct FittingLines : testing::Test {
    QFont font;
    qreal widthOf(const QString &text) const { return QFontMetricsF(font).horizontalAdvance(text); }
};

} // namespace

TEST_F(FittingLines, ATextThatFitsIsOneLine)
{
    EXPECT_EQ(fittingLines(u"KD (a)"_s, font, widthOf(u"KD (a)"_s) + 5, 3),
              QStringList{ u"KD (a)"_s });
}

TEST_F(FittingLines, BreaksAtBlanks)
{
    EXPECT_EQ(fittingLines(u"Gear_Up Flaps_Down"_s, font, widthOf(u"Flaps_Down"_s) + 3, 3),
              (QStringList{ u"Gear_Up"_s, u"Flaps_Down"_s }));
}

TEST_F(FittingLines, TheLastLineEndsInDotsWhenMoreWouldFollow)
{
    const QStringList lines =
        fittingLines(u"Gear_Up Flaps_Down Brakes_On"_s, font, widthOf(u"Flaps_Down"_s) + 3, 2);
    ASSERT_EQ(lines.size(), 2);
    EXPECT_EQ(lines[0], u"Gear_Up");
    EXPECT_TRUE(lines[1].startsWith(u"Flaps"));
    EXPECT_TRUE(lines[1].endsWith(u'…'));
    EXPECT_LE(widthOf(lines[1]), widthOf(u"Flaps_Down"_s) + 3);
}

TEST_F(FittingLines, AWordThatIsTooLongIsBroken)
{
    const qreal width = widthOf(u"wwwwww"_s) + 1;
    for (const QString &line : fittingLines(QString(20, u'w'), font, width, 5)) {
        EXPECT_LE(widthOf(line), width);
    }
}

TEST_F(FittingLines, AnEmptyTextHasNothingToShow)
{
    EXPECT_EQ(fittingLines(QString(), font, 100, 2).join(QString()), QString());
}
