// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "platform/colours.h"
#include "preferences/colourspage.h"

#include "documents/text_control.h"
#include "settings/colour_settings.h"
#include "settings/settings_files.h"
#include "tests/support/shell_world.h"

#include <QCheckBox>
#include <QComboBox>
#include <QListView>
#include <QListWidget>
#include <QPushButton>
#include <QSpinBox>
#include <QTabWidget>
#include <QTest>
#include <QVBoxLayout>

using namespace zeph;

namespace {

using G = ColourSettings;

constexpr ColorRef lime = 0x00FF32;

/// The page in a dialog with a default button, as Preferences has it.
class ColoursPageTest : public test::ShellWorld
{
public:
    void SetUp() override
    {
        setFirstRunColours(settings.of<ColourSettings>());
        settings.of<ColourSettings>().BTNColour = colorRef(200, 0, 0);
        settings.of<ColourSettings>().SlashColour = colorRef(0, 120, 0);
        settings.of<ColourSettings>().RAWColour = colorRef(0, 0, 210);
        settings.of<ColourSettings>().MiscellaneousColour = colorRef(150, 0, 150);
        settings.of<ColourSettings>().RemStatements = colorRef(90, 90, 90);
        settings.of<ColourSettings>().JoystickTextDefaultColour = colorRef(10, 20, 30);
        settings.of<ColourSettings>().MacroTextDefaultColour = colorRef(30, 20, 10);
    }
    void make()
    {
        window = std::make_unique<QDialog>();
        page = new ColoursPage(context(), window.get());
        auto *layout = new QVBoxLayout(window.get());
        layout->addWidget(page);
        auto *ok = new QPushButton(u"OK"_s);
        ok->setDefault(true);
        layout->addWidget(ok);
        QObject::connect(ok, &QPushButton::clicked, window.get(), &QDialog::accept);
        window->show();
    }
    template <class T = QWidget> T *child(const QString &name) const
    {
        T *found = page->findChild<T *>(name);
        if (!found) {
            throw std::runtime_error(name.toStdString());
        }
        return found;
    }
    TextControl &sample(const QString &name) const { return *child<TextControl>(name); }
    QListWidget &list() const { return *child<QListWidget>(u"List1"_s); }

    /// The colour in which the first place of a piece of text is shown.
    static QColor colourOf(const TextControl &control, const QString &piece)
    {
        QTextCursor cursor = control.document()->find(piece, 0, QTextDocument::FindCaseSensitively);
        EXPECT_FALSE(cursor.isNull()) << piece.toStdString();
        return toColor(
            control.shown().richText(cursor.selectionStart(), 1).formatAt(0).colour.value_or(0));
    }
    /// The colour in the middle of a category's swatch.
    QColor swatch(int row) const
    {
        const QImage drawn = list().item(row)->icon().pixmap(list().iconSize()).toImage();
        return drawn.pixelColor(drawn.rect().center());
    }
    void choose(int row, ColorRef colour)
    {
        list().setCurrentRow(row);
        dialogs.answerColour(colour);
        QTest::mouseClick(child<QPushButton>(u"CMD_ChangeColour"_s), Qt::LeftButton);
    }

    std::unique_ptr<QDialog> window;
    ColoursPage *page = nullptr;
};

/// What each class of words has to look like in the samples.
struct WordCase {
    const char *name;
    QStringView sample;
    QStringView piece;
    ColorRef G::*colour;
};

const WordCase words[] = {
    { "Buttons", u"SampleJoystick", u"BTN", &ColourSettings::BTNColour },
    { "NamesOfButtons", u"SampleJoystick", u"S1", &ColourSettings::BTNColour },
    { "Flags", u"SampleJoystick", u"DEF X1", &ColourSettings::BTNColour },
    { "Comments", u"SampleJoystick", u"air to air", &ColourSettings::RemStatements },
    { "Slashes", u"SampleJoystick", u"/U", &ColourSettings::SlashColour },
    { "Delays", u"SampleJoystick", u"DLY", &ColourSettings::RAWColour },
    { "Configuration", u"SampleJoystick", u"MDEF", &ColourSettings::MiscellaneousColour },
    { "OtherText", u"SampleJoystick", u"Radar_On", &ColourSettings::JoystickTextDefaultColour },
    { "MacroComments", u"SampleMacro", u"Weapons", &ColourSettings::RemStatements },
    { "MacroSlashes", u"SampleMacro", u"/P", &ColourSettings::SlashColour },
    { "MacroDelays", u"SampleMacro", u"DLY", &ColourSettings::RAWColour },
    { "OtherMacroText", u"SampleMacro", u"Fire_Gun", &ColourSettings::MacroTextDefaultColour },
};

class ColouredWord : public ColoursPageTest, public testing::WithParamInterface<WordCase>
{
};

} // namespace

