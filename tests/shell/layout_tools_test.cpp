// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "layouts/window/sheet_window.h"

#include "editor/editor.h"
#include "editor/files/file_opening.h"
#include "layouts/window/ubbandhtmlview.h"
#include "livetools/pictures/viewimage.h"
#include "menus/menu_actions.h"
#include "platform/tool_windows.h"
#include "shell/mum.h"
#include "tests/support/shell_world.h"

#include <QAction>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTimer>

using namespace zeph;

namespace {

struct LayoutToolsTest : test::RunningWorld {
    void SetUp() override
    {
        installData(u"Zeph.bmp"_s);
        printers.printers = 0;
        start();
        app->editor().opening().OpenFavouriteFile(
            folder.write(u"Files/Jet.tmj"_s, "BTN S1 /U Fire_Gun\r\nBTN T2 Chaff\r\n"));
    }
    QAction *action(const QString &name) const { return app->editor().actions().action(name); }
    template <class Window> Window *open(const QString &entry)
    {
        action(entry)->trigger();
        return app->mum().toolWindows().get<Window>();
    }
    static QString text(SheetWindow &window, size_t box)
    {
        return window.model().sheet().boxes[box].text.text;
    }
};

} // namespace

TEST_F(LayoutToolsTest, EachEntryOpensItsSheetFromTheFile)
{
    auto *stick = open<GraphicsPrint>(u"mnuAppsJoystickLayout"_s);
    ASSERT_TRUE(stick);
    EXPECT_TRUE(stick->isVisible());
    EXPECT_TRUE(text(*stick, 4).contains(u"Fire_Gun"));
    auto *throttle = open<TQSLayout>(u"mnuAppsThrottleLayout"_s);
    ASSERT_TRUE(throttle);
    EXPECT_TRUE(text(*throttle, 1).contains(u"Chaff"));
    ASSERT_TRUE(open<CustomLayout>(u"mnuAppsCustomLayout"_s));
    EXPECT_EQ(open<GraphicsPrint>(u"mnuAppsJoystickLayout"_s), stick);
}

TEST_F(LayoutToolsTest, TransferOpensTheCustomSheetWithTheTexts)
{
    auto *stick = open<GraphicsPrint>(u"mnuAppsJoystickLayout"_s);
    stick->model().select(4);
    stick->actions().action(u"mnuTransferArray_1")->trigger();
    auto *custom = app->mum().toolWindows().get<CustomLayout>();
    ASSERT_TRUE(custom);
    EXPECT_TRUE(custom->isVisible());
    EXPECT_EQ(text(*custom, 0), text(*stick, 4));
    auto *throttle = open<TQSLayout>(u"mnuAppsThrottleLayout"_s);
    throttle->actions().action(u"mnuTransferArray_0")->trigger();
    EXPECT_EQ(text(*custom, 2), text(*throttle, 1));
    dialogs.answer(u"Save layout?"_s, BoxButton::No);
}

TEST_F(LayoutToolsTest, CaptureOpensTheImageViewerOnTheSheet)
{
    auto *stick = open<GraphicsPrint>(u"mnuAppsJoystickLayout"_s);
    stick->actions().action(u"mnuCaptureAsBitmap")->trigger();
    auto *viewer = app->mum().toolWindows().get<ViewImage>();
    ASSERT_TRUE(viewer);
    EXPECT_EQ(viewer->pictureSize(),
              QSize(stick->model().sheet().width, stick->model().sheet().height));
}

TEST_F(LayoutToolsTest, ConversionNeedsASelectionAndLeavesTheDocument)
{
    Document &document = app->editor().selected();
    document.select(0, 0);
    EXPECT_FALSE(action(u"mnuExportToUBB"_s)->isEnabled());
    document.select(0, 6);
    ASSERT_TRUE(action(u"mnuExportToUBB"_s)->isEnabled());
    const RichText before = document.richText();
    QString converted;
    QTimer::singleShot(0, &app->mum(), [&] {
        auto *view = qobject_cast<UBBandHTMLview *>(QApplication::activeModalWidget());
        ASSERT_TRUE(view);
        view->findChild<QPushButton *>(u"Command1"_s)->click();
        converted = view->findChild<QPlainTextEdit *>(u"RTBforUBB"_s)->toPlainText();
        view->reject();
    });
    action(u"mnuExportToUBB"_s)->trigger();
    EXPECT_TRUE(converted.startsWith(u"[color="));
    EXPECT_TRUE(converted.contains(u"S1"));
    EXPECT_EQ(document.richText(), before);
    EXPECT_EQ(document.selLength(), 6);
}
