// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "layouts/draw/overflow.h"

#include "layouts/draw/box_text.h"
#include "tests/layouts/draw/sheets_of_files.h"

#include <gmock/gmock.h>

using namespace zeph;
using namespace zeph::test;
using testing::ElementsAre;

namespace {

LayoutTextBox boxOf(const RichText &text, float width, float height)
{
    LayoutTextBox box;
    box.Width = width;
    box.Height = height;
    box.text = text;
    return box;
}

RichText linesOfText(int lines, double points = 8)
{
    CharFormat font = sheetFont();
    font.pointSize = points;
    return RichText::plain(QString(u"A line\n"_s.repeated(lines)).chopped(1), font);
}

double largestOf(const RichText &text)
{
    double largest = 0;
    for (const CharRun &run : text.characters) {
        largest = std::max(largest, run.format.pointSize);
    }
    return largest;
}

bool holds(const LayoutTextBox &box, const RichText &text)
{
    return BoxText(text, sheetFont(), box.Width).fits(box.Height);
}

} // namespace

TEST(Overflow, OnlyBoxesThatAreShownAndDoNotHoldTheirTextAreMarked)
{
    Sheet sheet;
    sheet.boxes = { boxOf(linesOfText(2), 200, 100), boxOf(linesOfText(20), 200, 100),
                    boxOf({}, 200, 20), boxOf(linesOfText(20), 200, 100) };
    EXPECT_THAT(overflowingBoxes(sheet, sheetFont()), ElementsAre(1, 3));
    sheet.boxes[3].Visible = false;
    EXPECT_THAT(overflowingBoxes(sheet, sheetFont()), ElementsAre(1));
}

TEST(Overflow, ABoxOfExactlyTheNeededHeightHoldsItsText)
{
    const BoxText text(linesOfText(5), sheetFont(), 200);
    EXPECT_TRUE(text.fits(text.neededHeight()));
    EXPECT_FALSE(text.fits(text.neededHeight() - 1));
}

TEST(Overflow, AWordThatIsWiderThanTheBoxIsBroken)
{
    const RichText text = RichText::plain(u"W"_s.repeated(60), sheetFont());
    const BoxText laidOut(text, sheetFont(), 100);
    QString whole;
    for (const BoxLine &line : laidOut.lines()) {
        EXPECT_LE(line.left + line.width, 100 - 2 * boxPadding + 0.1);
        for (const BoxRun &run : line.runs) {
            whole += run.text;
        }
    }
    EXPECT_EQ(whole, text.text);
}

TEST(Overflow, ABoxOfTheUnbrokenWidthBreaksNoLine)
{
    const QString words = u"many words in one line, "_s.repeated(5);
    for (const double width : { 40.0, 300.0, 2000.0 }) {
        BoxText text(RichText::plain(words + u'\n' + words.left(50), sheetFont()), sheetFont(),
                     width);
        const size_t before = text.lines().size();
        const double unbroken = text.unbrokenWidth();
        EXPECT_EQ(text.lines().size(), before);
        text.setBoxWidth(unbroken);
        EXPECT_EQ(text.lines().size(), 2U);
        text.setBoxWidth(unbroken - 20);
        EXPECT_EQ(text.lines().size(), 3U);
    }
}

TEST(FitText, ATextThatFitsStays)
{
    const LayoutTextBox box = boxOf(linesOfText(3, 12), 200, 100);
    EXPECT_EQ(fittedText(box, sheetFont()), box.text);
}

TEST(FitText, TakesTheLargestHalfPointAtWhichAllFits)
{
    const auto heightAt = [](double points) {
        return BoxText(linesOfText(12, points), sheetFont(), 200).neededHeight();
    };
    for (const double height : { heightAt(5), heightAt(6), heightAt(7.5) + 2, heightAt(10.5) }) {
        double expected = 5;
        // Lines of two sizes may be equally high.
        for (double points = 5; points < 11; points += 0.5) {
            expected = heightAt(points) <= height ? points : expected;
        }
        const LayoutTextBox box = boxOf(linesOfText(12, 11), 200, float(height));
        EXPECT_EQ(fittedText(box, sheetFont()), linesOfText(12, expected));
    }
}

TEST(FitText, DoesNotGoBelowFivePoints)
{
    const LayoutTextBox box = boxOf(linesOfText(100), 200, 50);
    const RichText fitted = fittedText(box, sheetFont());
    EXPECT_EQ(fitted, linesOfText(100, 5));
    EXPECT_FALSE(holds(box, fitted));
}

TEST(FitText, LeavesSmallerCharactersAndOtherLooksAlone)
{
    RichText text = linesOfText(10, 14);
    text.change(0, 6, [](CharFormat &format) {
        format.pointSize = 5.5;
        format.bold = true;
    });
    text.change(7, 6, [](CharFormat &format) { format.colour = 0x0000FF; });
    const RichText fitted = fittedText(boxOf(text, 200, 150), sheetFont());
    EXPECT_EQ(fitted.formatAt(0).pointSize, 5.5);
    EXPECT_TRUE(fitted.formatAt(0).bold);
    EXPECT_LT(fitted.formatAt(7).pointSize, 14);
    EXPECT_EQ(fitted.formatAt(7).colour, 0x0000FFU);
}

TEST(FitText, SizesOfAnEmptyFormatAreThePlainOnes)
{
    const double height = BoxText(linesOfText(12, 6), sheetFont(), 200).neededHeight() + 1;
    const RichText unsized = RichText::plain(u"A line\n"_s.repeated(12).chopped(1));
    const RichText fitted = fittedText(boxOf(unsized, 200, float(height)), sheetFont());
    EXPECT_EQ(largestOf(fitted), 6);
}

TEST(FitText, AllBoxesAtOnceGetEachItsOwnSize)
{
    Sheet sheet;
    sheet.boxes = { boxOf(linesOfText(2), 200, 100), boxOf(linesOfText(7), 200, 100),
                    boxOf(linesOfText(7), 200, 100) };
    sheet.boxes[2].Visible = false;
    fitAllTexts(sheet, sheetFont());
    EXPECT_EQ(largestOf(sheet.boxes[0].text), 8);
    EXPECT_LT(largestOf(sheet.boxes[1].text), 8);
    EXPECT_EQ(largestOf(sheet.boxes[2].text), 8);
    EXPECT_THAT(overflowingBoxes(sheet, sheetFont()), ElementsAre());
}
