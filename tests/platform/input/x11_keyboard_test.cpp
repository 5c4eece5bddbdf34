// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "platform/input/x11_keyboard.h"

#include <gtest/gtest.h>

using namespace zeph;

TEST(LayoutNames, AVariantStandsInBracketsAfterItsLayout)
{
    EXPECT_EQ(layoutNames(u"us,de,gb", u",nodeadkeys,"),
              (QStringList{ u"us"_s, u"de(nodeadkeys)"_s, u"gb"_s }));
}

TEST(LayoutNames, ALayoutWithoutAVariantStandsAlone)
{
    EXPECT_EQ(layoutNames(u"fr", u""), QStringList{ u"fr"_s });
    EXPECT_EQ(layoutNames(u"us, de", u"intl"), (QStringList{ u"us(intl)"_s, u"de"_s }));
}

TEST(X11Keyboard, IsThereOnAnXServerOnly)
{
    // The tests run without any server.
    EXPECT_EQ(X11Keyboard::get(), nullptr);
}
