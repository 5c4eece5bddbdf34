// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

// Windows beside the main one: where they stand, and what goes through them.

#include "tests/program/notes.h"
#include "tests/program/program.h"

#include <gmock/gmock.h>

#include "platform/zip/zip_archive.h"

#include <QDir>

using namespace zeph;
using namespace zeph::test;
using testing::Contains;
using testing::HasSubstr;
using testing::Not;

namespace {

/// The numbers that the driver noted of a window: x, y, width, height.
QList<int> placeOf(const QStringList &notes, const QString &name)
{
    QList<int> numbers;
    for (const QString &note : notes) {
        if (note.startsWith(name + u" at "_s)) {
            numbers.clear();
            for (const QString &number : note.mid(name.size() + 4).split(u' ')) {
                numbers.append(number.toInt());
            }
        }
    }
    return numbers.size() == 4 ? numbers : QList<int>(4, -1);
}

} // namespace

TEST(ProgramWindows, PlacesOnAScreenThatIsGoneAreBroughtBack)
{
    Program program;
    // 10,000 pixels to the right of any screen; the offscreen one is 800 by 800.
    program.settle("MumLeftAtStartup=150000\r\nMumTopAtStartup=150000\r\n"
                   "MumWidthAtStartup=9000\r\nMumHeightAtStartup=7500\r\n"
                   "[Key Tester]\r\nKeyLeftAtStartup=150000\r\nKeyTopAtStartup=150000\r\n"
                   "KeyWidthAtStartup=6000\r\nKeyHeightAtStartup=4500\r\n"
                   "[Template Editor]\r\nTemplateLeftAtStartup=-150000\r\n"
                   "TemplateTopAtStartup=-150000\r\nTemplateWidthAtStartup=9000\r\n"
                   "TemplateHeightAtStartup=6000\r\n");
    const QStringList notes = program.run(
        { u"text Panel_1 Ready"_s, u"place Mum"_s, u"trigger mnuAppsKeyTester"_s,
          u"window Key Tester"_s, u"place KeyTestForm"_s, u"trigger mnuAppsTemplateEditor"_s,
          u"window ReadMe and Template Editor"_s, u"place TemplateForm"_s, u"close"_s });
    for (const QString &name : { u"Mum"_s, u"KeyTestForm"_s, u"TemplateForm"_s }) {
        const QList<int> place = placeOf(notes, name);
        EXPECT_GE(place[0], 0) << name.toStdString();
        EXPECT_GE(place[1], 0) << name.toStdString();
        EXPECT_LE(place[0] + place[2], 800) << name.toStdString();
        EXPECT_LE(place[1] + place[3], 800) << name.toStdString();
    }
    EXPECT_EQ(placeOf(notes, u"KeyTestForm"_s)[2], 400);
}

TEST(ProgramWindows, AMainWindowThatEndsMaximisedGoesBackToItsSizeInTheNextRun)
{
    Program program;
    program.settle("MumLeftAtStartup=300\r\nMumTopAtStartup=450\r\n"
                   "MumWidthAtStartup=9000\r\nMumHeightAtStartup=7500\r\n");
    program.run({ u"text Panel_1 Ready"_s, u"maximise"_s, u"pause 100"_s, u"close"_s });
    EXPECT_EQ(program.setting(u"Miscellaneous"_s, u"MumWindowstate"_s), u"2");
    const QStringList notes = program.run(
        { u"text Panel_1 Ready"_s, u"normal"_s, u"pause 100"_s, u"place Mum"_s, u"close"_s });
    EXPECT_EQ(placeOf(notes, u"Mum"_s), (QList<int>{ 20, 30, 600, 500 }));
}

TEST(ProgramWindows, ToolWindowsStandBesideTheMainOneAndRememberTheirPlace)
{
    Program program;
    program.settle("MumLeftAtStartup=0\r\nMumTopAtStartup=0\r\n"
                   "MumWidthAtStartup=3000\r\nMumHeightAtStartup=7500\r\n");
    const QStringList first =
        program.run({ u"text Panel_1 Ready"_s, u"place Mum"_s, u"trigger mnuAppsKeyTester"_s,
                      u"window Key Tester"_s, u"place KeyTestForm"_s, u"close"_s });
    const QList<int> place = placeOf(first, u"KeyTestForm"_s);
    EXPECT_GT(place[0], 100) << "not over the main window's corner";
    const QStringList second =
        program.run({ u"text Panel_1 Ready"_s, u"trigger mnuAppsKeyTester"_s,
                      u"window Key Tester"_s, u"place KeyTestForm"_s, u"close"_s });
    EXPECT_EQ(placeOf(second, u"KeyTestForm"_s), place);
}

