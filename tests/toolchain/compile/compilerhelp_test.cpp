// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "toolchain/compile/compilerhelp.h"

#include "platform/richtext/rich_text_box.h"
#include "tests/support/temp_folder.h"

#include <gtest/gtest.h>

#include <QLabel>
#include <QPushButton>
#include <QScrollBar>
#include <QSpinBox>
#include <QtTest/QSignalSpy>
#include <QtTest/QTest>

using namespace zeph;

namespace {

/// Forty entries, each with a heading, a line of its own and an empty line.
QByteArray manyCodes()
{
    QByteArray rtf = "{\\rtf1\\ansi{\\fonttbl{\\f0 Arial;}}\\f0\\fs20 ";
    for (int code = 1001; code <= 1040; ++code) {
        const QByteArray number = QByteArray::number(code);
        rtf +=
            "{\\b ERROR " + number + ": heading}\\par What to do about " + number + ".\\par\\par ";
    }
    return rtf + "}";
}

class CompilerHelpTest : public testing::Test
{
protected:
    void open(const QByteArray &rtf)
    {
        window = std::make_unique<CompilerHelp>(folder.write(u"Error codes.rtf"_s, rtf));
        window->show();
    }
    QString label(const QString &name) const { return window->findChild<QLabel *>(name)->text(); }
    QPushButton *button(const QString &name) const
    {
        return window->findChild<QPushButton *>(name);
    }
    RichTextBox *codes() const { return window->findChild<RichTextBox *>(u"RichTextCodes"_s); }
    static CompilerError error(const QString &text, int line = 12)
    {
        return { text, line, { { {}, u"Untitled.tmj"_s }, { {}, u"Untitled.tmm"_s } } };
    }

    test::TempFolder folder;
    std::unique_ptr<CompilerHelp> window;
};

} // namespace

TEST_F(CompilerHelpTest, NamesTheFileTheLineAndTheError)
{
    open(manyCodes());
    window->ShowTheError(error(u"ERROR 1002: <i>what</i> & why"_s));
    EXPECT_EQ(window->windowTitle(), u"Help on compiler errors");
    EXPECT_EQ(label(u"LabelFile"_s), u"File: Untitled.tmj");
    EXPECT_EQ(label(u"LabelLine"_s), u"Line: 12");
    EXPECT_EQ(label(u"LabelError"_s), u"Error: ERROR 1002: <i>what</i> & why");
    EXPECT_EQ(window->findChild<QLabel *>(u"LabelError"_s)->textFormat(), Qt::PlainText);
}

TEST_F(CompilerHelpTest, Code1013NamesTheMacroFile)
{
    open(manyCodes());
    window->ShowTheError(error(u"ERROR 1013: macro"_s));
    EXPECT_EQ(label(u"LabelFile"_s), u"File: Untitled.tmm");
}

TEST_F(CompilerHelpTest, SelectsTheHeadingAndBringsTheEntryIntoView)
{
    open(manyCodes());
    window->ShowTheError(error(u"ERROR 1030: heading and more"_s));
    EXPECT_EQ(codes()->selText(), u"ERROR 1030: heading");
    EXPECT_EQ(codes()->selStart(), codes()->toPlainText().indexOf(u"ERROR 1030"_s));
    const QRect heading = codes()->cursorRect();
    EXPECT_TRUE(codes()->viewport()->rect().contains(heading.center()));
    EXPECT_GT(codes()->verticalScrollBar()->value(), 0);
}

TEST_F(CompilerHelpTest, AnotherErrorMovesTheSelection)
{
    open(manyCodes());
    window->ShowTheError(error(u"ERROR 1030"_s));
    window->ShowTheError(error(u"ERROR 1001"_s, 0));
    EXPECT_EQ(codes()->selText(), u"ERROR 1001: heading");
    EXPECT_EQ(label(u"LabelLine"_s), u"Line: 0");
}

TEST_F(CompilerHelpTest, AnUnknownCodeSelectsNothing)
{
    open(manyCodes());
    window->ShowTheError(error(u"ERROR 1030"_s));
    window->ShowTheError(error(u"ERROR 9999: ?"_s));
    EXPECT_EQ(codes()->selLength(), 0);
    EXPECT_EQ(label(u"LabelError"_s), u"Error: ERROR 9999: ?");
}

