// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "settings/settings.h"

#include "tests/settings/store.h"

#include <gmock/gmock.h>

#include <array>

using namespace zeph;
using test::Store;

namespace {

/// Two windows with settings of the same names, as rooms have them.
struct SheetSettings {
    SheetSettings();
    static std::span<const SettingRow<SheetSettings>> rows();

    bool HideAllToolBars;
    int Zoom;
    double Left;
    QString Title;
    ColorRef Paper;
};

struct ViewSettings {
    ViewSettings();
    static std::span<const SettingRow<ViewSettings>> rows();

    bool HideAllToolBars;
    bool AlwaysInsert;
};

constexpr QStringView sheet = u"Joystick Layout";

constexpr std::array sheetRows = {
    in(SettingsStore::Layouts,
       row(sheet, u"HideAllToolBars", &SheetSettings::HideAllToolBars, false)),
    in(SettingsStore::Layouts, row(sheet, u"Zoom", &SheetSettings::Zoom, 100, { 25, 400 })),
    in(SettingsStore::Layouts, row(sheet, u"Left", &SheetSettings::Left, 1.5, { 0, 1000 })),
    in(SettingsStore::Layouts, row(sheet, u"Title", &SheetSettings::Title, u"A sheet")),
    in(SettingsStore::Layouts, row(sheet, u"Paper", &SheetSettings::Paper, ColorRef(16777215))),
};

constexpr std::array viewRows = {
    row(u"Image Viewer", u"HideAllToolBars", &ViewSettings::HideAllToolBars, true, SavedAs{ 2 }),
    row(u"Composer", u"AlwaysInsert", &ViewSettings::AlwaysInsert, false, SavedAs{ 1 }),
};

SheetSettings::SheetSettings()
{
    setDefaults(*this);
}

std::span<const SettingRow<SheetSettings>> SheetSettings::rows()
{
    return sheetRows;
}

ViewSettings::ViewSettings()
{
    setDefaults(*this);
}

std::span<const SettingRow<ViewSettings>> ViewSettings::rows()
{
    return viewRows;
}

/// The sheet's settings after a read of this Layouts.ini.
struct Sheet {
    Store store;
    Settings settings;
    SettingProblems problems;

    const SheetSettings &read(const QByteArray &lines)
    {
        store.folder.write(u"Layouts.ini"_s, "[Joystick Layout]\n" + lines);
        problems = readGroup(settings.group<SheetSettings>(), store.files);
        return settings.of<SheetSettings>();
    }
};

} // namespace

TEST(Settings, AStructIsMadeOnceWithItsDefaults)
{
    Settings settings;
    const SheetSettings &sheet = settings.of<SheetSettings>();
    EXPECT_FALSE(sheet.HideAllToolBars);
    EXPECT_EQ(sheet.Zoom, 100);
    EXPECT_EQ(sheet.Left, 1.5);
    EXPECT_EQ(sheet.Title, u"A sheet");
    EXPECT_EQ(sheet.Paper, 0xFFFFFFU);
    EXPECT_TRUE(settings.of<ViewSettings>().HideAllToolBars);
    EXPECT_EQ(&settings.of<SheetSettings>(), &sheet);
    EXPECT_EQ(settings.groups().size(), 2);
}

TEST(Settings, AKeyOfTheSameNameBelongsToItsOwnerAndItsFile)
{
    const Store store;
    store.folder.write(u"Zeph.ini"_s, "[Image Viewer]\nHideAllToolBars=0\n");
    store.folder.write(u"Layouts.ini"_s, "[Joystick Layout]\nHideAllToolBars=1\n");
    Settings settings;
    EXPECT_TRUE(readSettings(settings, store.files,
                             { &SheetSettings::HideAllToolBars, &ViewSettings::HideAllToolBars })
                    .isEmpty());
    EXPECT_TRUE(settings.of<SheetSettings>().HideAllToolBars);
    EXPECT_FALSE(settings.of<ViewSettings>().HideAllToolBars);

    settings.of<SheetSettings>().HideAllToolBars = false;
    settings.of<ViewSettings>().HideAllToolBars = true;
    ASSERT_TRUE(saveSettings(settings, store.files, { &SheetSettings::HideAllToolBars }));
    EXPECT_EQ(store.folder.read(u"Layouts.ini"_s), "[Joystick Layout]\nHideAllToolBars=0\n");
    EXPECT_EQ(store.folder.read(u"Zeph.ini"_s), "[Image Viewer]\nHideAllToolBars=0\n");
}

TEST(Settings, LayoutsIniIsWrittenAndReadBack)
{
    Sheet sheet;
    auto &values = sheet.settings.of<SheetSettings>();
    values = sheet.read("Left=3,25\n");
    EXPECT_EQ(values.Left, 3.25);
    values.HideAllToolBars = true;
    values.Zoom = 75;
    values.Left = 12.5;
    values.Title = u"F-16"_s;
    values.Paper = 255;
    ASSERT_TRUE(saveGroup(sheet.settings.group<SheetSettings>(), sheet.store.files));
    EXPECT_EQ(sheet.store.folder.read(u"Layouts.ini"_s),
              "[Joystick Layout]\nLeft=12.5\nHideAllToolBars=1\nZoom=75\nTitle=F-16\n"
              "Paper=255\n");
    EXPECT_FALSE(sheet.store.folder.exists(u"Zeph.ini"_s));
    EXPECT_FALSE(sheet.store.folder.exists(u"HOTAS.ini"_s));
    Settings again;
    EXPECT_TRUE(readGroup(again.group<SheetSettings>(), sheet.store.files).isEmpty());
    EXPECT_EQ(again.of<SheetSettings>().Zoom, 75);
    EXPECT_EQ(again.of<SheetSettings>().Left, 12.5);
}

