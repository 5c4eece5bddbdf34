// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "livetools/quickview/key_texts.h"

#include <gmock/gmock.h>

using namespace zeph;

namespace {

constexpr int rowOfRng = 57;
constexpr int rowOfAnt = 58;
constexpr int rowOfS1 = 15;
constexpr LabelOptions asWritten{ .Underscores = false, .RotaryStrip = false };

MacroKeys labelMacros()
{
    return MacroKeys(extractMacros(usableMacroLines(u"Radar_On = SHF r\n"
                                                    "Under_Score = _ Radar_On Rem keys\n"
                                                    "5 = x\n")));
}

QString stripped(QStringView text)
{
    return labelText(rowOfRng, text.toString(), { .Underscores = false, .RotaryStrip = true });
}

} // namespace

TEST(LabelText, UnderscoresAreBlanksIfWanted)
{
    EXPECT_EQ(labelText(rowOfS1, u"/P Radar_On x_"_s, {}), u"/P Radar On x");
    EXPECT_EQ(labelText(rowOfS1, u"/P Radar_On x_"_s, asWritten), u"/P Radar_On x_");
}

TEST(LabelText, ARotarysNumbersGoWithTheirBrackets)
{
    for (const QStringView type : { u"4", u"5", u"6" }) {
        EXPECT_EQ(stripped(type.toString() + u" 3 (0 30 60 100) Up Down"_s), u"Up Down");
    }
    EXPECT_EQ(stripped(u"  5 12 (0 50) a (b) c"), u"a (b) c");
}

TEST(LabelText, ARotarysNumbersGoWithTheirBlank)
{
    for (const QStringView type : { u"1", u"2", u"3" }) {
        EXPECT_EQ(stripped(type.toString() + u" 20 Up Down"_s), u"Up Down");
    }
}

TEST(LabelText, WithoutBracketOrBlankARotaryLosesItsFirstCharactersAlone)
{
    EXPECT_EQ(stripped(u"5 3 Up"), u"Up");
    EXPECT_EQ(stripped(u"1 Up"), u"Up");
    EXPECT_EQ(stripped(u"4 3"), u"");
    EXPECT_EQ(stripped(u"1"), u"");
}

TEST(LabelText, OtherStatementsOfRotariesStay)
{
    EXPECT_EQ(stripped(u"7 3 (0) Up"), u"7 3 (0) Up");
    EXPECT_EQ(stripped(u"Up"), u"Up");
    EXPECT_EQ(stripped(u""), u"");
}

TEST(LabelText, OnlyRotariesAreStripped)
{
    const QString text = u"1 2 Up"_s;
    EXPECT_EQ(labelText(rowOfS1, text, {}), text);
    EXPECT_EQ(labelText(56, text, {}), text);
    EXPECT_EQ(labelText(rowOfRng, text, {}), u"Up");
    EXPECT_EQ(labelText(rowOfAnt, text, {}), u"Up");
}

TEST(LabelText, ARotaryIsShownAsWrittenWithTheOptionOff)
{
    EXPECT_EQ(labelText(rowOfRng, u"5 3 (0 50 100) Up"_s, asWritten), u"5 3 (0 50 100) Up");
}

TEST(LabelText, UnderscoresAreBlanksBeforeTheRotaryIsStripped)
{
    EXPECT_EQ(labelText(rowOfRng, u"1 2_3 Up"_s, { .Underscores = true, .RotaryStrip = true }),
              u"3 Up");
    EXPECT_EQ(stripped(u"1 2_3 Up"), u"Up");
}

TEST(LabelText, KeysTakeTheMacrosPlaces)
{
    const MacroKeys keys = labelMacros();
    EXPECT_EQ(labelText(rowOfS1, u"/P radar_on KD(Radar_On) Other_One"_s, {}, &keys),
              u"/P SHF r KD(SHF r) Other One");
    EXPECT_EQ(labelText(rowOfRng, u"5 3 (0 5) 5 Radar_On"_s, {}, &keys), u"x SHF r")
        << "the rotary's numbers are no macros";
}

TEST(LabelText, AKeyThatIsAnUnderscoreStays)
{
    const MacroKeys keys = labelMacros();
    EXPECT_EQ(labelText(rowOfS1, u"Under_Score A_b"_s, {}, &keys), u"_ SHF r A b");
}

TEST(LabelTip, TellsBothTheMacrosAndTheirKeys)
{
    EXPECT_EQ(labelTip(u"/P Under_Score"_s, labelMacros()), u"/P Under_Score\n/P _ SHF r");
    EXPECT_EQ(labelTip(u"/P a"_s, labelMacros()), u"/P a");
}
