// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "menus/menu_actions.h"

#include "menus/tool_entries.h"
#include "platform/fakes/scripted_dialogs.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QMenu>
#include <QMenuBar>

#include <array>
#include <stdexcept>

using namespace zeph;

namespace {

namespace plane {

enum class PlaneWhen { OnGround, InAir };

using enum ActionKind;
using enum CommonWhen;
using enum PlaneWhen;

constexpr std::array menus = { MenuRow{ u"mnuGear", u"&Gear" }, MenuRow{ u"mnuFlaps", u"&Flaps" } };

constexpr std::array rows = {
    ActionRow{ u"mnuGear", u"mnuGearUp", u"&Up", u"Ctrl+U", u"Pulls it in", u"", InAir, Entry },
    separator(u"mnuGear"),
    ActionRow{ u"mnuGear", u"mnuGearDown", u"&Down", u"F7", u"", u"", Always, Entry },
    ActionRow{ u"mnuFlaps", u"mnuFlap_0", u"0", u"", u"", u"", Always, Tick },
    ActionRow{ u"mnuFlaps", u"mnuFlap_1", u"1", u"", u"", u"", Always, Tick },
    ActionRow{ u"mnuFlaps", u"mnuMore", u"More", u"", u"", u"", Always, Submenu },
    ActionRow{ u"mnuMore", u"mnuSlats_1", u"1", u"", u"", u"", OnGround, Entry },
    ActionRow{ u"mnuMore", u"mnuSlats_2", u"2", u"", u"", u"", Custom, Entry },
    ActionRow{ u"", u"mnuEject", u"Eject", u"", u"", u"", Always, Entry },
};

} // namespace plane

struct MenuActionsTest : testing::Test {
    QWidget window;
    ScriptedDialogs dialogs;
    MenuActions on{ dialogs, QString(), plane::menus, plane::rows, &window };
    QStringList ran;

    bool isEnabled(QStringView name) { return on.action(name)->isEnabled(); }
};

class Hangar : public QWidget
{
public:
    using QWidget::QWidget;
    bool open() { return isOpen; }
    static inline bool isOpen = true;
};

} // namespace

TEST_F(MenuActionsTest, AConditionIsTheWindowsOwn)
{
    EXPECT_TRUE(isEnabled(u"mnuGearDown"));
    EXPECT_FALSE(isEnabled(u"mnuGearUp"));
    on.setCondition(plane::PlaneWhen::InAir, true);
    EXPECT_TRUE(isEnabled(u"mnuGearUp"));
    EXPECT_FALSE(isEnabled(u"mnuSlats_1"));
    on.setCondition(plane::PlaneWhen::OnGround, true);
    on.setCondition(plane::PlaneWhen::InAir, false);
    EXPECT_FALSE(isEnabled(u"mnuGearUp"));
    EXPECT_TRUE(isEnabled(u"mnuSlats_1"));
    EXPECT_FALSE(isEnabled(u"mnuSlats_2"));
    EXPECT_TRUE(isEnabled(u"mnuGearDown"));
}

TEST_F(MenuActionsTest, AnEntryThatLacksItsProgramSaysSoAndComesBackWithItsOwnWords)
{
    QAction *up = on.action(u"mnuGearUp");
    on.setCondition(plane::PlaneWhen::InAir, true);
    on.setLack(u"mnuGearUp", u"The pump is missing"_s, false);
    EXPECT_FALSE(up->isEnabled());
    EXPECT_EQ(up->toolTip(), u"The pump is missing");
    EXPECT_EQ(up->statusTip(), u"The pump is missing");
    EXPECT_EQ(on.lackOf(u"mnuGearUp"), u"The pump is missing");
    on.setCondition(plane::PlaneWhen::InAir, false);
    on.setCondition(plane::PlaneWhen::InAir, true);
    EXPECT_FALSE(up->isEnabled()) << "its condition alone does not bring it back";
    on.setLack(u"mnuGearUp", {}, false);
    EXPECT_TRUE(up->isEnabled());
    EXPECT_EQ(up->toolTip(), u"Up");
    EXPECT_EQ(up->statusTip(), u"Pulls it in");
    on.setCondition(plane::PlaneWhen::InAir, false);
    on.setLack(u"mnuGearUp", u"x"_s, false);
    on.setLack(u"mnuGearUp", {}, false);
    EXPECT_FALSE(up->isEnabled()) << "what it lacked is back, but its condition does not hold";
}