TEST(Settings, ANumberOutsideOfItsRangeTakesTheNearestEnd)
{
    Sheet sheet;
    EXPECT_EQ(sheet.read("Zoom=24\n").Zoom, 25);
    EXPECT_EQ(sheet.read("Zoom=25\n").Zoom, 25);
    EXPECT_EQ(sheet.read("Zoom=400\n").Zoom, 400);
    EXPECT_EQ(sheet.read("Zoom=401\n").Zoom, 400);
    EXPECT_EQ(sheet.read("Zoom=-7\n").Zoom, 25);
    EXPECT_EQ(sheet.read("Left=-0.5\n").Left, 0);
    EXPECT_EQ(sheet.read("Left=1000.5\n").Left, 1000);
    EXPECT_TRUE(sheet.problems.isEmpty());
}

TEST(Settings, AFlagIsTrueForEveryNumberButZeroAndIsWrittenAsOneOrZero)
{
    Sheet sheet;
    EXPECT_FALSE(sheet.read("HideAllToolBars=0\n").HideAllToolBars);
    EXPECT_TRUE(sheet.read("HideAllToolBars=-1\n").HideAllToolBars);
    EXPECT_TRUE(sheet.read("HideAllToolBars=7\n").HideAllToolBars);
    ASSERT_TRUE(
        saveSettings(sheet.settings, sheet.store.files, { &SheetSettings::HideAllToolBars }));
    EXPECT_EQ(sheet.store.folder.read(u"Layouts.ini"_s), "[Joystick Layout]\nHideAllToolBars=1\n");
}

TEST(Settings, WhatIsNoValueOfItsFormIsToldAndTheDefaultTaken)
{
    Sheet sheet;
    const SheetSettings &values =
        sheet.read("HideAllToolBars=70000\nZoom=32768\nLeft=left\nPaper=white\n");
    EXPECT_FALSE(values.HideAllToolBars);
    EXPECT_EQ(values.Zoom, 100);
    EXPECT_EQ(values.Left, 1.5);
    EXPECT_EQ(values.Paper, 0xFFFFFFU);
    ASSERT_EQ(sheet.problems.size(), 4);
    EXPECT_EQ(sheet.problems[1],
              (SettingProblem{ sheet.store.files.layoutsIni.path(), u"Joystick Layout"_s, u"Zoom"_s,
                               u"32768"_s }));
}

TEST(Settings, AbsentKeysAndEmptyNumbersHaveTheirDefaults)
{
    Sheet sheet;
    auto &values = sheet.settings.of<SheetSettings>();
    values.Zoom = 50;
    values.Title = u"Other"_s;
    sheet.read("Zoom=\n");
    EXPECT_EQ(values.Zoom, 100);
    EXPECT_EQ(values.Title, u"A sheet");
    EXPECT_TRUE(sheet.problems.isEmpty());
}

TEST(Settings, LargeNumbersStayPlainDecimals)
{
    Sheet sheet;
    sheet.settings.of<SheetSettings>().Left = 1234567;
    ASSERT_TRUE(saveSettings(sheet.settings, sheet.store.files, { &SheetSettings::Left }));
    EXPECT_EQ(sheet.store.files.layoutsIni.text(u"Joystick Layout", u"Left"), u"1234567");
}

TEST(Settings, TheGlobalSaveFollowsThePlacesAndLeavesTheOthersOut)
{
    const Store store;
    Settings settings;
    (void)settings.of<SheetSettings>();
    (void)settings.of<ViewSettings>();
    ASSERT_TRUE(saveGlobalSettings(settings, store.files));
    EXPECT_EQ(store.folder.read(u"Zeph.ini"_s),
              "[Composer]\r\nAlwaysInsert=0\r\n[Image Viewer]\r\nHideAllToolBars=1\r\n");
    EXPECT_FALSE(store.folder.exists(u"Layouts.ini"_s));
}

TEST(Settings, RangesAndDefaultsAreSaidByTheRows)
{
    EXPECT_EQ(rangeOf(&SheetSettings::Zoom).least, 25);
    EXPECT_EQ(rangeOf(&SheetSettings::Zoom).most, 400);
    EXPECT_EQ(defaultOf(&SheetSettings::Title), u"A sheet");
    EXPECT_EQ(defaultOf(&SheetSettings::Zoom), 100);
    EXPECT_TRUE(defaultOf(&ViewSettings::HideAllToolBars));
}

TEST(Settings, AReferenceNamesOneSettingOfOneOwner)
{
    Settings settings;
    const SettingRef sheets = &SheetSettings::HideAllToolBars;
    const SettingRef views = &ViewSettings::HideAllToolBars;
    EXPECT_FALSE(sheets == views);
    EXPECT_TRUE(sheets == SettingRef(&SheetSettings::HideAllToolBars));
    sheets.set(settings, true);
    EXPECT_TRUE(settings.of<SheetSettings>().HideAllToolBars);
    views.set(settings, false);
    EXPECT_TRUE(sheets.isOn(settings));
    EXPECT_FALSE(views.isOn(settings));
}
