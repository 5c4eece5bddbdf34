// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

// What "saved" means, and what Undo brings back.

#include "tests/program/notes.h"
#include "tests/program/program.h"

#include <gmock/gmock.h>

#include "platform/core/base.h"

using namespace zeph;
using namespace zeph::test;
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

namespace {

/// A program in which one joystick file is open.
struct ProgramHistory : testing::Test {
    static inline const QString undo = u"trigger mnuEditUndo"_s;
    static inline const QString redo = u"trigger mnuEditRedo"_s;
    static inline const QString save = u"trigger mnuFileSave"_s;
    static inline const QString saved = u"text Panel_1 saved successfully."_s;
    static inline const QString home = u"keys JoystickText Ctrl+Home"_s;

    Program program;
    QString path;

    ProgramHistory() { program.settle(); }

    QStringList run(const QByteArray &text, const QStringList &script)
    {
        path = program.write(u"Files/a.tmj"_s, text);
        return program.run(QStringList{ u"text JoystickText BTN"_s } + script, { path });
    }
    QByteArray onDisk() const { return program.read(u"Files/a.tmj"_s); }
};

} // namespace

TEST_F(ProgramHistory, ACompileAfterTheUndoOfASaveIsOfTheTextShown)
{
    run("BTN S99 b",
        { u"clipboard BTN S1 a"_s, u"trigger mnuEditSelectAll"_s, u"trigger mnuEditPaste"_s, save,
          saved, undo, u"text JoystickText BTN S99 b"_s, u"trigger mnuAppsCompile"_s,
          u"text Panel_1 error at line 1: ERROR 1002"_s, u"close"_s });
    EXPECT_EQ(onDisk(), "BTN S99 b");
}

TEST_F(ProgramHistory, ALookGivenByHandIsAskedAboutAtTheExitAndAColourOfTheHighlighterIsNot)
{
    run("BTN S1 a",
        { u"trigger mnuViewColourJoystick"_s, u"done"_s, u"trigger mnuRemoveColourJoystick"_s,
          u"done"_s, u"close"_s });
    run("BTN S1 a",
        { u"trigger mnuEditSelectAll"_s, u"trigger mnuFormatArray1_0"_s, u"done"_s, u"close"_s,
          u"box  Save a.tmj now?"_s, u"press Cancel"_s, u"gone  Save"_s, undo, u"done"_s,
          u"trigger mnuEditSelectAll"_s, u"trigger mnuStyleArray_0"_s, u"done"_s, u"close"_s,
          u"box  Save a.tmj now?"_s, u"press No"_s });
}

TEST_F(ProgramHistory, UndoneBackToTheSavedTextNothingIsAsked)
{
    run("BTN S1 a", { home, u"type JoystickText x"_s, undo, u"done"_s, u"close"_s });
    run("BTN S1 a",
        { home, u"type JoystickText x"_s, save, saved, undo, u"done"_s, redo, u"done"_s,
          u"close"_s });
}

TEST_F(ProgramHistory, NoToolLosesTheNewestTextWhileItIsUndone)
{
    for (const QString &tool :
         { u"trigger mnuBlockREM"_s, u"trigger mnuAlignSlash"_s, u"trigger mnuEditPaste"_s,
           u"trigger mnuPasteSimple"_s, u"press Command1_0"_s, u"trigger mnuStyleArray_0"_s }) {
        SCOPED_TRACE(tool.toStdString());
        run("BTN S1 /I a\r\n/O b\r\n",
            { u"clipboard pasted"_s, u"trigger mnuSlashWindow"_s, u"window Slash Modifiers"_s, home,
              u"type JoystickText new"_s, undo, u"usable mnuEditRedo 1"_s,
              u"keys JoystickText Shift+End"_s, tool, u"done"_s, u"usable mnuEditRedo 0"_s, undo,
              u"text JoystickText newBTN"_s, undo, u"usable mnuEditUndo 0"_s, u"close"_s });
    }
}

TEST_F(ProgramHistory, AToolThatChangesNoTextLeavesTheRedo)
{
    for (const QString &tool :
         { u"mnuViewColourJoystick"_s, u"mnuViewApplyColourBothFiles"_s, u"mnuViewHighlightLine"_s,
           u"mnuRemoveColourJoystick"_s, u"mnuViewReformat"_s, u"mnuViewrefreshIndent"_s,
           u"mnuBlockRemoveREM"_s }) {
        SCOPED_TRACE(tool.toStdString());
        run("BTN S1 /I a\r\n",
            { home, u"type JoystickText new"_s, undo, u"usable mnuEditRedo 1"_s,
              u"trigger "_s + tool, u"done"_s, redo, u"text JoystickText newBTN"_s, undo,
              u"usable mnuEditUndo 0"_s, u"close"_s });
    }
}

