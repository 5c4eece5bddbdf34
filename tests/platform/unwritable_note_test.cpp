// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "platform/unwritable_note.h"

#include "platform/core/base.h"

#include <gtest/gtest.h>

using namespace zeph;

TEST(UnwritableText, NamesTheFieldAndTheCharacter)
{
    EXPECT_EQ(unwritableText(u"Callsign"_s, u"Fürst"_s), QString());
    EXPECT_EQ(unwritableText(u"Callsign"_s, {}), QString());
    EXPECT_TRUE(unwritableText(u"Callsign"_s, u"a\u65e5b"_s).startsWith(u"Callsign: "_s));
    EXPECT_TRUE(unwritableText(u"Callsign"_s, u"a\u65e5b"_s).contains(u"\"\u65e5\""_s));
}

TEST(UnwritableText, ShowsACharacterOfTwoUnitsWhole)
{
    const QString plane = QString::fromUcs4(U"\U0001F6E9");
    EXPECT_TRUE(unwritableText(u"Path"_s, u"x"_s + plane).contains(u'"' + plane + u'"'));
}
