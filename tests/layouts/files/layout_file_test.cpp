// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "layouts/files/layout_file.h"

#include "platform/core/rtf.h"
#include "tests/layouts/files/sheet_maker.h"

#include <gmock/gmock.h>

#include <QElapsedTimer>

using namespace zeph;
using namespace zeph::test;
using testing::HasSubstr;

namespace {

const QString file = u"C:\\Layouts\\a"_s;
const QString textFile = u"F/Joystick layout.jft"_s;

/// A joystick sheet's file of 19 lines, each box at 10 times its number.
QByteArray joystickFile()
{
    QByteArray bytes = "1043 714\r\n200,100,True,False\r\n";
    for (int i = 0; i < 17; ++i) {
        bytes += QByteArray::number(10 * i) + ",20,120,80,True,False\r\n";
    }
    return bytes;
}

/// The file with one line (1-based) replaced.
QByteArray withLine(const QByteArray &bytes, int number, const QByteArray &line)
{
    QByteArrayList lines = bytes.split('\n');
    lines[number - 1] = line + '\r';
    return lines.join('\n');
}

LayoutError errorOf(const QByteArray &bytes, SheetKind kind = SheetKind::Joystick)
{
    const auto sheet = readPositions(kind, bytes, file);
    return sheet ? LayoutError{ u"no error"_s, -1, {} } : sheet.error();
}

/// The line of the error of the joystick file with that line in it.
LayoutError errorAt(int number, const QByteArray &line)
{
    return errorOf(withLine(joystickFile(), number, line));
}

Sheet joystickSheet()
{
    return *readPositions(SheetKind::Joystick, joystickFile(), file);
}

} // namespace

TEST(PositionsFile, OfTheJoystickSheetIsWrittenLineForLine)
{
    Sheet sheet = emptySheet(SheetKind::Joystick);
    sheet.width = 1043;
    sheet.height = 714;
    sheet.pictures[0] = { .Left = 150, .Top = 75, .Visible = true, .Locked = false, .path = {} };
    sheet.boxes[0] = { .Left = 10,
                       .Top = 20,
                       .Width = 120,
                       .Height = 50,
                       .Visible = true,
                       .Locked = true,
                       .text = {} };
    sheet.boxes[16] = { .Left = 0,
                        .Top = 0,
                        .Width = 40,
                        .Height = 20,
                        .Visible = false,
                        .Locked = false,
                        .text = {} };
    const QByteArray bytes = writePositions(sheet, file).value();
    EXPECT_TRUE(bytes.startsWith("1043 714\r\n150,75,True,False\r\n10,20,120,50,True,True\r\n"))
        << bytes.toStdString();
    EXPECT_TRUE(bytes.endsWith("\r\n0,0,40,20,False,False\r\n")) << bytes.toStdString();
    EXPECT_EQ(bytes.count("\r\n"), 2 + 17);
    EXPECT_EQ(bytes.count('\n'), 2 + 17);
}

TEST(PositionsFile, OfTheThrottleSheetHas24Boxes)
{
    const Sheet sheet = SheetMaker(1).stored(SheetKind::Throttle);
    EXPECT_EQ(writePositions(sheet, file)->count("\r\n"), 2 + 24);
}