TEST(ProgramWindows, TheKeyTesterShowsAltAfterShift)
{
    Program program;
    program.settle();
    // The keys' numbers are the toolkit's, the symbols the system's.
#ifdef Q_OS_WIN
    const QString shift = u"0x01000020 0 0x10"_s;
    const QString alt = u"0x01000023 0x02000000 0x12"_s;
#else
    // An X server holds Alt after Shift to be Meta: Shift_L and Meta_L.
    const QString shift = u"0x01000020 0 0xFFE1"_s;
    const QString alt = u"0x01000022 0x02000000 0xFFE7"_s;
#endif
    const QStringList notes =
        program.run({ u"text Panel_1 Ready"_s, u"trigger mnuAppsKeyTester"_s,
                      u"window Key Tester"_s, u"native KeyTestForm down "_s + shift,
                      u"native KeyTestForm down "_s + alt, u"note RTFKeysDownText"_s, u"close"_s });
    EXPECT_THAT(lines(notes), Contains(HasSubstr("RTFKeysDownText=Down: SHF\\nDown: ALT\\n")));
}

TEST(ProgramWindows, TheTemplateEditorNamesWhatASaveWouldLoseAndSavesACopy)
{
    Program program;
    program.settle();
    const QByteArray before = "{\\rtf1{\\footer f}{\\pict 00}{\\strike out}\\par}";
    const QString path = program.write(u"Templates/A.rtf"_s, before);
    const QStringList notes =
        program.run({ u"text Panel_1 Ready"_s, u"trigger mnuAppsTemplateEditor"_s,
                      u"window ReadMe and Template Editor"_s, u"trigger TemplateForm/mnuFileOpen"_s,
                      u"file "_s + path, u"window  Editing A.rtf"_s, u"type TemplateText x"_s,
                      u"trigger TemplateForm/mnuFileSave"_s, u"box Some of it would be lost"_s,
                      u"press Save as a copy"_s, u"file "_s + program.file(u"Templates/B.rtf"_s),
                      u"window  Editing B.rtf"_s, u"close"_s });
    EXPECT_THAT(lines(notes),
                Contains(HasSubstr("pictures and headers or footers. If I save over it")));
    EXPECT_THAT(lines(notes), Contains(testing::EndsWith("|Save as a copy")));
    EXPECT_EQ(program.read(u"Templates/A.rtf"_s), before);
    EXPECT_THAT(program.read(u"Templates/B.rtf"_s).toStdString(), HasSubstr("\\strike"));
}

TEST(ProgramWindows, APlainTextSavedByTheTemplateEditorKeepsItsLineEnds)
{
    Program program;
    program.settle();
    const QString path = program.write(u"Templates/A.txt"_s, "one\ntwo\n");
    program.run({ u"text Panel_1 Ready"_s, u"trigger mnuAppsTemplateEditor"_s,
                  u"window ReadMe and Template Editor"_s, u"trigger TemplateForm/mnuFileOpen"_s,
                  u"file "_s + path, u"window  Editing A.txt"_s, u"type TemplateText x"_s,
                  u"trigger TemplateForm/mnuFileSave"_s, u"text Panel_1 was saved successfully"_s,
                  u"close"_s });
    EXPECT_EQ(program.read(u"Templates/A.txt"_s), "xone\ntwo\n");
}

TEST(ProgramWindows, AZipOfTenThousandSmallFilesIsUnpackedInUnderTenSeconds)
{
    constexpr int many = 10000;
    Program program;
    program.settle();
    auto zip = ZipWriter::create(program.file(u"many.zip"_s));
    ASSERT_TRUE(zip);
    for (int i = 0; i < many; ++i) {
        ASSERT_TRUE(
            zip->add(u"Pack/File %1.txt"_s.arg(i), "BTN S1 a", QDateTime::currentDateTime()));
    }
    ASSERT_TRUE(zip->close());
    // The user is asked after each 2,000 files; the driver waits 15 seconds for a step at most.
    QStringList script{ u"text Panel_1 Ready"_s, u"trigger mnuOpenZip"_s, u"file many.zip"_s };
    for (int i = 0; i < 4; ++i) {
        script += { u"box That's a big one"_s, u"press Yes"_s, u"gone That's"_s };
    }
    script += { u"text Panel_1 10000 files unpacked"_s, u"close"_s };
    QElapsedTimer timer;
    timer.start();
    const QStringList notes = program.run(script);
    EXPECT_LT(timer.elapsed(), 12000) << "with the program's start and end";
    EXPECT_THAT(lines(notes), Contains(HasSubstr("10000 files unpacked")));
    EXPECT_EQ(QDir(program.file(u"Files/Pack"_s)).entryList(QDir::Files).size(), many);
}
