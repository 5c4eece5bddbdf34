// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "preferences/list_rules.h"

#include <gtest/gtest.h>

using namespace zeph;

namespace {

/// The question as it is told, with the Windows folder C:\WINDOWS.
struct AppletCase {
    const char *name;
    QStringView path;
    QStringView title; ///< empty: no question
    QStringView program;
};

class AppletRule : public testing::TestWithParam<AppletCase>
{
};

const AppletCase applets[] = {
    { "AnApplet", u"C:\\WINDOWS\\joy.cpl", u"Information for using control panel applets",
      u"C:\\WINDOWS\\control.exe " },
    { "AnAppletInCapitals", u"C:\\WINDOWS\\JOY.CPL", u"Information for using control panel applets",
      u"C:\\WINDOWS\\control.exe " },
    { "AQuotedApplet", u"\"C:\\My files\\joy.cpl\"", u"Information for using control panel applets",
      u"C:\\WINDOWS\\control.exe " },
    { "AHelpFile", u"D:\\Sims\\Falcon.hlp", u"Information for using help files",
      u"C:\\WINDOWS\\winhlp32.exe " },
    { "AProgram", u"C:\\Games\\fly.exe", u"", u"" },
    { "AnAppletAmongTheSwitches", u"C:\\x.exe joy.cpl -q", u"", u"" },
    { "AnAppletWithItsProgram", u"C:\\WINDOWS\\control.exe joy.cpl", u"", u"" },
    { "AnAppletWithItsProgramAlone", u"Control.exe joy.cpl", u"", u"" },
    { "AHelpFileWithItsProgram", u"C:\\WINDOWS\\winhlp32.exe D:\\Falcon.hlp", u"", u"" },
    { "Nothing", u"", u"", u"" },
};

TEST_P(AppletRule, AsksAsTold)
{
    const AppletCase &row = GetParam();
    const QString path = row.path.toString();
    const auto question = appletQuestion(path, u"C:\\WINDOWS"_s);
    ASSERT_EQ(question.has_value(), !row.title.isEmpty());
    if (!question) {
        return;
    }
    const QString program = row.program.toString();
    EXPECT_EQ(question->title, row.title);
    EXPECT_EQ(question->newPath, program + path);
    EXPECT_EQ(question->text,
              u"I see you're trying to run one of the control panel's programs. If you want to do "
              "this, then you need to add "_s
                  + program + u"to your path so that it looks like this: "_s + program + path
                  + u". Would you like me to do this for you now?"_s);
}

INSTANTIATE_TEST_SUITE_P(Preferences, AppletRule, testing::ValuesIn(applets),
                         [](const auto &instance) { return std::string(instance.param.name); });

} // namespace

TEST(AppsRules, WithoutAPathTheTickGoes)
{
    CustomApps apps;
    apps[0] = { u" Chat "_s, u"  "_s, true };
    apps[1] = { u"Radio"_s, u" /bin/radio -q "_s, true };
    apps[2] = { u"Off"_s, u"/bin/off"_s, false };
    const CustomApps kept = settledApps(apps, {});
    EXPECT_EQ(kept[0].CustomAppName, u"Chat");
    EXPECT_EQ(kept[0].CustomAppPath, u"");
    EXPECT_FALSE(kept[0].CustomAppUse);
    EXPECT_EQ(kept[1].CustomAppPath, u"/bin/radio -q");
    EXPECT_TRUE(kept[1].CustomAppUse);
    EXPECT_FALSE(kept[2].CustomAppUse);
}

TEST(AppsRules, WhatTheStoreCannotHoldLeavesTheFieldAsItWas)
{
    CustomApps before;
    before[1] = { u"Radio"_s, u"/bin/radio"_s, true };
    CustomApps apps = before;
    apps[0] = { u"Chat"_s, u"/home/\u65e5\u672c/chat"_s, true };
    apps[1] = { u"\u0416"_s, QString(500, u'x'), true };
    const CustomApps kept = settledApps(apps, before);
    EXPECT_EQ(kept[0].CustomAppName, u"Chat");
    EXPECT_EQ(kept[0].CustomAppPath, u"");
    EXPECT_FALSE(kept[0].CustomAppUse);
    EXPECT_EQ(kept[1].CustomAppName, u"Radio");
    EXPECT_EQ(kept[1].CustomAppPath, u"/bin/radio");
    EXPECT_TRUE(kept[1].CustomAppUse);
}

TEST(AppsRules, AProgramWithoutANameIsCalledAsItsFile)
{
    EXPECT_EQ(appNameFor(u"C:\\Radio\\Team chat.exe"_s), u"Team chat");
    EXPECT_EQ(appNameFor(u"/usr/bin/radio"_s), u"radio");
    EXPECT_EQ(appNameFor(u"/home/me/.chat"_s), u".chat");
}
