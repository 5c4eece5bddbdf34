// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "settings/global_settings.h"

#include <gtest/gtest.h>

using namespace zeph;

TEST(KeyTesterSettings, StartInTheCornerWithTheDelayOffAndEverythingShown)
{
    const GlobalSettings settings;
    EXPECT_EQ(settings.KeyTopAtStartup, u"30");
    EXPECT_EQ(settings.KeyLeftAtStartup, u"30");
    EXPECT_EQ(settings.ClearDelay, -1);
    EXPECT_EQ(settings.KeyViewAll, 1);
    EXPECT_EQ(settings.MenuDisplay, 1);
}

TEST(KeyTesterSettings, AreNoPartOfTheGlobalSave)
{
    int keys = 0;
    for (const Setting &setting : settingsTable()) {
        if (setting.section == u"Key Tester") {
            EXPECT_FALSE(setting.saved) << setting.key.toString().toStdString();
            ++keys;
        }
    }
    EXPECT_EQ(keys, 7);
}
