// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "composer/wizards/lesson.h"

#include "composer/statement_check.h"
#include "composer/wizards/lesson_picture.h"
#include "composer/wizards/lesson_text.h"
#include "cougar/places.h"
#include "language/checker.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QRegularExpression>
#include <QSet>
#include <QSvgRenderer>
#include <QTextDocument>

using namespace zeph;

namespace {

const QList<const Lesson *> lessons = { &macroFileLesson,      &joystickFileLesson,
                                        &slashModifiersLesson, &mouseMicrostickLesson,
                                        &dlyAndRateLesson,     &configurationLesson };

QString data(QStringView name)
{
    return QStringLiteral(ZEPH_SOURCE_DIR "/data/") + name.toString();
}

QString htmlOf(const LessonPage &page)
{
    QFile file(data(page.text));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << file.fileName().toStdString();
    return QString::fromUtf8(file.readAll());
}

QString plainOf(const LessonPage &page)
{
    QTextDocument document;
    document.setHtml(htmlOf(page));
    return document.toPlainText();
}

/// A macro file with each name of the text that looks like a macro's.
QString macrosFor(const QString &text)
{
    static const QRegularExpression name(u"\\b[A-Z][A-Za-z]*_[A-Za-z_]+\\b"_s);
    QString file;
    for (auto hit = name.globalMatch(text); hit.hasNext();) {
        const QString found = hit.next().captured();
        if (found != found.toUpper()) {
            file += found + u" = a\n"_s;
        }
    }
    return file;
}

/// What the language says against an example of a joystick or macro file; nothing when it is none.
QStringList faultsOf(const QString &example)
{
    if (example.contains(u" = "_s) && !example.contains(u"BTN"_s)) {
        QStringList faults;
        const QString joystick = u"USE MDEF m\n"_s;
        for (const auto &finding : language::check(language::parsePair(joystick, example))) {
            faults.append(finding.message);
        }
        return faults;
    }
    return findingsOf({ example, 0, example.size(), 1 }, macrosFor(example));
}

} // namespace

TEST(Lessons, HaveTheirPages)
{
    EXPECT_EQ(macroFileLesson.pages.size(), 14U);
    EXPECT_EQ(joystickFileLesson.pages.size(), 10U);
    for (const Lesson *lesson : lessons) {
        EXPECT_GE(lesson->pages.size(), 4U);
    }
}

TEST(Lessons, EachPageHasItsTextItsPictureAndATitleOfItsOwn)
{
    QSet<QString> titles;
    for (const Lesson *lesson : lessons) {
        for (const LessonPage &page : lesson->pages) {
            EXPECT_GT(plainOf(page).size(), 250) << page.title.toString().toStdString();
            EXPECT_FALSE(page.says.isEmpty());
            if (!drawingNamed(page.picture)) {
                EXPECT_TRUE(QSvgRenderer(data(page.picture)).isValid())
                    << page.picture.toString().toStdString();
            }
            EXPECT_FALSE(titles.contains(page.title.toString()))
                << page.title.toString().toStdString();
            titles.insert(page.title.toString());
        }
    }
}

TEST(Lessons, ARingIsRoundEachControlThatAPageNames)
{
    for (const Lesson *lesson : lessons) {
        for (const LessonPage &page : lesson->pages) {
            const auto controls = page.controls.split(u' ', Qt::SkipEmptyParts);
            for (const QStringView control : controls) {
                const auto places = placesOn(drawingNamed(page.picture)->name);
                const auto place = std::ranges::find(places, control, &ControlPlace::control);
                ASSERT_NE(place, places.end()) << control.toString().toStdString();
                EXPECT_TRUE(std::ranges::any_of(ringsOf(page), [&place](const QRect &ring) {
                    return ring.contains(place->place);
                })) << page.title.toString().toStdString();
            }
        }
    }
}

TEST(Lessons, ControlsThatLieOnOneAnotherShareARing)
{
    const LessonPage throttle{ u"", u"", u"", u"Throttle.bmp", u"T1 MIX MIY T6 RNG" };
    EXPECT_EQ(ringsOf(throttle).size(), 2);
    const LessonPage stick{ u"", u"", u"", u"F-16 Block 50.bmp", u"S1 S2 HAT2" };
    EXPECT_EQ(ringsOf(stick).size(), 3);
    const LessonPage drawing{ u"", u"", u"", u"Wizards/dly.svg", u"S1" };
    EXPECT_TRUE(ringsOf(drawing).isEmpty());
}

TEST(Lessons, ThePageAboutTumboAndTheJoystickWizardsFirstPageSayTheirWords)
{
    EXPECT_TRUE(plainOf(macroFileLesson.pages[3])
                    .contains(u"Now I know Tumbo looks daunting, but at this stage, there's only "
                              "one part you really need to look at, and that's the textbox that "
                              "says: Thrustmaster Syntax."_s));
    EXPECT_TRUE(plainOf(joystickFileLesson.pages[0])
                    .startsWith(u"Hi there buddy. Right, well, we're going to go about creating a "
                                "joystick file."_s));
}

TEST(Lessons, TheLanguageHasNothingAgainstTheirExamples)
{
    // Keys alone, and the characters that no name may hold.
    const QStringList noStatements = { u"SHF 1"_s, u"< > { } ( ) ^ , ="_s };
    int examples = 0;
    for (const Lesson *lesson : lessons) {
        for (const LessonPage &page : lesson->pages) {
            QTextDocument document;
            document.setHtml(htmlOf(page));
            for (const QString &example : examplesIn(document)) {
                if (!noStatements.contains(example.trimmed())) {
                    EXPECT_EQ(faultsOf(example), QStringList()) << example.toStdString();
                    ++examples;
                }
            }
        }
    }
    EXPECT_GT(examples, 40);
}

TEST(LessonExamples, AreTheTextsInPreWithTheirLines)
{
    QTextDocument document;
    document.setHtml(u"<p>One</p><pre>BTN S1 /P a\n       /R b\n</pre><p>Two</p><pre>Rem</pre>"_s);
    const QStringList examples = examplesIn(document);
    ASSERT_EQ(examples.size(), 2);
    EXPECT_EQ(examples[0].trimmed(), u"BTN S1 /P a\n       /R b"_s);
    EXPECT_EQ(examples[1].trimmed(), u"Rem"_s);
}

TEST(LessonExamples, AreInTheEditorsColours)
{
    QTextDocument document;
    document.setHtml(u"<p>BTN S1</p><pre>/P a Rem b</pre>"_s);
    ColourScheme scheme;
    scheme.plain = 0x123456;
    scheme.slash = 0x0000AA;
    CharFormat plain;
    plain.colour = 0x123456;
    paintExamples(document, scheme, plain, 0xFFFFFF);
    const auto colourAt = [&document](const QString &word) {
        QTextCursor found = document.find(word);
        return found.charFormat().foreground().color();
    };
    EXPECT_EQ(colourAt(u"/P"_s), QColor(0xAA, 0, 0));
    EXPECT_EQ(colourAt(u"a"_s), QColor(0x56, 0x34, 0x12));
    QTextCursor outside = document.find(u"BTN"_s);
    EXPECT_FALSE(outside.charFormat().hasProperty(QTextFormat::ForegroundBrush));
    EXPECT_EQ(document.find(u"/P"_s).blockFormat().background().color(), QColor(Qt::white));
}
