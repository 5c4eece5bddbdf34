// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "composer/pages/usepage.h"

#include "composer/composer_editor.h"
#include "composer/composer_settings.h"
#include "composer/statement_inserter.h"
#include "tests/support/composer_world.h"
#include "tests/support/painting_fixture.h"

#include <QApplication>
#include <QListWidget>
#include <QRadioButton>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>

using namespace zeph;

namespace {

const QString nobodysProblem = u"I've got a problem ..."_s;

/// The Editor as far as the page needs it, which is not at all.
class QuietEditor : public ComposerEditor
{
public:
    QList<MacroGroup> macroGroups() const override { return {}; }
    void ShowMacroKeys(const QString &) override { }
    void TickMacroList(const QString &) override { }
    void FindMacroInJF(const QString &) override { }
    void editMacro(const QString &) override { }
    int DefaultDLYvalue() const override { return 60; }
    void setDefaultDLYvalue(int) override { }
    QAction *action(QStringView) const override { return nullptr; }
    void ResetFocusToEditor() override { }
    void showCaretLine() override { }
};

class UsePageTest : public test::PaintingTest
{
protected:
    void SetUp() override
    {
        paths.hotasFolder = folder.path() + u'/';
        folder.write(u"Profiles/zulu.tmc"_s, "x");
        folder.write(u"Profiles/Alpha.tmc"_s, "x");
        folder.write(u"Profiles/notes.txt"_s, "x");
        make();
    }
    void make()
    {
        page = std::make_unique<UsePage>(ComposerParts{ shared, documents(), inserter, quiet },
                                         nullptr);
    }
    /// Shows the page as the window in front.
    void showPage()
    {
        page->show();
        QApplication::setActiveWindow(page.get());
        ASSERT_TRUE(QTest::qWaitForWindowActive(page.get()));
    }

    Documents &documents() { return editor->documents(); }
    Document &file() { return documents().joystick(); }
    template <class T> T &control(const QString &name) const
    {
        auto *found = page->findChild<T *>(name);
        if (!found)
            qFatal("no %s", qPrintable(name));
        return *found;
    }
    QLineEdit &text(int i) const { return control<QLineEdit>(u"TXT_USE_%1"_s.arg(i)); }
    QCheckBox &tick(int i) const { return control<QCheckBox>(u"CHK_Use_%1"_s.arg(i)); }
    QComboBox &list(int i) const { return control<QComboBox>(u"ComboUSEDX_%1"_s.arg(i)); }
    QListWidget &profiles() const { return control<QListWidget>(u"File1_0"_s); }
    QRadioButton &option(const QString &name) const { return control<QRadioButton>(name); }
    QTabWidget &tabs(const QString &name) const { return control<QTabWidget>(name); }
    void press(const QString &name) const { control<QPushButton>(name).click(); }
    void insert(int i) const { press(u"CMD_UseInsert_%1"_s.arg(i)); }

    /// What a button writes into an empty joystick file, without a line end.
    QString inserted(int i)
    {
        settings.of<ComposerSettings>().CompTabsAddCr = false;
        set(J, {});
        insert(i);
        return file().text();
    }
    QString preview() const
    {
        const auto current = page->current();
        if (!current)
            return u"nothing"_s;
        return *current ? (*current)->text() : current->error().text;
    }

