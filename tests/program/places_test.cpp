// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "platform/core/base.h"
#include "tests/program/notes.h"
#include "tests/program/program.h"

#include <gmock/gmock.h>

#include <QDateTime>
#include <QFile>

using namespace zeph;
using namespace zeph::test;
using testing::Contains;
using testing::HasSubstr;
using testing::Not;

namespace {

const QString firstWindow = u"window Untitled.tmj[*] - Zeph"_s;
const QString furtherWindow = u"window Untitled.tmj[*] - Zeph - secondary window"_s;

/// Waits until the program has noted its first line.
bool isUp(const Program &program, QProcess &process, const QString &log)
{
    while (!program.exists(log) || program.noted(log).isEmpty()) {
        if (process.waitForFinished(20)) {
            return false;
        }
    }
    return true;
}

void lockByAnotherMachine(const Program &program, int minutesAgo, const QString &folder = {})
{
    QFile lock(program.write(folder + u"Zeph.lock"_s, "4711\nzeph\nhangar\nfeedc0de\n0815\n"));
    ASSERT_TRUE(lock.open(QFile::ReadWrite));
    ASSERT_TRUE(lock.setFileTime(QDateTime::currentDateTime().addSecs(-60 * minutesAgo),
                                 QFileDevice::FileModificationTime));
}

} // namespace

TEST(ProgramPlaces, AfterTheFirstHasEndedTheNextIsFirstAndLeavesTheSecondItsStore)
{
    Program program;
    program.settle();
    const auto first = program.start({ firstWindow, u"pause 4000"_s, u"close"_s }, u"first.log"_s);
    ASSERT_TRUE(isUp(program, *first, u"first.log"_s));
    const auto second =
        program.start({ furtherWindow, u"pause 60000"_s, u"close"_s }, u"second.log"_s);
    ASSERT_TRUE(isUp(program, *second, u"second.log"_s));
    ASSERT_TRUE(first->waitForFinished());
    const QByteArray seconds = program.read(u"Zeph.2"_s);
    EXPECT_FALSE(seconds.isEmpty());
    const QStringList notes = program.run({ firstWindow, u"close"_s });
    EXPECT_THAT(lines(notes), Not(Contains(HasSubstr("secondary"))));
    EXPECT_EQ(program.read(u"Zeph.2"_s), seconds);
    second->kill();
    second->waitForFinished();
    program.run({ firstWindow, u"close"_s });
    EXPECT_FALSE(program.exists(u"Zeph.2"_s)) << "nobody's any more";
}

TEST(ProgramPlaces, ALockThatAnotherMachineLeftIsAskedAboutAndTakenOver)
{
    Program program;
    program.settle();
    lockByAnotherMachine(program, 11);
    program.run({ u"box Is somebody else at work?"_s, u"press No"_s, furtherWindow, u"close"_s });
    EXPECT_THAT(lines(program.run({ u"box Is somebody else at work?"_s, u"press Yes"_s, firstWindow,
                                    u"close"_s })),
                Not(Contains(HasSubstr("secondary"))));
    EXPECT_THAT(lines(program.run({ firstWindow, u"close"_s })),
                Not(Contains(HasSubstr("secondary"))));
}

TEST(ProgramPlaces, ALockThatAnotherMachineTouchesIsRespectedWithoutAQuestion)
{
    Program program;
    program.settle();
    lockByAnotherMachine(program, 1);
    program.run({ furtherWindow, u"close"_s });
}

TEST(ProgramPlaces, UnsavedTextsThatAnotherMachineHoldsAreOfferedOnlyWhenTakenOver)
{
    Program program;
    program.settle();
    const QString folder = u"Recovery/1/"_s;
    const QString kept = folder + u"joystick.txt"_s;
    program.write(kept,
                  "Zeph recovery file\nKind=Joystick\nPath="
                      + program.file(u"Files/a.tmj"_s).toUtf8()
                      + "\nWritten=2026-01-02T03:04:05\nLength=8\n\nBTN S1 a");
    const QString ready = u"text Panel_1 Ready"_s;
    lockByAnotherMachine(program, 1, folder);
    program.run({ firstWindow, ready, u"close"_s });
    lockByAnotherMachine(program, 11, folder);
    const QStringList asked = program.run(
        { u"box Is somebody else at work?"_s, u"press No"_s, firstWindow, ready, u"close"_s });
    EXPECT_THAT(lines(asked), Contains(HasSubstr("Unsaved texts in my folder")));
    EXPECT_TRUE(program.exists(kept));
    program.run({ u"box Is somebody else at work?"_s, u"press Yes"_s, u"gone Is somebody"_s,
                  u"modal"_s, u"press Yes"_s, u"text JoystickText BTN S1 a"_s, u"close"_s,
                  u"box  Save a.tmj now?"_s, u"press No"_s });
    EXPECT_FALSE(program.exists(kept));
}

TEST(ProgramPlaces, AMovedFolderFindsItsFilesAgainAndHoldsThemRelative)
{
    Program program;
    program.settle("RestoreJoyFile=/gone/Zeph/Files/Sample flight.tmj\r\n"
                   "RestoreMacroFile=Files/Sample flight.tmm\r\n");
    program.write(u"HOTAS.ini"_s, "[Files]\r\nFiles=/gone/Zeph/Files/\r\n");
    program.run({ u"text JoystickText USE"_s, u"text MacroText ="_s, u"close"_s });
    EXPECT_EQ(program.setting(u"Miscellaneous"_s, u"RestoreJoyFile"_s), sample);
    EXPECT_EQ(program.setting(u"Miscellaneous"_s, u"RestoreMacroFile"_s), sampleMacros);
    EXPECT_EQ(program.setting(u"FileLocations"_s, u"BackUpFolder"_s),
              QDir::toNativeSeparators(u"Backup/"_s));
    EXPECT_EQ(program.setting(u"Files"_s, u"Files"_s, u"HOTAS.ini"_s), program.file(u"Files/"_s));
    EXPECT_FALSE(program.read(u"Zeph.ini"_s).contains(program.folder().toUtf8()));
}
