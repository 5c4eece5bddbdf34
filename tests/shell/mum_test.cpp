// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "shell/mum.h"

#include "documents/editor_view.h"
#include "documents/text_control.h"
#include "editor/actions.h"
#include "editor/editor.h"
#include "editor/editor_keys.h"
#include "editor/editor_settings.h"
#include "editor/right_menu.h"
#include "menus/menu_actions.h"
#include "menus/menu_settings.h"
#include "platform/core/units.h"
#include "platform/tool_windows.h"
#include "settings/shared_settings.h"
#include "shell/frmabout.h"
#include "shell/main_status_bar.h"
#include "shell/settings/shell_settings.h"
#include "tests/support/shell_world.h"

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QScreen>
#include <QSignalSpy>
#include <QStatusTipEvent>
#include <QTest>
#include <QToolBar>
#include <QToolButton>

using namespace zeph;

namespace {

struct MainWindow : test::ShellWorld {
    std::unique_ptr<Mum> mum;
    Editor *editor = nullptr;

    void SetUp() override
    {
        settings.of<EditorSettings>().BackUpFolder = folder.file(u"Backup/"_s);
        QDir(folder.path()).mkdir(u"Backup"_s);
        settings.of<SharedSettings>().PilotCallsign = u"Goose"_s;
        settings.of<ShellSettings>().MumWindowstate = 0;
        paths.iniPath = folder.file(u"Zeph.ini"_s);
        mum = std::make_unique<Mum>(context());
        editor = new Editor(context(), mum.get());
        mum->attachEditor(editor);
        mum->resize(1000, 700);
        mum->show();
    }
    QToolButton *button(const QString &name) const { return mum->findChild<QToolButton *>(name); }
    void settle() const
    {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
    }
    /// Counts how often an entry was run, in place of what it does.
    int *countRuns(const QString &name)
    {
        auto runs = std::make_shared<int>(0);
        editor->actions().connectTo(name, [runs] { ++*runs; });
        editor->action(name)->setEnabled(true);
        m_counters.push_back(runs);
        return runs.get();
    }

private:
    std::vector<std::shared_ptr<int>> m_counters;
};

} // namespace

TEST_F(MainWindow, HoldsTheEditorAndItsMenusAndNoOthers)
{
    EXPECT_EQ(mum->centralWidget(), editor);
    QStringList captions;
    for (const QAction *menu : mum->menuBar()->actions()) {
        captions.append(menu->text());
    }
    EXPECT_EQ(captions.first(), u"&File");
    EXPECT_EQ(captions.last(), u"&Help");
    EXPECT_EQ(captions.size(), editor->actions().menuBar().size());
}

TEST_F(MainWindow, HasTwoMovableBandsWithSeparatorsInTheGaps)
{
    for (const auto *name : { u"Toolbar1", u"Toolbar2" }) {
        const auto *band = mum->findChild<QToolBar *>(QString::fromUtf16(name));
        ASSERT_TRUE(band);
        EXPECT_TRUE(band->isMovable());
    }
    int separators = 0;
    for (const QAction *action : mum->findChild<QToolBar *>(u"Toolbar1"_s)->actions()) {
        separators += action->isSeparator() ? 1 : 0;
    }
    // After buttons 4, 8, 11, 15, 17, 22, 25, 29 and 32.
    EXPECT_EQ(separators, 9);
}

TEST_F(MainWindow, ItsBandsFitIntoTheDefaultWindow)
{
    const int defaultWidth = pixelsFromTwips(13320);
    const auto width = [&](const QString &name) {
        return mum->findChild<QToolBar *>(name)->sizeHint().width();
    };
    EXPECT_LE(width(u"Toolbar1"_s), defaultWidth);
    EXPECT_LE(width(u"Toolbar2"_s) + width(u"Shortcuts"_s), defaultWidth);
}

TEST_F(MainWindow, ButtonsCanBeUsedWhenTheirEntryCan)
{
    EXPECT_TRUE(button(u"Toolbar1_1"_s)->isEnabled());
    EXPECT_TRUE(button(u"Toolbar1_4"_s)->isEnabled());
    EXPECT_TRUE(button(u"Toolbar2_1"_s)->isEnabled());
    editor->action(u"mnuAppsComposer")->setEnabled(false);
    settle();
    EXPECT_FALSE(button(u"Toolbar2_1"_s)->isEnabled());
}

TEST_F(MainWindow, AButtonRunsItsEntryForTheSelectedTab)
{
    const int *joystickRuns = countRuns(u"mnuViewColourJoystick"_s);
    const int *macro = countRuns(u"mnuViewColourMacro"_s);
    settle();
    button(u"Toolbar1_25"_s)->click();
    editor->documents().select(DocumentKind::Macro);
    settle();
    button(u"Toolbar1_25"_s)->click();
    EXPECT_EQ(*joystickRuns, 1);
    EXPECT_EQ(*macro, 1);
}

