// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "tests/layouts/window/sheet_window_fixture.h"

#include "layouts/files/layoutsize.h"
#include "layouts/window/customtweaker.h"
#include "layouts/window/sheet_output.h"
#include "settings/shared_settings.h"

#include <QImage>
#include <QLineEdit>
#include <QPushButton>
#include <QStatusBar>

using namespace zeph;

namespace {

class SheetOutputTest : public test::SheetWindowTest
{
protected:
    void setSize(const QSize &size)
    {
        Sheet sheet = model().sheet();
        sheet.width = size.width();
        sheet.height = size.height();
        model().change(sheet);
    }
    QString pdf() const { return folder.file(u"out.pdf"_s); }
    void plugIn()
    {
        printers.printers = 1;
        printers.setFile(pdf());
    }
    SheetOutput &output() { return *window->findChild<SheetOutput *>(); }
};

} // namespace

TEST_F(SheetOutputTest, WithoutAPrinterPrintingIsRefused)
{
    open<GraphicsPrint>();
    dialogs.answer(u"No printer detected"_s, BoxButton::Ok);
    press(u"mnuPrint");
    EXPECT_TRUE(dialogs.boxes().first().text.startsWith(
        u"Sorry - I couldn't detect a printer connected to your system, so I can't print out your "
        "layout."));
}

TEST_F(SheetOutputTest, ALayoutOfThePapersSizePrintsWithoutAQuestion)
{
    plugIn();
    open<GraphicsPrint>();
    printers.setOrientation(PageOrientation::Landscape);
    const QSize paper = *paperPixels(printers);
    setSize(paper);
    press(u"mnuPrint");
    EXPECT_TRUE(dialogs.boxes().isEmpty());
    EXPECT_TRUE(QFile::exists(pdf()));
    EXPECT_EQ(status.text(),
              u"Layout has been sent to your printer. It make take some time to print it.");
    EXPECT_EQ(printers.orientation(), PageOrientation::Landscape);
}

TEST_F(SheetOutputTest, AnyPixelMoreIsAsked)
{
    plugIn();
    open<GraphicsPrint>();
    printers.setOrientation(PageOrientation::Landscape);
    const QSize paper = *paperPixels(printers);
    for (const QSize &more : { QSize(1, 0), QSize(0, 1) }) {
        setSize(paper + more);
        dialogs.answer(u"OK to print?"_s, BoxButton::No);
        press(u"mnuPrint");
        EXPECT_FALSE(QFile::exists(pdf()));
    }
    EXPECT_TRUE(dialogs.boxes().last().text.startsWith(
        u"The layout's size (%1 by %2) is greater than the Printer's paper size settings (%3 by %4)."_s
            .arg(paper.width())
            .arg(paper.height() + 1)
            .arg(paper.width())
            .arg(paper.height())));
    dialogs.answer(u"OK to print?"_s, BoxButton::Yes);
    press(u"mnuPrint");
    EXPECT_TRUE(QFile::exists(pdf()));
}

TEST_F(SheetOutputTest, TheOrientationIsTheLayoutsOrTheUsers)
{
    plugIn();
    open<GraphicsPrint>();
    setSize({ 700, 1000 });
    press(u"mnuPrint");
    EXPECT_EQ(printers.orientation(), PageOrientation::Portrait);
    press(u"mnuPrinterOrientArray_1");
    EXPECT_FALSE(action(u"mnuOrientAuto")->isChecked());
    EXPECT_FALSE(action(u"mnuPrinterOrientArray_0")->isChecked());
    setSize({ 700, 700 });
    press(u"mnuPrinterOrientArray_1");
    press(u"mnuPrint");
    EXPECT_EQ(printers.orientation(), PageOrientation::Landscape);
}

TEST_F(SheetOutputTest, PrintedBoxesHaveTheTweaksAndEmptyOnesAreLeftOut)
{
    open<GraphicsPrint>();
    layouts().TBAdjustHeight = 3;
    layouts().TBAdjustWidth = 4;
    layouts().TxtTopAdjust = -5;
    layouts().TxtLeftAdjust = 6;
    place(4, { 100, 100, 80, 40 });
    write(5, QString());
    const Sheet printed = output().printedSheet();
    EXPECT_EQ(printed.boxes[4].Left, 106);
    EXPECT_EQ(printed.boxes[4].Top, 95);
    EXPECT_EQ(printed.boxes[4].Width, 84);
    EXPECT_EQ(printed.boxes[4].Height, 43);
    EXPECT_FALSE(printed.boxes[5].Visible);
    EXPECT_EQ(placeOf(4), QRectF(100, 100, 80, 40));
}

TEST_F(SheetOutputTest, TheTweaksAreReadFromTheFields)
{
    LayoutsSettings values;
    values.TBAdjustWidth = 7;
    CustomTweaker tweaker(values);
    EXPECT_EQ(tweaker.findChild<QLineEdit *>(u"TBAdjustWidth"_s)->text(), u"7");
    tweaker.findChild<QLineEdit *>(u"TxtTopAdjust"_s)->setText(u"-2.5"_s);
    tweaker.findChild<QLineEdit *>(u"TBAdjustWidth"_s)->setText(u"wide"_s);
    tweaker.findChild<QLineEdit *>(u"TBAdjustHeight"_s)->setText(u"nan"_s);
    tweaker.findChild<QLineEdit *>(u"TxtLeftAdjust"_s)->setText(u"inf"_s);
    tweaker.store(values);
    EXPECT_EQ(values.TxtTopAdjust, -2.5);
    EXPECT_EQ(values.TBAdjustWidth, 7);
    EXPECT_EQ(values.TBAdjustHeight, 0);
    EXPECT_EQ(values.TxtLeftAdjust, 0);
}