TEST(PositionsFile, OfTheCustomSheetHasThePicturesAndTheirFiles)
{
    Sheet sheet = emptySheet(SheetKind::Custom);
    sheet.width = 800;
    sheet.height = 1000;
    sheet.pictures = {
        { .Left = 1, .Top = 2, .Visible = true, .Locked = true, .path = u"F-16 Block 50.bmp"_s },
        { .Left = 3, .Top = 4, .Visible = false, .Locked = true, .path = u"D:\\a, b.bmp"_s },
        { .Left = 5, .Top = 6, .Visible = true, .Locked = false, .path = {} },
        { .Left = 7, .Top = 8, .Visible = true, .Locked = false, .path = u"Mine.bmp"_s },
    };
    const QByteArray bytes = writePositions(sheet, file).value();
    EXPECT_TRUE(bytes.startsWith("800 1000\r\n"
                                 "1,2,True,True\r\nF-16 Block 50.bmp\r\n"
                                 "3,4,False,True\r\nD:\\a, b.bmp\r\n"
                                 "5,6,True,False\r\nnone\r\n"
                                 "True\r\nMine.bmp\r\n"
                                 "0,0,0,0,True,False\r\n"))
        << bytes.toStdString();
    EXPECT_EQ(bytes.count("\r\n"), 9 + 40);
    const Sheet read = readPositions(SheetKind::Custom, bytes, file).value();
    EXPECT_EQ(read.pictures[1], sheet.pictures[1]);
    EXPECT_EQ(read.pictures[2].path, QString());
    EXPECT_EQ(read.pictures[3].path, u"Mine.bmp");
    EXPECT_EQ(read.pictures[3].Left, 0) << "the file does not hold it";
}

TEST(PositionsFile, NumbersAreTruncatedTowardsMinusInfinity)
{
    Sheet sheet = joystickSheet();
    sheet.pictures[0].Left = -0.5F;
    sheet.pictures[0].Top = -3;
    sheet.boxes[0].Left = 12.99F;
    sheet.boxes[0].Top = -12.01F;
    sheet.boxes[0].Width = 40.5F;
    const QByteArray bytes = writePositions(sheet, file).value();
    EXPECT_THAT(bytes.toStdString(), HasSubstr("\r\n-1,-3,True,False\r\n12,-13,40,80,"));
}

TEST(PositionsFile, TheSizeMayHaveAnyBlanksAroundIt)
{
    for (const QByteArray line : { " 1043  714 ", "1043\t714", "1043 714" }) {
        const auto sheet =
            readPositions(SheetKind::Joystick, withLine(joystickFile(), 1, line), file);
        ASSERT_TRUE(sheet) << line.toStdString();
        EXPECT_EQ(sheet->width, 1043);
        EXPECT_EQ(sheet->height, 714);
    }
}

TEST(PositionsFile, OnlyTheExactWordTrueIsTrue)
{
    const QByteArray bytes =
        withLine(withLine(joystickFile(), 2, "200,100,true,TRUE"), 3, "1,2,3,4,1, True ");
    const Sheet sheet = readPositions(SheetKind::Joystick, bytes, file).value();
    EXPECT_FALSE(sheet.pictures[0].Visible);
    EXPECT_FALSE(sheet.pictures[0].Locked);
    EXPECT_FALSE(sheet.boxes[0].Visible);
    EXPECT_TRUE(sheet.boxes[0].Locked) << "the blanks around a field are not part of it";
}

TEST(PositionsFile, MoreWidthThanHeightIsLandscape)
{
    EXPECT_FALSE(isPortrait(joystickSheet()));
    const auto square =
        readPositions(SheetKind::Joystick, withLine(joystickFile(), 1, "700 700"), file);
    EXPECT_TRUE(isPortrait(*square)) << "as high as wide is portrait";
}

TEST(PositionsFile, LineEndsMayBeThoseOfOtherSystems)
{
    QByteArray unix = joystickFile().replace("\r\n", "\n");
    unix.chop(1);
    EXPECT_EQ(readPositions(SheetKind::Joystick, unix, file), joystickSheet());
}

TEST(PositionsFile, LinesAfterTheLastBoxAreNotRead)
{
    EXPECT_EQ(readPositions(SheetKind::Joystick, joystickFile() + "what, ever\r\n\r\n", file),
              joystickSheet());
}

TEST(PositionsFile, WhatWasReadIsWrittenAsTheSameBytes)
{
    for (quint32 seed = 0; seed < 300; ++seed) {
        for (const SheetKind kind : allSheetKinds) {
            const Sheet sheet = SheetMaker(seed).stored(kind);
            const QByteArray bytes = writePositions(sheet, file).value();
            const auto read = readPositions(kind, bytes, file);
            ASSERT_TRUE(read) << read.error().text().toStdString();
            ASSERT_EQ(*read, sheet) << "seed " << seed;
            ASSERT_EQ(writePositions(*read, file).value(), bytes) << "seed " << seed;
        }
    }
}