    QuietEditor quiet;
    Context shared = context();
    StatementInserter inserter{ shared, editor->documents(), quiet };
    std::unique_ptr<UsePage> page;
};

/// What each button writes after fillFields(), and the colours of its characters: "3m." is "mmm.".
struct Written {
    int button;
    const char16_t *text;
    bool startsLine;
    const char *colours;
};

// clang-format off
const Written written[] = {
    { 0, u"USE MDEF Falcon.tmm ", true, "3m.4m.10.." },
    { 1, u"RATE (60)", false, "4m.r2.r" },
    { 2, u"USE T10 AS DX28 ", true, "3m.3..2m.4.." },
    { 3, u"SHIFTBTN (S4) ", false, "8m.r2.r." },
    { 4, u"USE S3_LOCK ", true, "3m.7m." },
    { 5, u"S3_LOCK ", false, "7m." },
    { 6, u"S3_UNLOCK ", false, "9m." },
    { 7, u"USE HAT2_SENSITIVITY (5) ", true, "3m.16m.r.r." },
    { 8, u"USE T1_SENSITIVITY (7) ", true, "3m.14m.r.r." },
    { 9, u"REVERSE_TOGGLES ", false, "15m." },
    { 10, u"RESET_TOGGLES ", false, "13m." },
    { 11, u"USE KEYBOARD AZERTY ", true, "3m.8m.6.." },
    { 12, u"STICK_OFF ", false, "9!." },
    { 13, u"USE PROFILE Alpha.tmc (AUTO)", true, "3m.7m.9..r4mr" },
    { 14, u"USE CHORDED_FDFU ", true, "3m.12m." },
    { 15, u"USE NULLCHR #", true, "3m.7m.." },
    { 16, u"EMPTY_BUFFERS ", false, "13!." },
    { 17, u"USE ZEPH GRAPHIC a.bmp", true, "3m.4m.7m.5." },
    { 18, u"USE ZEPH README a.txt", true, "3m.4m.6m.5." },
    { 19, u"USE HWSTARTUP (EMULATION_ON, AXIS_MODE_WINDOWS, CALIBRATION_AUTO)", true,
      "3m.9m.r12r2.17r2.16rr" },
    { 20, u"USE ZEPH RUN_APP a.exe", true, "3m.4m.7!.5." },
};
// clang-format on

QString marks(QByteArrayView short_)
{
    QString all;
    int count = 0;
    for (const char each : short_) {
        if (each >= '0' && each <= '9') {
            count = count * 10 + (each - '0');
            continue;
        }
        all += QString(std::max(count, 1), QLatin1Char(each));
        count = 0;
    }
    return all;
}

class EachInsertButton : public UsePageTest, public testing::WithParamInterface<Written>
{
protected:
    void SetUp() override
    {
        UsePageTest::SetUp();
        const QStringList texts{ u"Falcon.tmm"_s, u"60"_s,    u"5"_s,     u"7"_s,
                                 u"#"_s,          u"a.bmp"_s, u"a.txt"_s, u"a.exe"_s };
        for (int i = 0; i < texts.size(); ++i)
            text(i).setText(texts[i]);
        list(0).setCurrentText(u"T10"_s);
        list(1).setCurrentText(u"28"_s);
        list(2).setCurrentText(u"S4"_s);
        list(3).setCurrentText(u"HAT2"_s);
    }

    const QString statement = QString::fromUtf16(GetParam().text);
    const QString looks = marks(GetParam().colours);
};

} // namespace

TEST_P(EachInsertButton, WritesIntoAnEmptyFileWithALineEnd)
{
    settings.of<ComposerSettings>().CompTabsAddCr = true;
    ASSERT_EQ(statement.size(), looks.size());
    insert(GetParam().button);
    EXPECT_EQ(file().text(), statement + u'\n');
    EXPECT_EQ(colours(J), looks + u'.');
    EXPECT_EQ(file().selStart(), file().length());
}

TEST_P(EachInsertButton, WritesNoLineEndWithoutTheTick)
{
    settings.of<ComposerSettings>().CompTabsAddCr = false;
    insert(GetParam().button);
    EXPECT_EQ(file().text(), statement);
    EXPECT_EQ(colours(J), looks);
}

TEST_P(EachInsertButton, WritesAtTheCaretOfALineAsOneStepToUndo)
{
    settings.of<ComposerSettings>().CompTabsAddCr = true;
    const QString before = u"BTN S1 abc\nBTN S2 d"_s;
    set(J, before);
    file().select(7, 0);
    insert(GetParam().button);
    const QString start = GetParam().startsLine ? u"\n"_s : QString();
    const QString head = u"BTN S1 "_s + start + statement + u" \n"_s;
    EXPECT_EQ(file().text(), head + u"abc\nBTN S2 d"_s);
    EXPECT_EQ(colours(J),
              u"......."_s + QString(start.size(), u'.') + looks + u".."_s + QString(12, u'.'));
    EXPECT_EQ(file().selStart(), head.size());
    EXPECT_EQ(file().selLength(), 0);
    EXPECT_TRUE(file().isModified());
    file().undo();
    EXPECT_EQ(file().text(), before);
    EXPECT_FALSE(file().history().canUndo());
}

