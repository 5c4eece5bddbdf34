// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "livetools/key_tester_settings.h"

#include <gtest/gtest.h>

using namespace zeph;

TEST(KeyTesterSettings, StartInTheCornerWithTheDelayOffAndEverythingShown)
{
    const KeyTesterSettings settings;
    EXPECT_EQ(settings.KeyTopAtStartup, 30);
    EXPECT_EQ(settings.KeyLeftAtStartup, 30);
    EXPECT_EQ(settings.ClearDelay, -1);
    EXPECT_EQ(settings.KeyViewAll, 1);
    EXPECT_EQ(settings.MenuDisplay, 1);
}

TEST(KeyTesterSettings, AreNoPartOfTheGlobalSave)
{
    int keys = 0;
    for (const SettingKey &key : KeyTesterSettings::rows()) {
        EXPECT_EQ(key.section, u"Key Tester");
        EXPECT_FALSE(key.isSaved()) << key.key.toString().toStdString();
        ++keys;
    }
    EXPECT_EQ(keys, 7);
}
