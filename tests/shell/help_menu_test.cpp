// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "shell/help_menu.h"

#include "editor/editor.h"
#include "menus/menu_actions.h"
#include "platform/tool_windows.h"
#include "settings/shared_settings.h"
#include "shell/frmabout.h"
#include "shell/frmtip.h"
#include "shell/helpwindow.h"
#include "shell/informationwindow.h"
#include "shell/mum.h"
#include "shell/settings/shell_settings.h"
#include "tests/support/shell_world.h"

#include <QAction>
#include <QMenu>
#include <QTextBrowser>

using namespace zeph;

namespace {

struct HelpEntries : test::RunningWorld {
    void SetUp() override
    {
        folder.write(u"Help/contents.html"_s, "<p>Contents</p>");
        folder.write(u"Help/b.html"_s, "<p>Buttons</p>");
        folder.write(u"Help/index.txt"_s, "BTN\tb.html\n");
        folder.write(u"Info/Syntax.rtf"_s, "{\\rtf1 Syntax}");
        folder.write(u"Info/Fly.rtf"_s, "{\\rtf1 Fly}");
        folder.write(u"Info/ZephInfo.ini"_s,
                     "[Online Help]\nNumberOfTopics=1\nMenuCaption1=&Fly\nInfoFile1=Fly.rtf\n"
                     "[Manuals]\nNumberOfManuals=3\nMenuCaption1=Own\nPath1=Help\\b.html\n"
                     "MenuCaption2=Other\nPath2=manual.pdf\nMenuCaption3=Gone\nPath3=gone.pdf\n");
        folder.write(u"manual.pdf"_s, "a manual");
        start("[Unsupported]\r\nVersionURL=http://server/version.txt\r\n");
    }
    ToolWindows &windows() { return app->mum().toolWindows(); }
    void choose(const QString &name)
    {
        EXPECT_TRUE(app->editor().actions().action(name)->isEnabled());
        app->editor().actions().action(name)->trigger();
    }
    void chooseSub(const QString &menu, int index)
    {
        app->editor().actions().menu(menu)->actions().at(index)->trigger();
    }
    QString page()
    {
        return windows()
            .get<HelpWindow>()
            ->findChild<QTextBrowser *>(u"Browser"_s)
            ->source()
            .fileName();
    }
};

} // namespace

TEST_F(HelpEntries, HelpTopicsOpenTheContents)
{
    choose(u"mnuHelpContents"_s);
    EXPECT_TRUE(windows().isOpen<HelpWindow>());
    EXPECT_EQ(page(), u"contents.html");
}

TEST_F(HelpEntries, AHelpFileOfTheOldFormOpensByItsAssociationWhenAskedTo)
{
    const QString old = folder.write(u"Zeph.hlp"_s, "old help");
    app->settings().of<SharedSettings>().UseHLPnotCHM = true;
    choose(u"mnuHelpContents"_s);
    EXPECT_EQ(launcher.opened, QStringList{ old });
    EXPECT_FALSE(windows().isOpen<HelpWindow>());
}

TEST_F(HelpEntries, AWordOfTheTextOpensItsPage)
{
    Q_EMIT app->editor().helpOn(u"btn"_s);
    EXPECT_EQ(page(), u"b.html");
}

TEST_F(HelpEntries, AnUnknownWordIsToldAndNoWindowOpens)
{
    dialogs.answer(u"Keyword Not Found"_s, BoxButton::Ok);
    Q_EMIT app->editor().helpOn(u"Banana"_s);
    EXPECT_FALSE(windows().isOpen<HelpWindow>());
}

TEST_F(HelpEntries, HowDoITextsShowUnderTheirCaption)
{
    EXPECT_TRUE(app->editor().action(u"mnuHelpHowDoI")->isEnabled());
    chooseSub(u"mnuHelpHowDoI"_s, 0);
    ASSERT_TRUE(windows().isOpen<InformationWindow>());
    EXPECT_EQ(windows().get<InformationWindow>()->windowTitle(), u"Fly");
}

TEST_F(HelpEntries, ManualsOfTheHelpShowInItAndOthersGoToTheDesktop)
{
    chooseSub(u"mnuHelpManuals"_s, 0);
    EXPECT_EQ(page(), u"b.html");
    chooseSub(u"mnuHelpManuals"_s, 1);
    EXPECT_EQ(launcher.opened, QStringList{ folder.file(u"manual.pdf"_s) });
}

TEST_F(HelpEntries, AMissingManualIsToldWithItsPath)
{
    dialogs.answer(u"Missing manual"_s, BoxButton::Ok);
    chooseSub(u"mnuHelpManuals"_s, 2);
    EXPECT_EQ(dialogs.boxes()[0].text,
              u"Manual not found. According to the ZephInfo.ini file, it "
              "should be located here: "_s
                  + folder.file(u"gone.pdf"_s));
}

TEST_F(HelpEntries, InformationTextsShowAndMissingOnesAreTold)
{
    choose(u"mnuHelpSyntax"_s);
    EXPECT_EQ(windows().get<InformationWindow>()->windowTitle(), u"Syntax");
    dialogs.answer(u"Missing file"_s, BoxButton::Ok);
    choose(u"mnuHelpErrorCodes"_s);
    EXPECT_TRUE(dialogs.boxes()[0].text.contains(folder.file(u"Info/Error codes.rtf"_s)));
}

TEST_F(HelpEntries, TheVersionCheckAsksTheSettingsServer)
{
    downloader.answer = QByteArray("4.4.02");
    dialogs.answer(u"Version information"_s, BoxButton::Ok);
    choose(u"mnuHelpAbout_0"_s);
    EXPECT_EQ(downloader.asked, QStringList{ u"http://server/version.txt"_s });
}

TEST_F(HelpEntries, VistaCompatibilityTipAndAboutOpen)
{
    folder.write(u"Info/Vista compatibility.rtf"_s, "{\\rtf1 Vista}");
    choose(u"mnuHelpAbout_1"_s);
    EXPECT_TRUE(windows().isOpen<InformationWindow>());
    choose(u"mnuHelpAbout_2"_s);
    EXPECT_TRUE(windows().isOpen<frmAbout>());
    choose(u"mnuHelpTip"_s);
    EXPECT_TRUE(windows().isOpen<frmTip>());
}
