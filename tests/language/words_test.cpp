// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "language/forms.h"
#include "language/keys.h"
#include "language/vocabulary.h"
#include "language/words.h"

#include <QStringList>

#include <gmock/gmock.h>

using namespace zeph;
using namespace zeph::language;

namespace {

int repeated(Words words)
{
    QStringList seen;
    int count = 0;
    for (const QStringView word : words) {
        count += seen.contains(word);
        seen.append(word.toString());
    }
    return count;
}

const ColourWords *classOf(ColourClass colour)
{
    for (const ColourWords &row : colourWords()) {
        if (row.colour == colour)
            return &row;
    }
    return nullptr;
}

} // namespace

TEST(Controls, AreSixteenButtonsAndNinePositionsOfFourHats)
{
    EXPECT_EQ(controls().size(), 16U + 4U * 9U);
    EXPECT_EQ(repeated(controls()), 0);
    for (int hat = 1; hat <= 4; ++hat) {
        for (const QStringView position :
             { u"U", u"D", u"L", u"R", u"M", u"UL", u"UR", u"DL", u"DR" })
            EXPECT_TRUE(wordInfo(u"H%1%2"_s.arg(hat).arg(position)).is(ControlRole));
    }
    for (const QStringView name : { u"S1", u"s4", u"TG1", u"tg2", u"T1", u"t10" })
        EXPECT_TRUE(wordInfo(name).is(ControlRole));
    for (const QStringView name : { u"S5", u"S0", u"TG3", u"T11", u"T0", u"H5U", u"H1", u"H1X" })
        EXPECT_FALSE(wordInfo(name).is(ControlRole));
}

TEST(Axes, GroupsAreNoSingleAxes)
{
    EXPECT_EQ(axes().size(), 10U);
    EXPECT_EQ(axisGroups().size(), 4U);
    EXPECT_TRUE(wordInfo(u"rng").is(AxisRole));
    EXPECT_FALSE(wordInfo(u"ROTARIES").is(AxisRole));
    EXPECT_TRUE(wordInfo(u"Rotaries").is(AxisGroupRole));
}

TEST(ColourWords, StandInTheOrderOfPaintingWithTheirBrackets)
{
    const ColourWords *slash = classOf(ColourClass::Slash);
    ASSERT_TRUE(slash);
    EXPECT_EQ(slash->words.size(), 10U);
    EXPECT_EQ(slash->words.front(), u"/U");
    EXPECT_EQ(slash->words.back(), u"/R");
    EXPECT_EQ(slash->brackets, u"<>");

    const ColourWords *raw = classOf(ColourClass::Raw);
    ASSERT_TRUE(raw);
    EXPECT_EQ(raw->words.size(), 27U);
    EXPECT_EQ(raw->words.front(), u"CURVE");
    EXPECT_EQ(raw->words.back(), u"CALIBRATION_MANUAL");
    EXPECT_EQ(raw->brackets, u"()");

    const ColourWords *miscellaneous = classOf(ColourClass::Miscellaneous);
    ASSERT_TRUE(miscellaneous);
    EXPECT_EQ(miscellaneous->words.size(), 76U);
    EXPECT_EQ(miscellaneous->words.front(), u"USE");
    EXPECT_EQ(miscellaneous->words.back(), u"(CUSTOM)");
    EXPECT_EQ(miscellaneous->brackets, u"{}");
}

TEST(ColourWords, NoWordHasTwoColours)
{
    QList<QStringView> all;
    for (const ColourWords &row : colourWords()) {
        for (const QStringView word : row.words)
            all.append(word);
    }
    EXPECT_EQ(repeated({ all.constData(), size_t(all.size()) }), 0);
}

TEST(SlashModifiers, HaveTheMenusCaptionsAndTheirPlace)
{
    ASSERT_EQ(slashModifiers().size(), 10U);
    EXPECT_EQ(slashModifiers()[3].caption, u"/I  S3 is held in");
    EXPECT_EQ(slashModifiers()[4].caption, u"/O S3 is out");
    EXPECT_EQ(slashModifiers()[3].position, PositionClass::S3);
    EXPECT_EQ(slashModifiers()[7].position, PositionClass::Action);
    EXPECT_EQ(slashModifiers()[9].position, PositionClass::Repeat);
    for (const SlashModifier &modifier : slashModifiers())
        EXPECT_TRUE(modifier.caption.startsWith(modifier.word));
}

TEST(DefinitionKeywords, AreTwelveAndKnowNothingOfDefOrJoyx)
{
    EXPECT_EQ(definitionKeywords().size(), 12U);
    EXPECT_EQ(definitionKeywords().front(), u"BTN");
    EXPECT_EQ(definitionKeywords().back(), u"RDDR");
    for (const QStringView word : definitionKeywords()) {
        EXPECT_NE(word, u"DEF");
        EXPECT_NE(word, u"JOYX");
        EXPECT_TRUE(wordInfo(word).is(StatementRole)) << word.toString().toStdString();
    }
}

TEST(UseForms, AreRecognisedByTheirHeadWordsInAnyCaseAndSpacing)
{
    const auto form = [](QStringView text) {
        const int index = useFormOf(text);
        return index < 0 ? QString() : useForms()[size_t(index)].head.toString();
    };
    EXPECT_EQ(form(u"MDEF my file"), u"MDEF");
    EXPECT_EQ(form(u"zeph\t  Run_App c:\\x.exe"), u"ZEPH RUN_APP");
    EXPECT_EQ(form(u"HAT3 as POV"), u"HAT3 AS");
    EXPECT_EQ(form(u"RATE(60)"), u"RATE");
    EXPECT_EQ(form(u"MDEFAULT x"), QString());
    EXPECT_EQ(form(u"HAT3 FORCED_CORNERS"), QString());
    EXPECT_EQ(form(u""), QString());
}

TEST(MacroNames, RefuseTheBlankAndWhatBodiesAreWrittenWith)
{
    EXPECT_EQ(forbiddenMacroNameCharacters, u" <>{}()^,=");
}

TEST(Keys, AreKnownInAnyCaseAndModifiersApart)
{
    EXPECT_TRUE(wordInfo(u"spc").is(KeyRole));
    EXPECT_TRUE(wordInfo(u"KP/").is(KeyRole));
    EXPECT_TRUE(wordInfo(u"PrntScrn").is(KeyRole));
    EXPECT_TRUE(wordInfo(u"ctl").is(ModifierKeyRole));
    EXPECT_FALSE(wordInfo(u"F13").is(KeyRole));
    EXPECT_EQ(repeated(keyNames()), 0);
}
