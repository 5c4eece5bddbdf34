// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "tests/program/program.h"

#include <gtest/gtest.h>

#include <QFile>

using namespace zeph;

// The tour of ./run, with less time to settle: it comes to its end and leaves a note and a picture
// of each stop.
TEST(ProgramTour, ReachesEachStopAndLeavesItsPicture)
{
    QFile file(QStringLiteral(ZEPH_SOURCE_DIR "/tests/driver/tour.txt"));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QStringList script = QString::fromUtf8(file.readAll()).split(u'\n', Qt::SkipEmptyParts);
    test::Program program;
    program.setEnvironment(u"ZEPH_TOUR_SETTLE_MS"_s, u"50"_s);
    const QStringList notes = program.run(script, { program.file(test::sample) });
    int stops = 0;
    for (const QString &step : script) {
        if (step.startsWith(u"stop "_s)) {
            const QString name = step.sliced(5);
            EXPECT_FALSE(notes.filter(name + u": "_s).isEmpty()) << name.toStdString();
            EXPECT_TRUE(program.exists(name + u".png"_s)) << name.toStdString();
            ++stops;
        }
    }
    EXPECT_GT(stops, 40);
    for (const QString &window :
         { u"welcome-pageExperience"_s, u"compile-error-CompilerHelp"_s,
           u"key-tester-KeyTestForm"_s, u"preferences-8"_s, u"template-editor-TemplateForm"_s,
           u"image-viewer-ViewImage"_s, u"about-frmAbout"_s }) {
        EXPECT_TRUE(program.exists(window + u".png"_s)) << window.toStdString();
    }
    EXPECT_FALSE(notes.filter(u"compile-error: Compiler reported an error at line 2"_s).isEmpty());
    EXPECT_FALSE(notes.filter(u"template-editor: ReadMe sample.rtf was opened"_s).isEmpty());
}
