// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "livetools/pictures/viewimage.h"

#include "editor/editor.h"
#include "editor/files/file_opening.h"
#include "menus/menu_actions.h"
#include "platform/tool_windows.h"
#include "settings/shared_settings.h"
#include "shell/mum.h"
#include "tests/support/picture_files.h"
#include "tests/support/shell_world.h"

#include <QToolButton>

using namespace zeph;

namespace {

struct ImageViewerMenuTest : test::RunningWorld {
    void SetUp() override
    {
        folder.write(u"Zeph.bmp"_s, test::bytesOf(test::pictureOf({ 60, 50 }), "bmp"));
        folder.write(u"Files/Sheet.bmp"_s, test::bytesOf(test::pictureOf({ 30, 20 }), "bmp"));
        start();
    }
    void openPair(const QByteArray &text)
    {
        app->editor().opening().OpenFavouriteFile(folder.write(u"Files/Jet.tmj"_s, text));
    }
    QAction *action(const QString &name) const { return app->editor().actions().action(name); }
    ViewImage *viewer() const { return app->mum().toolWindows().get<ViewImage>(); }
};

} // namespace

TEST_F(ImageViewerMenuTest, ShowsTheDefaultPictureWithoutOneOfTheFiles)
{
    EXPECT_FALSE(action(u"mnuAppsViewGraphic"_s)->isEnabled());
    action(u"mnuAppsImageViewer"_s)->trigger();
    ASSERT_TRUE(viewer());
    EXPECT_TRUE(viewer()->isVisible());
    EXPECT_EQ(viewer()->pictureSize(), QSize(60, 50));
}

TEST_F(ImageViewerMenuTest, ShowsThePictureOfTheFiles)
{
    openPair("USE ZEPH GRAPHIC Sheet.bmp\r\nBTN S1 a\r\n");
    EXPECT_TRUE(action(u"mnuAppsViewGraphic"_s)->isEnabled());
    action(u"mnuAppsViewGraphic"_s)->trigger();
    ASSERT_TRUE(viewer());
    EXPECT_EQ(viewer()->pictureSize(), QSize(30, 20));
}

TEST_F(ImageViewerMenuTest, ComesBackToThePictureOfTheFilesInAnOpenWindow)
{
    openPair("USE ZEPH GRAPHIC Sheet.bmp\r\nBTN S1 a\r\n");
    action(u"mnuAppsViewGraphic"_s)->trigger();
    dialogs.answerFile(folder.file(u"Zeph.bmp"_s));
    viewer()->mnuImageOpen_Click();
    ASSERT_EQ(viewer()->pictureSize(), QSize(60, 50));
    action(u"mnuAppsImageViewer"_s)->trigger();
    EXPECT_EQ(viewer()->pictureSize(), QSize(60, 50)) << "the one that was chosen last";
    action(u"mnuAppsViewGraphic"_s)->trigger();
    EXPECT_EQ(viewer()->pictureSize(), QSize(30, 20));
}

TEST_F(ImageViewerMenuTest, FilesThatNameNoPictureOrAMissingOneHaveNoEntry)
{
    openPair("USE ZEPH GRAPHIC Sheet.bmp\r\n");
    openPair("USE ZEPH GRAPHIC Gone.bmp\r\n");
    EXPECT_FALSE(action(u"mnuAppsViewGraphic"_s)->isEnabled());
    openPair("BTN S1 a\r\n");
    EXPECT_FALSE(action(u"mnuAppsViewGraphic"_s)->isEnabled());
}

TEST_F(ImageViewerMenuTest, TheShortcutPictureShowsTheFilesPictureOrTheDefault)
{
    auto *button = app->mum().findChild<QToolButton *>(u"Shortcut_1"_s);
    ASSERT_TRUE(button);
    button->click();
    ASSERT_TRUE(viewer());
    EXPECT_EQ(viewer()->pictureSize(), QSize(60, 50));
    openPair("USE ZEPH GRAPHIC Sheet.bmp\r\n");
    button->click();
    EXPECT_EQ(viewer()->pictureSize(), QSize(30, 20));
}

TEST_F(ImageViewerMenuTest, AMissingDefaultIsToldInAnEmptyWindow)
{
    app->settings().of<SharedSettings>().ImageFilePath = folder.file(u"gone.bmp"_s);
    dialogs.answer(u"Image file not found"_s, BoxButton::Ok);
    action(u"mnuAppsImageViewer"_s)->trigger();
    ASSERT_TRUE(viewer());
    EXPECT_TRUE(viewer()->pictureSize().isEmpty());
}
