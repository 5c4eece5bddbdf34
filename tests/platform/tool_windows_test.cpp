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

class Saw : public QDialog
{
public:
    explicit Saw(QWidget *parent) : QDialog(parent) { }
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

TEST_F(Tools, OneThatItsUserMinimisedStaysSo)
{
    Hammer *hammer = openHammer();
    hammer->showMinimized();
    windows.minimiseAll();
    windows.restoreAll();
    EXPECT_TRUE(hammer->isMinimized());
}

TEST_F(Tools, AllGoAtOnce)
{
    const QPointer<Hammer> hammer = openHammer();
    const QPointer<Saw> saw = openSaw();
    windows.unloadAll();
    EXPECT_TRUE(hammer.isNull());
    EXPECT_TRUE(saw.isNull());
}
