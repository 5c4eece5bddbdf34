// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "editor/files/printing.h"

#include "documents/highlighting.h"
#include "menus/menu_actions.h"
#include "platform/fakes/fake_printers.h"
#include "print/print_pages.h"
#include "print/printpreview.h"
#include "tests/support/painting_fixture.h"

#include <QImage>
#include <QProcess>
#include <QPushButton>
#include <QRegularExpression>
#include <QSpinBox>

using namespace zeph;

namespace {

/// What a tool for PDF files writes to its output.
QByteArray run(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.start(program, arguments);
    EXPECT_TRUE(process.waitForFinished(60000)) << program.toStdString();
    EXPECT_EQ(process.exitCode(), 0) << process.readAllStandardError().toStdString();
    return process.readAllStandardOutput();
}

QStringList wordsOf(const QString &text)
{
    return text.split(QRegularExpression(u"\\s+"_s), Qt::SkipEmptyParts);
}

QStringList wordsOfPdf(const QString &path)
{
    return wordsOf(QString::fromUtf8(run(u"pdftotext"_s, { u"-raw"_s, path, u"-"_s })));
}

/// A word of a PDF, where it stands on its page (in points) and which page that is (from 1).
struct PrintedWord {
    QString text;
    int page = 0;
    QRectF box;
};

QList<PrintedWord> printedWords(const QString &path)
{
    static const QRegularExpression word(
        u"<page|<word xMin=\"([0-9.]+)\" yMin=\"([0-9.]+)\" xMax=\"([0-9.]+)\" yMax=\"([0-9.]+)\">([^<]*)<"_s);
    const QString xml =
        QString::fromUtf8(run(u"pdftotext"_s, { u"-bbox"_s, u"-raw"_s, path, u"-"_s }));
    QList<PrintedWord> words;
    int page = 0;
    for (auto hits = word.globalMatch(xml); hits.hasNext();) {
        const auto hit = hits.next();
        if (hit.captured(0) == u"<page") {
            ++page;
            continue;
        }
        const QPointF from(hit.captured(1).toDouble(), hit.captured(2).toDouble());
        const QPointF to(hit.captured(3).toDouble(), hit.captured(4).toDouble());
        QString text = hit.captured(5);
        text.replace(u"&lt;"_s, u"<"_s).replace(u"&gt;"_s, u">"_s);
        text.replace(u"&quot;"_s, u"\""_s).replace(u"&amp;"_s, u"&"_s);
        // A font with ligatures writes "fi" as one sign.
        words.append({ text.normalized(QString::NormalizationForm_KC), page, QRectF(from, to) });
    }
    return words;
}

constexpr int dotsPerInch = 300;

QImage pagePicture(const QString &path, int page)
{
    const QString number = QString::number(page);
    const QByteArray picture = run(u"pdftoppm"_s,
                                   { u"-r"_s, QString::number(dotsPerInch), u"-f"_s, number,
                                     u"-l"_s, number, u"-png"_s, path });
    return QImage::fromData(picture);
}

/// Whether a colour is seen in a word's place, but for what the printing tool rounds.
bool shows(const QImage &page, const QRectF &box, ColorRef colour)
{
    const double scale = dotsPerInch / 72.0;
    const QRect area = QRectF(box.topLeft() * scale, box.size() * scale).toAlignedRect();
    for (int y = area.top(); y <= area.bottom(); ++y) {
        for (int x = area.left(); x <= area.right(); ++x) {
            const QRgb pixel = page.pixel(x, y);
            if (std::abs(qRed(pixel) - redOf(colour)) <= 3
                && std::abs(qGreen(pixel) - greenOf(colour)) <= 3
                && std::abs(qBlue(pixel) - blueOf(colour)) <= 3) {
                return true;
            }
        }
    }
    return false;
}

/// Statements of all kinds, so many lines that they fill many pages.
QString longFile(int lineCount)
{
    const QStringList kinds = {
        u"BTN S2 /U /P Weapon_%1 /R Release_%1"_s,
        u"Rem This is comment number %1 with BTN in it"_s,
        u"USE ALL_DIRECTX_BUTTONS mark%1"_s,
        u"DEF X%1 S1 AND T1"_s,
        u"   DLY(%1) KD(a) KU(a) { group%1 }"_s,
        u"BTN T%1 /I one%1 two%1 three%1 four%1 five%1 six%1 seven%1 eight%1 nine%1 ten%1 eleven%1 "
        u"twelve%1 "
        "thirteen%1 fourteen%1 fifteen%1 sixteen%1"_s,
    };
    QStringList lines;
    for (int i = 0; i < lineCount; ++i) {
        lines.append(QString(kinds[i % kinds.size()]).replace(u"%1"_s, QString::number(i)));
    }
    return lines.join(u'\n');
}

class PrintingTest : public test::PaintingTest
{
protected:
    PrintingTest()
        : printing({ paths, settings, status, dialogs, launcher, clock, keyboard }, printers,
                   *editor)
    {
        printers.setFile(pdf);
    }

