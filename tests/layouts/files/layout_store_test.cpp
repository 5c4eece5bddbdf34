// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "layouts/files/layout_store.h"
#include "platform/core/paths.h"

#include "tests/layouts/files/sheet_maker.h"
#include "tests/support/temp_folder.h"

#include <gmock/gmock.h>

#include <QDir>
#include <QFile>

using namespace zeph;
using namespace zeph::test;

namespace {

struct LayoutStore : testing::Test {
    TempFolder folder;
    QString layouts = withClosingSeparator(folder.path());

    QString path(SheetKind kind, LayoutForm form, const QString &name) const
    {
        return layoutPath(kind, form, layouts, name);
    }
    /// The names in a folder below, sorted.
    QStringList entries(const QString &name) const
    {
        return QDir(layouts + name).entryList(QDir::Files | QDir::Hidden, QDir::Name);
    }
};

} // namespace

TEST_F(LayoutStore, EveryFormComesBackFromTheDisk)
{
    for (const SheetKind kind : allSheetKinds) {
        const Sheet sheet = SheetMaker(11).storedWithTexts(kind);
        const QString withText = path(kind, LayoutForm::WithText, u"Sim"_s);
        ASSERT_TRUE(saveLayout(sheet, LayoutForm::WithText, withText));
        EXPECT_EQ(loadLayout(kind, LayoutForm::WithText, withText), sheet);
        const Sheet places = SheetMaker(11).stored(kind);
        const QString positions = path(kind, LayoutForm::Positions, u"Sim"_s);
        ASSERT_TRUE(saveLayout(sheet, LayoutForm::Positions, positions));
        EXPECT_EQ(loadLayout(kind, LayoutForm::Positions, positions)->boxes[3].Left,
                  places.boxes[3].Left);
    }
    EXPECT_EQ(entries({}), (QStringList{ u"Sim.cll"_s, u"Sim.jfl"_s, u"Sim.ttl"_s }));
    EXPECT_TRUE(folder.exists(u"Sim/Joystick layout.jft"_s));
    EXPECT_TRUE(folder.exists(u"Sim/Cougar Joystick Text16.rtf"_s));
    EXPECT_FALSE(folder.exists(u"Sim/Cougar Joystick Text17.rtf"_s));
    EXPECT_TRUE(folder.exists(u"Sim/Throttle Layout with text.ttt"_s));
    EXPECT_TRUE(folder.exists(u"Sim/Throttletextbox23.rtf"_s));
    EXPECT_TRUE(folder.exists(u"Sim/Custom layout.clt"_s));
    EXPECT_TRUE(folder.exists(u"Sim/Custom Text39.rtf"_s));
    EXPECT_EQ(entries(u"Sim"_s).size(), 3 + 17 + 24 + 40) << "nothing else is left behind";
}

TEST_F(LayoutStore, TheExtensionIsNotAddedTwice)
{
    EXPECT_EQ(path(SheetKind::Joystick, LayoutForm::Positions, u"a.JFL"_s), layouts + u"a.JFL"_s);
    EXPECT_EQ(path(SheetKind::Throttle, LayoutForm::Positions, u"a.jfl"_s),
              layouts + u"a.jfl.ttl"_s);
}

TEST_F(LayoutStore, ThePathSaysTheForm)
{
    EXPECT_EQ(layoutFormOf(SheetKind::Joystick, u"C:\\a.JFL"_s), LayoutForm::Positions);
    EXPECT_EQ(layoutFormOf(SheetKind::Throttle, u"C:\\a.ttt"_s), LayoutForm::WithText);
    EXPECT_EQ(layoutFormOf(SheetKind::Custom, u"a.jft"_s), std::nullopt);
}