TEST_P(ColouredWord, HasTheSchemesColourAndAnotherAtOnce)
{
    make();
    const WordCase &word = GetParam();
    const TextControl &shown = sample(word.sample.toString());
    const ColorRef colour = settings.of<ColourSettings>().*word.colour;
    EXPECT_EQ(colourOf(shown, word.piece.toString()),
              QColor(redOf(colour), greenOf(colour), blueOf(colour)));

    int row = 0;
    const ColorRef G::*rows[] = { &ColourSettings::BTNColour,
                                  nullptr,
                                  &ColourSettings::RemStatements,
                                  &ColourSettings::SlashColour,
                                  &ColourSettings::RAWColour,
                                  &ColourSettings::MiscellaneousColour,
                                  nullptr,
                                  &ColourSettings::JoystickTextDefaultColour,
                                  &ColourSettings::MacroTextDefaultColour };
    while (rows[row] != word.colour) {
        ++row;
    }
    choose(row, lime);
    EXPECT_EQ(colourOf(shown, word.piece.toString()), QColor(0x32, 0xFF, 0x00));
    EXPECT_EQ(swatch(row), QColor(0x32, 0xFF, 0x00));
    EXPECT_EQ(settings.of<ColourSettings>().*word.colour, colour) << "not before it is collected";
    page->collect();
    EXPECT_EQ(settings.of<ColourSettings>().*word.colour, lime);
}

INSTANTIATE_TEST_SUITE_P(Preferences, ColouredWord, testing::ValuesIn(words),
                         [](const auto &instance) { return std::string(instance.param.name); });

TEST_F(ColoursPageTest, BackgroundsAreThoseOfTheScheme)
{
    make();
    EXPECT_EQ(sample(u"SampleJoystick"_s).palette().base().color(), QColor(0xFD, 0xFA, 0xD9));
    EXPECT_EQ(sample(u"SampleMacro"_s).palette().base().color(), QColor(0xE3, 0xFB, 0xFD));
    choose(1, lime);
    choose(6, colorRef(1, 2, 3));
    EXPECT_EQ(sample(u"SampleJoystick"_s).palette().base().color(), QColor(0x32, 0xFF, 0x00));
    EXPECT_EQ(sample(u"SampleMacro"_s).palette().base().color(), QColor(1, 2, 3));
}

TEST_F(ColoursPageTest, TheMacroListHasTheListsFourColours)
{
    make();
    for (int row = 9; row <= 12; ++row) {
        choose(row, colorRef(quint32(row), 2, 3));
    }
    const QPalette macros = child<QListView>(u"SampleList"_s)->palette();
    EXPECT_EQ(macros.base().color(), QColor(9, 2, 3));
    EXPECT_EQ(macros.text().color(), QColor(10, 2, 3));
    const QPalette headings = child<QComboBox>(u"SampleHeadings"_s)->palette();
    EXPECT_EQ(headings.base().color(), QColor(11, 2, 3));
    EXPECT_EQ(headings.text().color(), QColor(12, 2, 3));
}

TEST_F(ColoursPageTest, TheSampleListShowsTheMacrosOfTheChosenHeading)
{
    make();
    auto *headings = child<QComboBox>(u"SampleHeadings"_s);
    const QAbstractItemModel &macros = *child<QListView>(u"SampleList"_s)->model();
    const auto isTicked = [&macros](int row) {
        return macros.index(row, 0).data(Qt::CheckStateRole) == Qt::Checked;
    };
    EXPECT_EQ(macros.rowCount(), 10);
    EXPECT_EQ(macros.index(0, 0).data(), u"Fire_Gun"_s);
    EXPECT_TRUE(isTicked(0));
    headings->setCurrentIndex(headings->findText(u"Radar and countermeasures"_s));
    EXPECT_EQ(macros.rowCount(), 6);
    EXPECT_EQ(macros.index(5, 0).data(), u"Panic"_s);
    EXPECT_FALSE(isTicked(5)) << "the joystick sample does not use it";
}

