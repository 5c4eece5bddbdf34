// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "composer/statement_inserter.h"

#include "composer/composer_settings.h"
#include "tests/support/composer_world.h"
#include "tests/support/fixture.h"

using namespace zeph;

namespace {

class Inserter : public test::TestIn<test::ComposerWorld>
{
protected:
    Inserter() : inserter(context(), editor->documents(), *tools) { }
    bool insertLine(const QString &text)
    {
        return inserter.insertComposed(plainStatement(text, true));
    }
    bool &addsLineEnd() { return settings.of<ComposerSettings>().CompTabsAddCr; }

    StatementInserter inserter;
};

} // namespace

TEST_F(Inserter, AComposedStatementEndsItsLineIfItIsWanted)
{
    EXPECT_TRUE(insertLine(u"USE RATE (50) "_s));
    EXPECT_EQ(joystick().text(), u"USE RATE (50) \n"_s);
    EXPECT_EQ(joystick().selStart(), 15);
    addsLineEnd() = false;
    EXPECT_TRUE(insertLine(u"USE RATE (60) "_s));
    EXPECT_EQ(joystick().text(), u"USE RATE (50) \nUSE RATE (60) "_s);
    joystick().undo();
    EXPECT_EQ(joystick().text(), u"USE RATE (50) \n"_s);
    joystick().undo();
    EXPECT_EQ(joystick().text(), QString());
}

TEST_F(Inserter, AComposedStatementStartsALine)
{
    setJoystick(u"BTN S1 a b"_s, 8);
    EXPECT_TRUE(insertLine(u"USE RATE (50) "_s));
    EXPECT_EQ(joystick().text(), u"BTN S1 a\nUSE RATE (50) \n b"_s);
}

TEST_F(Inserter, WithinALineABlankGoesBeforeIt)
{
    addsLineEnd() = false;
    setJoystick(u"BTN S1 a"_s);
    EXPECT_TRUE(inserter.insertComposed(plainStatement(u"DISABLE (RNG) "_s, false)));
    EXPECT_EQ(joystick().text(), u"BTN S1 a DISABLE (RNG) "_s);
}

TEST_F(Inserter, AComposedStatementGoesIntoTheJoystickFileWhateverIsSelectedAndProtected)
{
    setMacro(u"Fire = a"_s);
    editor->documents().setProtected(true);
    EXPECT_TRUE(insertLine(u"USE RATE (50) "_s));
    EXPECT_EQ(editor->selected().kind(), DocumentKind::Joystick);
    EXPECT_EQ(joystick().text(), u"USE RATE (50) \n"_s);
    EXPECT_EQ(macro().text(), u"Fire = a"_s);
}

TEST_F(Inserter, ARefusalIsABoxAndChangesNothing)
{
    setMacro(u"Fire = a"_s);
    dialogs.answer(u"Missing some text buddy"_s, BoxButton::Ok);
    EXPECT_FALSE(inserter.insertComposed(tl::unexpected(missingText())));
    EXPECT_EQ(
        dialogs.boxes().back().text,
        u"You have left out one of the required parameters I need to create the statement."_s);
    EXPECT_EQ(editor->selected().kind(), DocumentKind::Macro);
    EXPECT_EQ(joystick().text(), QString());
}

TEST_F(Inserter, ASelectionIsReplacedAfterTheCharactersAroundItHaveDecided)
{
    addsLineEnd() = false;
    setJoystick(u"BTN S1 abc d"_s);
    joystick().select(8, 2);
    EXPECT_TRUE(inserter.insertIntoSelected(plainStatement(u"DLY(60) "_s, false)));
    EXPECT_EQ(joystick().text(), u"BTN S1 a DLY(60)  d"_s);
    joystick().undo();
    EXPECT_EQ(joystick().text(), u"BTN S1 abc d"_s);
}

TEST_F(Inserter, ATextOnItsWayToTheCougarRefusesWithAStatusText)
{
    setJoystick(u"BTN S1 a"_s);
    joystick().setLocked(true);
    EXPECT_FALSE(insertLine(u"USE RATE (50) "_s));
    EXPECT_EQ(joystick().text(), u"BTN S1 a"_s);
    EXPECT_TRUE(status.text().contains(u"on its way"_s));
    joystick().setLocked(false);
}