TEST_F(LayoutStore, FilesAreFoundInAnyCase)
{
    const Sheet sheet = SheetMaker(3).storedWithTexts(SheetKind::Throttle);
    ASSERT_TRUE(saveLayout(sheet, LayoutForm::WithText,
                           path(SheetKind::Throttle, LayoutForm::WithText, u"Sim"_s)));
    QFile::rename(layouts + u"Sim/Throttletextbox5.rtf"_s, layouts + u"Sim/THROTTLETEXTBOX5.RTF"_s);
    EXPECT_EQ(loadLayout(SheetKind::Throttle, LayoutForm::WithText,
                         layouts + u"sim\\throttle layout with text.ttt"_s),
              sheet);
}

TEST_F(LayoutStore, SavingAgainReplacesTheFilesInTheirOwnCase)
{
    const QString name = path(SheetKind::Joystick, LayoutForm::WithText, u"Sim"_s);
    ASSERT_TRUE(
        saveLayout(SheetMaker(3).storedWithTexts(SheetKind::Joystick), LayoutForm::WithText, name));
    QFile::rename(layouts + u"Sim"_s, layouts + u"SIM"_s);
    QFile::rename(layouts + u"SIM/Joystick layout.jft"_s, layouts + u"SIM/JOYSTICK LAYOUT.JFT"_s);
    const Sheet other = SheetMaker(4).storedWithTexts(SheetKind::Joystick);
    ASSERT_TRUE(saveLayout(other, LayoutForm::WithText, name));
    EXPECT_EQ(entries(u"SIM"_s).size(), 18);
    EXPECT_EQ(loadLayout(SheetKind::Joystick, LayoutForm::WithText, name), other);
}

TEST_F(LayoutStore, AMissingTextIsNamed)
{
    const QString name = path(SheetKind::Joystick, LayoutForm::WithText, u"Sim"_s);
    ASSERT_TRUE(
        saveLayout(SheetMaker(3).storedWithTexts(SheetKind::Joystick), LayoutForm::WithText, name));
    const QString text = folder.file(u"Sim/Cougar Joystick Text9.rtf"_s);
    QFile::remove(text);
    const auto read = loadLayout(SheetKind::Joystick, LayoutForm::WithText, name);
    ASSERT_FALSE(read);
    EXPECT_EQ(read.error().file, text);
    const auto missing =
        loadLayout(SheetKind::Joystick, LayoutForm::Positions, layouts + u"x.jfl"_s);
    ASSERT_FALSE(missing);
    EXPECT_EQ(missing.error().file, layouts + u"x.jfl"_s);
}

TEST_F(LayoutStore, AFailedSaveLeavesTheOldLayoutWhole)
{
    const QString name = path(SheetKind::Joystick, LayoutForm::WithText, u"Sim"_s);
    const Sheet old = SheetMaker(3).storedWithTexts(SheetKind::Joystick);
    ASSERT_TRUE(saveLayout(old, LayoutForm::WithText, name));
    const QString last = folder.file(u"Sim/Cougar Joystick Text16.rtf"_s);
    QFile::setPermissions(last, QFile::ReadOwner);
    const auto saved =
        saveLayout(SheetMaker(4).storedWithTexts(SheetKind::Joystick), LayoutForm::WithText, name);
    QFile::setPermissions(last, QFile::ReadOwner | QFile::WriteOwner);
    ASSERT_FALSE(saved);
    EXPECT_EQ(saved.error().file, last);
    EXPECT_EQ(loadLayout(SheetKind::Joystick, LayoutForm::WithText, name), old);
    EXPECT_EQ(entries(u"Sim"_s).size(), 18);
}

TEST_F(LayoutStore, AFolderThatCannotBeMadeIsAnError)
{
    folder.write(u"Sim"_s, "a file");
    EXPECT_FALSE(saveLayout(emptySheet(SheetKind::Joystick), LayoutForm::WithText,
                            path(SheetKind::Joystick, LayoutForm::WithText, u"Sim"_s)));
    EXPECT_EQ(folder.read(u"Sim"_s), "a file");
}