TEST_F(ColoursPageTest, ADoubleClickOnTheListOpensTheColourDialog)
{
    make();
    dialogs.answerColour(lime);
    const QPoint third = list().visualItemRect(list().item(2)).center();
    QTest::mouseClick(list().viewport(), Qt::LeftButton, {}, third);
    QTest::mouseDClick(list().viewport(), Qt::LeftButton, {}, third);
    page->collect();
    EXPECT_EQ(settings.of<ColourSettings>().RemStatements, lime);
}

TEST_F(ColoursPageTest, EnterOnTheListOpensTheColourDialogAndLeavesTheWindowOpen)
{
    make();
    list().setFocus();
    for (const Qt::Key key : { Qt::Key_Return, Qt::Key_Enter }) {
        dialogs.answerColour(lime + ColorRef(key == Qt::Key_Enter));
        QTest::keyClick(&list(), key);
        EXPECT_TRUE(window->isVisible());
    }
    page->collect();
    EXPECT_EQ(settings.of<ColourSettings>().BTNColour, lime + 1);
}

TEST_F(ColoursPageTest, ACancelledColourDialogChangesNothing)
{
    make();
    dialogs.answerColour(std::nullopt);
    child<QPushButton>(u"CMD_ChangeColour"_s)->click();
    page->collect();
    EXPECT_EQ(settings.of<ColourSettings>().BTNColour, colorRef(200, 0, 0));
}

TEST_F(ColoursPageTest, ChoosingACategoryShowsAPageOnWhichItIsSeen)
{
    make();
    const auto *pages = child<QTabWidget>(u"SSTab2"_s);
    EXPECT_EQ(pages->currentIndex(), 0);
    list().setCurrentRow(6);
    EXPECT_EQ(pages->tabText(pages->currentIndex()), u"&Macro file");
    list().setCurrentRow(3);
    EXPECT_EQ(pages->tabText(pages->currentIndex()), u"&Macro file");
    list().setCurrentRow(12);
    EXPECT_EQ(pages->tabText(pages->currentIndex()), u"Macro &List");
    list().setCurrentRow(0);
    EXPECT_EQ(pages->tabText(pages->currentIndex()), u"&Joystick file");
}

TEST_F(ColoursPageTest, FontSizeAndBoldAreSeenAtOnceAndKept)
{
    make();
    auto *fonts = child<QComboBox>(u"TextFontName"_s);
    ASSERT_GT(fonts->count(), 1);
    const int other = fonts->currentIndex() == 0 ? 1 : 0;
    const QString name = fonts->itemText(other);
    fonts->setCurrentIndex(other);
    child<QSpinBox>(u"TextFontSize"_s)->setValue(13);
    child<QCheckBox>(u"TextFontBold"_s)->setChecked(true);
    for (const QString &each : { u"SampleJoystick"_s, u"SampleMacro"_s }) {
        const CharFormat look = sample(each).shown().richText(0, 1).formatAt(0);
        EXPECT_EQ(look.family, name);
        EXPECT_EQ(look.pointSize, 13);
        EXPECT_TRUE(look.bold);
    }
    page->collect();
    EXPECT_EQ(settings.of<ColourSettings>().TextFontName, name);
    EXPECT_EQ(settings.of<ColourSettings>().TextFontSize, 13);
    EXPECT_EQ(settings.of<ColourSettings>().TextFontBold, 1);
}

