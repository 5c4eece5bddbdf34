// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "layouts/draw/shown_keys.h"

#include <gmock/gmock.h>

using namespace zeph;

namespace {

ShownKeys keysOf(QStringView macros)
{
    return ShownKeys(extractMacros(usableMacroLines(macros)));
}

QString shown(QStringView text, MacroNames way)
{
    static const ShownKeys keys = keysOf(u"Rem -- keys\n"
                                         "Fire = SPC\n"
                                         "Camera = CTL v Rem for films\n"
                                         "Program=RPT(4) Chaff\n"
                                         "Chaff = x\n"
                                         "Left_Display = [\n"
                                         "Loop = a Again\n"
                                         "Again = b Loop\n"
                                         "Fire = ENT\n");
    return keys.shown(RichText::plain(text.toString()), way).text;
}

QString asKeys(QStringView text)
{
    return shown(text, MacroNames::Keys);
}

} // namespace

TEST(ShownKeys, NamesStayByDefault)
{
    EXPECT_EQ(shown(u"/U Fire", MacroNames::Names), u"/U Fire");
}

TEST(ShownKeys, KeysTakeTheNamesPlaces)
{
    EXPECT_EQ(asKeys(u"BTN S1\n      /U /H Fire\n      /M Camera"),
              u"BTN S1\n      /U /H SPC\n      /M CTL v");
}

TEST(ShownKeys, NamesCanStayBesideTheirKeys)
{
    EXPECT_EQ(shown(u"/U Left_Display Fire", MacroNames::NamesAndKeys),
              u"/U Left_Display \u2039[\u203a Fire \u2039SPC\u203a");
}

TEST(ShownKeys, NamesAreFoundInAnyCaseAndBesideBrackets)
{
    EXPECT_EQ(asKeys(u"{FIRE}(camera)<Fire>,fire"), u"{SPC}(CTL v)<SPC>,SPC");
}

TEST(ShownKeys, OnlyWholeWordsAreMacros)
{
    EXPECT_EQ(asKeys(u"Fire_Gun Fired /Fire"), u"Fire_Gun Fired /Fire");
}

TEST(ShownKeys, MacrosOfMacrosAreKeysToo)
{
    EXPECT_EQ(asKeys(u"Program"), u"RPT(4) x");
}

TEST(ShownKeys, AMacroThatLeadsBackToItselfStaysANameThere)
{
    EXPECT_EQ(asKeys(u"Loop"), u"a b Loop");
}

TEST(ShownKeys, CommentsStay)
{
    EXPECT_EQ(asKeys(u"/U Fire Rem Fire at will\n/M Fire"), u"/U SPC Rem Fire at will\n/M SPC");
}

TEST(ShownKeys, TheFirstOfTwoMacrosOfOneNameCounts)
{
    EXPECT_EQ(asKeys(u"Fire"), u"SPC");
}

TEST(ShownKeys, ManyMacrosOfMacrosEndSomewhere)
{
    QString macros;
    for (int i = 0; i < 60; ++i) {
        macros += u"M%1 = M%2 M%2\n"_s.arg(i).arg(i + 1);
    }
    const QString text = keysOf(macros).shown(RichText::plain(u"M0"_s), MacroNames::Keys).text;
    EXPECT_LT(text.size(), 100000);
}

TEST(ShownKeys, KeysLookLikeTheNames)
{
    RichText text = RichText::plain(u"/U Program next"_s);
    text.change(3, 7, [](CharFormat &format) { format.colour = 0x0000FF; });
    const RichText result = keysOf(u"Program = RPT(4) x\n").shown(text, MacroNames::Keys);
    EXPECT_EQ(result.text, u"/U RPT(4) x next");
    EXPECT_FALSE(result.formatAt(2).colour);
    EXPECT_EQ(result.formatAt(3).colour, 0x0000FFU);
    EXPECT_EQ(result.formatAt(10).colour, 0x0000FFU);
    EXPECT_FALSE(result.formatAt(11).colour);
    EXPECT_EQ(result.paragraphs.size(), 1U);
}