TEST_F(LayoutStore, ALayoutElsewhereOpensWithTheTextsBesideIt)
{
    const TempFolder elsewhere;
    const QString before = QDir::currentPath();
    const Sheet sheet = SheetMaker(3).storedWithTexts(SheetKind::Custom);
    const QString path = elsewhere.file(u"Drive D/Custom layout.clt"_s);
    ASSERT_TRUE(saveLayout(sheet, LayoutForm::WithText, path));
    EXPECT_EQ(loadLayout(SheetKind::Custom, LayoutForm::WithText, path), sheet);
    EXPECT_EQ(QDir::currentPath(), before) << "no path depends on the current folder";
}

TEST_F(LayoutStore, PicturesOfTheProgramAreKnownByName)
{
    const QString own = folder.write(u"Throttle.bmp"_s, "BM");
    EXPECT_EQ(pictureFile(u"Throttle.bmp"_s, folder.path()), own);
    EXPECT_EQ(pictureFile(u"throttle.BMP"_s, folder.path()), own);
    EXPECT_EQ(pictureFile(u"C:\\Old place\\Throttle.bmp"_s, folder.path()), own);
    EXPECT_EQ(pictureFile(u"\\Throttle.bmp"_s, folder.path()), own);
    EXPECT_EQ(pictureFile(u"/Throttle.bmp"_s, folder.path()), own);
    EXPECT_EQ(pictureFile(u"\\"_s, folder.path()), QString());
    EXPECT_EQ(picturePathOf(own, folder.path()), u"Throttle.bmp");
}

TEST_F(LayoutStore, OtherPicturesAreKnownByTheirPath)
{
    const TempFolder elsewhere;
    const QString other = elsewhere.write(u"Cockpit.bmp"_s, "BM");
    EXPECT_EQ(picturePathOf(other, folder.path()), other);
    EXPECT_EQ(pictureFile(other, folder.path()), other);
    EXPECT_EQ(pictureFile(u"Gone.bmp"_s, folder.path()), QString());
    EXPECT_EQ(pictureFile({}, folder.path()), QString());
    EXPECT_EQ(picturePathOf({}, folder.path()), QString());
    QDir(folder.path()).mkdir(u"Folder.bmp"_s);
    EXPECT_EQ(pictureFile(u"Folder.bmp"_s, folder.path()), QString());
}

TEST_F(LayoutStore, TheNamesAreTheFoldersButThatOfTransfers)
{
    for (const QString &name : { u"b"_s, u"A"_s, u"temp"_s, u"temp 2"_s }) {
        QDir(layouts).mkdir(name);
    }
    folder.write(u"c.jfl"_s, "");
    EXPECT_EQ(layoutNames(layouts), (QStringList{ u"A"_s, u"b"_s, u"temp 2"_s }));
    EXPECT_EQ(layoutNames(layouts + u"none/"_s), QStringList());
}

TEST_F(LayoutStore, ANameIsOneThatAFileCanHave)
{
    EXPECT_TRUE(checkLayoutName(u"Falcon 4, day"_s));
    for (const QString &name : { u"a/b"_s, u"a\\b"_s, u".."_s, u"a:b"_s, u"Temp"_s, u"CON"_s }) {
        EXPECT_FALSE(checkLayoutName(name)) << name.toStdString();
    }
}

TEST_F(LayoutStore, ShownBoxesComeBackInTheirOrder)
{
    Sheet sheet = SheetMaker(8).storedWithTexts(SheetKind::Throttle);
    for (LayoutTextBox &box : sheet.boxes) {
        box.Visible = false;
    }
    sheet.boxes[2].Visible = sheet.boxes[20].Visible = true;
    const auto boxes = shownBoxes(sheet);
    ASSERT_EQ(boxes.size(), 2U);
    EXPECT_EQ(boxes[1].text, sheet.boxes[20].text);
    ASSERT_TRUE(saveAllForTransfer(SheetKind::Throttle, layouts, boxes));
    EXPECT_EQ(entries(u"temp"_s),
              (QStringList{ u"ThrottleTemp0.rtf"_s, u"ThrottleTemp1.rtf"_s, u"temp.tqt"_s }));
    EXPECT_TRUE(folder.read(u"temp/temp.tqt"_s).startsWith("2\r\n"));
    EXPECT_EQ(loadAllForTransfer(SheetKind::Throttle, layouts), boxes);
    EXPECT_EQ(loadAllForTransfer(SheetKind::Joystick, layouts)->size(), 0U);
}

