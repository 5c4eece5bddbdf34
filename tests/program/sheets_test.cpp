// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

// The installed program writes layout sheets from its command line.

#include "tests/program/program.h"

#include <gmock/gmock.h>

#include <QDateTime>
#include <QDirIterator>
#include <QMap>

using namespace zeph;
using namespace zeph::test;

namespace {

struct Ended {
    int code = -1;
    QString errors;
    QByteArray output;
};

/// Runs the program as a shell on a machine without a display does.
Ended runBare(const Program &program, const QStringList &arguments)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const QString &name : { u"QT_QPA_PLATFORM"_s, u"DISPLAY"_s, u"WAYLAND_DISPLAY"_s }) {
        environment.remove(name);
    }
    environment.insert(u"XDG_RUNTIME_DIR"_s, program.folder());
    QProcess process;
    process.setProcessEnvironment(environment);
    process.setWorkingDirectory(program.folder());
    process.start(program.executable(), arguments);
    EXPECT_TRUE(process.waitForFinished(60000));
    return { process.exitCode(), QString::fromUtf8(process.readAllStandardError()),
             process.readAllStandardOutput() };
}

/// The files of a folder with when they were changed.
QMap<QString, QDateTime> filesIn(const QString &folder)
{
    QMap<QString, QDateTime> files;
    QDirIterator each(folder, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (each.hasNext()) {
        const QString path = each.next();
        files.insert(QDir(folder).relativeFilePath(path), each.fileInfo().lastModified());
    }
    return files;
}

} // namespace

TEST(ProgramSheets, EachFormIsWrittenWithoutADisplayAndNothingElse)
{
    const Program program;
    QMap<QString, QDateTime> before = filesIn(program.folder());
    const struct {
        QString file;
        QByteArray start;
    } forms[] = { { u"stick.pdf"_s, "%PDF-" },
                  { u"stick.svg"_s, "<?xml" },
                  { u"stick.png"_s, "\x89PNG" },
                  { u"stick.html"_s, "<!DOCTYPE html>" } };
    for (const auto &[file, start] : forms) {
        const Ended ended =
            runBare(program, { u"--sheet"_s, u"joystick"_s, u"--out"_s, file, sample });
        EXPECT_EQ(ended.code, 0);
        EXPECT_EQ(ended.errors, QString());
        EXPECT_EQ(ended.output, QByteArray());
        EXPECT_TRUE(program.read(file).startsWith(start)) << file.toStdString();
        before.insert(file, QFileInfo(program.file(file)).lastModified());
    }
    EXPECT_EQ(filesIn(program.folder()), before);
    EXPECT_TRUE(program.read(u"stick.html"_s).contains("Hat 4"));
}

TEST(ProgramSheets, TheSettingsDecideOnTheLooks)
{
    Program program;
    program.settle("[Colours]\r\nBackgroundColour=16777215\r\nBTNColour=1193046\r\n");
    program.write(u"Layouts.ini"_s, "[Joystick Layout]\r\nDefImageX=1200\r\nDefImageY=900\r\n");
    EXPECT_EQ(runBare(program, { u"--sheet=throttle"_s, u"--out=t.svg"_s, sample }).code, 0);
    const QByteArray svg = program.read(u"t.svg"_s);
    EXPECT_TRUE(svg.contains("width=\"1200\" height=\"900\""));
    // 1193046 is 0x123456: blue, green and red.
    EXPECT_TRUE(svg.contains("fill=\"#563412\""));
    EXPECT_EQ(runBare(program,
                      { u"--sheet"_s, u"throttle"_s, u"--out"_s, u"t.png"_s, u"--scale"_s, u"2"_s,
                        sample })
                  .code,
              0);
    const QByteArray png = program.read(u"t.png"_s);
    // Width and height are in the first block, at 16.
    EXPECT_EQ(png.mid(16, 8), QByteArray("\0\0\x09\x60\0\0\x07\x08", 8));
}

TEST(ProgramSheets, FailuresAreToldOnStandardErrorAndByTheExitCode)
{
    const Program program;
    const Ended unread =
        runBare(program, { u"--sheet"_s, u"joystick"_s, u"--out"_s, u"x.pdf"_s, u"none.tmj"_s });
    EXPECT_EQ(unread.code, 1);
    EXPECT_TRUE(unread.errors.contains(u"none.tmj"));
    EXPECT_FALSE(program.exists(u"x.pdf"_s));
    const Ended unwritten =
        runBare(program, { u"--sheet"_s, u"joystick"_s, u"--out"_s, u"no/folder/x.pdf"_s, sample });
    EXPECT_EQ(unwritten.code, 1);
    EXPECT_TRUE(unwritten.errors.contains(u"no/folder/x.pdf"));
    const Ended wrong = runBare(program, { u"--sheet"_s, u"rudders"_s, sample });
    EXPECT_EQ(wrong.code, 2);
    EXPECT_TRUE(wrong.errors.contains(u"Usage: zeph --sheet"));
}
