// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "composer/control_search.h"

#include "composer/generators/logic_workbench.h"
#include "tests/composer/generators/compilation.h"

using namespace zeph;

namespace {

/// The end of the hit; -1 without one.
int endOf(const QString &text, const QString &statement)
{
    const auto found = findControl(text, statement);
    return found ? int(found->start + found->length) : -1;
}

} // namespace

TEST(OfferedControls, AButtonOfTheStickIsOneOfS1ToS4)
{
    EXPECT_EQ(offeredControls(u"BTN_0", true), QStringList{ u"S1"_s });
    EXPECT_EQ(offeredControls(u"BTN_3", true), QStringList{ u"S4"_s });
}

TEST(OfferedControls, AButtonOfTheThrottleIsOneOfT1ToT10)
{
    EXPECT_EQ(offeredControls(u"BTN_4", true), QStringList{ u"T1"_s });
    EXPECT_EQ(offeredControls(u"BTN_13", true), QStringList{ u"T10"_s });
    EXPECT_EQ(offeredControls(u"BTN_14", true), QStringList());
}

TEST(OfferedControls, AHatHasFiveDirectionsAndThenFourCorners)
{
    const QStringList second{ u"H2U"_s,  u"H2D"_s,  u"H2L"_s,  u"H2R"_s, u"H2M"_s,
                              u"H2UL"_s, u"H2DL"_s, u"H2UR"_s, u"H2DR"_s };
    EXPECT_EQ(offeredControls(u"HAT_1", false), second);
    EXPECT_EQ(offeredControls(u"HAT_4", false), QStringList());
}

TEST(OfferedControls, ATriggerWithoutStagesActsAsItsFirst)
{
    EXPECT_EQ(offeredControls(u"TRIG", true), (QStringList{ u"TG1"_s, u"TG2"_s }));
    EXPECT_EQ(offeredControls(u"TRIG", false), QStringList{ u"TG1"_s });
}

TEST(OfferedControls, EachOfThemTakesEverythingThatThePageInserts)
{
    QStringList controls = offeredControls(u"TRIG", true);
    for (int i = 0; i < 14; ++i)
        controls += offeredControls(u"BTN_%1"_s.arg(i), true);
    for (int i = 0; i < 4; ++i)
        controls += offeredControls(u"HAT_%1"_s.arg(i), true);
    ASSERT_EQ(controls.size(), 2 + 14 + 4 * 9);
    test::Compilation compilation;
    for (const QString &control : controls) {
        compilation.add(buttonStatement(control));
        for (const QStringView slash : slashButtons) {
            const QString start = buttonStatement(control) + slash.toString() + u" a "_s;
            for (const QString &more : { u""_s, u"DLY(60) b"_s, u"RPT(2) b"_s, u"Rem fire "_s })
                compilation.add(start + more);
        }
    }
    EXPECT_EQ(compilation.verdict(), "");
}

TEST(ControlSearch, GoesToTheEndOfTheFoundText)
{
    EXPECT_EQ(endOf(u"USE RATE (50)\nBTN S1 x"_s, u"BTN S1 "_s), 21);
    EXPECT_EQ(endOf(u"btn s1 x"_s, u"BTN S1 "_s), 7);
    EXPECT_EQ(endOf(u"BTN S2 x"_s, u"BTN S1 "_s), -1);
    EXPECT_EQ(endOf(QString(), u"BTN S1 "_s), -1);
}

TEST(ControlSearch, AShorterNameIsNotFoundInALongerOne)
{
    EXPECT_EQ(endOf(u"BTN T10 x\nBTN T1 y"_s, u"BTN T1 "_s), 17);
    EXPECT_EQ(endOf(u"BTN H1UL x"_s, u"BTN H1U "_s), -1);
}

TEST(ControlSearch, ATabOrALineEndCountsAsTheBlank)
{
    EXPECT_EQ(endOf(u"BTN S1\tx"_s, u"BTN S1 "_s), 7);
    EXPECT_EQ(endOf(u"BTN S1\n  x"_s, u"BTN S1 "_s), 6);
    EXPECT_EQ(endOf(u"BTN S1"_s, u"BTN S1 "_s), 6);
}

TEST(ControlSearch, HitsInCommentsArePassedOver)
{
    EXPECT_EQ(endOf(u"Rem BTN S1 x"_s, u"BTN S1 "_s), -1);
    EXPECT_EQ(endOf(u"Rem BTN S1 x\nBTN S1 y"_s, u"BTN S1 "_s), 20);
    EXPECT_EQ(endOf(u"BTN S1 x Rem y"_s, u"BTN S1 "_s), 7);
}

TEST(ControlSearch, AnAxisIsSoughtAsAWholeWord)
{
    EXPECT_EQ(endOf(u"ANTS RNGE\nRNG 2 x"_s, u"RNG "_s), 14);
    EXPECT_EQ(endOf(u"MY_RNG 2"_s, u"RNG "_s), -1);
    // No axis: found as the end of a longer word too.
    EXPECT_EQ(endOf(u"XBTN S1 a"_s, u"BTN S1 "_s), 8);
}

TEST(ToldOfAControl, IsItsStatementWithTheLinesThatGoOn)
{
    const QString text = u"BTN S1 /U a\n       /M b\n\nBTN S2 c"_s;
    EXPECT_EQ(toldOf(text, u"S1"_s), u"S1:\nBTN S1 /U a\n       /M b"_s);
    EXPECT_EQ(toldOf(text, u"S2"_s), u"S2:\nBTN S2 c"_s);
    EXPECT_EQ(toldOf(text, u"S3"_s), u"S3: nothing yet"_s);
}

TEST(ToldOfAControl, EndsAfterSixLines)
{
    const QString text = u"BTN S1 a\n b\n c\n d\n e\n f\n g\n"_s;
    EXPECT_EQ(toldOf(text, u"S1"_s), u"S1:\nBTN S1 a\n b\n c\n d\n e\n f\n..."_s);
}
