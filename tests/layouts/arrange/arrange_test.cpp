// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "layouts/arrange/arrange.h"
#include "layouts/draw/overflow.h"
#include "tests/layouts/draw/sheets_of_files.h"

#include <gmock/gmock.h>

using namespace zeph;
using namespace zeph::test;

namespace {

constexpr SheetKind bothKinds[] = { SheetKind::Joystick, SheetKind::Throttle };

/// What is wrong with where the boxes are; empty when nothing is.
QStringList faultsOf(const Sheet &sheet)
{
    QStringList faults;
    const QRectF paper(0, 0, sheet.width, sheet.height);
    for (size_t i = 0; i < sheet.boxes.size(); ++i) {
        const QRectF place = placeOf(sheet.boxes[i]);
        if (!paper.contains(place)) {
            faults.append(u"box %1 is outside"_s.arg(i));
        }
        if (place.width() < leastBoxWidth || place.height() < leastBoxHeight) {
            faults.append(u"box %1 is too small"_s.arg(i));
        }
        for (size_t j = i + 1; j < sheet.boxes.size(); ++j) {
            const QRectF common = place.intersected(placeOf(sheet.boxes[j]));
            if (common.width() > 0 && common.height() > 0) {
                faults.append(u"boxes %1 and %2 overlap"_s.arg(i).arg(j));
            }
        }
    }
    return faults;
}

int crossingsIn(const Sheet &sheet, const SheetLook &look)
{
    const std::vector<QLineF> lines = leaderLines(sheet, look.controls);
    int count = 0;
    for (size_t i = 0; i < lines.size(); ++i) {
        for (size_t j = i + 1; j < lines.size(); ++j) {
            count += !lines[i].isNull() && !lines[j].isNull()
                && lines[i].intersects(lines[j]) == QLineF::BoundedIntersection;
        }
    }
    return count;
}

/// Lines that cross a box to which they do not belong.
int linesOverBoxes(const Sheet &sheet, const SheetLook &look)
{
    const std::vector<QLineF> lines = leaderLines(sheet, look.controls);
    int count = 0;
    for (size_t i = 0; i < lines.size(); ++i) {
        for (size_t j = 0; j < sheet.boxes.size(); ++j) {
            const QRectF box = placeOf(sheet.boxes[j]);
            const bool crosses = lines[i].intersects(QLineF(box.topLeft(), box.bottomRight()))
                    == QLineF::BoundedIntersection
                || lines[i].intersects(QLineF(box.bottomLeft(), box.topRight()))
                    == QLineF::BoundedIntersection;
            count += !lines[i].isNull() && i != j && crosses;
        }
    }
    return count;
}

/// A text of up to so many lines, some of them long.
RichText anyText(QRandomGenerator &random, int mostLines)
{
    QString text = u"BTN S1"_s;
    const int lines = random.bounded(mostLines + 1);
    for (int line = 0; line < lines; ++line) {
        text += u"\n/U Macro"_s + u" Another_Macro"_s.repeated(random.bounded(8));
    }
    return RichText::plain(text, sheetFont());
}

} // namespace

class Arrange : public testing::Test, protected SheetsOfFiles
{
};

TEST_F(Arrange, TheSampleFilesSheetsAreFitToPrint)
{
    for (const SheetKind kind : bothKinds) {
        const auto [sheet, look] = first(kind, sampleText());
        EXPECT_EQ(faultsOf(sheet), QStringList());
        EXPECT_EQ(overflowingBoxes(sheet, sheetFont()), std::vector<int>());
        EXPECT_EQ(crossingsIn(sheet, look), 0);
        EXPECT_EQ(linesOverBoxes(sheet, look), 0);
        const QRectF picture(sheet.pictures[0].Left, sheet.pictures[0].Top,
                             look.controls.size.width(), look.controls.size.height());
        for (const LayoutTextBox &box : sheet.boxes) {
            EXPECT_FALSE(picture.intersects(placeOf(box)));
            // Nothing had to become smaller.
            for (const CharRun &run : box.text.characters) {
                EXPECT_EQ(run.format.pointSize, 8);
            }
        }
    }
}

TEST_F(Arrange, EveryControlOnThePictureHasItsLine)
{
    const auto count = [](const std::vector<QLineF> &lines) {
        return std::ranges::count_if(lines, [](const QLineF &line) { return !line.isNull(); });
    };
    const auto [stick, stickLook] = first(SheetKind::Joystick, sampleText());
    EXPECT_EQ(count(leaderLines(stick, stickLook.controls)), 11);
    // The rudder and the brakes are on another picture.
    const auto [throttle, throttleLook] = first(SheetKind::Throttle, sampleText());
    EXPECT_EQ(count(leaderLines(throttle, throttleLook.controls)), 15);
}