TEST(DamagedPositions, AMissingLineIsNamed)
{
    QByteArrayList lines = joystickFile().split('\n');
    for (int count = 0; count < 19; ++count) {
        const LayoutError error = errorOf(lines.first(count).join('\n'));
        EXPECT_EQ(error.line, count + 1);
        EXPECT_EQ(error.file, file);
        EXPECT_THAT(error.reason.toStdString(), HasSubstr("ends before"));
    }
}

TEST(DamagedPositions, AMissingLineOfTheCustomSheetIsNamed)
{
    const QByteArray bytes = writePositions(SheetMaker(2).stored(SheetKind::Custom), file).value();
    const QByteArrayList lines = bytes.split('\n');
    ASSERT_EQ(lines.size(), 1 + 8 + 40 + 1);
    for (int count = 0; count < 49; ++count) {
        EXPECT_EQ(errorOf(lines.first(count).join('\n'), SheetKind::Custom).line, count + 1);
    }
    for (const int place : { 2, 4, 6 }) {
        const QByteArray shortLine = withLine(bytes, place, "1,2,True");
        EXPECT_EQ(errorOf(shortLine, SheetKind::Custom).line, place);
        const QByteArray word = withLine(bytes, place, "1,top,True,False");
        EXPECT_EQ(errorOf(word, SheetKind::Custom).line, place);
    }
    const QByteArray longPath = withLine(bytes, 9, QByteArray(10'000'000, 'x'));
    EXPECT_EQ(errorOf(longPath, SheetKind::Custom).line, 9);
}

TEST(DamagedPositions, AShortLineIsNamed)
{
    EXPECT_EQ(errorAt(1, "1043").line, 1);
    EXPECT_EQ(errorAt(2, "200,100,True").line, 2);
    EXPECT_EQ(errorAt(7, "10,20,120,80,True").line, 7);
    EXPECT_EQ(errorAt(7, "").line, 7);
    EXPECT_EQ(errorAt(7, "").reason, u"text box 5 needs 6, and here are 0");
    EXPECT_EQ(errorAt(7, "10,20,120,80,True,True,True").line, 7) << "too long is no better";
}

TEST(DamagedPositions, AWordForANumberIsNamed)
{
    EXPECT_EQ(errorAt(1, "wide 714").text(),
              u"C:\\Layouts\\a, line 1: “wide” is no whole number for the width of the sheet.");
    EXPECT_EQ(errorAt(1, "1043 714.5").line, 1);
    EXPECT_EQ(errorAt(2, "200,top,True,False").line, 2);
    EXPECT_EQ(errorAt(19, "160,20,x,80,True,False").reason,
              u"“x” is no number for the width of text box 17");
    for (const QByteArray odd : { "nan", "inf", "0x10", "1e30", "-99999999", "1 2", "\xA0" }) {
        EXPECT_EQ(errorAt(9, odd + ",20,120,80,True,False").line, 9) << odd.toStdString();
    }
}

TEST(DamagedPositions, ASizeThatNoSheetHasIsNamed)
{
    for (const QByteArray size : { "0 714", "1043 -1", "32768 714", "1043 99999999999" }) {
        EXPECT_EQ(errorAt(1, size).line, 1) << size.toStdString();
    }
    EXPECT_EQ(errorAt(3, "1,2,-3,4,True,False").reason,
              u"the width of text box 1 is less than nothing");
}

TEST(DamagedPositions, ALineOfTenMegabytesIsAnErrorAndQuick)
{
    QElapsedTimer time;
    time.start();
    const QByteArray longLine(10'000'000, 'x');
    for (const int number : { 1, 2, 3, 19 }) {
        const LayoutError error = errorAt(number, longLine);
        EXPECT_EQ(error.line, number);
        EXPECT_LT(error.text().size(), 300) << "nobody wants to read ten megabytes";
    }
    EXPECT_EQ(errorOf(longLine).line, 1);
    EXPECT_LT(time.elapsed(), 2000);
}

