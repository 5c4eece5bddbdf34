// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "documents/editor_view.h"
#include "editor/editor.h"
#include "menus/menu_actions.h"
#include "platform/tool_windows.h"
#include "shell/application.h"
#include "shell/help_menu.h"
#include "shell/mum.h"
#include "tests/support/shell_world.h"

#include <QAction>
#include <QFile>
#include <QTest>

using namespace zeph;

namespace {

struct Exit : test::RunningWorld {
    QString joystick;
    QString macro;

    void SetUp() override
    {
        joystick = folder.write(u"Files/Viper.tmj"_s, "BTN S2 Fire\r\n");
        macro = folder.write(u"Files/Viper.tmm"_s, "Fire = a\r\n");
        arguments = { joystick };
        start("[Miscellaneous]\r\nMumWindowstate=0\r\n");
    }
    void typeInto(Document &document) const
    {
        app->editor().view().control(document.kind()).insertPlainText(u"x"_s);
        ASSERT_TRUE(document.isModified());
    }
    QString stored(const QString &key) const
    {
        return ProfileFile(paths.iniPath).text(u"Miscellaneous", key, u"(absent)"_s);
    }
};

} // namespace

TEST_F(Exit, KeepsTheFilesOfTheRunAndThePlaceForTheNext)
{
    app->mum().move(30, 40);
    app->mum().resize(820, 640);
    EXPECT_TRUE(app->mum().close());
    EXPECT_EQ(stored(u"RestoreJoyFile"_s), nativeSeparators(u"Files/Viper.tmj"_s));
    EXPECT_EQ(stored(u"RestoreMacroFile"_s), nativeSeparators(u"Files/Viper.tmm"_s));
    EXPECT_EQ(stored(u"MumLeftAtStartup"_s), u"450");
    EXPECT_EQ(stored(u"MumTopAtStartup"_s), u"600");
    EXPECT_EQ(stored(u"MumWidthAtStartup"_s), u"12300");
    EXPECT_EQ(stored(u"MumHeightAtStartup"_s), u"9600");
    EXPECT_EQ(stored(u"MumWindowstate"_s), u"0");
}

TEST_F(Exit, AFileThatIsGoneIsNotRestored)
{
    QFile::remove(macro);
    EXPECT_TRUE(app->mum().close());
    EXPECT_EQ(stored(u"RestoreJoyFile"_s), nativeSeparators(u"Files/Viper.tmj"_s));
    EXPECT_EQ(stored(u"RestoreMacroFile"_s), QString());
}

TEST_F(Exit, TheMenusItemClosesTheMainWindow)
{
    app->editor().actions().action(u"mnuFileExit")->trigger();
    EXPECT_FALSE(app->mum().isVisible());
}

TEST_F(Exit, AsksForTheMacroFileFirstAndThenForTheJoystickFile)
{
    typeInto(app->editor().joystick());
    typeInto(app->editor().macro());
    dialogs.answer(u" Save Viper.tmm now?"_s, BoxButton::No);
    dialogs.answer(u" Save Viper.tmj now?"_s, BoxButton::No);
    EXPECT_TRUE(app->mum().close());
    EXPECT_EQ(boxTitles(), QStringList({ u" Save Viper.tmm now?"_s, u" Save Viper.tmj now?"_s }));
    EXPECT_EQ(dialogs.boxes()[0].text,
              u"Viper.tmm has changed and isn't saved. Do you want to save it before exiting?");
}

TEST_F(Exit, CancelStopsItAndNothingIsWritten)
{
    typeInto(app->editor().macro());
    const QByteArray before = folder.read(u"Zeph.ini"_s);
    dialogs.answer(u" Save Viper.tmm now?"_s, BoxButton::Cancel);
    EXPECT_FALSE(app->mum().close());
    EXPECT_TRUE(app->mum().isVisible());
    EXPECT_EQ(folder.read(u"Zeph.ini"_s), before);
}

TEST_F(Exit, YesSaves)
{
    typeInto(app->editor().joystick());
    dialogs.answer(u" Save Viper.tmj now?"_s, BoxButton::Yes);
    EXPECT_TRUE(app->mum().close());
    EXPECT_TRUE(folder.read(u"Files/Viper.tmj"_s).contains('x'));
}

TEST_F(Exit, ClosesTheToolWindowsWithIt)
{
    folder.write(u"Help/contents.html"_s, "<p>Help</p>");
    app->help().mnuHelpContents_Click();
    EXPECT_TRUE(app->mum().close());
    for (const QWidget *window : QApplication::topLevelWidgets()) {
        EXPECT_FALSE(window->isVisible()) << window->objectName().toStdString();
    }
}

TEST_F(Exit, ClosingWhileMinimisedLeavesTheLastPositionUnchanged)
{
    app->mum().move(333, 100);
    app->mum().resize(700, 500);
    app->mum().showMinimized();
    EXPECT_TRUE(app->mum().close());
    EXPECT_EQ(stored(u"MumLeftAtStartup"_s), u"0");
    EXPECT_EQ(stored(u"MumTopAtStartup"_s), u"0");
    EXPECT_EQ(stored(u"MumWidthAtStartup"_s), u"13320");
    EXPECT_EQ(stored(u"MumHeightAtStartup"_s), u"8895");
    EXPECT_EQ(stored(u"MumWindowstate"_s), u"0");
}
