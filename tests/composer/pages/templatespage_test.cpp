// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "composer/pages/templatespage.h"

#include "platform/richtext/rich_text_box.h"
#include "tests/support/composer_world.h"
#include "tests/support/fixture.h"

#include <QDir>
#include <QListWidget>
#include <QMenu>
#include <QTest>

using namespace zeph;

namespace {

const QByteArray bold = "{\\rtf1{\\colortbl;\\red255\\green0\\blue0;}{\\fonttbl{\\f0 Times;}}"
                        "\\f0\\fs40 one {\\b\\cf1 two}}";

class TemplatesPageTest : public test::TestIn<test::ComposerWorld>
{
protected:
    void SetUp() override
    {
        QDir(folder.path()).mkdir(u"Templates"_s);
        folder.write(u"Templates/b.rtf"_s, bold);
        folder.write(u"Templates/a.txt"_s, "plain\r\ntext");
        folder.write(u"Templates/A2.rtf"_s, "{\\rtf1 x}");
        folder.write(u"Templates/c.doc"_s, "none");
        showEditor();
        open().showPage(InsertOptions::Templates);
    }
    QListWidget &list() { return control<QListWidget>(u"Templates"_s); }
    RichTextBox &preview() { return control<RichTextBox>(u"TemplatesPreview"_s); }
    void choose(int row) { list().setCurrentRow(row); }
    QStringList listed()
    {
        QStringList names;
        for (int i = 0; i < list().count(); ++i) {
            names.append(list().item(i)->text());
        }
        return names;
    }
    void doubleClickPreview()
    {
        QTest::mouseDClick(preview().viewport(), Qt::LeftButton, {}, QPoint(5, 5));
    }
};

} // namespace

TEST_F(TemplatesPageTest, RichTextsAreListedBeforePlainOnes)
{
    EXPECT_EQ(listed(), (QStringList{ u"A2.rtf"_s, u"b.rtf"_s, u"a.txt"_s }));
}

TEST_F(TemplatesPageTest, TemplatesAreShownOnTheGroundOfTheFile)
{
    auto &colours = settings.of<ColourSettings>();
    colours.BackgroundColour = 0x332211;
    colours.JoystickTextDefaultColour = 0x0000FF;
    composer()->settingsChanged();
    EXPECT_EQ(preview().palette().color(QPalette::Base), QColor(0x11, 0x22, 0x33));
    EXPECT_EQ(preview().palette().color(QPalette::Text), QColor(0xFF, 0, 0));
}

TEST_F(TemplatesPageTest, RefreshReadsTheFolderAgainAndKeepsWhatIsShown)
{
    choose(1);
    folder.write(u"Templates/A0.rtf"_s, "{\\rtf1 y}");
    click(u"Command11_2"_s);
    EXPECT_EQ(listed().size(), 4);
    EXPECT_EQ(list().currentItem()->text(), u"b.rtf"_s);
    EXPECT_EQ(preview().toPlainText(), u"one two"_s);
}

TEST_F(TemplatesPageTest, ATemplateIsInsertedFormattedInTheFilesFont)
{
    choose(1);
    click(u"Command11_0"_s);
    EXPECT_EQ(joystick().text(), u"one two"_s);
    EXPECT_EQ(joystick().selStart(), 7);
    const RichText text = joystick().richText();
    EXPECT_FALSE(text.formatAt(0).bold);
    EXPECT_TRUE(text.formatAt(5).bold);
    EXPECT_EQ(text.formatAt(5).colour, ColorRef(0x0000FF));
    EXPECT_EQ(text.formatAt(0).family, joystick().plain().family);
    EXPECT_EQ(text.formatAt(5).pointSize, joystick().plain().pointSize);
    joystick().undo();
    EXPECT_EQ(joystick().text(), QString());
}

TEST_F(TemplatesPageTest, AtTheEndOfATextItGetsALineOfItsOwn)
{
    setJoystick(u"BTN S1 a"_s);
    choose(2);
    click(u"Command11_0"_s);
    EXPECT_EQ(joystick().text(), u"BTN S1 a\nplain\ntext"_s);
    joystick().undo();
    EXPECT_EQ(joystick().text(), u"BTN S1 a"_s);
}

TEST_F(TemplatesPageTest, ElsewhereItGoesInAtTheCaret)
{
    setJoystick(u"ab"_s, 1);
    choose(0);
    click(u"Command11_0"_s);
    EXPECT_EQ(joystick().text(), u"axb"_s);
}

TEST_F(TemplatesPageTest, TheButtonsSelectTheirFile)
{
    setJoystick(u"BTN"_s, 0);
    choose(0);
    click(u"Command11_1"_s);
    EXPECT_EQ(editor->selected().kind(), DocumentKind::Macro);
    EXPECT_EQ(macro().text(), u"x"_s);
    click(u"Command11_0"_s);
    EXPECT_EQ(editor->selected().kind(), DocumentKind::Joystick);
    EXPECT_EQ(joystick().text(), u"xBTN"_s);
}

TEST_F(TemplatesPageTest, ADoubleClickInsertsIntoTheSelectedFile)
{
    choose(0);
    setMacro(u"Fire = a"_s, 0);
    doubleClickPreview();
    EXPECT_EQ(macro().text(), u"xFire = a"_s);
}

TEST_F(TemplatesPageTest, AProtectedMacroFileRefuses)
{
    choose(0);
    setMacro(u"Fire = a"_s);
    editor->documents().setProtected(true);
    dialogs.answer(u"File protected"_s, BoxButton::Ok);
    doubleClickPreview();
    dialogs.answer(u"File protected"_s, BoxButton::Ok);
    click(u"Command11_1"_s);
    EXPECT_EQ(macro().text(), u"Fire = a"_s);
    click(u"Command11_0"_s);
    EXPECT_EQ(joystick().text(), u"x"_s);
}

TEST_F(TemplatesPageTest, AnEmptyPreviewDoesNothing)
{
    folder.write(u"Templates/a.txt"_s, "");
    choose(2);
    setMacro(u"a"_s);
    doubleClickPreview();
    EXPECT_EQ(macro().text(), u"a"_s);
    click(u"Command11_0"_s);
    EXPECT_EQ(joystick().text(), QString());
    EXPECT_EQ(editor->selected().kind(), DocumentKind::Macro);
}

TEST_F(TemplatesPageTest, ATemplateThatIsGoneIsTold)
{
    QFile::remove(folder.file(u"Templates/b.rtf"_s));
    dialogs.answer(u"Can't read file"_s, BoxButton::Ok);
    choose(1);
    EXPECT_EQ(preview().toPlainText(), QString());
}

TEST_F(TemplatesPageTest, TheMenuInsertsAndTellsOfTheQuickWay)
{
    choose(0);
    Q_EMIT preview().customContextMenuRequested(QPoint(2, 2));
    auto &menu = control<QMenu>(u"mnuTemplates"_s);
    EXPECT_TRUE(menu.isVisible());
    menu.close();
    menu.findChild<QAction *>(u"mnuMacrofile"_s)->trigger();
    EXPECT_EQ(macro().text(), u"x"_s);
    menu.findChild<QAction *>(u"mnuJoystick"_s)->trigger();
    EXPECT_EQ(joystick().text(), u"x"_s);
    dialogs.answer(u"Double clicking is quickest"_s, BoxButton::Ok);
    menu.findChild<QAction *>(u"mnuQuickie"_s)->trigger();
}
