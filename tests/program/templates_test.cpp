// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

// Files that go through the Template Editor.

#include "tests/program/notes.h"
#include "tests/program/program.h"

#include <gmock/gmock.h>

#include "platform/core/base.h"

#include <QElapsedTimer>

using namespace zeph;
using namespace zeph::test;
using testing::Contains;
using testing::HasSubstr;
using testing::Not;

namespace {

struct ProgramTemplates : testing::Test {
    static inline const QString save = u"trigger TemplateForm/mnuFileSave"_s;
    static inline const QString saved = u"text Panel_1 was saved successfully"_s;

    Program program;

    ProgramTemplates() { program.settle(); }

    /// Opens a file in the Template Editor, up to the file dialog's end.
    static QStringList opening(const QString &path)
    {
        return { u"text Panel_1 Ready"_s, u"trigger mnuAppsTemplateEditor"_s,
                 u"window ReadMe and Template Editor"_s, u"trigger TemplateForm/mnuFileOpen"_s,
                 u"file "_s + path };
    }
    static qint64 timeOf(const QStringList &notes, const QString &name)
    {
        return notes.filter(name + u" at "_s).value(0).section(u' ', -1).toLongLong();
    }
};

} // namespace

TEST_F(ProgramTemplates, AHyperlinkAndTheTextsOfCellsSurviveASave)
{
    const QString path = program.write(
        u"Templates/A.rtf"_s,
        "{\\rtf1\\ansi See {\\field{\\*\\fldinst HYPERLINK \"http://example.org/a\"}"
        "{\\fldrslt the page}}\\par\\trowd\\cellx1000\\cellx2000\\intbl left\\cell right\\cell\\row"
        "\\pard after\\par}");
    const QStringList notes = program.run(
        opening(path)
        + QStringList{ u"window  Editing A.rtf"_s, u"note TemplateText"_s, u"type TemplateText x"_s,
                       save, u"box Some of it would be lost"_s, u"press Save over it"_s,
                       u"gone Some of it"_s, saved, u"close"_s });
    EXPECT_THAT(lines(notes), Contains(HasSubstr("tables (the texts in them stay)")));
    const std::string bytes = program.read(u"Templates/A.rtf"_s).toStdString();
    EXPECT_THAT(bytes, HasSubstr("HYPERLINK \"http://example.org/a\""));
    for (const char *text : { "the page", "left", "right", "after" }) {
        EXPECT_THAT(bytes, HasSubstr(text));
    }
}

TEST_F(ProgramTemplates, APlainTextWithCarriageReturnsKeepsThem)
{
    const QString path = program.write(u"Templates/A.txt"_s, "one\rtwo\r\nthree\r");
    program.run(opening(path)
                + QStringList{ u"window  Editing A.txt"_s, u"type TemplateText x"_s, save, saved,
                               u"close"_s });
    EXPECT_EQ(program.read(u"Templates/A.txt"_s), "xone\rtwo\r\nthree\r");
}

TEST_F(ProgramTemplates, AFileOverFiveMegabytesIsAskedAboutFirst)
{
    const QString path =
        program.write(u"Templates/Big.txt"_s,
                      QByteArray(1250000, 'a').append(QByteArray("\r\nb").repeated(1300000)));
    const QStringList notes =
        program.run(opening(path)
                    + QStringList{ u"box That's a big one"_s, u"press No"_s, u"gone That's"_s,
                                   u"done"_s, u"window ReadMe and Template Editor"_s,
                                   u"note TemplateText"_s, u"close"_s });
    EXPECT_THAT(lines(notes), Contains(HasSubstr("Big.txt has 5 MB")));
    EXPECT_THAT(lines(notes), Contains("TemplateText="));
}

TEST_F(ProgramTemplates, AnOpeningThatTakesLongCanBeCancelled)
{
    const QByteArray paragraph = "{\\b bold} and {\\i italic} and plain\\par\r\n";
    const QString path =
        program.write(u"Templates/Big.rtf"_s, "{\\rtf1 " + paragraph.repeated(200000) + "}");
    const QStringList notes =
        program.run(opening(path)
                    + QStringList{ u"box That's a big one"_s, u"press Yes"_s,
                                   u"window Opening a file"_s, u"press Cancel"_s, u"done"_s,
                                   u"gone Opening a file"_s, u"window ReadMe and Template Editor"_s,
                                   u"note TemplateText"_s, u"close"_s });
    EXPECT_THAT(lines(notes), Contains("TemplateText="));
}

TEST_F(ProgramTemplates, AWordOf400KilobytesOpensInUnderTwoSeconds)
{
    for (const QString &name : { u"Word.rtf"_s, u"Word.txt"_s }) {
        const QByteArray word(400000, 'w');
        const QString path = program.write(
            u"Templates/"_s + name, name.endsWith(u"rtf") ? "{\\rtf1 " + word + "\\par}" : word);
        QStringList script = opening(path);
        script.insert(script.size() - 1, u"time start"_s);
        const QStringList notes = program.run(
            script + QStringList{ u"window  Editing Word"_s, u"time end"_s, u"close"_s });
        EXPECT_LT(timeOf(notes, u"end"_s) - timeOf(notes, u"start"_s), 2000) << name.toStdString();
    }
}

TEST_F(ProgramTemplates, WhatWasTypedBeforeAKillIsOfferedByTheNextStart)
{
    program.run({ u"text Panel_1 Ready"_s, u"trigger mnuAppsTemplateEditor"_s,
                  u"window ReadMe and Template Editor"_s, u"type TemplateText hello"_s,
                  u"pause 4000"_s, u"kill"_s });
    EXPECT_TRUE(program.exists(u"Recovery/1/template.txt"_s));
    const QStringList notes =
        program.run({ u"modal"_s, u"press Yes"_s, u"gone Look what"_s, u"text TemplateText hello"_s,
                      u"close"_s, u"modal"_s, u"press No"_s });
    EXPECT_THAT(lines(notes), Contains(HasSubstr("box Look what I found, ")));
    EXPECT_THAT(lines(notes), Contains(HasSubstr("closing down the Template Editor?")));
}
