// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "layouts/draw/sheet_renderer.h"

#include "platform/richtext/rich_text_document.h"
#include "tests/layouts/draw/sheets_of_files.h"

#include <gmock/gmock.h>

#include <QBuffer>
#include <QGuiApplication>
#include <QPainter>
#include <QPalette>
#include <QPdfWriter>
#include <QTextBlock>
#include <QTextLayout>

using namespace zeph;
using namespace zeph::test;

namespace {

Sheet sheetOf(const RichText &text, const QRectF &place)
{
    Sheet sheet;
    sheet.width = 300;
    sheet.height = 200;
    LayoutTextBox box;
    box.Left = float(place.left());
    box.Top = float(place.top());
    box.Width = float(place.width());
    box.Height = float(place.height());
    box.text = text;
    sheet.boxes.push_back(box);
    return sheet;
}

SheetLook plainLook()
{
    SheetLook look;
    look.plain = sheetFont();
    return look;
}

QImage drawn(const Sheet &sheet, const SheetLook &look, int withoutText = -1)
{
    QImage image(sheet.width, sheet.height, QImage::Format_RGB32);
    QPainter painter(&image);
    SheetRenderer::drawPaper(painter, sheet);
    SheetRenderer().draw(painter, sheet, look, withoutText);
    return image;
}

/// How many pixels of a part are nearly black.
int inkIn(const QImage &image, const QRect &part)
{
    int count = 0;
    for (int y = part.top(); y <= part.bottom(); ++y) {
        for (int x = part.left(); x <= part.right(); ++x) {
            count += qGray(image.pixel(x, y)) < 100;
        }
    }
    return count;
}

const RichText words = RichText::plain(u"Fire_Gun and Release"_s, sheetFont());
constexpr QRect inside(50, 42, 200, 60);

} // namespace

TEST(SheetRenderer, TextIsBlackOnEveryDesktop)
{
    const Sheet sheet = sheetOf(RichText::plain(words.text), { 50, 40, 200, 100 });
    const QImage usual = drawn(sheet, plainLook());
    EXPECT_GT(inkIn(usual, inside), 50);
    const QPalette before = QGuiApplication::palette();
    QPalette dark;
    dark.setColor(QPalette::Text, Qt::white);
    dark.setColor(QPalette::Base, Qt::black);
    QGuiApplication::setPalette(dark);
    EXPECT_EQ(drawn(sheet, plainLook()), usual);
    QGuiApplication::setPalette(before);
}

TEST(SheetRenderer, TheTextOfABoxThatIsEditedIsLeftToItsControl)
{
    const Sheet sheet = sheetOf(words, { 50, 40, 200, 100 });
    EXPECT_EQ(inkIn(drawn(sheet, plainLook(), 0), inside), 0);
}

TEST(SheetRenderer, AHiddenBoxIsNotDrawn)
{
    Sheet sheet = sheetOf(words, { 50, 40, 200, 100 });
    sheet.boxes[0].Visible = false;
    QImage white(300, 200, QImage::Format_RGB32);
    white.fill(Qt::white);
    EXPECT_EQ(drawn(sheet, plainLook()), white);
}

TEST(SheetRenderer, ABoxIsWhiteUnlessThePictureIsToBeSeenThroughIt)
{
    const TempFolder folder;
    QImage red(100, 100, QImage::Format_RGB32);
    red.fill(Qt::red);
    ASSERT_TRUE(red.save(folder.file(u"red.bmp"_s)));
    Sheet sheet = sheetOf({}, { 10, 10, 60, 60 });
    sheet.pictures.emplace_back();
    SheetLook look = plainLook();
    look.pictures = { *DrawnPicture::load(folder.path(), u"red.bmp"_s) };
    EXPECT_EQ(drawn(sheet, look).pixelColor(40, 40), QColor(Qt::white));
    EXPECT_EQ(drawn(sheet, look).pixelColor(90, 90), QColor(Qt::red));
    look.whiteBoxes = false;
    EXPECT_EQ(drawn(sheet, look).pixelColor(40, 40), QColor(Qt::red));
}

