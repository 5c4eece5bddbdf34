// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "platform/tool_windows.h"

#include <gtest/gtest.h>

#include <QDialog>
#include <QTest>

using namespace zeph;

namespace {

class Hammer : public QDialog
{
public:
    explicit Hammer(QWidget *parent) : QDialog(parent) { }
};

class Saw : public QDialog, public AsksBeforeClosing
{
    Q_OBJECT
public:
    explicit Saw(QWidget *parent) : QDialog(parent) { }
    bool mayClose() override { return isSharp; }
    bool isSharp = true;
};

struct Tools : testing::Test {
    QWidget owner;
    ToolWindows windows{ &owner };

    Hammer *openHammer()
    {
        return windows.open<Hammer>([](QWidget *parent) { return new Hammer(parent); });
    }
    Saw *openSaw()
    {
        return windows.open<Saw>([](QWidget *parent) { return new Saw(parent); });
    }
};

} // namespace

TEST_F(Tools, OpenOnceAndKnowThatTheyAreOpen)
{
    EXPECT_FALSE(windows.isOpen<Hammer>());
    Hammer *hammer = openHammer();
    EXPECT_TRUE(hammer->isVisible());
    EXPECT_EQ(openHammer(), hammer);
    EXPECT_TRUE(windows.isOpen<Hammer>());
    EXPECT_FALSE(windows.isOpen<Saw>());
}

TEST_F(Tools, KeepWhatTheyHoldWhileHidden)
{
    Hammer *hammer = openHammer();
    windows.hide<Hammer>();
    EXPECT_FALSE(windows.isOpen<Hammer>());
    EXPECT_EQ(openHammer(), hammer);
}

TEST_F(Tools, AreUnloadedByTheirUsersClosingThem)
{
    openHammer()->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(windows.get<Hammer>(), nullptr);
    EXPECT_FALSE(windows.isOpen<Hammer>());
}

TEST_F(Tools, AreUnloadedByName)
{
    const QPointer<Hammer> hammer = openHammer();
    windows.hide<Hammer>();
    windows.unload<Hammer>();
    EXPECT_TRUE(hammer.isNull());
    windows.unload<Hammer>();
}

TEST_F(Tools, GoAndComeWithTheMainWindowByTheirOwnFlag)
{
    Hammer *hammer = openHammer();
    Saw *saw = openSaw();
    windows.hide<Saw>();
    windows.minimiseAll();
    EXPECT_TRUE(hammer->isMinimized());
    EXPECT_TRUE(windows.isOpen<Hammer>());
    EXPECT_FALSE(saw->isMinimized());
    windows.restoreAll();
    EXPECT_FALSE(hammer->isMinimized());
    EXPECT_TRUE(saw->isHidden());
}

TEST_F(Tools, MinimisedForTheCompilerTheyStaySoWhenTheMainWindowComesBack)
{
    Hammer *hammer = openHammer();
    windows.minimiseForCompiler();
    EXPECT_TRUE(hammer->isMinimized());
    windows.minimiseAll();
    windows.restoreAll();
    EXPECT_TRUE(hammer->isMinimized());
}

TEST_F(Tools, TheCompilerMinimisesAToolWindowThatARoomKeepsItselfToo)
{
    QDialog own(&owner);
    own.show();
    QDialog hidden(&owner);
    QDialog byItself(&owner);
    byItself.setAttribute(Qt::WA_ShowWithoutActivating);
    byItself.show();
    windows.minimiseForCompiler();
    EXPECT_TRUE(own.isMinimized());
    EXPECT_FALSE(hidden.isVisible());
    EXPECT_FALSE(byItself.isMinimized()) << "no tool: it tells what the compiler does";
}

TEST_F(Tools, OneThatItsUserMinimisedStaysSo)
{
    Hammer *hammer = openHammer();
    hammer->showMinimized();
    windows.minimiseAll();
    windows.restoreAll();
    EXPECT_TRUE(hammer->isMinimized());
}

TEST_F(Tools, AreOfferedOnceAndThenOpenedByClassAlone)
{
    int made = 0;
    windows.offer<Hammer>([&made](QWidget *parent) {
        ++made;
        return new Hammer(parent);
    });
    EXPECT_EQ(made, 0);
    Hammer *hammer = windows.open<Hammer>();
    EXPECT_TRUE(hammer->isVisible());
    EXPECT_EQ(windows.load<Hammer>(), hammer);
    EXPECT_EQ(made, 1);
}

TEST_F(Tools, TellWhoeverWaitsForTheirClassThatTheyWereMade)
{
    QList<Saw *> told;
    windows.whenLoaded<Saw>(&owner, [&told](Saw &saw) { told.append(&saw); });
    openHammer();
    EXPECT_TRUE(told.isEmpty());
    Saw *saw = openSaw();
    openSaw();
    EXPECT_EQ(told, QList<Saw *>{ saw });
}

TEST_F(Tools, WithSomethingToSaveAreAskedBeforeAllGo)
{
    EXPECT_TRUE(windows.mayUnloadAll());
    openHammer();
    Saw *saw = openSaw();
    EXPECT_TRUE(windows.mayUnloadAll());
    saw->isSharp = false;
    EXPECT_FALSE(windows.mayUnloadAll());
}

TEST_F(Tools, AllGoAtOnce)
{
    const QPointer<Hammer> hammer = openHammer();
    const QPointer<Saw> saw = openSaw();
    windows.unloadAll();
    EXPECT_TRUE(hammer.isNull());
    EXPECT_TRUE(saw.isNull());
}

#include "tool_windows_test.moc"