TEST_F(Arrange, BoxesOfAnyTextsDoNotOverlapOnSheetsOfAnySize)
{
    QRandomGenerator random(20240305);
    const ControlsImage images[] = { image(SheetKind::Joystick), image(SheetKind::Throttle) };
    for (int round = 0; round < 150; ++round) {
        const SheetKind kind = bothKinds[round % 2];
        Sheet sheet;
        sheet.kind = kind;
        sheet.width = random.bounded(400, 2000);
        sheet.height = random.bounded(400, 1500);
        sheet.pictures.emplace_back();
        const int mostLines = random.bounded(30);
        for (int box = 0; box < (kind == SheetKind::Joystick ? 17 : 24); ++box) {
            sheet.boxes.emplace_back().text = anyText(random, mostLines);
        }
        RepositionTextBoxes(sheet, images[round % 2].controls, sheetFont());
        ASSERT_EQ(faultsOf(sheet), QStringList())
            << round << ": " << sheet.width << " by " << sheet.height;
    }
}

TEST_F(Arrange, LinesOfManyLongStatementsHardlyCross)
{
    for (const SheetKind kind : bothKinds) {
        for (const QSize &size : { usualSheet, QSize(1400, 1000), QSize(1123, 794) }) {
            const auto [sheet, look] = first(kind, longFileText(300), size);
            EXPECT_EQ(faultsOf(sheet), QStringList());
            EXPECT_LE(crossingsIn(sheet, look), 1) << size.width();
            EXPECT_LE(linesOverBoxes(sheet, look), 2) << size.width();
        }
    }
}

TEST_F(Arrange, BoxesInAColumnFollowTheirControlsDownThePicture)
{
    const auto [sheet, look] = first(SheetKind::Joystick, sampleText());
    for (size_t i = 0; i < 11; ++i) {
        for (size_t j = 0; j < 11; ++j) {
            const QRectF upper = controlOnSheet(sheet, look.controls, i);
            const QRectF lower = controlOnSheet(sheet, look.controls, j);
            const bool isSameColumn = sheet.boxes[i].Left == sheet.boxes[j].Left;
            // Where one control is clearly above another, so is its box.
            if (isSameColumn && upper.bottom() < lower.top()) {
                EXPECT_LT(sheet.boxes[i].Top, sheet.boxes[j].Top) << i << ' ' << j;
            }
        }
    }
}

TEST_F(Arrange, HiddenBoxesStayWhereTheyAre)
{
    auto [sheet, look] = first(SheetKind::Joystick, sampleText());
    sheet.boxes[0].Visible = false;
    sheet.boxes[12].Visible = false;
    sheet.boxes[15].Visible = false;
    for (const size_t box : { 0, 12, 15 }) {
        sheet.boxes[box].Left = 1;
        sheet.boxes[box].Top = 2;
    }
    RepositionTextBoxes(sheet, look.controls, sheetFont());
    for (const size_t box : { 0, 12, 15 }) {
        EXPECT_EQ(sheet.boxes[box].Left, 1);
        EXPECT_EQ(sheet.boxes[box].Top, 2);
    }
}

TEST_F(Arrange, WithoutAPictureTheBoxesFillTheSheet)
{
    auto [sheet, look] = first(SheetKind::Joystick, sampleText());
    for (const bool isHidden : { false, true }) {
        sheet.pictures[0].Visible = !isHidden;
        RepositionTextBoxes(sheet, isHidden ? look.controls : PictureWithControls(), sheetFont());
        EXPECT_EQ(faultsOf(sheet), QStringList());
        EXPECT_EQ(overflowingBoxes(sheet, sheetFont()), std::vector<int>());
    }
}

TEST_F(Arrange, ACustomSheetStaysAsItIs)
{
    Sheet sheet;
    sheet.kind = SheetKind::Custom;
    sheet.width = 800;
    sheet.height = 600;
    sheet.pictures.resize(4);
    sheet.boxes.resize(40);
    const Sheet before = sheet;
    RepositionTextBoxes(sheet, {}, sheetFont());
    EXPECT_EQ(sheet, before);
}

TEST(LeaderLines, LeadStraightAcrossWhereTheyCan)
{
    const QRectF control(100, 40, 20, 20);
    EXPECT_EQ(leaderLine({ 0, 0, 50, 100 }, control), QLineF(50, 50, 110, 50));
    EXPECT_EQ(leaderLine({ 200, 0, 50, 100 }, control), QLineF(200, 50, 110, 50));
    EXPECT_EQ(leaderLine({ 80, 200, 80, 20 }, control), QLineF(110, 200, 110, 50));
}

TEST(LeaderLines, StartNearABoxsCornerButNotAtIt)
{
    EXPECT_EQ(leaderLine({ 0, 100, 50, 100 }, { 100, 40, 20, 20 }), QLineF(50, 106, 110, 50));
}

TEST(LeaderLines, AreNoneWhereTheBoxCoversItsControl)
{
    EXPECT_TRUE(leaderLine({ 0, 0, 200, 200 }, { 100, 40, 20, 20 }).isNull());
}

TEST(LeaderLines, AreNoneOnAPictureOfTheUsersWithoutThatControl)
{
    const PictureWithControls picture =
        controlsOn(SheetKind::Joystick, QSize(100, 100), { { u"HAT_1"_s, QRect(1, 2, 3, 4) } });
    EXPECT_TRUE(picture.controls[0].isNull());
    EXPECT_EQ(picture.controls[1], QRectF(1, 2, 3, 4));
}