TEST_F(SheetOutputTest, TheLayoutsSizeIsToldWithThePapers)
{
    plugIn();
    open<GraphicsPrint>();
    setSize({ 1000, 700 });
    const QSize paper = *paperPixels(printers);
    dialogs.answer(u"Layout size"_s, BoxButton::Ok);
    press(u"mnuShowImageSize");
    const QString words = dialogs.boxes().first().text;
    EXPECT_TRUE(words.contains(u"Current layout size is: 1000 by 700"));
    EXPECT_TRUE(words.contains(
        u"Printer's maximum paper size: %1 by %2"_s.arg(paper.width()).arg(paper.height())));
    printers.printers = 0;
    dialogs.answer(u"Layout size"_s, BoxButton::Ok);
    press(u"mnuShowImageSize");
}

TEST_F(SheetOutputTest, CaptureGivesThePictureToTheImageViewer)
{
    open<GraphicsPrint>();
    int opened = 0;
    QObject::connect(&viewer, &QAction::triggered, window.get(), [&] { ++opened; });
    screen.pixels = { 1043, 714 };
    press(u"mnuCaptureAsBitmap");
    EXPECT_EQ(opened, 1);
    const QString path = folder.file(u"Layouts/capture.bmp"_s);
    EXPECT_EQ(
        QDir::toNativeSeparators(QDir::cleanPath(settings.of<SharedSettings>().ImageFilePath)),
        path);
    const QImage picture(path);
    EXPECT_EQ(picture.size(), QSize(1043, 714));
    EXPECT_EQ(picture.pixelColor(0, 0), QColor(Qt::white));
    // The frame of a box has its colour there too.
    const QPointF corner = placeOf(4).topLeft();
    EXPECT_NE(picture.pixelColor(int(corner.x()) + 5, int(corner.y())), QColor(Qt::white));
}

TEST_F(SheetOutputTest, ASheetOnePixelWiderThanTheScreenIsNotCaptured)
{
    open<GraphicsPrint>();
    for (const QSize &less : { QSize(1042, 714), QSize(1043, 713) }) {
        screen.pixels = less;
        dialogs.answer(u"Hang on a minute there buddy!"_s, BoxButton::Ok);
        press(u"mnuCaptureAsBitmap");
    }
    EXPECT_TRUE(dialogs.boxes().last().text.contains(
        u"Your current screen resolution is 1043 x 713, whereas your layout size is 1043 x 714. "
        u"The "
        "layout is too large.\n\nCan you see the problem now?"));
    EXPECT_FALSE(QFile::exists(folder.file(u"Layouts/capture.bmp"_s)));
}

TEST_F(SheetOutputTest, TheSheetIsExportedInEveryForm)
{
    open<GraphicsPrint>();
    const std::pair<QStringView, QByteArray> ways[] = { { u"mnuExportPDF", "%PDF" },
                                                        { u"mnuExportSVG", "<?xml" },
                                                        { u"mnuExportPNG_0", "\x89PNG" },
                                                        { u"mnuExportHTML", "<!DOCTYPE" } };
    for (const auto &[entry, start] : ways) {
        const QString path = folder.file(u"Layouts/Out"_s);
        QFile::remove(path);
        dialogs.answerFile(path);
        press(entry);
        const QByteArray bytes = readWholeFile(path).value_or(QByteArray());
        EXPECT_TRUE(bytes.startsWith(start)) << entry.toString().toStdString();
        EXPECT_EQ(window->statusBar()->currentMessage(), u"Out was written");
    }
}

TEST_F(SheetOutputTest, LargerPicturesHaveMorePixels)
{
    open<GraphicsPrint>();
    const QString path = folder.file(u"Layouts/Out.png"_s);
    dialogs.answerFile(path);
    press(u"mnuExportPNG_2");
    EXPECT_EQ(QImage(path).size(), QSize(4 * 1043, 4 * 714));
}

TEST_F(SheetOutputTest, AnExportThatCannotBeWrittenIsTold)
{
    open<GraphicsPrint>();
    dialogs.answerFile(folder.path() + u"/nowhere/Out.pdf"_s);
    const qsizetype before = dialogs.boxes().size();
    dialogs.answer(u"I couldn't save your file buddy"_s, BoxButton::Ok);
    press(u"mnuExportPDF");
    EXPECT_EQ(dialogs.boxes().size(), before + 1);
}

TEST_F(SheetOutputTest, WhiteBoxesOfTheCustomSheetAreAChoiceThatIsKept)
{
    open<CustomLayout>();
    EXPECT_FALSE(action(u"mnuPrintWhite")->isChecked());
    press(u"mnuPrintWhite");
    EXPECT_TRUE(layouts().CleoPrintOnWhite);
    EXPECT_TRUE(layoutsIni().contains("CleoPrintOnWhite=1"));
}

TEST_F(SheetOutputTest, WithAPrinterTheFirstSheetFitsItsPaper)
{
    plugIn();
    const QSize paper = *paperPixels(printers);
    open<GraphicsPrint>();
    EXPECT_EQ(model().sheet().width, std::max(paper.width() - 160, 800));
    EXPECT_EQ(model().sheet().height, std::max(paper.height() - 160, 600));
}