TEST_F(MenuActionsTest, AnEntryThatTellsTheLackByItselfStaysUsable)
{
    on.setLack(u"mnuGearDown", u"The pump is missing"_s, true);
    EXPECT_TRUE(isEnabled(u"mnuGearDown"));
    EXPECT_EQ(on.action(u"mnuGearDown")->statusTip(), u"The pump is missing");
}

TEST_F(MenuActionsTest, ABarHoldsTheMenusAndThenItsOwnEntries)
{
    QMenuBar bar;
    on.addTo(bar);
    QStringList names;
    for (const QAction *action : bar.actions()) {
        names.append(action->objectName());
    }
    EXPECT_EQ(names, QStringList({ u"mnuGear"_s, u"mnuFlaps"_s, u"mnuEject"_s }));
    EXPECT_EQ(on.menu(u"mnuGear")->actions().size(), 3);
    EXPECT_EQ(on.action(u"mnuFlaps")->menu(), on.menu(u"mnuFlaps"));
}

TEST_F(MenuActionsTest, AnArraysOperationReceivesTheIndexFromItsName)
{
    on.connectArray(u"mnuFlap"_s, [this](int i) { ran.append(u"flap %1"_s.arg(i)); });
    on.connectArray(u"mnuSlats"_s, [this](int i) { ran.append(u"slats %1"_s.arg(i)); });
    on.setCondition(plane::PlaneWhen::OnGround, true);
    EXPECT_TRUE(on.action(u"mnuFlap_1")->isEnabled());
    on.action(u"mnuFlap_1")->trigger();
    EXPECT_TRUE(on.action(u"mnuSlats_1")->isEnabled());
    on.action(u"mnuSlats_1")->trigger();
    EXPECT_TRUE(on.action(u"mnuFlap_0")->isEnabled());
    on.action(u"mnuFlap_0")->trigger();
    EXPECT_EQ(ran, QStringList({ u"flap 1"_s, u"slats 1"_s, u"flap 0"_s }));
}

TEST_F(MenuActionsTest, TickOnlyTicksOneOfAnArrayOrNone)
{
    const auto ticks = [this] {
        return std::pair(on.action(u"mnuFlap_0")->isChecked(),
                         on.action(u"mnuFlap_1")->isChecked());
    };
    on.tickOnly(u"mnuFlap"_s, 1);
    EXPECT_EQ(ticks(), std::pair(false, true));
    on.tickOnly(u"mnuFlap"_s, 0);
    EXPECT_EQ(ticks(), std::pair(true, false));
    on.tickOnly(u"mnuFlap"_s, -1);
    EXPECT_EQ(ticks(), std::pair(false, false));
}

TEST_F(MenuActionsTest, WhatAnOperationThrowsIsTold)
{
    on.connectTo(u"mnuEject", [] { throw std::runtime_error("canopy"); });
    on.action(u"mnuEject")->trigger();
    ASSERT_EQ(dialogs.boxes().size(), 1);
    EXPECT_TRUE(dialogs.boxes().first().text.contains(u"canopy"));
}

TEST(ActionRows, AShortcutLeadsToItsEntryAndBack)
{
    EXPECT_EQ(entryWithShortcut(plane::rows, Qt::CTRL | Qt::Key_U), u"mnuGearUp");
    EXPECT_EQ(entryWithShortcut(plane::rows, QKeyCombination(Qt::Key_F7)), u"mnuGearDown");
    EXPECT_EQ(entryWithShortcut(plane::rows, QKeyCombination(Qt::Key_U)), QString());
    EXPECT_EQ(shortcutOf(plane::rows, u"mnuGearUp"), u"Ctrl+U");
    EXPECT_EQ(shortcutOf(plane::rows, u"mnuFlap_0"), QString());
    EXPECT_EQ(shortcutOf(plane::rows, u"mnuNone"), QString());
}

TEST_F(MenuActionsTest, AnEntryOpensItsToolWindowUnlessThatRefuses)
{
    ToolWindows windows(&window);
    ToolEntries{ on, windows }.add<Hangar>(
        u"mnuEject", [](QWidget *owner) { return new Hangar(owner, Qt::Window); }, &Hangar::open);
    Hangar::isOpen = false;
    on.action(u"mnuEject")->trigger();
    EXPECT_EQ(windows.get<Hangar>(), nullptr);
    Hangar::isOpen = true;
    on.action(u"mnuEject")->trigger();
    Hangar *first = windows.get<Hangar>();
    ASSERT_NE(first, nullptr);
    EXPECT_TRUE(first->isVisible());
    // Only a new window is asked.
    Hangar::isOpen = false;
    on.action(u"mnuEject")->trigger();
    EXPECT_EQ(windows.get<Hangar>(), first);
}
