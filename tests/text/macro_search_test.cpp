// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "text/macro_search.h"

#include "tests/text/macro_texts.h"

#include <gtest/gtest.h>

using namespace zeph;

namespace {

using Places = QList<qsizetype>;

bool isSlowWordCharacter(QChar character)
{
    return character.isLetterOrNumber() || character == u'_';
}

/// Whether the name stands whole at a place: compared character by character.
bool standsAt(const QString &text, const QString &name, qsizetype at)
{
    if (at + name.size() > text.size()) {
        return false;
    }
    for (qsizetype i = 0; i < name.size(); ++i) {
        if (text[at + i].toLower() != name[i].toLower()) {
            return false;
        }
    }
    const qsizetype end = at + name.size();
    const bool joined =
        (at > 0 && isSlowWordCharacter(text[at - 1]) && isSlowWordCharacter(name[0]))
        || (end < text.size() && isSlowWordCharacter(text[end])
            && isSlowWordCharacter(name[name.size() - 1]));
    return !joined;
}

Places slowHits(const QString &text, const QString &name, const QString &enders, bool comments)
{
    Places hits;
    qsizetype at = 0;
    while (!name.isEmpty() && at < text.size()) {
        if (!standsAt(text, name, at)) {
            ++at;
            continue;
        }
        const qsizetype end = at + name.size();
        const QString before = text.left(at);
        const QString lineBefore = before.mid(before.lastIndexOf(u'\n') + 1).toLower();
        const bool ended = end == text.size() || enders.contains(text[end]);
        if (ended && (comments || !lineBefore.contains(u"rem "_s))) {
            hits.append(at);
        }
        at = end;
    }
    return hits;
}

} // namespace

TEST(MacroUses, ANameCountsBeforeEachCharacterThatEndsIt)
{
    EXPECT_EQ(macroUses(u"Fire Fire)Fire}Fire>Fire\tFire\nFire", u"fire"_s),
              (Places{ 0, 5, 10, 15, 20, 25, 30 }));
    EXPECT_EQ(macroUses(u"Fire,Fire(Fire=Fire]", u"Fire"_s), Places());
}

TEST(MacroUses, AnotherLineEndsANameAndTheTextsEndDoesToo)
{
    EXPECT_EQ(macroUses(u"BTN S1 Fire", u"Fire"_s), Places{ 7 });
    EXPECT_EQ(macroUses(u"BTN S1 Fire\nBTN S2 x", u"Fire"_s), Places{ 7 });
}

TEST(MacroUses, ANameWithinALongerWordIsNoUse)
{
    EXPECT_EQ(macroUses(u"Fire_Gun Gun_Fire Fires", u"Fire"_s), Places());
}

TEST(MacroUses, ANameInACommentIsNoUse)
{
    EXPECT_EQ(macroUses(u"BTN S1 a Rem Fire it\nrem Fire\nREM x\nFire ", u"Fire"_s), Places{ 36 });
}

TEST(MacroUses, ACommentNeedsItsBlankAndStandsBeforeTheName)
{
    EXPECT_EQ(macroUses(u"Rem\tFire Rem Fire ", u"Fire"_s), Places{ 4 });
    EXPECT_EQ(macroUses(u"Fire rem x", u"Fire"_s), Places{ 0 });
}

TEST(MacroUses, AnyTextThatEndsInRemHoldsAUseBack)
{
    EXPECT_EQ(macroUses(u"Xrem Fire ", u"Fire"_s), Places());
}

TEST(MacroUses, AMacroNamedLikeAKeywordIsUsedByEveryStatementThatHasIt)
{
    EXPECT_EQ(macroUses(u"BTN S1 USB (D01) USB(D02)", u"usb"_s), Places{ 7 });
}

TEST(MacroUses, AnEmptyNameIsNeverSearched)
{
    EXPECT_EQ(macroUses(u"a b", QString()), Places());
    EXPECT_EQ(renameHits(u"a b", QString()), Places());
}

TEST(MacroUses, EqualTheRulesFollowedStepByStep)
{
    for (quint32 seed = 0; seed < 2000; ++seed) {
        test::MacroTexts texts(seed);
        const QString text = texts.joystickFile();
        for (const QString &name : texts.names()) {
            ASSERT_EQ(macroUses(text, name), slowHits(text, name, u" )}>\t\n"_s, false))
                << name.toStdString() << " in " << text.toStdString();
        }
    }
}