TEST_P(EachInsertButton, ChoosesTheJoystickFileAndMindsNoProtectedMacroFile)
{
    settings.of<ComposerSettings>().CompTabsAddCr = false;
    set(M, u"a = b"_s);
    documents().setProtected(true);
    documents().select(M);
    insert(GetParam().button);
    EXPECT_EQ(file().text(), statement);
    EXPECT_EQ(documents().macro().text(), u"a = b");
    EXPECT_EQ(documents().selected().kind(), J);
}

TEST_P(EachInsertButton, IsWhatThePagePreviewsWhenItHasTheFocus)
{
    showPage();
    auto &button = control<QPushButton>(u"CMD_UseInsert_%1"_s.arg(GetParam().button));
    for (QWidget *inner = &button; inner != page.get(); inner = inner->parentWidget()) {
        for (const QString &name : { u"SSTab5"_s, u"SSTab8"_s, u"SSTab6"_s }) {
            if (const int at = tabs(name).indexOf(inner); at >= 0)
                tabs(name).setCurrentIndex(at);
        }
    }
    ASSERT_TRUE(button.isVisible());
    button.setFocus();
    EXPECT_EQ(preview(), statement);
}

TEST_P(EachInsertButton, ReadsItsStatementIntoAFreshPage)
{
    make();
    ASSERT_TRUE(page->read(statement));
    EXPECT_EQ(preview(), statement);
    EXPECT_EQ(inserted(GetParam().button), statement);
}

INSTANTIATE_TEST_SUITE_P(UsePage, EachInsertButton, testing::ValuesIn(written),
                         [](const auto &instance) {
                             return std::to_string(instance.param.button);
                         });

TEST_F(UsePageTest, ARateOfZeroIsWrittenAndAnEmptyOneRefused)
{
    text(1).setText(u"0"_s);
    EXPECT_EQ(inserted(1), u"RATE (0)");
    text(1).clear();
    dialogs.answer(u"Missing value"_s, BoxButton::Ok);
    EXPECT_EQ(inserted(1), u"");
    EXPECT_EQ(dialogs.boxes().last().text, u"Please enter a rate value");
}

TEST_F(UsePageTest, ARefusalLeavesTextAndHistoryAlone)
{
    struct Refused {
        int button;
        QString title;
        QString text;
    };
    const QList<Refused> all{
        { 1, u"Missing value"_s, u"Please enter a rate value"_s },
        { 7, u"Missing value"_s, u"Please enter a Sensitivity value"_s },
        { 8, u"Missing value"_s, u"Please enter a Sensitivity value"_s },
        { 15, nobodysProblem, u"You haven't assigned a character to use as the Null Character."_s },
        { 17, nobodysProblem, u"You haven't selected an image file."_s },
        { 18, nobodysProblem, u"You haven't selected a ReadMe file."_s },
    };
    for (const Refused &refused : all) {
        set(J, u"BTN S1 a"_s);
        dialogs.answer(refused.title, BoxButton::Ok);
        insert(refused.button);
        EXPECT_EQ(file().text(), u"BTN S1 a");
        EXPECT_FALSE(file().history().canUndo());
        EXPECT_EQ(dialogs.boxes().last().text, refused.text);
        EXPECT_EQ(dialogs.boxes().last().icon, BoxIcon::Exclamation);
    }
}

TEST_F(UsePageTest, TheTicksChangeWhatIsWritten)
{
    text(1).setText(u"60"_s);
    tick(0).setChecked(true);
    EXPECT_EQ(inserted(1), u"USE RATE (60)");
    tick(1).setChecked(true);
    EXPECT_EQ(inserted(2), u"USE ALL_DIRECTX_BUTTONS ");
    list(2).setCurrentText(u"S4"_s);
    EXPECT_EQ(inserted(3), u"SHIFTBTN (S4) ");
    tick(2).setChecked(true);
    EXPECT_EQ(inserted(3), u"USE S4 AS SHIFTBTN");
    tick(3).setChecked(true);
    EXPECT_EQ(inserted(9), u"/I REVERSE_TOGGLES ");
    EXPECT_EQ(inserted(10), u"RESET_TOGGLES ");
    tick(4).setChecked(true);
    EXPECT_EQ(inserted(10), u"/I RESET_TOGGLES ");
}