TEST(DamagedPositions, AFileOfAnotherKindIsAnError)
{
    EXPECT_EQ(errorOf("{\\rtf1 text}").line, 1);
    EXPECT_EQ(errorOf(QByteArray(1000, '\0')).line, 1);
    EXPECT_EQ(errorOf(joystickFile(), SheetKind::Custom).line, 4)
        << "no number where a place is due";
    EXPECT_EQ(errorOf(joystickFile(), SheetKind::Throttle).line, 20);
}

TEST(PositionsFile, APathThatCodePage1252LacksIsRefused)
{
    Sheet sheet = emptySheet(SheetKind::Custom);
    sheet.pictures[1].path = u"C:\\日本.bmp"_s;
    const auto written = writePositions(sheet, file);
    ASSERT_FALSE(written);
    EXPECT_THAT(written.error().reason.toStdString(), HasSubstr("日"));
    for (const QString &path : { u"a\nb"_s, u"a\r"_s, u"none"_s, QString(5000, u'x') }) {
        sheet.pictures[1].path = path;
        EXPECT_FALSE(writePositions(sheet, file)) << path.left(10).toStdString();
    }
}

TEST(LayoutFolder, KeepsTheFormatsThatPositionsLose)
{
    Sheet sheet = joystickSheet();
    RichText text =
        RichText::plain(u"BTN S1 /U Fire\n/D Höher"_s,
                        { .family = u"Arial"_s, .pointSize = 8, .colour = colorRef(1, 2, 3) });
    text.change(7, 2, [](CharFormat &format) {
        format.bold = true;
        format.colour = 164;
    });
    sheet.boxes[4].text = text;
    const LayoutFolder files = writeLayoutFolder(sheet, textFile).value();
    const Sheet read = readLayoutFolder(SheetKind::Joystick, files, textFile).value();
    EXPECT_EQ(read.boxes[4].text, text);
    EXPECT_EQ(read, sheet);
    EXPECT_EQ(readPositions(SheetKind::Joystick, files.positions, file)->boxes[4].text,
              RichText::plain({}));
}

TEST(LayoutFolder, NamesItsFiles)
{
    EXPECT_EQ(layoutTextName(SheetKind::Joystick, 0), u"Cougar Joystick Text0.rtf");
    EXPECT_EQ(layoutTextName(SheetKind::Joystick, 16), u"Cougar Joystick Text16.rtf");
    EXPECT_EQ(layoutTextName(SheetKind::Throttle, 23), u"Throttletextbox23.rtf");
    EXPECT_EQ(layoutTextName(SheetKind::Custom, 39), u"Custom Text39.rtf");
}

TEST(LayoutFolder, WhatWasReadIsWrittenAsTheSameBytes)
{
    for (quint32 seed = 0; seed < 40; ++seed) {
        for (const SheetKind kind : allSheetKinds) {
            const Sheet sheet = SheetMaker(seed).storedWithTexts(kind);
            const LayoutFolder files = writeLayoutFolder(sheet, file).value();
            ASSERT_EQ(files.texts.size(), sheet.boxes.size());
            const auto read = readLayoutFolder(kind, files, file);
            ASSERT_TRUE(read) << read.error().text().toStdString();
            ASSERT_EQ(*read, sheet) << "seed " << seed;
            ASSERT_EQ(writeLayoutFolder(*read, file).value(), files) << "seed " << seed;
        }
    }
}

TEST(DamagedLayoutFolder, DamagedRtfIsNamedWithItsLine)
{
    LayoutFolder files = writeLayoutFolder(joystickSheet(), textFile).value();
    files.texts[7] = "{\\rtf1 a\n\\b b\n{{ c";
    const auto read = readLayoutFolder(SheetKind::Joystick, files, textFile);
    ASSERT_FALSE(read);
    EXPECT_EQ(read.error().file, u"F/Cougar Joystick Text7.rtf");
    EXPECT_EQ(read.error().line, 3);
    EXPECT_FALSE(read.error().reason.isEmpty());
}