TEST(UsedMacros, SayOfManyNamesWhatIsTrueOfEach)
{
    for (quint32 seed = 0; seed < 3000; ++seed) {
        test::MacroTexts texts(seed);
        const QString text = texts.joystickFile();
        const QStringList names = texts.names();
        const QList<bool> used = usedMacros(text, names);
        ASSERT_EQ(used.size(), names.size());
        for (qsizetype i = 0; i < names.size(); ++i) {
            ASSERT_EQ(used[i], !slowHits(text, names[i], u" )}>\t\n"_s, false).isEmpty())
                << names[i].toStdString() << " in " << text.toStdString();
        }
    }
}

TEST(UsedMacros, NamesThatShareAWordAreToldApart)
{
    EXPECT_EQ(usedMacros(u"xB-A B-A1 C-A ", { u"B-A"_s, u"C-A"_s, u"A"_s, u"++"_s }),
              (QList<bool>{ false, true, true, false }));
}

TEST(RenameHits, ABlankATabALineEndOrTheTextsEndFollows)
{
    EXPECT_EQ(renameHits(u"Fire fire\tFIRE\nFire", u"Fire"_s), (Places{ 0, 5, 10, 15 }));
}

TEST(RenameHits, ANameBeforeAClosingBracketStays)
{
    EXPECT_EQ(renameHits(u"(Fire) {Fire} <Fire> Fire,", u"Fire"_s), Places());
}

TEST(RenameHits, CommentsAreRenamedToo)
{
    EXPECT_EQ(renameHits(u"Rem Fire it", u"Fire"_s), Places{ 4 });
}

TEST(RenameHits, EqualTheRulesFollowedStepByStep)
{
    for (quint32 seed = 0; seed < 2000; ++seed) {
        test::MacroTexts texts(seed);
        const QString text = texts.joystickFile();
        for (const QString &name : texts.names()) {
            ASSERT_EQ(renameHits(text, name), slowHits(text, name, u" \t\n"_s, true))
                << name.toStdString() << " in " << text.toStdString();
        }
    }
}

TEST(WordOver, IsTheRunOfItsOwnCharactersAroundThePosition)
{
    const QString text = u"BTN S1 (Fire_Gun-1)"_s;
    for (const qsizetype over : { 8, 12, 17 }) {
        EXPECT_EQ(wordOver(text, over), u"Fire_Gun-1") << over;
    }
    EXPECT_EQ(wordOver(text, 0), u"BTN");
}

TEST(WordOver, EveryCharacterOfTheListIsPartOfAWord)
{
    const QString all = u"-+!*?$%&[]'#~.`/\\:;_\"09azAZ"_s;
    EXPECT_EQ(wordOver(u"("_s + all + u")"_s, 5), all);
}

TEST(WordOver, EverythingElseEndsAWord)
{
    for (const QChar each : u" (){}<>,=^@|\t\n"_s) {
        const QString text = u"ab"_s + each + u"cd"_s;
        EXPECT_EQ(wordOver(text, 1), u"ab") << int(each.unicode());
        EXPECT_EQ(wordOver(text, 2), QString()) << int(each.unicode());
        EXPECT_EQ(wordOver(text, 3), u"cd") << int(each.unicode());
    }
}

TEST(WordOver, NothingLiesBeyondTheText)
{
    EXPECT_EQ(wordOver(u"ab", -1), QString());
    EXPECT_EQ(wordOver(u"ab", 2), QString());
    EXPECT_EQ(wordOver(u"", 0), QString());
}

TEST(WordOver, AWordMayBeLongerThanALine)
{
    const QString longWord(5000, u'x');
    EXPECT_EQ(wordOver(longWord, 4000), longWord);
}

TEST(MacroSearch, ARenamedTextIsRenamedWhereARenameReplaces)
{
    EXPECT_EQ(renamedIn(u"Fire = a fire\tx (Fire)"_s, u"Fire"_s, u"Go"_s), u"Go = a Go\tx (Fire)");
    EXPECT_EQ(renamedIn(u"Fire=a"_s, u"Fire"_s, u"Go"_s), u"Fire=a");
}

TEST(MacroSearch, TheNameAtAPlaceIsTheLongestThatTouchesIt)
{
    const QStringList names = { u"Fire"_s, u"Fire-1"_s, u"Gun"_s, u""_s };
    const QString line = u"BTN S1 (fire) Fire-1 Guns"_s;
    EXPECT_EQ(nameAt(line, 7, names), QString());
    EXPECT_EQ(nameAt(line, 8, names), u"Fire");
    EXPECT_EQ(nameAt(line, 12, names), u"Fire");
    EXPECT_EQ(nameAt(line, 13, names), QString());
    EXPECT_EQ(nameAt(line, 15, names), u"Fire-1");
    EXPECT_EQ(nameAt(line, 22, names), QString());
    EXPECT_EQ(nameAt(u"", 0, names), QString());
}