TEST_F(MainWindow, ATickedEntryShowsAsAPressedButton)
{
    QToolButton *tile = button(u"Toolbar1_22"_s);
    EXPECT_FALSE(tile->isChecked());
    tile->click();
    EXPECT_TRUE(editor->view().isTiled());
    EXPECT_TRUE(tile->isChecked());
    tile->click();
    EXPECT_FALSE(editor->view().isTiled());
    EXPECT_FALSE(tile->isChecked());
}

TEST_F(MainWindow, CustomApplicationsShowOnlyWhileInUse)
{
    QAction *entry = editor->action(u"mnuCustomApp_1");
    entry->setVisible(false);
    settle();
    EXPECT_FALSE(button(u"Toolbar2_17"_s)->isVisible());
    entry->setText(u"My app"_s);
    entry->setVisible(true);
    settle();
    EXPECT_TRUE(button(u"Toolbar2_17"_s)->isVisible());
    EXPECT_FALSE(button(u"Toolbar2_17"_s)->isEnabled()) << "its program may be missing";
    entry->setEnabled(true);
    settle();
    EXPECT_TRUE(button(u"Toolbar2_17"_s)->isEnabled());
    EXPECT_EQ(button(u"Toolbar2_17"_s)->toolTip(), u"My app");
}

TEST_F(MainWindow, TooltipsFollowTheirSetting)
{
    EXPECT_EQ(button(u"Toolbar1_6"_s)->toolTip(), u"Cut (Ctrl+X)");
    EXPECT_EQ(button(u"Shortcut_1"_s)->toolTip(), u"Graphical layout");
    settings.of<MenuSettings>().OKtoShowToolTips = false;
    mum->UpdateTooltips();
    EXPECT_EQ(button(u"Toolbar1_6"_s)->toolTip(), QString());
    EXPECT_EQ(button(u"Shortcut_1"_s)->toolTip(), QString());
    settings.of<MenuSettings>().OKtoShowToolTips = true;
    mum->UpdateTooltips();
    EXPECT_EQ(button(u"Toolbar1_6"_s)->toolTip(), u"Cut (Ctrl+X)");
}

TEST_F(MainWindow, TheMouseOverAButtonDescribesItOnTheStatusBar)
{
    QTest::mouseMove(button(u"Toolbar1_15"_s), QPoint(3, 3));
    EXPECT_EQ(status.text(),
              u"Goto line number - useful when a download fails with an error at a line number");
    QTest::mouseMove(button(u"Shortcut_0"_s), QPoint(3, 3));
    EXPECT_EQ(status.text(), u"Display the main editing window");
}

TEST_F(MainWindow, TheMouseOverAnEmptyPartGreets)
{
    // A mouse cannot leave the screen, and the tests' one is narrower than the window.
    mum->move(-400, 0);
    auto *band = mum->findChild<QToolBar *>(u"Toolbar1"_s);
    QTest::mouseMove(band, QPoint(band->width() - 2, band->height() / 2));
    EXPECT_EQ(status.text(), u"Welcome to Zeph, Goose! This is the Editor's main toolbar.");
}

TEST_F(MainWindow, TheMouseBetweenTwoGroupsOfButtonsGreets)
{
    auto *band = mum->findChild<QToolBar *>(u"Toolbar1"_s);
    const QToolButton *last = button(u"Toolbar1_4"_s);
    QWidget *between = band->childAt(last->geometry().right() + 4, band->height() / 2);
    ASSERT_TRUE(between);
    ASSERT_FALSE(qobject_cast<QToolButton *>(between));
    QTest::mouseMove(button(u"Toolbar1_4"_s), QPoint(3, 3));
    ASSERT_TRUE(status.text().startsWith(u"Print - "));
    QTest::mouseMove(between, QPoint(2, 3));
    EXPECT_EQ(status.text(), u"Welcome to Zeph, Goose! This is the Editor's main toolbar.");
}

TEST_F(MainWindow, NothingIsDescribedWithButtonsOnStatusBarOff)
{
    settings.of<MenuSettings>().ButtonsOnStatusBar = false;
    status.setText(u"before"_s);
    QTest::mouseMove(button(u"Toolbar1_15"_s), QPoint(4, 4));
    EXPECT_EQ(status.text(), u"before");
}