TEST_F(UsePageTest, TheSampleFollowsTheTickOfTheRate)
{
    const auto &sample = control<QLabel>(u"LabelSampleRate"_s);
    EXPECT_EQ(sample.text(), u"BTN S2 /T RATE (0)\n               /T RATE (60)");
    tick(0).setChecked(true);
    EXPECT_EQ(sample.text(), u"USE RATE (60)");
    tick(0).setChecked(false);
    EXPECT_EQ(sample.text(), u"BTN S2 /T RATE (0)\n               /T RATE (60)");
}

TEST_F(UsePageTest, AllDirectXButtonsNeedNoLists)
{
    const auto enabled = [this] {
        QList<bool> states;
        for (const int i : { 0, 1 }) {
            states.append(list(i).isEnabled());
            states.append(control<QLabel>(u"LabelUSEDX_%1"_s.arg(i)).isEnabled());
        }
        return states;
    };
    EXPECT_EQ(enabled(), QList<bool>(4, true));
    tick(1).setChecked(true);
    EXPECT_EQ(enabled(), QList<bool>(4, false));
    EXPECT_TRUE(list(2).isEnabled());
    tick(1).setChecked(false);
    EXPECT_EQ(enabled(), QList<bool>(4, true));
}

TEST_F(UsePageTest, TheListsHoldWhatCanBeChosen)
{
    EXPECT_EQ(list(0).count(), 32);
    EXPECT_EQ(list(0).itemText(0), u"H1U");
    EXPECT_EQ(list(0).itemText(16), u"TG1");
    EXPECT_EQ(list(0).itemText(31), u"T10");
    EXPECT_EQ(list(1).count(), 28);
    EXPECT_EQ(list(1).itemText(27), u"28");
    EXPECT_EQ(list(2).count(), 32);
    EXPECT_EQ(list(3).count(), 4);
    EXPECT_EQ(list(3).itemText(3), u"HAT4");
    QStringList styles;
    for (int i = 0; i < list(4).count(); ++i)
        styles.append(list(4).itemText(i));
    EXPECT_EQ(styles.join(u' '), u"0 1 2 3 4 6");
    EXPECT_EQ(list(4).currentText(), u"6");
}

TEST_F(UsePageTest, StyleSixWritesNoClauseAndStyleZeroDoes)
{
    text(7).setText(u"c:\\my tools\\a.exe -x"_s);
    EXPECT_EQ(inserted(20), u"USE ZEPH RUN_APP c:\\my tools\\a.exe -x");
    list(4).setCurrentText(u"0"_s);
    EXPECT_EQ(inserted(20), u"USE ZEPH RUN_APP c:\\my tools\\a.exe -x WINDOW_STYLE = 0");
}

TEST_F(UsePageTest, TheDescriptionFollowsTheStyle)
{
    const auto &description = control<QLabel>(u"LabelWindowType"_s);
    EXPECT_EQ(description.text(),
              u"Default setting. Application is displayed as an icon. Zeph remains active.");
    list(4).setCurrentText(u"3"_s);
    EXPECT_EQ(description.text(), u"Window is maximised with focus.");
}

TEST_F(UsePageTest, WithoutAnApplicationItIsAsked)
{
    const QString title = u"What should I insert here buddy?"_s;
    dialogs.answer(title, BoxButton::No);
    EXPECT_EQ(inserted(20), u"");
    EXPECT_EQ(dialogs.boxes().last().buttons, (QList{ BoxButton::Yes, BoxButton::No }));
    EXPECT_EQ(dialogs.boxes().last().text,
              u"You haven't selected an application to run with the USE ZEPH RUN_APP statement. "
              "Would you like me to go ahead anyway and insert the statement?");
    dialogs.answer(title, BoxButton::Yes);
    EXPECT_EQ(inserted(20), u"USE ZEPH RUN_APP ");
}

