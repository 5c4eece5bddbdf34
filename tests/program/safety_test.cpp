// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "platform/core/base.h"
#include "tests/program/notes.h"
#include "tests/program/program.h"

#include <gmock/gmock.h>

#include <QFileInfo>
#include <QRandomGenerator>
#include <QThread>

using namespace zeph;
using namespace zeph::test;
using testing::Contains;
using testing::HasSubstr;

namespace {

/// A file that takes a while to write.
QByteArray longFile()
{
    QByteArray bytes;
    for (int line = 0; line < 20000; ++line) {
        bytes += "BTN S1 /I Radar_Mode /O Missile_Mode Rem " + QByteArray::number(line) + "\r\n";
    }
    return bytes;
}

} // namespace

TEST(ProgramSafety, AKillAtAnyMomentOfASaveLeavesTheOldOrTheNewFileWhole)
{
    constexpr int kills = 30;
    Program program;
    program.settle();
    const QByteArray base = longFile();
    const QString path = program.write(u"Files/a.tmj"_s, base);
    QStringList script = { u"text Panel_1 Ready"_s };
    for (int save = 0; save < 200; ++save) {
        script += { u"type JoystickText x"_s, u"trigger mnuFileSave"_s };
    }
    qsizetype typed = 0;
    auto random = QRandomGenerator(20240305);
    for (int kill = 0; kill < kills; ++kill) {
        const QString log = u"kill%1.log"_s.arg(kill);
        const auto process = program.start(script, log, { path });
        // Counted from when the file stands open: how long that takes is the machine's affair.
        for (int waited = 0; waited < 1000 && QFileInfo(program.file(log)).size() == 0; ++waited) {
            QThread::msleep(10);
        }
        process->waitForFinished(int(random.bounded(400)));
        process->kill();
        process->waitForFinished();
        const QByteArray now = program.read(u"Files/a.tmj"_s);
        ASSERT_TRUE(now.endsWith(base)) << "after kill " << kill;
        const QByteArray head = now.chopped(base.size());
        ASSERT_EQ(head.count('x'), head.size());
        ASSERT_GE(head.size(), typed);
        typed = head.size();
    }
    EXPECT_GT(typed, 0) << "no save took place: the kills came too early";
}

TEST(ProgramSafety, AFullDiskIsToldAndTheOldFileStaysWhole)
{
    // The kernel's limit on a file's size stands for the full disk: the write fails half-way.
    Program program;
    program.settle();
    const QByteArray base = longFile();
    const QString path = program.write(u"Files/a.tmj"_s, base);
    program.limitFileSize(qsizetype(base.size() / 2));
    const QStringList notes =
        program.run({ u"text Panel_1 Ready"_s, u"type JoystickText x"_s, u"trigger mnuFileSave"_s,
                      u"box I couldn't save your file buddy"_s, u"press OK"_s, u"gone I couldn't"_s,
                      u"close"_s, u"box  Save a.tmj now?"_s, u"press No"_s },
                    { path });
    EXPECT_THAT(lines(notes), Contains(HasSubstr(path.toStdString())));
    EXPECT_EQ(program.read(u"Files/a.tmj"_s), base);
}