TEST(DamagedLayoutFolder, ATextThatIsNoRtfIsAnError)
{
    LayoutFolder files = writeLayoutFolder(joystickSheet(), textFile).value();
    for (const QByteArray &odd :
         { QByteArray(), QByteArray("plain text"), QByteArray(10'000'000, '{') }) {
        files.texts[0] = odd;
        const auto read = readLayoutFolder(SheetKind::Joystick, files, textFile);
        ASSERT_FALSE(read);
        EXPECT_EQ(read.error().file, u"F/Cougar Joystick Text0.rtf");
        EXPECT_EQ(read.error().line, 1);
    }
}

TEST(DamagedLayoutFolder, ThePlacesComeFirst)
{
    LayoutFolder files = writeLayoutFolder(joystickSheet(), textFile).value();
    files.texts[0] = "no rtf";
    files.positions = "wide high\r\n";
    const auto read = readLayoutFolder(SheetKind::Joystick, files, u"F/My copy.jft"_s);
    ASSERT_FALSE(read);
    EXPECT_EQ(read.error().file, u"F/My copy.jft");
}

TEST(WithPlacesOf, KeepsTextsAndWhatTheFileLacks)
{
    Sheet open = SheetMaker(5).storedWithTexts(SheetKind::Custom);
    open.pictures[3].Left = 33;
    open.pictures[3].Locked = false;
    const Sheet layout = SheetMaker(6).stored(SheetKind::Custom);
    const Sheet merged = withPlacesOf(open, layout);
    EXPECT_EQ(merged.width, layout.width);
    EXPECT_EQ(merged.boxes[9].text, open.boxes[9].text);
    EXPECT_EQ(merged.boxes[9].Left, layout.boxes[9].Left);
    EXPECT_EQ(merged.boxes[9].Locked, layout.boxes[9].Locked);
    EXPECT_EQ(merged.pictures[0], layout.pictures[0]);
    EXPECT_EQ(merged.pictures[3].Left, 33);
    EXPECT_FALSE(merged.pictures[3].Locked);
    EXPECT_EQ(merged.pictures[3].path, layout.pictures[3].path);

    Sheet joystick = joystickSheet();
    joystick.pictures[0].path = u"Grip.bmp"_s;
    joystick.pictures[0].Left = 1;
    const Sheet placed = withPlacesOf(joystick, joystickSheet());
    EXPECT_EQ(placed.pictures[0].path, u"Grip.bmp") << "no layout file of this sheet has it";
    EXPECT_EQ(placed.pictures[0].Left, 200);
}

TEST(TransferRecords, AreNumbersAndCommasWithoutQuotes)
{
    EXPECT_EQ(writeTransferList({ QRectF(10.9, -0.1, 120, 80), QRectF(1, 2, 3, 4) }),
              "2\r\n10,-1,120,80\r\n1,2,3,4\r\n");
    EXPECT_EQ(writeTransferList({}), "0\r\n");
    EXPECT_EQ(writeTransferPlace(QRectF(-7, 8, 9.99, 10)), "-7,8,9,10\r\n");
}

TEST(TransferRecords, WhatWasReadIsWrittenAsTheSameBytes)
{
    const QByteArray list = "3\r\n10,-1,120,80\r\n1,2,3,4\r\n0,0,0,0\r\n";
    EXPECT_EQ(writeTransferList(readTransferList(list, file).value()), list);
    const QByteArray place = "-7,8,9,10\r\n";
    EXPECT_EQ(writeTransferPlace(readTransferPlace(place, file).value()), place);
}

