// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "shell/frmabout.h"

#include "platform/core/stand_in.h"
#include "tests/support/shell_world.h"

#include <QLabel>
#include <QPushButton>

using namespace zeph;

using AboutWindow = test::ShellWorld;

TEST_F(AboutWindow, ShowsPictureAndVersion)
{
    installData(u"Zeph.bmp"_s);
    frmAbout window(paths);
    EXPECT_EQ(window.findChild<QLabel *>(u"lblVersion"_s)->text(), u"Version 4.4.02");
    EXPECT_FALSE(window.findChild<QLabel *>(u"picAbout"_s)->pixmap().isNull());
    window.show();
    window.findChild<QPushButton *>(u"cmdOK"_s)->click();
    EXPECT_FALSE(window.isVisible());
}

TEST_F(AboutWindow, HasALineWhileTheStandInToolsAreInUse)
{
    const auto line = [this] {
        const frmAbout window(paths);
        return !window.findChild<QLabel *>(u"lblStandIns"_s)->isHidden();
    };
    folder.write(u"HOTASCompiler.exe"_s, "a real tool");
    EXPECT_FALSE(line());
    folder.write(u"HOTASCompiler.exe"_s, standInMark);
    EXPECT_TRUE(line());
}

TEST_F(AboutWindow, AMissingPictureIsToldInItsPlace)
{
    const frmAbout window(paths);
    EXPECT_TRUE(
        window.findChild<QLabel *>(u"picAbout"_s)->text().contains(folder.file(u"Zeph.bmp"_s)));
}
