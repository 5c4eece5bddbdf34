// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "composer/statementpreview.h"

#include "composer/statement_inserter.h"
#include "platform/richtext/rich_text_box.h"
#include "tests/support/composer_world.h"
#include "tests/support/fixture.h"
#include "tests/support/soon.h"

#include <QLabel>

using namespace zeph;

namespace {

/// A page that inserts what it is told.
class ToldPage : public ComposerPage
{
public:
    using ComposerPage::ComposerPage;
    std::optional<Generated> current() const override { return shown; }
    bool read(const QString &) override { return false; }
    void enter() override { }
    void show(const std::optional<Generated> &statement)
    {
        shown = statement;
        Q_EMIT changed();
    }
    std::optional<Generated> shown;
};

class Preview : public test::TestIn<test::ComposerWorld>
{
protected:
    Preview()
        : inserter(context(), editor->documents(), *tools),
          parts{ context(), editor->documents(), inserter, *tools }, preview(parts, nullptr),
          page(parts, nullptr)
    {
        preview.setPage(&page);
        preview.show();
    }
    void show(const QString &statement) { page.show(plainStatement(statement, true)); }
    QString label(const QString &name) { return preview.findChild<QLabel *>(name)->text(); }
    QString landing() { return label(u"LabelLanding"_s); }
    QString findings() { return label(u"LabelFindings"_s); }
    RichTextBox &text() { return *preview.findChild<RichTextBox *>(u"PreviewText"_s); }
    QAbstractButton &replace()
    {
        return *preview.findChild<QAbstractButton *>(u"CMD_ReplaceStatement"_s);
    }
    void readAt(int position)
    {
        const auto read = statementAt(joystick().text(), position);
        ASSERT_TRUE(read);
        preview.setRead(*read);
    }

    StatementInserter inserter;
    ComposerParts parts;
    StatementPreview preview;
    ToldPage page;
};

} // namespace

TEST_F(Preview, ShowsTheStatementInItsColoursAndWhereItGoes)
{
    setJoystick(u"BTN S2 a\nBTN S3 b"_s, 8);
    show(u"BTN S1 /U c"_s);
    EXPECT_SOON_EQ(text().toPlainText(), u"BTN S1 /U c"_s);
    EXPECT_EQ(text().richText().formatAt(0).colour, settings.of<ColourSettings>().BTNColour);
    EXPECT_EQ(text().richText().formatAt(7).colour, settings.of<ColourSettings>().SlashColour);
    EXPECT_EQ(landing(), u"Goes into line 2 of Untitled.tmj"_s);
    EXPECT_EQ(findings(), QString());
}

TEST_F(Preview, ShowsNoLineEndsAfterTheStatement)
{
    show(u"DEF X1 S1\nBTN X1 a \n\n"_s);
    preview.refreshNow();
    EXPECT_EQ(text().toPlainText(), u"DEF X1 S1\nBTN X1 a "_s);
}

TEST_F(Preview, HasTheGroundOfTheFileWithNothingToShowToo)
{
    auto &colours = settings.of<ColourSettings>();
    colours.BackgroundColour = 0x332211;
    page.show({});
    preview.refreshNow();
    EXPECT_EQ(text().palette().color(QPalette::Base), QColor(0x11, 0x22, 0x33));
    colours.BackgroundColour = 0x665544;
    show(u"BTN S1 a"_s);
    preview.refreshNow();
    EXPECT_EQ(text().palette().color(QPalette::Base), QColor(0x44, 0x55, 0x66));
}

TEST_F(Preview, TellsWhatIsAgainstIt)
{
    setJoystick(u"BTN S1 a\n"_s);
    show(u"BTN S1 Fire"_s);
    preview.refreshNow();
    EXPECT_EQ(findings(),
              u"Fire is neither a key nor a macro of the macro file\n"
              "Line 1 has a statement for S1 already"_s);
}

TEST_F(Preview, OfManyFindingsItTellsTwoAndHowManyMore)
{
    show(u"BTN S1 Aaa Bbb Ccc Ddd"_s);
    preview.refreshNow();
    EXPECT_EQ(findings(),
              u"Aaa is neither a key nor a macro of the macro file\n"
              "Bbb is neither a key nor a macro of the macro file (and 2 more)"_s);
}

