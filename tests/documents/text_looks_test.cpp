// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "documents/styleeditor.h"
#include "documents/text_looks.h"
#include "settings/colour_settings.h"
#include "tests/support/painting_fixture.h"
#include "text/text_styles.h"

#include <QAction>
#include <QCheckBox>
#include <QFontComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QPushButton>
#include <QSpinBox>
#include <QTest>

#include "editor/right_menu.h"

using namespace zeph;

namespace {

class TextLooksTest : public test::PaintingTest
{
protected:
    ProfileFile store() const { return ProfileFile(paths.iniPath); }
};

} // namespace

TEST_F(TextLooksTest, BoldGoesOnWhereSomeIsPlainAndOffWhereAllIsBold)
{
    set(J, u"abcdef"_s);
    joystick()->shown().select(1, 2);
    editor->actions().action(u"mnuFormatArray1_0")->trigger();
    EXPECT_EQ(flagged(J, &CharFormat::bold), u".xx...");
    joystick()->shown().select(2, 3);
    editor->actions().action(u"mnuFormatArray1_0")->trigger();
    EXPECT_EQ(flagged(J, &CharFormat::bold), u".xxxx.");
    editor->actions().action(u"mnuFormatArray1_0")->trigger();
    EXPECT_EQ(flagged(J, &CharFormat::bold), u".x....");
    EXPECT_EQ(joystick()->shown().selLength(), 3);
}

TEST_F(TextLooksTest, EachEntryChangesItsOwnLook)
{
    set(J, u"abc"_s);
    joystick()->shown().select(0, 1);
    editor->actions().action(u"mnuFormatArray1_1")->trigger();
    joystick()->shown().select(1, 1);
    editor->actions().action(u"mnuFormatArray1_2")->trigger();
    EXPECT_EQ(flagged(J, &CharFormat::italic), u"x..");
    EXPECT_EQ(flagged(J, &CharFormat::underline), u".x.");
    EXPECT_EQ(flagged(J, &CharFormat::bold), u"...");
}

TEST_F(TextLooksTest, AChangeOfASelectionIsOneUndoStepAndToBeSaved)
{
    set(J, u"abc"_s);
    joystick()->shown().select(0, 3);
    editor->actions().action(u"mnuFormatArray1_0")->trigger();
    EXPECT_EQ(editor->joystick().state(), Document::Modified);
    editor->undos().mnuEditUndo_Click();
    EXPECT_EQ(flagged(J, &CharFormat::bold), u"...");
}

TEST_F(TextLooksTest, WithoutASelectionItHoldsForWhatIsTypedNext)
{
    set(J, u"a"_s);
    joystick()->shown().select(1, 0);
    editor->actions().action(u"mnuFormatArray1_0")->trigger();
    EXPECT_EQ(editor->joystick().state(), Document::Saved);
    QTest::keyClicks(joystick(), u"b"_s);
    editor->actions().action(u"mnuFormatArray1_0")->trigger();
    QTest::keyClicks(joystick(), u"c"_s);
    EXPECT_EQ(editor->joystickText(), u"abc");
    EXPECT_EQ(flagged(J, &CharFormat::bold), u".x.");
}

TEST_F(TextLooksTest, AProtectedMacroFileKeepsItsLooks)
{
    editor->documents().select(M);
    set(M, u"abc"_s);
    protectMacro();
    macro()->shown().select(0, 3);
    for (const QString &entry : { u"mnuFormatArray1_0"_s, u"mnuStyleArray_0"_s }) {
        dialogs.answer(u"File protected"_s, BoxButton::Ok);
        editor->actions().action(entry)->trigger();
    }
    EXPECT_EQ(macro()->shown().richText().formatAt(0), editor->documents().plainFormat(M));
}

TEST_F(TextLooksTest, AStyleSetsAllOfASelectionsLooks)
{
    TextStyles styles = defaultTextStyles();
    styles[7].format = { u"Courier"_s, 14, true, true, true, ColorRef(0x00FF00) };
    ASSERT_TRUE(writeTextStyles(store(), styles));
    set(J, u"abc"_s);
    joystick()->shown().select(1, 1);
    editor->actions().action(u"mnuStyleArray_7")->trigger();
    EXPECT_EQ(joystick()->shown().richText().formatAt(1), styles[7].format);
    EXPECT_EQ(joystick()->shown().richText().formatAt(2), editor->documents().plainFormat(J));
}