TEST_F(UsePageTest, AutocalibrationTakesTheUsersAxesAway)
{
    auto &windows = option(u"OptionHWAxismode_0"_s);
    auto &user = option(u"OptionHWAxismode_1"_s);
    EXPECT_FALSE(user.isEnabled());
    option(u"OptionHWCalibMode_1"_s).click();
    EXPECT_TRUE(user.isEnabled());
    user.click();
    option(u"OptionHWbuttonmode_1"_s).click();
    EXPECT_EQ(inserted(19), u"USE HWSTARTUP (EMULATION_OFF, AXIS_MODE_USER, CALIBRATION_MANUAL)");
    option(u"OptionHWCalibMode_0"_s).click();
    EXPECT_TRUE(windows.isChecked());
    EXPECT_FALSE(user.isEnabled());
    EXPECT_EQ(inserted(19), u"USE HWSTARTUP (EMULATION_OFF, AXIS_MODE_WINDOWS, CALIBRATION_AUTO)");
    option(u"OptionHWCalibMode_1"_s).click();
    EXPECT_TRUE(windows.isChecked());
    EXPECT_EQ(inserted(19),
              u"USE HWSTARTUP (EMULATION_OFF, AXIS_MODE_WINDOWS, CALIBRATION_MANUAL)");
}

TEST_F(UsePageTest, TheProfilesAreThoseOfTheCougarsFolder)
{
    ASSERT_EQ(profiles().count(), 2);
    EXPECT_EQ(profiles().currentRow(), 0);
    profiles().setCurrentRow(1);
    option(u"OptionProfiles_1"_s).click();
    EXPECT_EQ(inserted(13), u"USE PROFILE zulu.tmc (CUSTOM)");
    folder.write(u"Profiles/mike.tmc"_s, "x");
    press(u"Command2"_s);
    EXPECT_EQ(profiles().count(), 3);
    EXPECT_EQ(profiles().currentItem()->text(), u"Alpha.tmc");
    EXPECT_EQ(inserted(13), u"USE PROFILE Alpha.tmc (CUSTOM)");
}

TEST_F(UsePageTest, WithoutAProfileItsStatementIsRefused)
{
    paths.hotasFolder = folder.path() + u"/none/"_s;
    press(u"Command2"_s);
    EXPECT_EQ(profiles().count(), 0);
    dialogs.answer(u"No profiles found"_s, BoxButton::Ok);
    EXPECT_EQ(inserted(13), u"");
    EXPECT_EQ(dialogs.boxes().last().text,
              u"You don't have any Profiles present in "_s + paths.hotasFolder
                  + u". You need to use the CCP to create some."_s);
}

TEST_F(UsePageTest, BrowseTakesTheNameOfAFileButThePathOfAProgram)
{
    const QString program = folder.file(u"bin/a tool.exe"_s);
    const QStringList chosen{ folder.file(u"Files/my keys.tmm"_s), folder.file(u"Files/a.bmp"_s),
                              folder.file(u"Files/read me.txt"_s), program };
    const QStringList shown{ u"my keys.tmm"_s, u"a.bmp"_s, u"read me.txt"_s, program };
    const int boxes[] = { 0, 5, 6, 7 };
    for (int i = 0; i < 4; ++i) {
        dialogs.answerFile(chosen[i]);
        press(u"CMD_Browse_%1"_s.arg(i));
        EXPECT_EQ(text(boxes[i]).text(), shown[i]);
        dialogs.answerFile({});
        press(u"CMD_Browse_%1"_s.arg(i));
        EXPECT_EQ(text(boxes[i]).text(), shown[i]);
    }
    QStringList titles;
    QStringList folders;
    for (const FileRequest &asked : dialogs.files()) {
        titles.append(asked.title);
        folders.append(asked.folder);
    }
    titles.removeDuplicates();
    EXPECT_EQ(titles.join(u';'),
              u"Select your macrofile;Select your image file;Select your ReadMe file;"
              "Select your application");
    EXPECT_EQ(folders.first(6), QStringList(6, paths.filesFolder()));
    EXPECT_EQ(dialogs.files().first().filter, u"Macro file (*.tmm)|*.tmm");
    EXPECT_EQ(dialogs.files().last().filter,
              u"Executables (*.exe)|*.exe|Batch files (*.bat)|*.bat|All files (*.*)|*.*");
}

