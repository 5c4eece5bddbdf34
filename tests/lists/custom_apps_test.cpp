// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "lists/custom_apps.h"

#include "platform/fakes/fake_launcher.h"
#include "tests/support/temp_folder.h"

#include <gtest/gtest.h>

#include <QImage>

using namespace zeph;

namespace {

struct CustomAppsTest : testing::Test {
    test::TempFolder folder;
    ProfileFile store{ folder.file(u"Zeph.ini"_s) };
};

} // namespace

TEST_F(CustomAppsTest, AreExactlyFour)
{
    folder.write(u"Zeph.ini"_s,
                 "[Apps]\nCustomAppName1=Chat\nCustomAppPath1=/bin/chat -q\nCustomAppUse1=1\n"
                 "CustomAppName4=Last\nCustomAppName5=none\n");
    const CustomApps apps = readCustomApps(store);
    ASSERT_EQ(apps.size(), 4U);
    EXPECT_EQ(apps[0].CustomAppName, u"Chat");
    EXPECT_EQ(apps[0].CustomAppPath, u"/bin/chat -q");
    EXPECT_TRUE(apps[0].CustomAppUse);
    EXPECT_EQ(apps[3].CustomAppName, u"Last");
    EXPECT_FALSE(apps[3].CustomAppUse);
}

TEST_F(CustomAppsTest, WhatIsWrittenComesBack)
{
    CustomApps apps;
    apps[1] = { u"Chat"_s, u"/bin/chat"_s, true };
    ASSERT_TRUE(writeCustomApps(store, apps));
    EXPECT_EQ(readCustomApps(store)[1].CustomAppPath, u"/bin/chat");
    EXPECT_EQ(store.text(u"Apps", u"CustomAppUse2"), u"1");
    EXPECT_EQ(store.text(u"Apps", u"CustomAppUse4"), u"0");
}

TEST_F(CustomAppsTest, StartInTheRootOfTheirDrive)
{
    const QString program = folder.write(u"my chat"_s, "program");
    for (const QString &path : { program + u" -q"_s, u'"' + program + u"\" -q"_s }) {
        const Launch launch = customAppLaunch({ u"Chat"_s, path, true });
        EXPECT_EQ(launch.program, program);
        EXPECT_EQ(launch.arguments, u"-q");
        EXPECT_EQ(launch.folder, folder.root());
        EXPECT_EQ(launch.style, WindowStyle::NormalFocus);
    }
}

TEST_F(CustomAppsTest, AFolderOrAMissingProgramCannotBeStarted)
{
    const FakeLauncher launcher;
    const QString program = folder.write(u"app.exe"_s, "x");
    EXPECT_EQ(lackOf({ {}, program, true }, launcher), u"");
    EXPECT_EQ(lackOf({ {}, folder.path(), true }, launcher),
              folder.path() + u" is a folder, not a program"_s);
    EXPECT_EQ(lackOf({ {}, folder.file(u"gone.exe"_s), true }, launcher),
              folder.file(u"gone.exe"_s) + u" is missing"_s);
}

TEST_F(CustomAppsTest, TheMaskColourOfAPictureIsSeenThrough)
{
    QImage drawn(20, 20, QImage::Format_RGB32);
    drawn.fill(qRgb(192, 192, 192));
    drawn.setPixel(10, 10, qRgb(255, 0, 0));
    const QString file = folder.file(u"app1.bmp"_s);
    ASSERT_TRUE(drawn.save(file, "BMP"));
    const QImage shown = loadCustomAppPicture(file).pixmap(20, 20).toImage();
    EXPECT_EQ(qAlpha(shown.pixel(0, 0)), 0);
    EXPECT_EQ(shown.pixel(10, 10), qRgb(255, 0, 0));
}

TEST_F(CustomAppsTest, AnAbsentPictureOrProgramGivesNone)
{
    EXPECT_TRUE(loadCustomAppPicture(folder.file(u"app1.bmp"_s)).isNull());
    EXPECT_FALSE(
        makeCustomAppPicture({ u"A"_s, u"/nowhere/x"_s, true }, folder.file(u"app1.bmp"_s)));
    EXPECT_FALSE(folder.exists(u"app1.bmp"_s));
}
