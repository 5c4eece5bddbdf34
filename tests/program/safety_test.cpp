// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "platform/core/base.h"
#include "tests/program/notes.h"
#include "tests/program/program.h"

#include <gmock/gmock.h>

using namespace zeph;
using namespace zeph::test;
using testing::Contains;
using testing::HasSubstr;

namespace {

QByteArray longFile()
{
    QByteArray bytes;
    for (int line = 0; line < 20000; ++line) {
        bytes += "BTN S1 /I Radar_Mode /O Missile_Mode Rem " + QByteArray::number(line) + "\r\n";
    }
    return bytes;
}

} // namespace

TEST(ProgramSafety, AFullDiskIsToldAndTheOldFileStaysWhole)
{
#ifdef Q_OS_WIN
    GTEST_SKIP() << "no program's files can be limited in size";
#endif
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
