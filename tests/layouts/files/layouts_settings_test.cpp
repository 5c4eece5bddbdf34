// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "layouts/files/layouts_settings.h"

#include "layouts/files/layoutsize.h"
#include "platform/fakes/fake_printers.h"
#include "tests/layouts/files/sheet_maker.h"
#include "tests/settings/store.h"

#include <gtest/gtest.h>

#include <cmath>

using namespace zeph;
using namespace zeph::test;

namespace {

struct LayoutsIni : testing::Test {
    Store store;
    Settings settings;

    LayoutsSettings &values() { return settings.of<LayoutsSettings>(); }
    void put(const QByteArray &bytes) const { store.folder.write(u"Layouts.ini"_s, bytes); }
    QByteArray ini() const { return store.folder.read(u"Layouts.ini"_s); }
    bool read(const std::optional<QSize> &paper = {})
    {
        return readLayoutsSettings(settings, store.files, paper).isEmpty();
    }
};

/// How bright a colour is, from 0 (black) to 1 (white), as the eye sees it.
double brightness(ColorRef colour)
{
    const auto linear = [](int part) {
        const double value = part / 255.0;
        return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(redOf(colour)) + 0.7152 * linear(greenOf(colour))
        + 0.0722 * linear(blueOf(colour));
}

double contrastWithPaper(ColorRef colour)
{
    return 1.05 / (brightness(colour) + 0.05);
}

} // namespace

TEST_F(LayoutsIni, AnAbsentFileReadsAsTheDefaults)
{
    values().JoystickSnap = 0;
    ASSERT_TRUE(read());
    EXPECT_EQ(values().LOTextFont, u"Arial");
    EXPECT_EQ(values().LOTextFontSize, 8);
    EXPECT_FALSE(values().LOTextFontBold);
    EXPECT_TRUE(values().LayoutApplyColour);
    EXPECT_FALSE(values().HighlightingMethod);
    EXPECT_TRUE(values().RepositionOnSizeChange);
    EXPECT_EQ(values().JoystickSnap, 2);
    EXPECT_EQ(values().ThrottleSnap, 2);
    EXPECT_EQ(values().CleoSnap, 0);
    EXPECT_EQ(values().JoystickGridCellSize, 5);
    EXPECT_EQ(values().ThrottleGridCellSize, 5);
    EXPECT_EQ(values().CleoGridCellSize, 5);
    EXPECT_EQ(values().TBAdjustHeight, 0);
    EXPECT_EQ(values().AutoJLO, QString());
    EXPECT_FALSE(values().AutoCLOuse);
}

TEST_F(LayoutsIni, EverySettingLiesInItsSection)
{
    put("[Joystick Layout]\r\nLOTextFont=Courier New\r\nLOTextFontSize=10\r\nLOTextFontBold=1\r\n"
        "LayoutApplyColour=0\r\nHighlightingMethod=1\r\nRepositionOnSizeChange=0\r\n"
        "DefImageX=900\r\nDefImageY=1200\r\nAutoTLO=/x/a.ttl\r\nAutoTLOuse=1\r\n"
        "[Snap stuff]\r\nJoystickSnap=1\r\nCleoGridCellSize=12\r\nCleoPrintOnWhite=1\r\n"
        "[Printing Tweaks]\r\nTBAdjustHeight=1.5\r\nTBAdjustWidth=2\r\nTxtTopAdjust=-3\r\n"
        "TxtLeftAdjust=4\r\n");
    ASSERT_TRUE(read());
    EXPECT_EQ(values().LOTextFont, u"Courier New");
    EXPECT_EQ(values().LOTextFontSize, 10);
    EXPECT_TRUE(values().LOTextFontBold);
    EXPECT_FALSE(values().LayoutApplyColour);
    EXPECT_TRUE(values().HighlightingMethod);
    EXPECT_FALSE(values().RepositionOnSizeChange);
    EXPECT_EQ(values().DefImageX, 900);
    EXPECT_EQ(values().DefImageY, 1200);
    EXPECT_EQ(values().AutoTLO, u"/x/a.ttl");
    EXPECT_TRUE(values().AutoTLOuse);
    EXPECT_EQ(values().JoystickSnap, 1);
    EXPECT_EQ(values().CleoGridCellSize, 12);
    EXPECT_TRUE(values().CleoPrintOnWhite);
    EXPECT_EQ(values().TBAdjustHeight, 1.5);
    EXPECT_EQ(values().TBAdjustWidth, 2);
    EXPECT_EQ(values().TxtTopAdjust, -3);
    EXPECT_EQ(values().TxtLeftAdjust, 4);
}

TEST_F(LayoutsIni, AnAutomaticLayoutWithoutAPathIsOff)
{
    put("[Joystick Layout]\r\nAutoJLOuse=1\r\nAutoCLO=/x/a.cll\r\nAutoCLOuse=1\r\n");
    ASSERT_TRUE(read());
    EXPECT_FALSE(values().AutoJLOuse);
    EXPECT_TRUE(values().AutoCLOuse);
}

TEST_F(LayoutsIni, ALayoutInTheProgramsFolderIsHeldRelativeToIt)
{
    const QString path = store.folder.file(u"Layouts/a.jfl"_s);
    values().AutoJLO = path;
    ASSERT_TRUE(saveGroup(settings.group<LayoutsSettings>(), store.files));
    EXPECT_TRUE(ini().contains("AutoJLO=Layouts/a.jfl\r\n")
                || ini().contains("AutoJLO=Layouts\\a.jfl\r\n"));
    ASSERT_TRUE(read());
    EXPECT_EQ(values().AutoJLO, path);
}

TEST_F(LayoutsIni, TheSizeOfANewSheetGoesWithThePaper)
{
    ASSERT_TRUE(read());
    EXPECT_EQ(values().DefImageX, 1043);
    EXPECT_EQ(values().DefImageY, 714);
    ASSERT_TRUE(read(QSize(1500, 1000)));
    EXPECT_EQ(values().DefImageX, 1340);
    EXPECT_EQ(values().DefImageY, 840);
    put("[Joystick Layout]\r\nDefImageX=555\r\n");
    ASSERT_TRUE(read(QSize(1500, 1000)));
    EXPECT_EQ(values().DefImageX, 555) << "the user's own size";
    EXPECT_EQ(values().DefImageY, 840);
}

TEST(DefaultSheetSize, IsThePaperLess160ButNotBelow800By600)
{
    EXPECT_EQ(defaultSheetSize({}), QSize(1043, 714));
    EXPECT_EQ(defaultSheetSize(QSize(1123, 794)), QSize(963, 634));
    EXPECT_EQ(defaultSheetSize(QSize(794, 1123)), QSize(800, 963));
    EXPECT_EQ(defaultSheetSize(QSize(100, 100)), QSize(800, 600));
    EXPECT_EQ(defaultSheetSize(QSize(960, 760)), QSize(800, 600));
    EXPECT_EQ(defaultSheetSize(QSize(961, 761)), QSize(801, 601));
}

TEST(PaperPixels, AreThoseOfThePrintersPaper)
{
    FakePrinters printers;
    const QSize paper = paperPixels(printers).value();
    // A4 is 210 by 297 mm; an inch has 25.4.
    EXPECT_NEAR(paper.width(), 210 / 25.4 * 96, 2);
    EXPECT_NEAR(paper.height(), 297 / 25.4 * 96, 2);
    printers.setOrientation(PageOrientation::Landscape);
    EXPECT_EQ(paperPixels(printers), paper.transposed());
    printers.printers = 0;
    EXPECT_EQ(paperPixels(printers), std::nullopt);
}

TEST_F(LayoutsIni, ToolBarsAreHiddenWindowByWindow)
{
    const ProfileFile &file = store.files.layoutsIni;
    for (const SheetKind kind : allSheetKinds) {
        EXPECT_FALSE(GetLayoutOptions(file, kind));
    }
    ASSERT_TRUE(SaveLayoutOptions(file, SheetKind::Custom, true));
    EXPECT_EQ(ini(), "[CLEO]\r\nHideAllToolBars=1\r\n");
    EXPECT_TRUE(GetLayoutOptions(file, SheetKind::Custom));
    EXPECT_FALSE(GetLayoutOptions(file, SheetKind::Joystick));
    ASSERT_TRUE(SaveLayoutOptions(file, SheetKind::Custom, false));
    EXPECT_FALSE(GetLayoutOptions(file, SheetKind::Custom));
}

TEST_F(LayoutsIni, StylesHaveTheirDefaults)
{
    const TextStyles styles = readLayoutStyles(store.files.layoutsIni);
    EXPECT_EQ(styles[0].name, u"Style 1");
    EXPECT_EQ(styles[5].name, u"Style 6");
    EXPECT_EQ(styles[6].name, u"/&U style");
    EXPECT_EQ(styles[7].name, u"/&M style");
    EXPECT_EQ(styles[8].name, u"/&D style");
    EXPECT_EQ(styles[6].format.colour, ColorRef(164));
    EXPECT_EQ(styles[7].format.colour, ColorRef(8404992));
    EXPECT_EQ(styles[8].format.colour, ColorRef(4482108));
    for (const TextStyle &style : styles) {
        EXPECT_EQ(style.format.family, u"Arial");
        EXPECT_EQ(style.format.pointSize, 8);
        EXPECT_FALSE(style.format.bold || style.format.italic || style.format.underline);
        EXPECT_GE(contrastWithPaper(*style.format.colour), 4.5) << style.name.toStdString();
    }
}

TEST_F(LayoutsIni, StylesAreThoseOfTheSheetsAlone)
{
    TextStyles styles = defaultLayoutStyles();
    styles[2].name = u"Guns"_s;
    styles[2].format.bold = true;
    styles[2].format.colour = colorRef(1, 2, 3);
    ASSERT_TRUE(writeLayoutStyles(store.files.layoutsIni, styles));
    EXPECT_TRUE(ini().startsWith("[Joystick Layout]\r\nStyleName1=Style 1\r\n"));
    EXPECT_TRUE(ini().contains("StyleFontColour3=197121\r\n"));
    EXPECT_EQ(ini().count('='), 9 * 7);
    EXPECT_EQ(readLayoutStyles(store.files.layoutsIni), styles);
    EXPECT_EQ(readTextStyles(store.files.layoutsIni), defaultTextStyles())
        << "the texts' styles lie in a section of their own";
}

TEST_F(LayoutsIni, FormatterColoursComeBack)
{
    FormatterColours colours = readFormatterColours(store.files.layoutsIni);
    EXPECT_EQ(colours.palette[0], 16711680U);
    for (const ColorRef colour : colours.palette) {
        EXPECT_GE(contrastWithPaper(colour), 4.5) << colour;
        EXPECT_EQ(std::ranges::count(colours.palette, colour), 1) << colour;
    }
    colours.palette[15] = 7;
    colours.recent[0] = 8;
    ASSERT_TRUE(writeFormatterColours(store.files.layoutsIni, colours));
    EXPECT_TRUE(ini().startsWith("[Formatter]\r\nFormatterColour0=16711680\r\n"));
    EXPECT_TRUE(ini().contains("FormatterColour15=7\r\nRecentColour0=8\r\n"));
    EXPECT_EQ(readFormatterColours(store.files.layoutsIni), colours);
    put("[Formatter]\r\nFormatterColour0=red\r\nFormatterColour1=5\r\n");
    EXPECT_EQ(readFormatterColours(store.files.layoutsIni).palette[0], 16711680U);
    EXPECT_EQ(readFormatterColours(store.files.layoutsIni).palette[1], 5U);
}

TEST_F(LayoutsIni, EachKindOfSheetHasItsMembers)
{
    values().CleoSnap = 1;
    values().ThrottleGridCellSize = 9;
    values().AutoJLO = u"a.jfl"_s;
    EXPECT_EQ(values().*sheetSettings(SheetKind::Custom).whenMoving, 1);
    EXPECT_EQ(values().*sheetSettings(SheetKind::Throttle).cellSize, 9);
    EXPECT_EQ(values().*sheetSettings(SheetKind::Joystick).automatic, u"a.jfl");
}

TEST(LayoutPixels, AreTruncatedAndAtLeast400)
{
    EXPECT_EQ(layoutPixels(u"812.9"_s), 812);
    EXPECT_EQ(layoutPixels(u"400.9"_s), 400);
    EXPECT_EQ(layoutPixels(u"399.9"_s), 400);
    EXPECT_EQ(layoutPixels(u"-5"_s), 400);
    EXPECT_EQ(layoutPixels(u"wide"_s), 400);
    EXPECT_EQ(layoutPixels(QString()), 400);
    EXPECT_EQ(layoutPixels(u"99999999"_s), 32767);
}

TEST_F(LayoutsIni, ASizeThatIsNoDefaultIsNotStored)
{
    ASSERT_TRUE(keepLayoutSize(settings, store.files, { QSize(900, 700), false, true }));
    EXPECT_FALSE(ini().contains("DefImage"));
    EXPECT_TRUE(ini().contains("RepositionOnSizeChange=1"));
    ASSERT_TRUE(keepLayoutSize(settings, store.files, { QSize(900, 700), true, false }));
    EXPECT_TRUE(ini().contains("DefImageX=900"));
    EXPECT_TRUE(ini().contains("DefImageY=700"));
    EXPECT_TRUE(ini().contains("RepositionOnSizeChange=0"));
}

TEST_F(LayoutsIni, SettingTheSizeLetsBoxesMoveAgain)
{
    values().isRepositionOff = true;
    EXPECT_FALSE(values().repositions());
    ASSERT_TRUE(read());
    EXPECT_FALSE(values().repositions()) << "reading the settings again changes nothing";
    ASSERT_TRUE(keepLayoutSize(settings, store.files, { QSize(900, 700), false, true }));
    EXPECT_TRUE(values().repositions());
}

TEST_F(LayoutsIni, WhatAnOpenedLayoutHasSwitchedOffIsNotStoredWithTheSize)
{
    values().isRepositionOff = true;
    ASSERT_TRUE(keepLayoutSize(settings, store.files, { QSize(900, 700), true, false }));
    EXPECT_TRUE(ini().contains("RepositionOnSizeChange=1"));
    EXPECT_FALSE(values().repositions());
}
