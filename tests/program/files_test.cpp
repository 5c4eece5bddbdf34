// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "tests/program/notes.h"
#include "tests/program/program.h"

#include <gmock/gmock.h>

#include "platform/core/base.h"

#include <QDir>
#include <QFile>

using namespace zeph;
using namespace zeph::test;
using testing::Contains;
using testing::HasSubstr;

TEST(ProgramFiles, ThePairIsOpenedEditedSavedAndThereAgainAtTheNextStart)
{
    Program program;
    program.settle();
    const QString joystick = program.write(u"Files/a.tmj"_s, "USE MDEF m.tmm\r\nBTN S1 Fire\r\n");
    program.write(u"Files/m.tmm"_s, "Fire = SPC\r\n");
    program.run({ u"text MacroText Fire = SPC"_s, u"type JoystickText Rem hello\\n"_s,
                  u"trigger mnuFileSave"_s, u"text Panel_1 saved successfully."_s, u"close"_s },
                { joystick });
    EXPECT_EQ(program.read(u"Files/a.tmj"_s), "Rem hello\r\nUSE MDEF m.tmm\r\nBTN S1 Fire\r\n");
    EXPECT_TRUE(program.exists(u"Rtf/a.tmj"_s));
    EXPECT_EQ(program.setting(u"Miscellaneous"_s, u"RestoreJoyFile"_s),
              QDir::toNativeSeparators(u"Files/a.tmj"_s));

    const QStringList notes =
        program.run({ u"text JoystickText Rem hello"_s, u"text MacroText Fire"_s, u"close"_s });
    EXPECT_THAT(lines(notes), Contains("MacroText=Fire = SPC\\n"));
}

TEST(ProgramFiles, TheExitAsksAboutBothFilesAndCancelStaysInTheProgram)
{
    Program program;
    program.settle();
    const QStringList notes =
        program.run({ u"type JoystickText x"_s, u"close"_s, u"box  Save Untitled.tmj now?"_s,
                      u"press Cancel"_s, u"gone  Save"_s, u"type JoystickText y"_s, u"close"_s,
                      u"box  Save Untitled.tmj now?"_s, u"press No"_s });
    EXPECT_THAT(
        lines(notes),
        Contains(HasSubstr("Untitled.tmj has changed and isn't saved. Do you want to save it "
                           "before exiting?|")));
}

TEST(ProgramFiles, AnExitWithYesSavesUnderTheNameAskedFor)
{
    Program program;
    program.settle();
    program.run({ u"type JoystickText BTN S1 a"_s, u"close"_s, u"box  Save Untitled.tmj now?"_s,
                  u"press Yes"_s, u"file "_s + program.file(u"Files/new.tmj"_s) });
    EXPECT_EQ(program.read(u"Files/new.tmj"_s), "BTN S1 a");
}

TEST(ProgramFiles, ACancelledSaveAsAbortsTheExit)
{
    Program program;
    program.settle();
    const QStringList notes = program.run(
        { u"type JoystickText x"_s, u"close"_s, u"box  Save Untitled.tmj now?"_s, u"press Yes"_s,
          u"window Save file as ..."_s, u"press Cancel"_s, u"box Ooops!"_s, u"press OK"_s,
          u"gone Ooops!"_s, u"close"_s, u"box  Save Untitled.tmj now?"_s, u"press No"_s });
    EXPECT_THAT(lines(notes),
                Contains(HasSubstr("Untitled.tmj wasn't saved. Exit program aborted.")));
}

TEST(ProgramFiles, AReadOnlyFileIsSavedElsewhere)
{
    Program program;
    program.settle();
    const QString path = program.write(u"Files/a.tmj"_s, "BTN S1 a");
    QFile::setPermissions(path, QFile::ReadOwner | QFile::ReadUser);
    program.run({ u"text JoystickText BTN"_s, u"type JoystickText x"_s, u"trigger mnuFileSave"_s,
                  u"box Can't save Read Only file"_s, u"press OK"_s,
                  u"file "_s + program.file(u"Files/b.tmj"_s),
                  u"text Panel_1 saved successfully."_s, u"close"_s },
                { path });
    EXPECT_EQ(program.read(u"Files/a.tmj"_s), "BTN S1 a");
    EXPECT_EQ(program.read(u"Files/b.tmj"_s), "xBTN S1 a");
}

