// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "shell/frmtip.h"

#include "settings/shared_settings.h"
#include "tests/support/shell_world.h"

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>

using namespace zeph;

namespace {

struct TipWindow : test::ShellWorld {
    TipWindow() { folder.write(u"Tips.txt"_s, "One\r\nTwo\r\nThree\r\n"); }

    static qsizetype last(qsizetype count) { return count - 1; }
    static QString tip(const frmTip &window)
    {
        return window.findChild<QLabel *>(u"lblTipText"_s)->text();
    }
    static void press(const frmTip &window, const QString &button)
    {
        window.findChild<QPushButton *>(button)->click();
    }
};

} // namespace

TEST_F(TipWindow, ShowsAPickedTipAndNextTipWraps)
{
    const frmTip window(paths, settings, last);
    EXPECT_EQ(window.windowTitle(), u"Tip of the Day");
    EXPECT_EQ(tip(window), u"Three");
    press(window, u"cmdNextTip"_s);
    EXPECT_EQ(tip(window), u"One");
}

TEST_F(TipWindow, PicksByChanceAmongAllTips)
{
    QSet<QString> seen;
    for (int i = 0; i < 200; ++i) {
        seen.insert(tip(frmTip(paths, settings)));
    }
    EXPECT_EQ(seen, QSet<QString>({ u"One"_s, u"Two"_s, u"Three"_s }));
}

TEST_F(TipWindow, OKWritesShowTips)
{
    frmTip window(paths, settings, last);
    auto *tick = window.findChild<QCheckBox *>(u"chkLoadTipsAtStartup"_s);
    EXPECT_EQ(tick->text(), u"&Show Tips at Startup");
    EXPECT_TRUE(tick->isChecked());
    tick->setChecked(false);
    press(window, u"cmdOK"_s);
    EXPECT_EQ(settings.of<SharedSettings>().ShowTips, 0);
    EXPECT_EQ(ProfileFile(paths.iniPath).integer(u"FileLocations", u"ShowTips", 1), 0);
}

TEST_F(TipWindow, EscapeWritesNothing)
{
    frmTip window(paths, settings, last);
    window.findChild<QCheckBox *>(u"chkLoadTipsAtStartup"_s)->setChecked(false);
    window.reject();
    EXPECT_EQ(settings.of<SharedSettings>().ShowTips, 1);
    EXPECT_FALSE(folder.exists(u"Zeph.ini"_s));
}

TEST_F(TipWindow, AMissingTipFileIsToldInTheWindow)
{
    QFile::remove(folder.file(u"Tips.txt"_s));
    const frmTip window(paths, settings, last);
    EXPECT_TRUE(tip(window).contains(folder.file(u"Tips.txt"_s)));
    EXPECT_FALSE(window.findChild<QPushButton *>(u"cmdNextTip"_s)->isEnabled());
}