TEST(TransferRecords, DamageIsNamedWithItsLine)
{
    const auto lineOf = [](const QByteArray &bytes) {
        const auto read = readTransferList(bytes, file);
        return read ? 0 : read.error().line;
    };
    EXPECT_EQ(lineOf("two\r\n1,2,3,4\r\n"), 1);
    EXPECT_EQ(lineOf("-1\r\n"), 1);
    EXPECT_EQ(lineOf(""), 1);
    EXPECT_EQ(lineOf("2\r\n1,2,3,4\r\n"), 3) << "fewer than it says";
    EXPECT_EQ(lineOf("1\r\n1,2,3\r\n"), 2);
    EXPECT_EQ(lineOf("1\r\n\"1\",2,3,4\r\n"), 2);
    EXPECT_EQ(lineOf("1\r\n1,2,3,x\r\n"), 2);
    EXPECT_EQ(lineOf("999999999\r\n"), 1);
    EXPECT_EQ(lineOf("1\r\n" + QByteArray(10'000'000, '1')), 2);
    EXPECT_FALSE(readTransferPlace("1,2,3\r\n", file));
    EXPECT_FALSE(readTransferPlace("", file));
}

TEST(SheetKinds, HaveTheirBoxesAndPictures)
{
    const int boxes[] = { 17, 24, 40 };
    for (const SheetKind kind : allSheetKinds) {
        const SheetKindRow &row = sheetKind(kind);
        EXPECT_EQ(row.kind, kind);
        EXPECT_EQ(row.boxes, boxes[int(kind)]);
        EXPECT_EQ(int(row.boxNames.size()), row.boxes);
        const Sheet sheet = emptySheet(kind);
        EXPECT_EQ(int(sheet.boxes.size()), row.boxes);
        EXPECT_EQ(sheet.pictures.size(), kind == SheetKind::Custom ? 4U : 1U);
    }
    EXPECT_EQ(sheetKind(SheetKind::Joystick).boxNames[8], u"Triggers");
    EXPECT_EQ(sheetKind(SheetKind::Throttle).boxNames[16], u"LBRK");
    EXPECT_EQ(sheetKind(SheetKind::Joystick).pictureEntry, 17);
    EXPECT_EQ(sheetKind(SheetKind::Throttle).pictureEntry, 24);
}

TEST(SheetKinds, HaveTheirNamesAndWords)
{
    const SheetKindRow &joystick = sheetKind(SheetKind::Joystick);
    EXPECT_EQ(joystick.loadingStatus, u" Loading joystick layout ... please wait ....");
    EXPECT_EQ(joystick.coloursStatus, u" Applying colour highlighting ...");
    EXPECT_EQ(joystick.optionsSection, u"Joystick");
    EXPECT_EQ(joystick.transfer.list, u"temp.jft");
    EXPECT_EQ(joystick.transfer.texts, u"JoystickTemp");
    EXPECT_EQ(joystick.transfer.single, u"SingleJoystick");
    const SheetKindRow &throttle = sheetKind(SheetKind::Throttle);
    EXPECT_EQ(throttle.loadingStatus, u" Loading throttle layout ... please wait ....");
    EXPECT_EQ(throttle.coloursStatus, u" Applying colours ...");
    EXPECT_EQ(throttle.optionsSection, u"Throttle");
    EXPECT_EQ(throttle.pictures[0], u"Throttle.bmp");
    EXPECT_EQ(throttle.transfer.list, u"temp.tqt");
    EXPECT_EQ(throttle.transfer.texts, u"ThrottleTemp");
    EXPECT_EQ(throttle.transfer.single, u"SingleThrottle");
    const SheetKindRow &custom = sheetKind(SheetKind::Custom);
    EXPECT_EQ(custom.optionsSection, u"CLEO");
    EXPECT_EQ(custom.secondMenuFrom, 20);
    EXPECT_EQ(custom.positions.filter, u"Custom layout (*.cll)|*.cll");
    EXPECT_EQ(custom.withText.filter, u"Custom layout and text (*.clt)|*.clt");
    EXPECT_EQ(throttle.positions.filter, u"Throttle layout (*.ttl)|*.ttl");
    EXPECT_EQ(throttle.withText.filter, u"Throttle Layout with text (*.ttt)|*.ttt");
}
