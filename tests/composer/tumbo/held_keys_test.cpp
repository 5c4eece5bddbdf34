// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "composer/tumbo/held_keys.h"
#include "livetools/board_keys.h"

#include <gtest/gtest.h>

#include <QStringList>

using namespace zeph;

namespace {

/// The names of the keys that a statement leaves held down, in the order of their numbers.
QString heldBy(const QString &statement)
{
    QStringList names;
    for (const int index : keysHeldBy(statement)) {
        names.append(boardKey(index)->name.toString());
    }
    return names.join(u' ');
}

} // namespace

TEST(HeldKeys, AreThoseThatNothingReleases)
{
    EXPECT_EQ(heldBy(QString()), QString());
    EXPECT_EQ(heldBy(u"a b CTL c"_s), QString());
    EXPECT_EQ(heldBy(u"KD (LSHF a)"_s), u"a LSHF"_s);
    EXPECT_EQ(heldBy(u"KD (LSHF a)KU (a)"_s), u"LSHF"_s);
    EXPECT_EQ(heldBy(u"/P KD(LSHF q) /R KU(q LSHF) Rem 'SHF q'"_s), QString());
    EXPECT_EQ(heldBy(u"kd(shf A)"_s), u"a LSHF"_s);
    EXPECT_EQ(heldBy(u"KD (LSHF !)"_s), u"1 LSHF"_s);
    EXPECT_EQ(heldBy(u"KD (MOUSE_LB POVUL)"_s), u"MOUSE_LB POVUL"_s);
}

TEST(HeldKeys, CodesPressAndRelease)
{
    EXPECT_EQ(heldBy(u"USB (DE1 D04)"_s), u"a LSHF"_s);
    EXPECT_EQ(heldBy(u"USB (DE1 D04 U04 UE1)"_s), QString());
    EXPECT_EQ(heldBy(u"usb(de6 d14) DLY(50) usb(u14)"_s), u"RALT"_s);
    EXPECT_EQ(heldBy(u"USB (D D0 DXX U) USB ( )"_s), QString());
}

TEST(HeldKeys, BracketsCanBeKeys)
{
    EXPECT_EQ(heldBy(u"KD (LSHF ))"_s), u"0 LSHF"_s);
    EXPECT_EQ(heldBy(u"KD (LSHF () KD (b)"_s), u"9 b LSHF"_s);
    EXPECT_EQ(heldBy(u"KD (LSHF )) KU () LSHF)"_s), QString());
}

TEST(HeldKeys, CommentsAndOtherWordsDoNotCount)
{
    EXPECT_EQ(heldBy(u"a Rem KD (b)"_s), QString());
    EXPECT_EQ(heldBy(u"DLY(60) MSX(a) MYKD (a) KD"_s), QString());
    EXPECT_EQ(heldBy(u"KD (a Fire"_s), u"a"_s);
}