TEST_F(TextLooksTest, TheStylesNamesStandInBothMenus)
{
    TextStyles styles = defaultTextStyles();
    styles[2].name = u"Warnings"_s;
    ASSERT_TRUE(writeTextStyles(store(), styles));
    editor->applySettings();
    EXPECT_EQ(editor->action(u"mnuStyleArray_2")->text(), u"Warnings");
    EXPECT_EQ(editor->action(u"mnuStyleArray_6")->text(), u"/U style");
    const auto menu = editor->rightMenu().build();
    const auto *entry = menu->findChild<QAction *>(u"mnuRHMStyleArray_2"_s);
    ASSERT_TRUE(entry);
    EXPECT_EQ(entry->text(), u"Warnings");
    styles[2].name = u"Bombs & guns"_s;
    ASSERT_TRUE(writeTextStyles(store(), styles));
    editor->applySettings();
    // Doubled, an ampersand is shown instead of marking a letter.
    EXPECT_EQ(editor->action(u"mnuStyleArray_2")->text(), u"Bombs && guns");
}

TEST_F(TextLooksTest, TheRightMenusStyleStylesTheSelection)
{
    set(J, u"abc"_s);
    joystick()->shown().select(0, 3);
    const auto menu = editor->rightMenu().build();
    menu->findChild<QAction *>(u"mnuRHMStyleArray_6"_s)->trigger();
    EXPECT_EQ(joystick()->shown().richText().formatAt(0).colour, ColorRef(164));
}

TEST_F(TextLooksTest, TheFontOfBothTextsIsChosenKeptAndSet)
{
    set(J, u"BTN S1"_s);
    set(M, u"a = /U"_s);
    highlighting().mnuViewApplyColourBothFiles_Click();
    CharFormat font;
    font.family = u"Courier"_s;
    font.pointSize = 12;
    font.bold = true;
    dialogs.answerFont(font);
    editor->actions().action(u"mnuFormatFont")->trigger();
    for (const DocumentKind kind : { J, M }) {
        const CharFormat format = control(kind)->shown().richText().formatAt(0);
        EXPECT_EQ(format.family, u"Courier");
        EXPECT_EQ(format.pointSize, 12);
        EXPECT_TRUE(format.bold);
        EXPECT_EQ(editor->documents().of(kind).state(), Document::Saved);
    }
    EXPECT_EQ(colours(J), u"bbbbbb");
    EXPECT_EQ(colours(M), u"....ss");
    EXPECT_EQ(store().text(u"Colours", u"TextFontName"), u"Courier");
    EXPECT_EQ(store().text(u"Colours", u"TextFontSize"), u"12");
    EXPECT_EQ(store().text(u"Colours", u"TextFontBold"), u"1");
}

TEST_F(TextLooksTest, ACancelledFontDialogChangesNothing)
{
    set(J, u"abc"_s);
    dialogs.answerFont(std::nullopt);
    editor->actions().action(u"mnuFormatFont")->trigger();
    EXPECT_EQ(settings.of<ColourSettings>().TextFontName, u"Arial");
    EXPECT_EQ(store().text(u"Colours", u"TextFontName"), QString());
}

TEST_F(TextLooksTest, TheStyleEditorKeepsWhatOkConfirms)
{
    editor->actions().action(u"mnuFormatStyleEditor")->trigger();
    auto *window = editor->findChild<StyleEditor *>(u"StyleEditor"_s);
    ASSERT_TRUE(window);
    EXPECT_TRUE(window->isVisible());
    window->findChild<QListWidget *>(u"ListStyles"_s)->setCurrentRow(3);
    auto *name = window->findChild<QLineEdit *>(u"TextName"_s);
    name->selectAll();
    QTest::keyClicks(name, u"Radar"_s);
    QTest::mouseClick(window->findChild<QPushButton *>(u"cmdOK"_s), Qt::LeftButton);
    EXPECT_EQ(store().text(u"Colours", u"StyleName4"), u"Radar");
    EXPECT_EQ(editor->action(u"mnuStyleArray_3")->text(), u"Radar");
}

TEST_F(TextLooksTest, TheStyleEditorKeepsNothingWhenCancelled)
{
    editor->actions().action(u"mnuFormatStyleEditor")->trigger();
    auto *window = editor->findChild<StyleEditor *>(u"StyleEditor"_s);
    ASSERT_TRUE(window);
    window->findChild<QCheckBox *>(u"CheckBold"_s)->click();
    QTest::keyClick(window, Qt::Key_Escape);
    EXPECT_FALSE(QFile::exists(paths.iniPath));
}