    void answerPrint(const QString &name)
    {
        dialogs.answer(u"Print "_s + name + u"?"_s, BoxButton::Yes);
    }

    FakePrinters printers;
    FilePrinting printing;
    const QString pdf = folder.file(u"out.pdf"_s);
};

} // namespace

TEST_F(PrintingTest, WithoutAPrinterThatIsToldAndNothingIsPrinted)
{
    printers.printers = 0;
    dialogs.answer(u"No printer to print to"_s, BoxButton::Ok);
    printing.mnuFilePrintJoystick_Click();
    EXPECT_EQ(dialogs.boxes().first().text.toStdString(),
              "I couldn't detect a printer connected to your system. Please check your printer "
              "settings.");
    EXPECT_FALSE(folder.exists(u"out.pdf"_s));
}

TEST_F(PrintingTest, LandscapeIsAskedAboutAndYesSetsPortrait)
{
    printers.setOrientation(PageOrientation::Landscape);
    dialogs.answer(u"Change orientation to Portrait?"_s, BoxButton::Yes);
    dialogs.answer(u"Print Untitled.tmj?"_s, BoxButton::No);
    printing.mnuFilePrintJoystick_Click();
    EXPECT_EQ(printers.orientation(), PageOrientation::Portrait);
    EXPECT_EQ(
        dialogs.boxes()[0].text.toStdString(),
        "Your printer is setup to print in Landscape. Would you like me to set it up to print your "
        "file in Portrait first before I print this file?");
}

TEST_F(PrintingTest, LandscapeStaysWhenTheAnswerIsNo)
{
    printers.setOrientation(PageOrientation::Landscape);
    set(J, u"BTN S1 a"_s);
    dialogs.answer(u"Change orientation to Portrait?"_s, BoxButton::No);
    answerPrint(u"Untitled.tmj"_s);
    printing.mnuFilePrintJoystick_Click();
    EXPECT_EQ(printers.orientation(), PageOrientation::Landscape);
    EXPECT_TRUE(folder.exists(u"out.pdf"_s));
}

TEST_F(PrintingTest, NoPrintsNothing)
{
    set(J, u"BTN S1 a"_s);
    dialogs.answer(u"Print Untitled.tmj?"_s, BoxButton::No);
    printing.mnuFilePrintJoystick_Click();
    EXPECT_FALSE(folder.exists(u"out.pdf"_s));
    EXPECT_EQ(dialogs.boxes()[0].text.toStdString(),
              "Zeph is ready to print Untitled.tmj. Would you like me to go ahead and print this "
              "joystick file?");
}

TEST_F(PrintingTest, AFileIsPrintedAfterItsPathAndTheDate)
{
    set(M, u"Fire = SPC\nGear = g"_s);
    answerPrint(u"Untitled.tmm"_s);
    const QStringList told = said([this] { printing.mnuFilePrintMacro_Click(); });
    EXPECT_EQ(told,
              (QStringList{ u"Printing Untitled.tmm"_s, u"Finished printing Untitled.tmm"_s }));
    EXPECT_EQ(dialogs.boxes()[0].text.toStdString(),
              "Zeph is ready to print Untitled.tmm. Would you like me to go ahead and print this "
              "macro file?");
    // The path may be wrapped, so it is compared without its line ends.
    const QString text = wordsOfPdf(pdf).join(u""_s);
    EXPECT_EQ(text.toStdString(),
              QString(editor->macro().path() + u"Printedon:05March2024,9:07amFire=SPCGear=g"_s)
                  .remove(u' ')
                  .toStdString());
}