TEST_F(UsePageTest, EnteringNamesTheMacroFileAndSelectsIt)
{
    showPage();
    documents().macro().rename(folder.file(u"Files/Falcon.tmm"_s));
    page->enter();
    QCoreApplication::processEvents();
    EXPECT_EQ(text(0).text(), u"Falcon.tmm");
    EXPECT_TRUE(text(0).hasFocus());
    EXPECT_EQ(text(0).selectedText(), u"Falcon.tmm");
    text(0).setText(u"other.tmm"_s);
    page->enter();
    EXPECT_EQ(text(0).text(), u"Falcon.tmm");
}

TEST_F(UsePageTest, EnteringAnotherTabGoesToItsFirstControl)
{
    showPage();
    tabs(u"SSTab5"_s).setCurrentIndex(2);
    page->enter();
    EXPECT_TRUE(list(0).hasFocus());
    tabs(u"SSTab5"_s).setCurrentIndex(6);
    page->enter();
    EXPECT_TRUE(profiles().hasFocus());
}

TEST_F(UsePageTest, ABoxIsSelectedOnEntryButTheApplicationsCaretGoesToItsEnd)
{
    showPage();
    tabs(u"SSTab5"_s).setCurrentIndex(5);
    text(5).setText(u"picture.bmp"_s);
    text(5).setFocus();
    QCoreApplication::processEvents();
    EXPECT_EQ(text(5).selectedText(), u"picture.bmp");
    tabs(u"SSTab8"_s).setCurrentIndex(2);
    text(7).setText(u"c:\\a.exe"_s);
    text(7).setCursorPosition(0);
    text(7).setFocus(Qt::TabFocusReason);
    QCoreApplication::processEvents();
    EXPECT_FALSE(text(7).hasSelectedText());
    EXPECT_EQ(text(7).cursorPosition(), 8);
}

TEST_F(UsePageTest, ThePreviewIsOfTheTabInFront)
{
    EXPECT_EQ(preview(), u"USE MDEF  ");
    tabs(u"SSTab5"_s).setCurrentIndex(3);
    EXPECT_EQ(preview(), u"Please enter a Sensitivity value");
    text(3).setText(u"5"_s);
    EXPECT_EQ(preview(), u"USE T1_SENSITIVITY (5) ");
    text(2).setText(u"7"_s);
    EXPECT_EQ(preview(), u"USE HAT1_SENSITIVITY (7) ");
    tabs(u"SSTab5"_s).setCurrentIndex(8);
    EXPECT_EQ(preview(), u"EMPTY_BUFFERS ");
    tabs(u"SSTab6"_s).setCurrentIndex(1);
    EXPECT_EQ(preview(), u"STICK_OFF ");
    tabs(u"SSTab5"_s).setCurrentIndex(3);
    EXPECT_EQ(preview(), u"USE HAT1_SENSITIVITY (7) ");
}

TEST_F(UsePageTest, EveryChangeIsTold)
{
    QSignalSpy told(page.get(), &ComposerPage::changed);
    text(1).setText(u"1"_s);
    EXPECT_FALSE(told.isEmpty());
    told.clear();
    tick(4).setChecked(true);
    EXPECT_FALSE(told.isEmpty());
    told.clear();
    list(4).setCurrentIndex(0);
    EXPECT_FALSE(told.isEmpty());
    told.clear();
    profiles().setCurrentRow(1);
    EXPECT_FALSE(told.isEmpty());
    told.clear();
    tabs(u"SSTab8"_s).setCurrentIndex(1);
    EXPECT_FALSE(told.isEmpty());
    told.clear();
    option(u"OptionHWbuttonmode_1"_s).click();
    EXPECT_FALSE(told.isEmpty());
    told.clear();
    ASSERT_TRUE(page->read(u"USE T3 AS DX9"_s));
    EXPECT_EQ(told.size(), 1);
}