TEST_F(LayoutStore, FortyOneBoxesCanBeSent)
{
    const std::vector<TransferBox> boxes(41, { QRectF(1, 2, 30, 40), RichText::plain(u"x"_s) });
    ASSERT_TRUE(saveAllForTransfer(SheetKind::Joystick, layouts, boxes));
    EXPECT_TRUE(folder.exists(u"temp/JoystickTemp40.rtf"_s));
    EXPECT_EQ(loadAllForTransfer(SheetKind::Joystick, layouts)->size(), 41U);
}

TEST_F(LayoutStore, ASingleBoxHasItsOwnFiles)
{
    const TransferBox box{ QRectF(-5, 6, 70, 80), RichText::plain(u"Fire\nat will"_s) };
    ASSERT_TRUE(saveSingleForTransfer(SheetKind::Joystick, layouts, box));
    EXPECT_EQ(folder.read(u"temp/SingleJoystick.pos"_s), "-5,6,70,80\r\n");
    EXPECT_EQ(entries(u"temp"_s),
              (QStringList{ u"SingleJoystick.pos"_s, u"SingleJoystick.rtf"_s }));
    EXPECT_EQ(loadSingleForTransfer(SheetKind::Joystick, layouts), std::vector{ box });
    EXPECT_EQ(loadSingleForTransfer(SheetKind::Throttle, layouts)->size(), 0U);
    ASSERT_TRUE(saveSingleForTransfer(SheetKind::Throttle, layouts, box));
    EXPECT_TRUE(folder.exists(u"temp/SingleThrottle.pos"_s));
}

TEST_F(LayoutStore, AMissingOrEmptyTransferHasNoBoxes)
{
    EXPECT_EQ(loadAllForTransfer(SheetKind::Joystick, layouts)->size(), 0U);
    folder.write(u"temp/temp.jft"_s, "");
    EXPECT_EQ(loadAllForTransfer(SheetKind::Joystick, layouts)->size(), 0U);
    folder.write(u"temp/temp.jft"_s, "1\r\n1,2,3,4\r\n");
    const auto without = loadAllForTransfer(SheetKind::Joystick, layouts);
    ASSERT_FALSE(without) << "the text is missing";
    EXPECT_TRUE(without.error().file.endsWith(u"JoystickTemp0.rtf"));
}

TEST_F(LayoutStore, ADamagedTransferIsNamedWithFileAndLine)
{
    folder.write(u"temp/temp.tqt"_s, "2\r\n1,2,3,4\r\n1,2,3\r\n");
    auto read = loadAllForTransfer(SheetKind::Throttle, layouts);
    ASSERT_FALSE(read);
    EXPECT_TRUE(read.error().file.endsWith(u"temp.tqt"));
    EXPECT_EQ(read.error().line, 3);
    folder.write(u"temp/temp.tqt"_s, "1\r\n1,2,3,4\r\n");
    folder.write(u"temp/ThrottleTemp0.rtf"_s, "{\\rtf1 a\nb");
    read = loadAllForTransfer(SheetKind::Throttle, layouts);
    ASSERT_FALSE(read);
    EXPECT_TRUE(read.error().file.endsWith(u"ThrottleTemp0.rtf"));
    EXPECT_EQ(read.error().line, 2);
    folder.write(u"temp/SingleThrottle.pos"_s, "left,2,3,4\r\n");
    read = loadSingleForTransfer(SheetKind::Throttle, layouts);
    ASSERT_FALSE(read);
    EXPECT_TRUE(read.error().file.endsWith(u"SingleThrottle.pos"));
    EXPECT_EQ(read.error().line, 1);
}