TEST_F(Preview, ARefusalIsToldInPlaceOfALine)
{
    page.show(tl::unexpected(missingText()));
    preview.refreshNow();
    EXPECT_EQ(text().toPlainText(), QString());
    EXPECT_EQ(landing(), missingText().text);
}

TEST_F(Preview, FollowsTheCaretAndTheText)
{
    setJoystick(u"BTN S2 a\n\n\n"_s, 9);
    show(u"BTN S1 c"_s);
    EXPECT_SOON_EQ(landing(), u"Goes into line 2 of Untitled.tmj"_s);
    joystick().select(11, 0);
    EXPECT_SOON_EQ(landing(), u"Goes into line 4 of Untitled.tmj"_s);
    type(DocumentKind::Joystick, u"\n"_s);
    EXPECT_SOON_EQ(landing(), u"Goes into line 5 of Untitled.tmj"_s);
}

TEST_F(Preview, AStatementThatWasReadCanBeReplacedInOneStep)
{
    setJoystick(u"USE RATE (50) Rem slow\nBTN S1 a"_s, 3);
    show(u"USE RATE (80) "_s);
    EXPECT_FALSE(replace().isEnabled());
    readAt(3);
    EXPECT_TRUE(replace().isEnabled());
    replace().click();
    EXPECT_EQ(joystick().text(), u"USE RATE (80) Rem slow\nBTN S1 a"_s);
    EXPECT_EQ(joystick().selStart(), 13);
    joystick().undo();
    EXPECT_EQ(joystick().text(), u"USE RATE (50) Rem slow\nBTN S1 a"_s);
}

TEST_F(Preview, WhatWasReplacedCanBeReplacedAgain)
{
    setJoystick(u"USE RATE (50)"_s, 3);
    show(u"USE RATE (8) "_s);
    readAt(3);
    replace().click();
    show(u"USE RATE (100) "_s);
    preview.refreshNow();
    EXPECT_TRUE(replace().isEnabled());
    replace().click();
    EXPECT_EQ(joystick().text(), u"USE RATE (100)"_s);
}

TEST_F(Preview, TypingBeforeAStatementThatWasReadMovesIt)
{
    setJoystick(u"USE RATE (50)"_s, 3);
    readAt(3);
    joystick().select(0, 0);
    type(DocumentKind::Joystick, u"Rem x\n"_s);
    show(u"USE RATE (80)"_s);
    preview.refreshNow();
    replace().click();
    EXPECT_EQ(joystick().text(), u"Rem x\nUSE RATE (80)"_s);
}

TEST_F(Preview, AStatementThatWasChangedMeanwhileIsNotReplaced)
{
    setJoystick(u"USE RATE (50)"_s, 11);
    show(u"USE RATE (80)"_s);
    readAt(3);
    type(DocumentKind::Joystick, u"7"_s);
    preview.refreshNow();
    EXPECT_FALSE(replace().isEnabled());
    setJoystick(u"BTN S1 a"_s);
    preview.refreshNow();
    EXPECT_FALSE(replace().isEnabled());
}

TEST_F(Preview, CommentsWithinAStatementAreAskedAbout)
{
    const QString before = u"BTN S1 /U a Rem up\n  /M b"_s;
    setJoystick(before, 0);
    show(u"BTN S1 c"_s);
    readAt(0);
    dialogs.answer(u"There are comments in it"_s, BoxButton::No);
    replace().click();
    EXPECT_EQ(joystick().text(), before);
    dialogs.answer(u"There are comments in it"_s, BoxButton::Yes);
    replace().click();
    EXPECT_EQ(joystick().text(), u"BTN S1 c"_s);
}

TEST_F(Preview, ARefusalReplacesNothing)
{
    setJoystick(u"USE RATE (50)"_s, 3);
    page.show(tl::unexpected(missingText()));
    readAt(3);
    EXPECT_FALSE(replace().isEnabled());
}
