// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "shell/sheet_command.h"

#include "tests/support/temp_folder.h"

#include <gmock/gmock.h>

using namespace zeph;

namespace {

QStringList words(const QString &line)
{
    return line.split(u' ', Qt::SkipEmptyParts);
}

QString faultOf(const QString &line)
{
    const auto command = sheetCommandOf(words(line));
    return command ? u"none"_s : command.error();
}

} // namespace

TEST(SheetCommand, IsKnownByItsOptions)
{
    EXPECT_TRUE(isSheetCommand(words(u"a.tmj --sheet throttle"_s)));
    EXPECT_TRUE(isSheetCommand(words(u"--out=x.pdf"_s)));
    EXPECT_TRUE(isSheetCommand(words(u"--scale 2"_s)));
    EXPECT_FALSE(isSheetCommand(words(u"a.tmj"_s)));
    EXPECT_FALSE(isSheetCommand(words(u"--sheets.tmj"_s)));
    EXPECT_FALSE(isSheetCommand({}));
}

TEST(SheetCommand, TakesItsArgumentsInAnyOrder)
{
    const SheetCommand command{
        .sheet = SheetKind::Throttle, .out = u"x.PNG"_s, .scale = 4, .file = u"my file.tmj"_s
    };
    EXPECT_EQ(sheetCommandOf({ u"--sheet"_s, u"throttle"_s, u"--out"_s, u"x.PNG"_s, u"--scale"_s,
                               u"4"_s, u"my file.tmj"_s }),
              command);
    EXPECT_EQ(sheetCommandOf(
                  { u"my file.tmj"_s, u"--scale=4"_s, u"--out=x.PNG"_s, u"--sheet=throttle"_s }),
              command);
}

TEST(SheetCommand, TheScaleIsOneUnlessItIsSaid)
{
    const auto command = sheetCommandOf(words(u"--sheet joystick --out x.svg a.tmj"_s));
    ASSERT_TRUE(command);
    EXPECT_EQ(command->scale, 1);
    EXPECT_EQ(command->sheet, SheetKind::Joystick);
}

TEST(SheetCommand, WrongArgumentsAreTold)
{
    const QString sheet = u"--sheet takes joystick or throttle."_s;
    EXPECT_EQ(faultOf(u"--out x.pdf a.tmj"_s), sheet);
    EXPECT_EQ(faultOf(u"--sheet custom --out x.pdf a.tmj"_s), sheet);
    const QString out = u"--out takes a file that ends in .pdf, .svg, .png or .html."_s;
    EXPECT_EQ(faultOf(u"--sheet joystick a.tmj"_s), out);
    EXPECT_EQ(faultOf(u"--sheet joystick --out x.bmp a.tmj"_s), out);
    EXPECT_EQ(faultOf(u"--sheet joystick --out pdf a.tmj"_s), out);
    for (const QString &scale : { u"0"_s, u"3"_s, u"02"_s, u"two"_s, u"-1"_s }) {
        EXPECT_EQ(faultOf(u"--sheet joystick --out x.png a.tmj --scale "_s + scale),
                  u"--scale takes 1, 2 or 4.");
    }
    EXPECT_EQ(faultOf(u"--sheet joystick --out x.png"_s),
              u"There is no joystick file to make the sheet of.");
    EXPECT_EQ(faultOf(u"--sheet joystick --out x.png a.tmj b.tmj"_s),
              u"There is more than one joystick file: b.tmj");
    EXPECT_EQ(faultOf(u"--sheet joystick --sheet throttle"_s), u"--sheet is there twice.");
    EXPECT_EQ(faultOf(u"a.tmj --out"_s), u"--out has no value.");
    EXPECT_EQ(faultOf(u"--sheet joystick --colour a.tmj"_s), u"There is no option --colour.");
}

TEST(SheetCommand, AFileThatCannotBeReadOrWrittenIsNamed)
{
    const test::TempFolder folder;
    const QDateTime now(QDate(2024, 3, 5), QTime(9, 7));
    SheetCommand command{ .out = folder.file(u"x.svg"_s), .file = folder.file(u"none.tmj"_s) };
    const auto unread = writeSheet(command, folder.path(), now);
    ASSERT_FALSE(unread);
    EXPECT_TRUE(unread.error().startsWith(command.file + u": "_s));
    EXPECT_FALSE(folder.exists(u"x.svg"_s));

    command.file = folder.write(u"a.tmj"_s, "BTN S1 a\r\n");
    command.out = folder.file(u"none/x.svg"_s);
    const auto unwritten = writeSheet(command, folder.path(), now);
    ASSERT_FALSE(unwritten);
    EXPECT_TRUE(unwritten.error().startsWith(command.out + u": "_s));
}

TEST(SheetCommand, AnEmptyFileGivesASheetOfCaptions)
{
    const test::TempFolder folder;
    const SheetCommand command{ .out = folder.file(u"x.html"_s),
                                .file = folder.write(u"a.tmj"_s, {}) };
    EXPECT_TRUE(writeSheet(command, folder.path(), QDateTime(QDate(2024, 3, 5), QTime(9, 7))));
    EXPECT_TRUE(folder.read(u"x.html"_s).contains("Custom 3:"));
}