TEST_F(PrintingTest, PrintCurrentPrintsTheSelectedTab)
{
    set(J, u"BTN S1 a"_s);
    set(M, u"Fire = SPC"_s);
    editor->documents().select(M);
    answerPrint(u"Untitled.tmm"_s);
    printing.PrintCurrent();
    EXPECT_TRUE(wordsOfPdf(pdf).contains(u"SPC"_s));
}

TEST_F(PrintingTest, PrintSelectionPrintsOnlyThat)
{
    set(J, u"one two three"_s);
    joystick()->shown().select(4, 3);
    printing.PrintAlternativeMethod();
    EXPECT_EQ(wordsOfPdf(pdf), QStringList{ u"two"_s });
    EXPECT_EQ(joystick()->shown().selStart(), 4);
    EXPECT_EQ(joystick()->shown().selLength(), 3);
}

TEST_F(PrintingTest, PrintSelectionWithoutOnePrintsEverythingAndSelectsNothing)
{
    set(J, u"one two three"_s);
    joystick()->shown().select(2, 0);
    printing.PrintAlternativeMethod();
    EXPECT_EQ(wordsOfPdf(pdf), (QStringList{ u"one"_s, u"two"_s, u"three"_s }));
    EXPECT_EQ(joystick()->shown().selStart(), 2);
    EXPECT_EQ(joystick()->shown().selLength(), 0);
}

TEST_F(PrintingTest, PrintingIsNoEdit)
{
    set(J, u"one two three"_s);
    printing.PrintAlternativeMethod();
    EXPECT_EQ(editor->joystick().state(), Document::Saved);
}

TEST_F(PrintingTest, TheMenuReachesThePrinterSetup)
{
    EXPECT_TRUE(editor->actions().action(u"mnuFilePrinterSetup")->isEnabled());
    editor->actions().action(u"mnuFilePrinterSetup")->trigger();
    EXPECT_EQ(printers.setups, 1);
}

TEST_F(PrintingTest, APrinterThatTakesNothingIsTold)
{
    set(J, u"one"_s);
    printers.setFile(folder.file(u"no folder/out.pdf"_s));
    dialogs.answer(u"I couldn't print your file buddy"_s, BoxButton::Ok);
    // The toolkit warns of the same, which is no fault here.
    const QtMessageHandler strict = qInstallMessageHandler(nullptr);
    printing.PrintAlternativeMethod();
    qInstallMessageHandler(strict);
    EXPECT_EQ(status.text().toStdString(), "Untitled.tmj wasn't printed");
}

TEST_F(PrintingTest, APdfNeedsNoPrinterAndHoldsALongFileWholeInItsColours)
{
    printers.printers = 0;
    set(J, longFile(2000));
    highlighting().ApplyColourHighlighting();
    const QString exported = folder.file(u"long.pdf"_s);
    dialogs.answerFile(exported);
    EXPECT_TRUE(editor->actions().action(u"mnuFileExportPDF")->isEnabled());
    editor->actions().action(u"mnuFileExportPDF")->trigger();
    EXPECT_EQ(status.text().toStdString(), (exported + u" saved successfully."_s).toStdString());

    // Complete and in order, after the header.
    const QList<PrintedWord> printed = printedWords(exported);
    const QString text = joystick()->shown().text();
    const QStringList wanted = wordsOf(text);
    const qsizetype header = printed.size() - wanted.size();
    ASSERT_GT(header, 3) << "words are missing, or the header is";
    for (qsizetype i = 0; i < wanted.size(); ++i) {
        ASSERT_EQ(printed[header + i].text.toStdString(), wanted[i].toStdString()) << i;
    }

    // No line is cut: nothing of a word lies in the margins of 15 mm.
    constexpr double margin = 15 / 25.4 * 72 - 0.5;
    const QRectF inside(margin, margin, 595.3 - 2 * margin, 841.9 - 2 * margin);
    for (const PrintedWord &word : printed) {
        ASSERT_TRUE(inside.contains(word.box))
            << word.text.toStdString() << " on page " << word.page;
    }

    // Sampled pages have each word in its colour of the screen.
    const RichText looks = joystick()->shown().richText();
    const int last = printed.last().page;
    ASSERT_GT(last, 10);
    QSet<ColorRef> seen;
    for (const int page : { 1, last / 2, last }) {
        const QImage picture = pagePicture(exported, page);
        ASSERT_FALSE(picture.isNull());
        qsizetype at = 0;
        for (qsizetype i = 0; i < wanted.size(); ++i) {
            at = text.indexOf(wanted[i], at);
            const PrintedWord &word = printed[header + i];
            if (word.page == page) {
                const ColorRef colour = looks.formatAt(at).colour.value_or(0);
                seen.insert(colour);
                EXPECT_TRUE(shows(picture, word.box, colour))
                    << word.text.toStdString() << " on page " << page << " lacks " << std::hex
                    << colour;
            }
            at += wanted[i].size();
        }
    }
    EXPECT_GE(seen.size(), 5)
        << "plain, BTN, slash, raw, miscellaneous and comments were to be sampled";
}