TEST_F(ProgramHistory, AfterTheUndosWereDeletedALetterCanBeUndoneToTheText)
{
    run("BTN S1 a",
        { home, u"type JoystickText one"_s, u"trigger mnuAppsPreferences"_s,
          u"window Preferences"_s, u"tab SSTab1 5"_s, u"press cmdDeleteUndos"_s,
          u"usable cmdDeleteUndos 0"_s, u"press cmdOK"_s, u"gone Preferences"_s,
          u"type JoystickText x"_s, u"text JoystickText onexBTN"_s, undo,
          u"text JoystickText oneBTN S1 a"_s, u"usable mnuEditUndo 0"_s, u"close"_s,
          u"box  Save a.tmj now?"_s, u"press No"_s });
}

TEST_F(ProgramHistory, WhatWasTypedOverComesBack)
{
    const QStringList notes = run(
        "BTN S1 a\r\n",
        { home, u"keys JoystickText Shift+End"_s, u"type JoystickText z"_s, u"note JoystickText"_s,
          undo, u"text JoystickText BTN S1 a"_s, u"usable mnuEditUndo 0"_s, u"close"_s });
    EXPECT_THAT(lines(notes), Contains("JoystickText=z\\n"));
}

TEST_F(ProgramHistory, TheFirstKeyAfterTheCaretWasMovedIsAStepOfItsOwn)
{
    const QStringList notes =
        run("BTN S1 a",
            { u"keys JoystickText Ctrl+End"_s, u"type JoystickText xyz"_s, home,
              u"type JoystickText q"_s, u"text JoystickText qBTN S1 axyz"_s, undo,
              u"usable mnuEditRedo 1"_s, u"note JoystickText"_s, undo, u"usable mnuEditUndo 0"_s,
              u"close"_s });
    EXPECT_THAT(lines(notes), Contains("JoystickText=BTN S1 axyz"));
}

TEST_F(ProgramHistory, PlainTextHasTheSettingsFontAfterOpeningUndoAndRedo)
{
    program.settle("[Colours]\r\nTextFontName=DejaVu Sans Mono\r\nTextFontSize=13\r\n");
    const QString font = u"font JoystickText 0"_s;
    const QStringList notes = run("BTN S1 a",
                                  { font,
                                    home,
                                    u"type JoystickText x"_s,
                                    font,
                                    undo,
                                    u"done"_s,
                                    font,
                                    u"trigger mnuAppsPreferences"_s,
                                    u"window Preferences"_s,
                                    u"tab SSTab1 1"_s,
                                    u"choose TextFontSize 17"_s,
                                    u"press cmdOK"_s,
                                    u"gone Preferences"_s,
                                    redo,
                                    u"text JoystickText xBTN"_s,
                                    font,
                                    undo,
                                    u"done"_s,
                                    font,
                                    u"close"_s });
    EXPECT_THAT(lines(notes.filter(u"font at"_s)),
                ElementsAre("JoystickText font at 0: DejaVu Sans Mono 13",
                            "JoystickText font at 0: DejaVu Sans Mono 13",
                            "JoystickText font at 0: DejaVu Sans Mono 13",
                            "JoystickText font at 0: DejaVu Sans Mono 17",
                            "JoystickText font at 0: DejaVu Sans Mono 17"));
}

TEST_F(ProgramHistory, SaveUndoAndRedoShowTheStampThatTheDiskHas)
{
    const QStringList notes =
        run("BTN S1 a\r\nRem Last modified: 01 January 2001, 1:00 am\r\n",
            { home, u"type JoystickText x"_s, save, saved, undo, u"usable mnuEditRedo 1"_s,
              u"note JoystickText"_s, redo, u"text JoystickText xBTN"_s, u"close"_s });
    const QString shown = notes.filter(u"JoystickText=x"_s).value(0).section(u'=', 1);
    EXPECT_EQ(QString(shown).replace(u"\\n"_s, u"\r\n"_s).toLatin1(), onDisk());
    EXPECT_FALSE(onDisk().contains("2001"));
}

TEST_F(ProgramHistory, AnOperationDuringTheBlinkDoesNotTakeTheLineAsSelected)
{
    program.settle("HighlightLineOnUndo=1\r\n");
    const QStringList blink = { home, u"type JoystickText x"_s, undo,
                                u"selection JoystickText BTN S1 a"_s };
    const QStringList found =
        run("BTN S1 a\r\n",
            blink + QStringList{ u"trigger mnuEditFind"_s, u"value ComboTextFind"_s, u"close"_s });
    EXPECT_THAT(lines(found), Contains("ComboTextFind="));
    const QStringList bold = run("BTN S1 a\r\n",
                                 blink
                                     + QStringList{ u"trigger mnuFormatArray1_0"_s, u"done"_s,
                                                    u"font JoystickText 1"_s, u"close"_s });
    EXPECT_THAT(lines(bold), Not(Contains(HasSubstr("bold"))));
}