TEST_F(MainWindow, AMenuEntryDescribesItselfAndGivesTheLineBack)
{
    status.setText(u"before"_s);
    QStatusTipEvent tip(u"Opens a macro file alone"_s);
    QApplication::sendEvent(mum.get(), &tip);
    EXPECT_EQ(status.text(), u"Opens a macro file alone");
    QStatusTipEvent gone{ QString() };
    QApplication::sendEvent(mum.get(), &gone);
    EXPECT_EQ(status.text(), u"before");
}

TEST_F(MainWindow, TheRightMenusEntriesAreDescribedOnTheBar)
{
    status.setText(u"before"_s);
    const auto menu = editor->rightMenu().build();
    menu->popup({ 10, 10 });
    menu->setActiveAction(menu->findChild<QAction *>(u"mnuRHMSelectAll"_s));
    EXPECT_EQ(status.text(), editor->action(u"mnuEditSelectAll")->statusTip());
    EXPECT_NE(status.text(), u"before");
    menu->close();
    EXPECT_EQ(status.text(), u"before");
}

TEST_F(MainWindow, AKeyThatTextAndMenuBothKnowRunsOneEntry)
{
    mum->activateWindow();
    ASSERT_TRUE(QTest::qWaitFor([this] { return QApplication::activeWindow() == mum.get(); }));
    QStringList ran;
    const auto noteEntries = [&] {
        for (const ActionRow &row : actionTable()) {
            if (row.kind != ActionKind::Separator && row.kind != ActionKind::Submenu) {
                QAction *entry = editor->action(QStringView(row.name));
                QObject::disconnect(entry, &QAction::triggered, nullptr, nullptr);
                QObject::connect(entry, &QAction::triggered, editor,
                                 [&ran, entry] { ran.append(entry->objectName()); });
                entry->setEnabled(true);
            }
        }
    };
    for (const DocumentKind kind : { DocumentKind::Joystick, DocumentKind::Macro }) {
        editor->documents().select(kind);
        for (const ActionRow &row : actionTable()) {
            const auto keys = QKeySequence(QString::fromUtf16(row.shortcut));
            if (keys.isEmpty()) {
                continue;
            }
            noteEntries();
            ran.clear();
            const QKeyCombination key = keys[0];
            const QString ofText = key.keyboardModifiers() == Qt::ControlModifier
                ? EditorKeys::entryFor(key.key(), kind == DocumentKind::Macro)
                : QString();
            QTest::keyClick(&editor->view().control(editor->selected().kind()), key.key(),
                            key.keyboardModifiers());
            // The macro text takes these two and does nothing.
            const bool isTaken = kind == DocumentKind::Macro
                && (keys == QKeySequence(u"Ctrl+G"_s) || keys == QKeySequence(u"Ctrl+I"_s));
            const QString entry = ofText.isEmpty() ? QString::fromUtf16(row.name) : ofText;
            EXPECT_EQ(ran, isTaken ? QStringList() : QStringList{ entry })
                << keys.toString().toStdString();
        }
    }
}

TEST_F(MainWindow, TheBarsLeftEndColoursSavesAndIdentifies)
{
    const int *colour = countRuns(u"mnuViewColourMacro"_s);
    const int *identify = countRuns(u"mnuMacrosIdentify"_s);
    const QString path = folder.write(u"a.tmm"_s, "old");
    editor->documents().select(DocumentKind::Macro);
    editor->macro().rename(path);
    editor->view().control(DocumentKind::Macro).insertPlainText(u"Fire = a"_s);
    QTest::mousePress(&mum->bar(), Qt::LeftButton, {}, QPoint(5, 10));
    EXPECT_EQ(*colour, 1);
    EXPECT_EQ(*identify, 1);
    EXPECT_EQ(folder.read(u"a.tmm"_s), "Fire = a");
}

TEST_F(MainWindow, TheBarsLeftEndCompilesWithTheRightButton)
{
    const QSignalSpy compiles(mum.get(), &Mum::compileWanted);
    QTest::mousePress(&mum->bar(), Qt::RightButton, {}, QPoint(5, 10));
    EXPECT_EQ(compiles.count(), 1);
}

TEST_F(MainWindow, TakesItsToolWindowsAlongWhenMinimised)
{
    auto *about = mum->toolWindows().open<frmAbout>(
        [this](QWidget *owner) { return new frmAbout(paths, owner); });
    mum->showMinimized();
    settle();
    EXPECT_TRUE(about->isMinimized());
    EXPECT_FALSE(mum->findChild<QToolBar *>(u"Toolbar1"_s)->isVisibleTo(mum.get()));
    mum->showNormal();
    settle();
    EXPECT_FALSE(about->isMinimized());
    EXPECT_TRUE(mum->findChild<QToolBar *>(u"Toolbar1"_s)->isVisibleTo(mum.get()));
}

