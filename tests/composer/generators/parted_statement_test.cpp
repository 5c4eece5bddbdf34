// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "composer/generators/parted_statement.h"

#include <gtest/gtest.h>

using namespace zeph;

// The names in it are too general to be shared with other tests.
namespace parted_statement_test {

namespace {

QStringList halvesOf(const QString &text)
{
    QStringList halves;
    for (const language::Place &half : statementHalves(text))
        halves.append(text.sliced(half.position, half.length));
    return halves;
}

QString callIn(const QString &text, qsizetype position)
{
    const auto call = callAt(text, position);
    return call ? text.sliced(call->position, call->length) : QString();
}

} // namespace

TEST(PartedStatement, PartsAreWhatIsOutsideAllBrackets)
{
    const auto parts = PartedStatement::of(u"THR 5 2 (0 50 100) KD (a) b");
    ASSERT_TRUE(parts);
    EXPECT_EQ(parts->kind(), language::StatementKind::Axis);
    EXPECT_EQ(parts->keyword(), u"THR");
    ASSERT_EQ(parts->size(), 5);
    EXPECT_EQ(parts->text(2), u"(0 50 100)");
    EXPECT_EQ(parts->text(1, 3), u"2 (0 50 100)");
    EXPECT_TRUE(parts->isWord(4, u"B"));
    EXPECT_FALSE(parts->isWord(5, u"b"));
    EXPECT_EQ(parts->callArguments(3, u"KD")->size(), 1);
    EXPECT_FALSE(parts->callArguments(3, u"KU"));
    EXPECT_FALSE(parts->callArguments(2, u"KD"));
    EXPECT_TRUE(parts->groupArguments(2));
    EXPECT_FALSE(parts->groupArguments(3));
}

TEST(PartedStatement, CommentsAndLineEndsAreLeftOut)
{
    const auto parts = PartedStatement::of(u"THR 2 Rem one\n\n   a Rem two\n b");
    ASSERT_TRUE(parts);
    EXPECT_EQ(parts->text(0, parts->size()), u"2 a b");
}

TEST(PartedStatement, TwoStatementsOrAnOpenBracketAreNone)
{
    EXPECT_FALSE(PartedStatement::of(u"BTN S1 a\nBTN S2 b"));
    EXPECT_FALSE(PartedStatement::of(u"THR 3 a b\nCURVE c"));
    EXPECT_FALSE(PartedStatement::of(u"BTN S1 KD (a"));
    EXPECT_FALSE(PartedStatement::of(u"BTN S1 KD a)"));
    EXPECT_FALSE(PartedStatement::of(u"  "));
    EXPECT_FALSE(PartedStatement::of(u"Rem a"));
}

TEST(PartedStatement, AUseStatementTellsItsHead)
{
    EXPECT_EQ(PartedStatement::of(u"use axes_config (1, JOYX)")->useHead(), u"AXES_CONFIG");
    EXPECT_TRUE(PartedStatement::of(u"BTN S1 a")->useHead().isEmpty());
}

TEST(PartedStatement, WordsAndBracketsOfAPartAreTold)
{
    const auto parts = PartedStatement::of(u"use mix as MOUSEX ( 11, 2 ) - (a) KP5");
    ASSERT_TRUE(parts);
    EXPECT_EQ(parts->head(), QStringList{ u"use"_s });
    ASSERT_EQ(parts->size(), 6);
    EXPECT_EQ(parts->word(0), u"mix");
    EXPECT_FALSE(parts->inside(0));
    EXPECT_EQ(parts->word(2), u"MOUSEX");
    EXPECT_EQ(parts->inside(2), u" 11, 2 ");
    EXPECT_TRUE(parts->word(4).isEmpty());
    EXPECT_EQ(parts->inside(4), u"a");
}

TEST(PartedStatement, TheHeadIsWhatComesBeforeTheParts)
{
    const auto headOf = [](QStringView statement) {
        return PartedStatement::of(statement)->head().join(u' ');
    };
    EXPECT_EQ(headOf(u"USE  HAT1\tAS POV"), u"USE HAT1 AS"_s);
    EXPECT_EQ(headOf(u"BTN T1 /H a"), u"BTN T1"_s);
    EXPECT_EQ(headOf(u"USE PROFILE Night.tmc Rem x"), u"USE PROFILE Night.tmc"_s);
    EXPECT_EQ(headOf(u"/O 3 a ^ b"), QString());
    EXPECT_EQ(headOf(u"CURVE /I (THR, 4)"), QString());
}

TEST(PartedStatement, AStatementIsExactlyItsWords)
{
    const auto isWords = [](QStringView statement, QStringView words) {
        return PartedStatement::of(statement)->isWords(words);
    };
    EXPECT_TRUE(isWords(u"btn t1/h  mouse_lb Rem fire", u"BTN T1 /H MOUSE_LB"));
    EXPECT_TRUE(isWords(u"USE HAT1\n FORCED_CORNERS", u"USE HAT1 FORCED_CORNERS"));
    EXPECT_FALSE(isWords(u"USE HAT1 FORCED_CORNERS x", u"USE HAT1 FORCED_CORNERS"));
    EXPECT_FALSE(isWords(u"USE HAT1", u"USE HAT1 FORCED_CORNERS"));
    EXPECT_FALSE(isWords(u"DISABLE MOUSE (1)", u"DISABLE MOUSE"));
}

TEST(PartedStatement, AnAxisWithAChoiceOfDefinitionsHasHalves)
{
    EXPECT_EQ(halvesOf(u"THR 3 a ^ b"_s), QStringList{ u"THR 3 a ^ b"_s });
    EXPECT_EQ(halvesOf(u"THR /U 3 a ^ b\n /M 3 b ^ a\n /D 3 c ^ d"_s),
              (QStringList{ u"THR /U 3 a ^ b"_s, u"/M 3 b ^ a"_s, u"/D 3 c ^ d"_s }));
    EXPECT_EQ(halvesOf(u"THR /U /I 3 a ^ b\n /O 3 b ^ a"_s),
              (QStringList{ u"THR /U /I 3 a ^ b"_s, u"/O 3 b ^ a"_s }));
    EXPECT_EQ(halvesOf(u"THR 3 a /I b /O c"_s), QStringList{ u"THR 3 a /I b /O c"_s });
    EXPECT_EQ(halvesOf(u"CURVE /I (THR, 4) Rem in\n  /O (THR, 0)"_s),
              (QStringList{ u"CURVE /I (THR, 4)"_s, u"/O (THR, 0)"_s }));
    EXPECT_TRUE(halvesOf({}).isEmpty());
}

TEST(PartedStatement, TheCallAtAPositionIsTheInnermostOne)
{
    const QString text = u"BTN S1 /P CURVE (THR, 4) /R TRIM (JOYY, 2+) a KD (b)"_s;
    EXPECT_EQ(callIn(text, text.indexOf(u"THR")), u"/P CURVE (THR, 4)"_s);
    EXPECT_EQ(callIn(text, text.indexOf(u"TRIM")), u"TRIM (JOYY, 2+)"_s);
    EXPECT_EQ(callIn(text, text.indexOf(u") a") + 1), u"TRIM (JOYY, 2+)"_s);
    EXPECT_EQ(callIn(text, text.size()), u"KD (b)"_s);
    EXPECT_EQ(callIn(text, 2), QString());
    EXPECT_EQ(callIn(u"BTN S1 /I CURVE (THR, 4)"_s, 15), u"CURVE (THR, 4)"_s);
}

} // namespace parted_statement_test
