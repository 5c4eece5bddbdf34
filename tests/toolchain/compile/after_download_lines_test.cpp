// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "toolchain/compile/after_download.h"

#include <gtest/gtest.h>

using namespace zeph;

namespace {

using enum WindowStyle;

struct Case {
    const char *shows;
    QStringView line;
    /// Null when the line names no application.
    const char16_t *command;
    WindowStyle style = MinimisedNoFocus;
};

constexpr Case cases[] = {
    { "a plain line", u"USE ZEPH RUN_APP c:\\x.exe", u"c:\\x.exe" },
    { "mixed blanks and tabs", u"use  zeph\trun_app c:\\x.exe", u"c:\\x.exe" },
    { "blanks and tabs in front", u" \t  Use Zeph Run_App c:\\x.exe", u"c:\\x.exe" },
    { "19 characters are too short", u"USE ZEPH RUN_APP ab", nullptr },
    { "20 characters are enough", u"USE ZEPH RUN_APP abc", u"abc" },
    { "20 characters of which blanks were some", u"USE  ZEPH RUN_APP ab", nullptr },
    { "the head alone", u"USE ZEPH RUN_APP", nullptr },
    { "another directive", u"USE ZEPH GRAPHIC picture.jpg", nullptr },
    { "a comment in front", u"Rem USE ZEPH RUN_APP c:\\x.exe", nullptr },
    { "a comment after it", u"USE ZEPH RUN_APP c:\\x.exe Rem the trainer", u"c:\\x.exe" },
    { "a comment in capitals", u"USE ZEPH RUN_APP c:\\x.exe   REM the trainer", u"c:\\x.exe" },
    { "rem at the line's end is no comment", u"USE ZEPH RUN_APP c:\\rem", u"c:\\rem" },
    { "arguments", u"USE ZEPH RUN_APP c:\\x.exe -a  \"b c\"", u"c:\\x.exe -a \"b c\"" },
    { "a style", u"USE ZEPH RUN_APP c:\\x.exe -a WINDOW_STYLE = 3", u"c:\\x.exe -a",
      MaximisedFocus },
    { "style 0", u"USE ZEPH RUN_APP x.exe WINDOW_STYLE = 0", u"x.exe", Hidden },
    { "style 1", u"USE ZEPH RUN_APP x.exe WINDOW_STYLE = 1", u"x.exe", NormalFocus },
    { "style 2", u"USE ZEPH RUN_APP x.exe WINDOW_STYLE = 2", u"x.exe", MinimisedFocus },
    { "style 4", u"USE ZEPH RUN_APP x.exe WINDOW_STYLE = 4", u"x.exe", NormalNoFocus },
    { "style 5 is none", u"USE ZEPH RUN_APP x.exe WINDOW_STYLE = 5", u"x.exe" },
    { "style 6", u"USE ZEPH RUN_APP x.exe WINDOW_STYLE = 6", u"x.exe" },
    { "a word for a style", u"USE ZEPH RUN_APP x.exe WINDOW_STYLE = max", u"x.exe" },
    { "a style without blanks", u"USE ZEPH RUN_APP x.exe window_style=2", u"x.exe",
      MinimisedFocus },
    { "a style and blanks after it", u"USE ZEPH RUN_APP x.exe WINDOW_STYLE = 2 \t", u"x.exe",
      MinimisedFocus },
    { "a style in a comment does not count", u"USE ZEPH RUN_APP x.exe -a Rem WINDOW_STYLE = 2",
      u"x.exe -a" },
    { "a style before a comment", u"USE ZEPH RUN_APP x.exe WINDOW_STYLE = 4 rem big", u"x.exe",
      NormalNoFocus },
    { "nothing but a style", u"USE ZEPH RUN_APP WINDOW_STYLE = 1", u"", NormalFocus },
    { "a comment for a command", u"USE ZEPH RUN_APP rem later", u"" },
};

} // namespace

TEST(RunAppLines, ALineOfMixedBlanksAndTabsIsRecognisedAfterNormalisation)
{
    const auto apps = runAppLines(u"use  zeph\trun_app c:\\x.exe");
    ASSERT_EQ(apps.size(), 1);
    EXPECT_EQ(apps[0].command, u"c:\\x.exe");
}

TEST(RunAppLines, ALineUnder20CharactersAfterNormalisationIsIgnored)
{
    EXPECT_TRUE(runAppLines(u"USE  \tZEPH   RUN_APP \t ab").isEmpty());
    EXPECT_EQ(runAppLines(u"USE  \tZEPH   RUN_APP \t abc").size(), 1);
}

TEST(RunAppLines, ReadsALine)
{
    for (const Case &row : cases) {
        SCOPED_TRACE(row.shows);
        const QList<RunApp> expected = row.command
            ? QList<RunApp>{ { QString::fromUtf16(row.command), row.style } }
            : QList<RunApp>{};
        EXPECT_EQ(runAppLines(row.line), expected);
    }
}

TEST(RunAppLines, SeveralLinesNameSeveralApplicationsInTheFilesOrder)
{
    const QList<RunApp> apps = runAppLines(u"Rem USE it\n"
                                           u"USE ZEPH RUN_APP c:\\b.exe\n"
                                           u"BTN S1 a\n"
                                           u"use zeph run_app c:\\a.exe window_style = 1\n"
                                           u"\n"
                                           u"USE ZEPH RUN_APP c:\\b.exe");
    EXPECT_EQ(
        apps,
        (QList<RunApp>{ { u"c:\\b.exe"_s }, { u"c:\\a.exe"_s, NormalFocus }, { u"c:\\b.exe"_s } }));
}

TEST(RunAppLines, AnEmptyTextNamesNone)
{
    EXPECT_TRUE(runAppLines(u"").isEmpty());
}