TEST_F(MainWindow, ItsPlaceIsInTwips)
{
    mum->setPlace({ .left = 300, .top = 450, .width = 10500, .height = 9000 });
    EXPECT_EQ(mum->pos(), QPoint(20, 30));
    EXPECT_EQ(mum->size(), QSize(700, 600));
    const WindowPlace place = mum->place();
    EXPECT_EQ(place.left, 300);
    EXPECT_EQ(place.width, 10500);
    EXPECT_EQ(place.state, WindowState::Normal);
}

TEST_F(MainWindow, AMaximisedWindowIsRestoredToItsUsualSize)
{
    mum->setPlace({ .state = WindowState::Maximised });
    EXPECT_TRUE(mum->isMaximized());
    mum->showNormal();
    settle();
    EXPECT_EQ(mum->size(), QSize(888, 593));
}

TEST_F(MainWindow, GoesBackFromMaximisedToTheSizeBefore)
{
    mum->setPlace({ .left = 300, .top = 450, .width = 10500, .height = 9000 });
    mum->showMaximized();
    settle();
    const WindowPlace place = mum->place();
    EXPECT_EQ(place.state, WindowState::Maximised);
    EXPECT_EQ(place.width, 10500);
    EXPECT_EQ(place.height, 9000);
    mum->showNormal();
    settle();
    // As in the next run, which starts maximised.
    mum->setPlace(place);
    EXPECT_TRUE(mum->isMaximized());
    mum->showNormal();
    settle();
    EXPECT_EQ(mum->size(), QSize(700, 600));
    EXPECT_EQ(mum->pos(), QPoint(20, 30));
}

TEST_F(MainWindow, AMaximisedSizeFromAnOlderStoreIsNoSizeToGoBackTo)
{
    mum->setPlace({ .width = 150000, .height = 150000, .state = WindowState::Maximised });
    mum->showNormal();
    settle();
    EXPECT_EQ(mum->size(), QSize(888, 593));
}

TEST_F(MainWindow, APlaceOnAScreenThatIsGoneIsBroughtBack)
{
    mum->setPlace({ .left = 150000, .top = 150000, .width = 10500, .height = 9000 });
    EXPECT_TRUE(mum->screen()->availableGeometry().contains(mum->geometry()));
    EXPECT_EQ(mum->size(), QSize(700, 600));
}

TEST_F(MainWindow, StaysOpenWhenTheQuestionSaysSo)
{
    bool answer = false;
    int unloads = 0;
    mum->queryUnload = [&] {
        return answer;
    };
    QObject::connect(mum.get(), &Mum::unloading, mum.get(), [&] { ++unloads; });
    EXPECT_FALSE(mum->close());
    EXPECT_EQ(unloads, 0);
    answer = true;
    EXPECT_TRUE(mum->close());
    EXPECT_EQ(unloads, 1);
}

TEST_F(MainWindow, TheTitleNamesTheSelectedFileAndMarksItsChanges)
{
    EXPECT_EQ(mum->windowTitle(), u"Untitled.tmj[*] - Zeph");
    EXPECT_FALSE(mum->isWindowModified());
    editor->joystick().rename(folder.file(u"a.tmj"_s));
    EXPECT_EQ(mum->windowTitle(), u"a.tmj[*] - Zeph");
    editor->joystick().setState(Document::Modified);
    EXPECT_TRUE(mum->isWindowModified());
    editor->documents().select(DocumentKind::Macro);
    EXPECT_EQ(mum->windowTitle(), u"Untitled.tmm[*] - Zeph");
    EXPECT_FALSE(mum->isWindowModified());
    mum->setFurther();
    EXPECT_EQ(mum->windowTitle(), u"Untitled.tmm[*] - Zeph - secondary window");
}

TEST_F(MainWindow, AKeyGoesToTheMacroListAndBack)
{
    mum->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(mum.get()));
    QWidget *text = &editor->view().control(DocumentKind::Joystick);
    QWidget *list = editor->findChild<QWidget *>(u"List1"_s);
    text->setFocus();
    QTest::keyClick(text, Qt::Key_M, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_TRUE(list->hasFocus());
    QTest::keyClick(list, Qt::Key_M, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_TRUE(text->hasFocus());
    EXPECT_EQ(editor->joystickText(), QString());
}

TEST(MumTitle, ANameThatHoldsTheToolkitsMarkKeepsIt)
{
    EXPECT_EQ(mumTitle(u"a[*].tmj"_s, false), u"a[*][*].tmj[*] - Zeph");
    EXPECT_EQ(mumTitle(QString(), true), u"Zeph - secondary window");
}
