// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "composer/wizards/macro_lines.h"

#include "text/macro_table.h"

#include <gtest/gtest.h>

using namespace zeph;

TEST(MacroPreview, IsTheNameAnEqualsSignAndTheKeys)
{
    EXPECT_EQ(previewOf(u"Fire"_s, u"SHF f"_s), u"Fire = SHF f"_s);
}

TEST(MacroPreview, OfFireMissileStandsThereAtOnceWithoutKeys)
{
    EXPECT_EQ(previewOf(u"Fire missile"_s, QString()), u"Fire_missile = "_s);
}

TEST(MacroPreview, IsEmptyWithoutAName)
{
    EXPECT_EQ(previewOf(QString(), u"SHF f"_s), QString());
}

TEST(MacroPreview, HasALowLineForEachCharacterThatANameMayNotHold)
{
    EXPECT_EQ(previewOf(u" a<b>c{d}e(f)g^h,i=j "_s, u"k"_s), u"_a_b_c_d_e_f_g_h_i_j_ = k"_s);
}

TEST(MacroPreview, LeavesTheKeysAlone)
{
    EXPECT_EQ(previewOf(u"a"_s, u"c DLY(60) ^ {x} <y>, ="_s), u"a = c DLY(60) ^ {x} <y>, ="_s);
}

TEST(WizardHeading, HasRulesTwentyLongerThanItselfAndABlankLineAfterThem)
{
    const QString rule = u"Rem "_s + QString(25, u'-');
    EXPECT_EQ(headingLines(u"Radar"_s), rule + u"\nRem           Radar\n"_s + rule + u"\n\n"_s);
}

TEST(WizardHeading, IsAHeadingOfTheMacroListHoweverShort)
{
    for (const QString &heading : { u"X"_s, u"Radar"_s }) {
        const QString file = headingLines(heading) + u"Fire = a\n"_s;
        const MacroTable table = extractMacros(usableMacroLines(file));
        EXPECT_EQ(table.MacroHeadings, (QStringList{ u"All"_s, heading }));
        EXPECT_EQ(table.names.value(1), QStringList{ u"Fire"_s });
    }
}

TEST(MacroWarning, TellsOfANameThatTheFileHasInAnyCase)
{
    EXPECT_EQ(warningAbout(u"FIRE"_s, u"Fire = a"_s), u"There's already a macro called FIRE."_s);
}

TEST(MacroWarning, TellsOfAWordOfTheLanguageAndOfASwitchedOffLine)
{
    EXPECT_TRUE(warningAbout(u"USE"_s, QString()).startsWith(u"USE means something of its own"_s));
    EXPECT_TRUE(warningAbout(u"~Fire"_s, QString()).startsWith(u"A line that begins with ~"_s));
    EXPECT_EQ(warningAbout(u"Fire\u0416"_s, QString()),
              u"Joystick and macro files can't hold the character \u0416."_s);
}

TEST(MacroWarning, IsEmptyForAFreshNameAndWithoutOne)
{
    EXPECT_EQ(warningAbout(u"Fire"_s, u"Gear = a"_s), QString());
    EXPECT_EQ(warningAbout(QString(), u"Gear = a"_s), QString());
}