TEST(ProgramFiles, AVanishedFileIsToldAndTheLastRunsFilesAreForgotten)
{
    Program program;
    program.settle("RestoreStatus=1\r\nRestoreJoyFile=" + program.file(u"Files/gone.tmj"_s).toUtf8()
                   + "\r\n");
    program.run({ u"text Panel_1 Ready! Welcome to Zeph, buddy!"_s, u"close"_s });
    EXPECT_EQ(program.setting(u"Miscellaneous"_s, u"RestoreJoyFile"_s), QString());
}

TEST(ProgramFiles, ASaveIntoAFolderThatIsGoneTellsPathAndReasonAndKeepsTheText)
{
    Program program;
    program.settle();
    const QString path = program.write(u"Files/deep/a.tmj"_s, "BTN S1 a");
    const auto process =
        program.start({ u"text JoystickText BTN"_s, u"type JoystickText x"_s, u"pause 600"_s,
                        u"trigger mnuFileSave"_s, u"box I couldn't save your file buddy"_s,
                        u"press OK"_s, u"gone I couldn't"_s, u"note JoystickText"_s, u"close"_s,
                        u"box  Save a.tmj now?"_s, u"press No"_s },
                      u"driver.log"_s, { path });
    while (!program.exists(u"driver.log"_s)
           || !program.noted(u"driver.log"_s).join(u'\n').contains(u"JoystickText=BTN"_s)) {
        ASSERT_FALSE(process->waitForFinished(20));
    }
    QFile::remove(path);
    QDir().rmdir(program.file(u"Files/deep"_s));
    ASSERT_TRUE(process->waitForFinished());
    const auto notes = lines(program.noted(u"driver.log"_s));
    EXPECT_THAT(notes, Contains(HasSubstr(path.toStdString())));
    EXPECT_THAT(notes, Contains("JoystickText=xBTN S1 a"));
}

TEST(ProgramFiles, AnUndoneSaveIsAskedAboutAtTheExitAndARedoneOneIsNot)
{
    Program program;
    program.settle();
    const QString path = program.write(u"Files/a.tmj"_s, "BTN S1 a");
    program.run({ u"text JoystickText BTN"_s, u"type JoystickText x"_s, u"trigger mnuFileSave"_s,
                  u"text Panel_1 saved successfully."_s, u"trigger mnuEditUndo"_s, u"close"_s,
                  u"box  Save a.tmj now?"_s, u"press Cancel"_s, u"gone  Save"_s,
                  u"trigger mnuEditRedo"_s, u"close"_s },
                { path });
    EXPECT_EQ(program.read(u"Files/a.tmj"_s), "xBTN S1 a");
}

TEST(ProgramFiles, AFileThatAnotherProgramChangedIsNotOverwrittenSilently)
{
    Program program;
    program.settle();
    const QString path = program.write(u"Files/a.tmj"_s, "BTN S1 a");
    const QStringList notes = program.run(
        { u"text JoystickText BTN"_s, u"type JoystickText x"_s, u"write Files/a.tmj other"_s,
          u"trigger mnuFileSave"_s, u"box a.tmj has changed on the disk"_s, u"press See both"_s,
          u"window a.tmj: ours and the disk's"_s, u"note OurText"_s, u"note DiskText"_s,
          u"press Close"_s, u"gone a.tmj: ours"_s, u"box a.tmj has changed on the disk"_s,
          u"press Load it anew"_s, u"gone a.tmj has changed"_s, u"text JoystickText other"_s,
          u"close"_s },
        { path });
    EXPECT_THAT(lines(notes), Contains("OurText=xBTN S1 a"));
    EXPECT_THAT(lines(notes), Contains("DiskText=other"));
    EXPECT_EQ(program.read(u"Files/a.tmj"_s), "other");
}