TEST_F(UsePageTest, ReadingTurnsToTheTabAndLeavesOtherFieldsAlone)
{
    text(1).setText(u"33"_s);
    ASSERT_TRUE(page->read(u"USE ZEPH RUN_APP c:\\a.exe -q WINDOW_STYLE = 2"_s));
    EXPECT_EQ(tabs(u"SSTab5"_s).currentIndex(), 5);
    EXPECT_EQ(tabs(u"SSTab8"_s).currentIndex(), 2);
    EXPECT_EQ(text(7).text(), u"c:\\a.exe -q");
    EXPECT_EQ(list(4).currentText(), u"2");
    EXPECT_EQ(text(1).text(), u"33");
    EXPECT_EQ(preview(), u"USE ZEPH RUN_APP c:\\a.exe -q WINDOW_STYLE = 2");
    ASSERT_TRUE(page->read(u"use hwstartup (emulation_off, axis_mode_user, calibration_manual)"_s));
    EXPECT_EQ(tabs(u"SSTab5"_s).currentIndex(), 8);
    EXPECT_EQ(tabs(u"SSTab6"_s).currentIndex(), 2);
    EXPECT_TRUE(option(u"OptionHWAxismode_1"_s).isChecked());
    EXPECT_TRUE(option(u"OptionHWAxismode_1"_s).isEnabled());
    EXPECT_EQ(preview(), u"USE HWSTARTUP (EMULATION_OFF, AXIS_MODE_USER, CALIBRATION_MANUAL)");
}

TEST_F(UsePageTest, WhatThePageCannotWriteIsNotRead)
{
    tabs(u"SSTab5"_s).setCurrentIndex(3);
    text(3).setText(u"5"_s);
    for (const QString &statement :
         { u"BTN S1 a"_s, u"USE MTYPE A1"_s, u"USE PROFILE gone.tmc (AUTO)"_s, QString() }) {
        EXPECT_FALSE(page->read(statement)) << statement.toStdString();
        EXPECT_EQ(tabs(u"SSTab5"_s).currentIndex(), 3);
        EXPECT_EQ(preview(), u"USE T1_SENSITIVITY (5) ");
        EXPECT_EQ(profiles().currentRow(), 0);
    }
}

TEST_F(UsePageTest, AProfileThatIsNewerThanTheListIsRead)
{
    folder.write(u"Profiles/mike.tmc"_s, "x");
    ASSERT_TRUE(page->read(u"USE PROFILE MIKE (CUSTOM)"_s));
    EXPECT_EQ(profiles().currentItem()->text(), u"mike.tmc");
    EXPECT_EQ(preview(), u"USE PROFILE mike.tmc (CUSTOM)");
}

TEST_F(UsePageTest, EnteringKeepsAMacroFileThatWasReadJustBefore)
{
    documents().macro().rename(folder.file(u"Files/Falcon.tmm"_s));
    ASSERT_TRUE(page->read(u"USE MDEF other.tmm"_s));
    page->enter();
    EXPECT_EQ(text(0).text(), u"other.tmm");
    page->enter();
    EXPECT_EQ(text(0).text(), u"Falcon.tmm");
}

namespace {

/// The page in the real window, over the real Editor.
class UseInComposer : public test::TestIn<test::ComposerWorld>
{
protected:
    void SetUp() override
    {
        settings.of<ComposerSettings>().CompTabsAddCr = true;
        showEditor();
        open().showPage(InsertOptions::Use);
    }
    int tabInFront() { return control<QTabWidget>(u"SSTab1"_s).currentIndex(); }
    QString text(int i) { return control<QLineEdit>(u"TXT_USE_%1"_s.arg(i)).text(); }
};

} // namespace

TEST_F(UseInComposer, TheTabNamesTheMacroFileAndHasTheFocus)
{
    EXPECT_EQ(text(0), u"Untitled.tmm");
    EXPECT_TRUE(control<QLineEdit>(u"TXT_USE_0"_s).hasFocus());
    macro().rename(folder.file(u"Files/Falcon.tmm"_s));
    composer()->showPage(InsertOptions::Composer);
    composer()->showPage(InsertOptions::Use);
    EXPECT_EQ(text(0), u"Falcon.tmm");
}

