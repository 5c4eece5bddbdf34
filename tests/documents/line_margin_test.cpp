// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "documents/line_margin.h"

#include "documents/document_settings.h"
#include "tests/support/editor_fixture.h"

#include <QAction>
#include <QTest>

using namespace zeph;

namespace {

class LineMarginTest : public test::EditorTest
{
protected:
    LineMarginTest()
    {
        editor->resize(600, 400);
        editor->applySettings();
        editor->show();
    }
    TextControl *joystick() { return &editor->view().control(DocumentKind::Joystick); }
    LineMargin *margin() { return joystick()->findChild<LineMargin *>(); }
    QColor pixel(int x, double y)
    {
        const QImage seen = joystick()->viewport()->grab().toImage();
        return seen.pixelColor(x, int(y));
    }
};

} // namespace

TEST(MarginColours, CanBeReadOnEveryBackground)
{
    for (int red = 0; red <= 255; red += 15) {
        for (int green = 0; green <= 255; green += 15) {
            for (int blue = 0; blue <= 255; blue += 15) {
                const QColor background(red, green, blue);
                const MarginColours colours = marginColours(background);
                ASSERT_GE(contrast(colours.number, colours.background), 4.5)
                    << background.name().toStdString();
                ASSERT_GE(contrast(colours.current, colours.background),
                          contrast(colours.number, colours.background));
                ASSERT_NE(colours.background, background);
                ASSERT_NE(colours.mark, background);
                // Hardly another background for the text.
                ASSERT_LT(contrast(colours.mark, background), 1.5);
            }
        }
    }
}

TEST(MarginColours, ContrastIsThatOfBlackOnWhiteAtMost)
{
    EXPECT_NEAR(contrast(Qt::black, Qt::white), 21, 0.001);
    EXPECT_NEAR(contrast(Qt::white, Qt::black), 21, 0.001);
    EXPECT_NEAR(contrast(Qt::red, Qt::red), 1, 0.001);
    // The well-known grey that is just readable on white.
    EXPECT_NEAR(contrast(QColor(0x76, 0x76, 0x76), Qt::white), 4.54, 0.01);
}

TEST_F(LineMarginTest, BothAreShownUnlessTheSettingsSayOtherwise)
{
    EXPECT_TRUE(margin()->isVisible());
    EXPECT_TRUE(editor->action(u"mnuViewLineNumbers")->isChecked());
    EXPECT_TRUE(editor->action(u"mnuViewCurrentLine")->isChecked());
    settings.of<DocumentSettings>().LineNumbers = false;
    settings.of<DocumentSettings>().CurrentLineMark = false;
    editor->applySettings();
    EXPECT_FALSE(margin()->isVisible());
    EXPECT_FALSE(editor->action(u"mnuViewLineNumbers")->isChecked());
    EXPECT_FALSE(editor->action(u"mnuViewCurrentLine")->isChecked());
}

TEST_F(LineMarginTest, TheTicksShowHideAndAreKept)
{
    editor->action(u"mnuViewLineNumbers")->trigger();
    EXPECT_FALSE(margin()->isVisible());
    EXPECT_EQ(settings.of<DocumentSettings>().LineNumbers, 0);
    editor->action(u"mnuViewLineNumbers")->trigger();
    EXPECT_TRUE(margin()->isVisible());
    EXPECT_EQ(settings.of<DocumentSettings>().LineNumbers, 1);
    editor->action(u"mnuViewCurrentLine")->trigger();
    EXPECT_EQ(settings.of<DocumentSettings>().CurrentLineMark, 0);
}

TEST_F(LineMarginTest, StandsBesideTheTextAndGrowsWithTheNumbers)
{
    EXPECT_EQ(margin()->geometry().right() + 1, joystick()->viewport()->x());
    EXPECT_EQ(margin()->width(), margin()->wantedWidth());
    const int narrow = margin()->width();
    type(DocumentKind::Joystick, QString(998, u'\n'));
    EXPECT_EQ(margin()->width(), narrow);
    type(DocumentKind::Joystick, u"\n"_s);
    EXPECT_GT(margin()->width(), narrow);
    EXPECT_EQ(margin()->geometry().right() + 1, joystick()->viewport()->x());
}

TEST_F(LineMarginTest, NumbersTheLinesThatAreSeen)
{
    type(DocumentKind::Joystick, QString(500, u'\n'));
    joystick()->shown().select(0, 0);
    QList<SeenLine> seen = joystick()->seenLines();
    ASSERT_GT(seen.size(), 5);
    EXPECT_EQ(seen[0].number, 1);
    EXPECT_EQ(seen[5].number, 6);
    for (int i = 1; i < seen.size(); ++i) {
        EXPECT_NEAR(seen[i].top, seen[i - 1].top + seen[i - 1].height, 0.01);
        EXPECT_GT(seen[i].baseline, seen[i].top);
        EXPECT_LT(seen[i].baseline, seen[i].top + seen[i].height);
    }
    joystick()->shown().select(500, 0);
    seen = joystick()->seenLines();
    EXPECT_EQ(seen.last().number, 501);
    EXPECT_LE(seen.last().top, joystick()->viewport()->height());
}

TEST_F(LineMarginTest, TheMarkFollowsTheCaret)
{
    type(DocumentKind::Joystick, u"a\nb\nc"_s);
    const QColor plain = joystick()->palette().color(QPalette::Base);
    const QColor mark = marginColours(plain).mark;
    const QList<SeenLine> seen = joystick()->seenLines();
    const auto at = [&](int line) {
        return pixel(300, seen[line].top + seen[line].height / 2);
    };
    EXPECT_EQ(at(2), mark);
    EXPECT_EQ(at(0), plain);
    joystick()->shown().select(0, 0);
    EXPECT_EQ(at(0), mark);
    EXPECT_EQ(at(2), plain);
    editor->action(u"mnuViewCurrentLine")->trigger();
    EXPECT_EQ(at(0), plain);
}

TEST_F(LineMarginTest, TheLinePanelSaysWhatItSaidWithoutIt)
{
    type(DocumentKind::Joystick, u"a\nb\nc"_s);
    EXPECT_EQ(status.lineText(), u"Line no: 3");
    editor->action(u"mnuViewLineNumbers")->trigger();
    joystick()->shown().select(2, 0);
    EXPECT_EQ(status.lineText(), u"Line no: 2");
}

TEST_F(LineMarginTest, TheWheelScrollsTheTextOverTheMarginToo)
{
    type(DocumentKind::Joystick, QString(500, u'\n'));
    joystick()->shown().select(0, 0);
    QWheelEvent wheel({ 5, 5 }, margin()->mapToGlobal(QPointF(5, 5)), {}, { 0, -240 }, Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(margin(), &wheel);
    EXPECT_GT(joystick()->seenLines()[0].number, 1);
}
