// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "cougar/handle_list.h"
#include "tests/support/temp_folder.h"

#include <gtest/gtest.h>

using namespace zeph;

namespace {

class Handles : public testing::Test
{
public:
    test::TempFolder folder;
    ProfileFile store{ folder.file(u"Zeph.ini"_s) };

    void settings(const QByteArray &lines) const
    {
        folder.write(u"Zeph.ini"_s, "[Handles]\r\n" + lines);
    }
    HandleList list() const { return listHandles(store, folder.path()); }
};

} // namespace

TEST_F(Handles, WithoutSettingsThereIsTheFirstHandle)
{
    EXPECT_EQ(list().names, QStringList{ u"F-16 Block 50"_s });
    EXPECT_EQ(list().chosen, u"F-16 Block 50");
}

TEST_F(Handles, ThoseOfTheSettingsComeInTheirOrderAndTheFoldersByNameAfterThem)
{
    settings("Default=Zulu.tmh\r\nNumHandles=2\r\nHandle1=Zulu.tmh\r\nHandle2=Alpha.tmh\r\nHandle3="
             "No.tmh\r\n");
    for (const QString &name : { u"zeta.tmh"_s, u"Beta.TMH"_s, u"alpha.tmh"_s, u"Beta.bmp"_s }) {
        folder.write(name, "");
    }
    EXPECT_EQ(list().names, (QStringList{ u"Zulu"_s, u"Alpha"_s, u"Beta"_s, u"zeta"_s }));
    EXPECT_EQ(list().chosen, u"Zulu");
}

TEST_F(Handles, AMissingNameReadsAsTheFirstHandleAndNoHandleComesTwice)
{
    settings("NumHandles=4\r\nHandle1=Grip.tmh\r\nHandle2=GRIP.TMH\r\n");
    EXPECT_EQ(list().names, (QStringList{ u"Grip"_s, u"F-16 Block 50"_s }));
}

TEST_F(Handles, WhatIsNoHandleFileIsPassedOver)
{
    settings("NumHandles=4\r\nHandle1=Grip.bmp\r\nHandle2=\r\nHandle3=.tmh\r\nHandle4=C:"
             "\\Cougar\\Far.tmh\r\n");
    EXPECT_EQ(list().names, QStringList{ u"Far"_s });
}

TEST_F(Handles, AGarbledCountCostsNoTime)
{
    settings("NumHandles=2000000000\r\nHandle1=Grip.tmh\r\n");
    EXPECT_EQ(list().names, (QStringList{ u"Grip"_s, u"F-16 Block 50"_s }));
    settings("NumHandles=-3\r\nHandle1=Grip.tmh\r\n");
    EXPECT_EQ(list().names, QStringList());
}

TEST_F(Handles, TheChosenOneIsSpelledAsInTheListAndMayBeGone)
{
    settings("Default=GRIP.tmh\r\nHandle1=Grip.tmh\r\n");
    EXPECT_EQ(list().chosen, u"Grip");
    settings("Default=Gone.tmh\r\nHandle1=Grip.tmh\r\n");
    EXPECT_EQ(list().chosen, u"Gone");
    EXPECT_EQ(list().names, QStringList{ u"Grip"_s });
}

TEST_F(Handles, TheChoiceIsKeptAndTheRestOfTheFileStays)
{
    settings("Default=Grip.tmh\r\nNumHandles=1\r\nHandle1=Grip.tmh\r\n; mine\r\n");
    ASSERT_TRUE(SaveHandle(store, u"Straight grip"_s));
    EXPECT_EQ(
        folder.read(u"Zeph.ini"_s),
        "[Handles]\r\nDefault=Straight grip.tmh\r\nNumHandles=1\r\nHandle1=Grip.tmh\r\n; mine\r\n");
    EXPECT_EQ(list().chosen, u"Straight grip");
}

TEST_F(Handles, ANameThatTheSettingsCannotHoldIsAnErrorAndNothingIsWritten)
{
    settings("Default=Grip.tmh\r\n");
    const auto saved = SaveHandle(store, u"Ручка"_s);
    ASSERT_FALSE(saved);
    EXPECT_EQ(saved.error().path, store.path());
    EXPECT_TRUE(saved.error().reason.contains(u'Р')) << saved.error().reason.toStdString();
    EXPECT_EQ(folder.read(u"Zeph.ini"_s), "[Handles]\r\nDefault=Grip.tmh\r\n");
}

TEST_F(Handles, TheFileOfANameLiesInTheFolder)
{
    EXPECT_EQ(handlePath(folder.path(), u"Grip"_s), folder.file(u"Grip.tmh"_s));
}