TEST_F(UseInComposer, TheBoxOfTheLineEndIsTheSettings)
{
    setJoystick(u"BTN S1 a"_s);
    click(u"CMD_UseInsert_4"_s);
    EXPECT_EQ(joystick().text(), u"BTN S1 a\nUSE S3_LOCK \n");
    EXPECT_TRUE(control<QCheckBox>(u"CheckMultiAddCR_4"_s).isChecked());
    click(u"CheckMultiAddCR_4"_s);
    EXPECT_FALSE(settings.of<ComposerSettings>().CompTabsAddCr);
    click(u"CMD_UseInsert_5"_s);
    EXPECT_EQ(joystick().text(), u"BTN S1 a\nUSE S3_LOCK \nS3_LOCK ");
    joystick().undo();
    EXPECT_EQ(joystick().text(), u"BTN S1 a\nUSE S3_LOCK \n");
}

TEST_F(UseInComposer, AStatementOfTheFileIsReadChangedAndReplacedInOneStep)
{
    const QString before = u"USE RATE (60)\nUSE MDEF old.tmm\nBTN S1 a"_s;
    composer()->showPage(InsertOptions::Composer);
    setJoystick(before, 20);
    click(u"CMD_ReadStatement"_s);
    EXPECT_EQ(tabInFront(), InsertOptions::Use);
    EXPECT_EQ(text(0), u"old.tmm");
    control<QLineEdit>(u"TXT_USE_0"_s).setText(u"new.tmm"_s);
    click(u"CMD_ReplaceStatement"_s);
    EXPECT_EQ(joystick().text(), u"USE RATE (60)\nUSE MDEF new.tmm\nBTN S1 a");
    joystick().undo();
    EXPECT_EQ(joystick().text(), before);
}

TEST_F(UseInComposer, AnotherStatementIsReadWhileThePageIsInFront)
{
    setJoystick(u"USE HAT3_SENSITIVITY (12) Rem slow\n"_s, 3);
    click(u"CMD_ReadStatement"_s);
    EXPECT_EQ(control<QTabWidget>(u"SSTab5"_s).currentIndex(), 3);
    EXPECT_EQ(control<QComboBox>(u"ComboUSEDX_3"_s).currentText(), u"HAT3");
    EXPECT_EQ(text(2), u"12");
}

TEST_F(UseInComposer, NoMnemonicOfATabMeansTwoThings)
{
    QStringList always;
    const QTabBar &pages = *control<QTabWidget>(u"SSTab1"_s).tabBar();
    for (int i = 0; i < pages.count(); ++i)
        always.append(QKeySequence::mnemonic(pages.tabText(i)).toString());
    const auto check = [&] {
        QStringList seen = always;
        for (const QWidget *each : composer()->findChildren<QWidget *>()) {
            const auto *button = qobject_cast<const QAbstractButton *>(each);
            const auto *label = qobject_cast<const QLabel *>(each);
            const QString caption = button ? button->text() : label ? label->text() : QString();
            const QString key = QKeySequence::mnemonic(caption).toString();
            if (!each->isVisible() || key.isEmpty())
                continue;
            EXPECT_FALSE(seen.contains(key)) << caption.toStdString();
            seen.append(key);
        }
    };
    for (const auto &[tab, inner] : { std::pair(5, u"SSTab8"_s), std::pair(8, u"SSTab6"_s) }) {
        control<QTabWidget>(u"SSTab5"_s).setCurrentIndex(tab);
        for (int i = 0; i < 3; ++i) {
            control<QTabWidget>(inner).setCurrentIndex(i);
            check();
        }
    }
    for (int i = 0; i < control<QTabWidget>(u"SSTab5"_s).count(); ++i) {
        control<QTabWidget>(u"SSTab5"_s).setCurrentIndex(i);
        check();
    }
}

TEST_F(UseInComposer, NoTabIsTooLargeForASmallScreen)
{
    const QSize least = composer()->minimumSizeHint();
    EXPECT_LE(least.width(), 1024);
    EXPECT_LE(least.height(), 720);
}
