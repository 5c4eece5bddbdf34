// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "editor/edit/button_definition.h"

#include "tests/support/editor_fixture.h"

using namespace zeph;

namespace {

/// The definition's text; no value when there is none.
std::optional<QString> definition(const QString &text, const QString &head)
{
    const auto range = buttonDefinition(text, head);
    return range ? std::optional(text.mid(range->start, range->length)) : std::nullopt;
}

} // namespace

TEST(ButtonDefinition, RunsFromItsHeadToTheNextKeyword)
{
    EXPECT_EQ(definition(u"Rem x\nBTN S1 /I a\n  /O b\nBTN S2 c\n"_s, u"BTN S1"_s),
              u"BTN S1 /I a\n  /O b\n");
}

TEST(ButtonDefinition, EachOfTheTwelveKeywordsEndsItInAnyCase)
{
    for (const QString &keyword :
         { u"BTN"_s, u"RNG"_s, u"ANT"_s, u"MDEF"_s, u"JSX"_s, u"JSY"_s, u"PORTB"_s, u"USE"_s,
           u"RATE"_s, u"SWAPTG"_s, u"THR"_s, u"RDDR"_s }) {
        EXPECT_EQ(definition(u"BTN S1 a "_s + keyword + u" b"_s, u"BTN S1"_s), u"BTN S1 a ");
        EXPECT_EQ(definition(u"BTN S1 a "_s + keyword.toLower() + u" b"_s, u"BTN S1"_s),
                  u"BTN S1 a ");
    }
}

TEST(ButtonDefinition, TheNearestKeywordEndsItWhateverItsPlaceInTheTable)
{
    EXPECT_EQ(definition(u"BTN S1 a RDDR b BTN S2"_s, u"BTN S1"_s), u"BTN S1 a ");
}

TEST(ButtonDefinition, RunsOnOverStatementsThatAreNoKeywordOfTheRule)
{
    EXPECT_EQ(definition(u"BTN S1 a\nDEF X1 b\nJOYX c\nLBRK d\nUSE MDEF x"_s, u"BTN S1"_s),
              u"BTN S1 a\nDEF X1 b\nJOYX c\nLBRK d\n");
}

TEST(ButtonDefinition, TheLastRunsToTheTextsEnd)
{
    EXPECT_EQ(definition(u"BTN S1 a\nMY_USE THROTTLE"_s, u"BTN S1"_s),
              u"BTN S1 a\nMY_USE THROTTLE");
    EXPECT_EQ(definition(u"BTN S1"_s, u"BTN S1"_s), u"BTN S1");
}

TEST(ButtonDefinition, ItsHeadIsFoundInAnyCaseAsAWholeWord)
{
    EXPECT_EQ(definition(u"BTN T10 a\nbtn t1 b"_s, u"BTN T1"_s), u"btn t1 b");
    EXPECT_EQ(definition(u"BTN T10 a"_s, u"BTN T1"_s), std::nullopt);
    EXPECT_EQ(definition(u"BTN T10 a"_s, QString()), std::nullopt);
}

TEST(ButtonDefinition, APortsPrefixOfFourIsTakenInAndItsEndMovesByItsHead)
{
    EXPECT_EQ(definition(u"Rem\nBTN PortB1 a b c d e\nUSE x y z"_s, u"PortB1"_s),
              u"BTN PortB1 a b c d e\nUS");
    EXPECT_EQ(definition(u"PortB1 a"_s, u"PortB1"_s), u"PortB1 a");
}

class ExtractDefinitionTest : public test::EditorTest
{
protected:
    TextControl *joystick() { return &editor->view().control(DocumentKind::Joystick); }
};

TEST_F(ExtractDefinitionTest, BringsTheDefinitionToTheFrontSelected)
{
    joystick()->shown().setText(u"BTN S1 a\nBTN S2 b\n"_s);
    editor->documents().select(DocumentKind::Macro);
    EXPECT_TRUE(ExtractButtonDefinition(editor->view(), u"BTN S2"_s));
    EXPECT_EQ(editor->documents().selected().kind(), DocumentKind::Joystick);
    EXPECT_EQ(joystick()->shown().selStart(), 9);
    EXPECT_EQ(joystick()->shown().selLength(), 9);
}

TEST_F(ExtractDefinitionTest, LeavesTheCaretWhereThereIsNone)
{
    joystick()->shown().setText(u"BTN S1 a\n"_s);
    joystick()->shown().select(4, 2);
    EXPECT_FALSE(ExtractButtonDefinition(editor->view(), u"BTN S2"_s));
    EXPECT_EQ(joystick()->shown().selStart(), 4);
    EXPECT_EQ(joystick()->shown().selLength(), 2);
}

TEST_F(ExtractDefinitionTest, LeavesTheTabWhileTheJoystickTextIsEmpty)
{
    editor->documents().select(DocumentKind::Macro);
    EXPECT_FALSE(ExtractButtonDefinition(editor->view(), u"BTN S1"_s));
    EXPECT_EQ(editor->documents().selected().kind(), DocumentKind::Macro);
}