TEST_F(ColoursPageTest, WhatTheFontFieldsCannotShowStaysUntouched)
{
    settings.of<ColourSettings>().TextFontName = u"Wingless Dings"_s;
    settings.of<ColourSettings>().TextFontSize = 8.25;
    make();
    auto *fixed = child<QCheckBox>(u"CHK_FixedPitch"_s);
    EXPECT_EQ(child<QComboBox>(u"TextFontName"_s)->currentText(), u"Wingless Dings");
    fixed->setChecked(true);
    EXPECT_EQ(child<QComboBox>(u"TextFontName"_s)->currentText(), QString());
    EXPECT_EQ(child<QComboBox>(u"TextFontName"_s)->placeholderText(), u"Wingless Dings");
    page->collect();
    EXPECT_EQ(settings.of<ColourSettings>().TextFontName, u"Wingless Dings");
    fixed->setChecked(false);
    EXPECT_EQ(child<QComboBox>(u"TextFontName"_s)->currentText(), u"Wingless Dings");
    page->collect();
    EXPECT_EQ(settings.of<ColourSettings>().TextFontName, u"Wingless Dings");
    EXPECT_EQ(settings.of<ColourSettings>().TextFontSize, 8.25);
}

TEST_F(ColoursPageTest, FixedPitchFontsOnlyNarrowsTheList)
{
    make();
    const auto *fonts = child<QComboBox>(u"TextFontName"_s);
    const int all = fonts->count();
    child<QCheckBox>(u"CHK_FixedPitch"_s)->setChecked(true);
    EXPECT_LT(fonts->count(), all);
    for (int i = 0; i < fonts->count(); ++i) {
        const QString name = fonts->itemText(i);
        EXPECT_TRUE(QFontDatabase::isFixedPitch(name)) << name.toStdString();
    }
    child<QCheckBox>(u"CHK_FixedPitch"_s)->setChecked(false);
    EXPECT_EQ(fonts->count(), all);
}

TEST_F(ColoursPageTest, TheHelpButtonTellsWhyFixedPitch)
{
    make();
    dialogs.answer(u"Lining up slash modifiers"_s, BoxButton::Ok);
    child<QPushButton>(u"CMD_FontHelp"_s)->click();
    ASSERT_EQ(dialogs.boxes().size(), 1);
    EXPECT_EQ(dialogs.boxes()[0].text,
              u"If you want all your slash modifiers to line up as they do in Notepad, choose a "
              "fixed pitch font, like Courier New.");
}

TEST_F(ColoursPageTest, DarkColoursComeOnlyAfterAYesAndLeaveTheFont)
{
    make();
    const QString title = u"Shall I turn off the lights?"_s;
    child<QSpinBox>(u"TextFontSize"_s)->setValue(13);
    dialogs.answer(title, BoxButton::No);
    child<QPushButton>(u"CMD_DarkColours"_s)->click();
    EXPECT_GT(sample(u"SampleJoystick"_s).palette().base().color().lightness(), 200);
    dialogs.answer(title, BoxButton::Yes);
    child<QPushButton>(u"CMD_DarkColours"_s)->click();
    EXPECT_LT(sample(u"SampleJoystick"_s).palette().base().color().lightness(), 60);
    page->collect();
    ColourSettings dark = settings.of<ColourSettings>();
    setDarkColours(dark);
    EXPECT_EQ(settings.of<ColourSettings>().BTNColour, dark.BTNColour);
    EXPECT_EQ(settings.of<ColourSettings>().TextFontSize, 13);
}

TEST_F(ColoursPageTest, TheFirstRunsColoursComeBackOnlyAfterAYes)
{
    make();
    const QString title = u"Back to where we started?"_s;
    dialogs.answer(title, BoxButton::No);
    child<QPushButton>(u"CMD_FirstRunColours"_s)->click();
    page->collect();
    EXPECT_EQ(settings.of<ColourSettings>().BTNColour, colorRef(200, 0, 0));
    ASSERT_EQ(dialogs.boxes().size(), 1);
    EXPECT_EQ(dialogs.boxes()[0].defaultButton, BoxButton::No);

    dialogs.answer(title, BoxButton::Yes);
    child<QSpinBox>(u"TextFontSize"_s)->setValue(30);
    child<QPushButton>(u"CMD_FirstRunColours"_s)->click();
    EXPECT_EQ(child<QSpinBox>(u"TextFontSize"_s)->value(), 8);
    EXPECT_EQ(colourOf(sample(u"SampleJoystick"_s), u"BTN"_s), QColor(0, 0, 255));
    page->collect();
    EXPECT_EQ(settings.of<ColourSettings>().BTNColour, 16711680U);
    EXPECT_EQ(settings.of<ColourSettings>().TextFontSize, 8);
}
