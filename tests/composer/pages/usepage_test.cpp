// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "tests/composer/pages/use_page_fixture.h"

using namespace zeph;
using namespace zeph::test;

namespace {

const QString nobodysProblem = u"I've got a problem ..."_s;

} // namespace

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
    const std::pair<QString, QString> described[] = {
        { u"6"_s, u"Default setting. Application is displayed as an icon. Zeph remains active."_s },
        { u"0"_s, u"Application is hidden and focus is passed to the hidden window."_s },
        { u"1"_s, u"Application has focus and is restored to its original size and position."_s },
        { u"2"_s, u"Application is maximised with focus."_s },
        { u"3"_s, u"Window is maximised with focus."_s },
        { u"4"_s,
          u"Application is restored to its most recent size and position. Zeph remains the "
          "active Window."_s },
    };
    for (const auto &[style, text] : described) {
        list(4).setCurrentText(style);
        EXPECT_EQ(description.text(), text);
    }
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
    paths.hotasFolder = folder.file(u"none/"_s);
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
    QStringList filters;
    for (const FileRequest &asked : dialogs.files())
        filters.append(asked.filter);
    filters.removeDuplicates();
    EXPECT_EQ(
        filters,
        (QStringList{
            u"Macro file (*.tmm)|*.tmm"_s, u"Image files (*.bmp,*.jpg,*.gif)|*.bmp;*.jpg;*.gif"_s,
            u"Text files (*.txt,*.rtf)|*.txt;*.rtf"_s,
            u"Executables (*.exe)|*.exe|Batch files (*.bat)|*.bat|All files (*.*)|*.*"_s }));
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

TEST_F(UsePageTest, ThePreviewHasTheBlankBeforeTheWordAtTheCaret)
{
    tabs(u"SSTab5"_s).setCurrentIndex(7);
    tick(2).setChecked(true);
    EXPECT_EQ(preview(), u"USE H1U AS SHIFTBTN");
    set(J, u"a b"_s);
    file().select(0, 0);
    EXPECT_EQ(preview(), u"USE H1U AS SHIFTBTN ");
    file().select(1, 0);
    EXPECT_EQ(preview(), u"USE H1U AS SHIFTBTN");
    file().select(3, 0);
    EXPECT_EQ(preview(), u"USE H1U AS SHIFTBTN");
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