TEST_F(PrintingTest, ExportAsksBeforeItOverwrites)
{
    set(J, u"one"_s);
    const QString there = folder.write(u"there.pdf"_s, "old");
    dialogs.answerFile(there);
    dialogs.answer(u"OK to overwrite exisiting file?"_s, BoxButton::No);
    printing.mnuFileExportPDF_Click();
    EXPECT_EQ(folder.read(u"there.pdf"_s), "old");
}

TEST_F(PrintingTest, ExportOffersTheFilesNameAndFolder)
{
    set(J, u"one"_s);
    dialogs.answerFile(std::nullopt);
    printing.mnuFileExportPDF_Click();
    EXPECT_EQ(dialogs.files().first().name.toStdString(), "Untitled.pdf");
    EXPECT_EQ(dialogs.files().first().folder, folder.file(u"Files/"_s));
}

TEST_F(PrintingTest, OnlyThePagesThatWereChosenArePrinted)
{
    set(J, longFile(300));
    answerPrint(u"Untitled.tmj"_s);
    printing.mnuFilePrintJoystick_Click();
    const auto wordsOn = [](const QList<PrintedWord> &words, int page) {
        QStringList texts;
        for (const PrintedWord &word : words) {
            if (word.page == page) {
                texts.append(word.text);
            }
        }
        return texts;
    };
    const QList<PrintedWord> all = printedWords(pdf);
    const QString chosen = folder.file(u"chosen.pdf"_s);
    printers.setFile(chosen);
    printers.printer().setPageRanges(QPageRanges::fromString(u"1,3"_s));
    answerPrint(u"Untitled.tmj"_s);
    printing.mnuFilePrintJoystick_Click();
    const QList<PrintedWord> some = printedWords(chosen);
    EXPECT_EQ(some.last().page, 2);
    EXPECT_EQ(wordsOn(some, 1), wordsOn(all, 1));
    EXPECT_EQ(wordsOn(some, 2), wordsOn(all, 3));
}

TEST_F(PrintingTest, PagesThatThereAreNotAreToldAndNothingIsPrinted)
{
    set(J, u"BTN S1 a"_s);
    printers.printer().setPageRanges(QPageRanges::fromString(u"4-5"_s));
    answerPrint(u"Untitled.tmj"_s);
    dialogs.answer(u"I couldn't print your file buddy"_s, BoxButton::Ok);
    printing.mnuFilePrintJoystick_Click();
    EXPECT_TRUE(dialogs.boxes().last().text.endsWith(u"it has no such pages."));
    EXPECT_FALSE(folder.exists(u"out.pdf"_s));
}

TEST_F(PrintingTest, TabsAreAsWideOnPaperAsOnTheScreen)
{
    set(J, u"BTN S1\tone\n\ttwo"_s);
    printing.PrintAlternativeMethod();
    const QList<PrintedWord> words = printedWords(pdf);
    ASSERT_EQ(words.size(), 4);
    // The screen's distance, of 96 to the inch, in the paper's points of 72.
    const double distance = joystick()->tabStopDistance() * 72 / 96;
    const double left = words.first().box.left();
    EXPECT_NEAR(words[2].box.left() - left, distance, 1.5);
    EXPECT_NEAR(words[3].box.left() - left, distance, 1.5);
}

TEST_F(PrintingTest, ThePreviewShowsTheSamePagesAndPrintsThem)
{
    set(J, longFile(300));
    printing.mnuFilePrintPreview_Click();
    auto *preview = editor->findChild<PrintPreview *>();
    ASSERT_TRUE(preview);
    QCoreApplication::processEvents();
    const int pages = preview->findChild<QSpinBox *>(u"SpinPage"_s)->maximum();
    preview->findChild<QPushButton *>(u"cmdPrint"_s)->click();
    EXPECT_EQ(printedWords(pdf).last().page, pages);
    EXPECT_GT(pages, 2);
}