TEST_F(TextLooksTest, TheStyleEditorOpensOnce)
{
    editor->actions().action(u"mnuFormatStyleEditor")->trigger();
    editor->actions().action(u"mnuFormatStyleEditor")->trigger();
    EXPECT_EQ(editor->findChildren<StyleEditor *>().size(), 1);
}

namespace {

class StyleEditorTest : public testing::Test
{
protected:
    StyleEditorTest() { window.show(); }
    ~StyleEditorTest() override { EXPECT_TRUE(dialogs.unexpected().isEmpty()); }

    template <class T> T *field(const QString &name) { return window.findChild<T *>(name); }
    void choose(int style) { field<QListWidget>(u"ListStyles"_s)->setCurrentRow(style); }
    QLabel *preview() { return field<QLabel>(u"LabelPreview"_s); }

    ScriptedDialogs dialogs;
    StyleEditor window{ defaultTextStyles(), 0x00FFFF, dialogs };
};

} // namespace

TEST_F(StyleEditorTest, OpensOnTheFirstStyleWithoutChangingAny)
{
    EXPECT_EQ(field<QListWidget>(u"ListStyles"_s)->count(), 9);
    EXPECT_EQ(field<QLineEdit>(u"TextName"_s)->text(), u"Style 1");
    choose(8);
    EXPECT_EQ(field<QLineEdit>(u"TextName"_s)->text(), u"/D style");
    choose(0);
    EXPECT_EQ(window.styles(), defaultTextStyles());
}

TEST_F(StyleEditorTest, EachFieldChangesTheChosenStyleAlone)
{
    choose(6);
    field<QCheckBox>(u"CheckBold"_s)->click();
    field<QCheckBox>(u"CheckUnderline"_s)->click();
    field<QSpinBox>(u"SpinSize"_s)->setValue(12);
    dialogs.answerColour(ColorRef(0x0000FF));
    field<QPushButton>(u"CommandColour"_s)->click();
    TextStyles expected = defaultTextStyles();
    expected[6].format.bold = true;
    expected[6].format.underline = true;
    expected[6].format.pointSize = 12;
    expected[6].format.colour = 0x0000FF;
    EXPECT_EQ(window.styles(), expected);
    choose(1);
    EXPECT_FALSE(field<QCheckBox>(u"CheckBold"_s)->isChecked());
    EXPECT_EQ(window.styles(), expected);
}

TEST_F(StyleEditorTest, ThePreviewFollowsAtOnce)
{
    field<QCheckBox>(u"CheckItalic"_s)->click();
    field<QSpinBox>(u"SpinSize"_s)->setValue(20);
    EXPECT_TRUE(preview()->font().italic());
    EXPECT_EQ(preview()->font().pointSize(), 20);
    EXPECT_EQ(preview()->palette().color(QPalette::Window), QColor(255, 255, 0));
    dialogs.answerColour(ColorRef(0x0000FF));
    field<QPushButton>(u"CommandColour"_s)->click();
    EXPECT_EQ(preview()->palette().color(QPalette::WindowText), QColor(255, 0, 0));
}

TEST_F(StyleEditorTest, ACancelledColourDialogChangesNothing)
{
    dialogs.answerColour(std::nullopt);
    field<QPushButton>(u"CommandColour"_s)->click();
    EXPECT_EQ(window.styles(), defaultTextStyles());
}

TEST_F(StyleEditorTest, TheListShowsTheNameAsItIsTyped)
{
    auto *name = field<QLineEdit>(u"TextName"_s);
    name->selectAll();
    QTest::keyClicks(name, u"Red"_s);
    EXPECT_EQ(field<QListWidget>(u"ListStyles"_s)->item(0)->text(), u"Red");
    EXPECT_EQ(window.styles()[0].name, u"Red");
}

TEST_F(StyleEditorTest, AStyleWithoutANameHasItsFirstOneAgain)
{
    choose(6);
    auto *name = field<QLineEdit>(u"TextName"_s);
    name->selectAll();
    QTest::keyClicks(name, u"  "_s);
    EXPECT_EQ(window.styles()[6].name, u"/U style");
}

TEST_F(StyleEditorTest, AFontThatIsNotInstalledStaysUntilAnotherIsChosen)
{
    TextStyles styles = defaultTextStyles();
    styles[0].format.family = u"No such font of anybody"_s;
    StyleEditor other(styles, 0, dialogs);
    other.findChild<QCheckBox *>(u"CheckBold"_s)->click();
    EXPECT_EQ(other.styles()[0].format.family, u"No such font of anybody");
}