TEST(SheetRenderer, OnlyWholeLinesAreSeenInABoxThatIsTooLow)
{
    const RichText lines = RichText::plain(u"First\nSecond\nThird"_s, sheetFont());
    const BoxText text(lines, sheetFont(), 200);
    const double line = text.lines()[1].top;
    // Half of the second line would have room.
    const Sheet sheet = sheetOf(lines, { 50, 40, 200, 2 * boxPadding + 1.5 * line });
    const QImage image = drawn(sheet, plainLook());
    const int firstEnds = 40 + int(boxPadding + line);
    EXPECT_GT(inkIn(image, QRect(52, 43, 100, firstEnds - 43)), 10);
    EXPECT_EQ(inkIn(image, QRect(52, firstEnds + 1, 100, int(line / 2))), 0);
}

TEST(SheetRenderer, AChangeOfTextFontOrWidthIsLaidOutAgain)
{
    Sheet sheet = sheetOf(RichText::plain(u"one two three"_s), { 0, 0, 200, 100 });
    SheetLook look = plainLook();
    SheetRenderer renderer;
    const double low = renderer.text(sheet, look, 0).neededHeight();
    sheet.boxes[0].Width = 45;
    EXPECT_GT(renderer.text(sheet, look, 0).neededHeight(), low);
    sheet.boxes[0].Width = 200;
    EXPECT_EQ(renderer.text(sheet, look, 0).neededHeight(), low);
    look.plain.pointSize = 20;
    EXPECT_GT(renderer.text(sheet, look, 0).neededHeight(), low);
    look.plain.pointSize = 8;
    sheet.boxes[0].text = RichText::plain(u"one\ntwo"_s);
    EXPECT_GT(renderer.text(sheet, look, 0).neededHeight(), low);
}

TEST(SheetRenderer, AControlsDocumentBreaksTheSameLines)
{
    const RichText text = RichText::plain(u"a few words that need some lines "_s.repeated(6));
    QTextDocument document;
    setUpBoxDocument(document, sheetFont());
    setRichText(document, text);
    document.setTextWidth(150 - 2 * boxPadding);
    (void)document.size();
    QStringList lines;
    const QTextLayout &layout = *document.firstBlock().layout();
    for (int i = 0; i < layout.lineCount(); ++i) {
        lines.append(text.text.mid(layout.lineAt(i).textStart(), layout.lineAt(i).textLength()));
    }
    QStringList drawnLines;
    for (const BoxLine &line : BoxText(text, sheetFont(), 150).lines()) {
        QString whole;
        for (const BoxRun &run : line.runs) {
            whole += run.text;
        }
        drawnLines.append(whole);
    }
    EXPECT_GT(lines.size(), 3);
    EXPECT_EQ(drawnLines, lines);
}

TEST(PrintSheet, ASheetThatIsLargerThanThePaperTakesMorePages)
{
    const auto pagesOf = [](int width, int height) {
        Sheet sheet = sheetOf(words, { 0, 0, 200, 100 });
        sheet.width = width;
        sheet.height = height;
        QBuffer buffer;
        buffer.open(QIODevice::WriteOnly);
        QPdfWriter writer(&buffer);
        // 750 by 600 pixels of the sheet.
        writer.setPageSize(QPageSize(QSizeF(750 * 0.75, 600 * 0.75), QPageSize::Point));
        writer.setPageMargins({});
        EXPECT_TRUE(printSheet(writer, sheet, plainLook()));
        return buffer.data().count("/Type /Page\n");
    };
    EXPECT_EQ(pagesOf(400, 400), 1);
    EXPECT_EQ(pagesOf(750, 600), 1);
    EXPECT_EQ(pagesOf(760, 600), 2);
    EXPECT_EQ(pagesOf(750, 610), 2);
    EXPECT_EQ(pagesOf(1600, 610), 6);
}