TEST_F(CompilerHelpTest, AMissingFileIsToldInItsPlace)
{
    const QString path = folder.file(u"Info/Error codes.rtf"_s);
    window = std::make_unique<CompilerHelp>(path);
    EXPECT_TRUE(codes()->toPlainText().startsWith(u"The explanations could not be read."_s));
    EXPECT_TRUE(codes()->toPlainText().contains(path));
    window->ShowTheError(error(u"ERROR 1013: x"_s));
    EXPECT_EQ(label(u"LabelFile"_s), u"File: Untitled.tmm");
}

TEST_F(CompilerHelpTest, TheFontSizeControlChangesTheWholeTextAndKeepsTheSelection)
{
    open(manyCodes());
    window->ShowTheError(error(u"ERROR 1002"_s));
    auto *size = window->findChild<QSpinBox *>(u"FontSize"_s);
    EXPECT_EQ(size->value(), 10);
    size->setValue(16);
    const RichText text = codes()->richText();
    EXPECT_EQ(text.formatAt(0).pointSize, 16);
    EXPECT_TRUE(text.formatAt(0).bold);
    EXPECT_EQ(text.formatAt(text.text.size() - 2).pointSize, 16);
    EXPECT_EQ(codes()->selText(), u"ERROR 1002: heading");
}

TEST_F(CompilerHelpTest, TheEntryStaysInViewWhenTheTextGrows)
{
    open(manyCodes());
    window->ShowTheError(error(u"ERROR 1030"_s));
    window->findChild<QSpinBox *>(u"FontSize"_s)->setValue(30);
    EXPECT_TRUE(codes()->viewport()->rect().contains(codes()->cursorRect().center()));
}

TEST_F(CompilerHelpTest, ShowLineAsksForTheErrorsLine)
{
    open(manyCodes());
    QList<CompilerError> asked;
    QObject::connect(window.get(), &CompilerHelp::highlightRequested, window.get(),
                     [&asked](const CompilerError &error) { asked.append(error); });
    window->ShowTheError(error(u"ERROR 1013: macro"_s, 7));
    button(u"CMD_ShowLine"_s)->click();
    ASSERT_EQ(asked.size(), 1);
    EXPECT_EQ(asked[0].line, 7);
    EXPECT_EQ(asked[0].text, u"ERROR 1013: macro");
    EXPECT_EQ(asked[0].file().name, u"Untitled.tmm");
}

TEST_F(CompilerHelpTest, WithoutALineThereIsNoneToShow)
{
    open(manyCodes());
    EXPECT_FALSE(button(u"CMD_ShowLine"_s)->isEnabled());
    window->ShowTheError(error(u"ERROR 1002"_s, 3));
    EXPECT_TRUE(button(u"CMD_ShowLine"_s)->isEnabled());
    window->ShowTheError(error(u"ERROR 1002"_s, 0));
    EXPECT_FALSE(button(u"CMD_ShowLine"_s)->isEnabled());
}

TEST_F(CompilerHelpTest, HelpAsksForTheTopic)
{
    open(manyCodes());
    QSignalSpy asked(window.get(), &CompilerHelp::helpRequested);
    button(u"CMD_Help"_s)->click();
    EXPECT_EQ(asked.size(), 1);
}

TEST_F(CompilerHelpTest, EscapeAndTheCloseButtonCloseIt)
{
    open(manyCodes());
    QTest::keyClick(codes(), Qt::Key_Escape);
    EXPECT_FALSE(window->isVisible());
    window->show();
    button(u"CMD_Close"_s)->click();
    EXPECT_FALSE(window->isVisible());
}

TEST_F(CompilerHelpTest, TabGoesFromTheTextDownToTheButtons)
{
    open(manyCodes());
    window->ShowTheError(error(u"ERROR 1002"_s, 3));
    codes()->setFocus();
    QStringList order;
    for (int i = 0; i < 4; ++i) {
        QTest::keyClick(window->focusWidget(), Qt::Key_Tab);
        order.append(window->focusWidget()->objectName());
    }
    EXPECT_EQ(order,
              (QStringList{ u"FontSize"_s, u"CMD_ShowLine"_s, u"CMD_Help"_s, u"CMD_Close"_s }));
}
