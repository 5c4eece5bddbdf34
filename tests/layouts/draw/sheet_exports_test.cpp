// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "layouts/draw/sheet_exports.h"

#include "layouts/draw/overflow.h"
#include "tests/layouts/draw/sheets_of_files.h"

#include <gmock/gmock.h>

#include <QProcess>
#include <QRegularExpression>
#include <QXmlStreamReader>

using namespace zeph;
using namespace zeph::test;

namespace {

constexpr SheetKind bothKinds[] = { SheetKind::Joystick, SheetKind::Throttle };
const QString title = u"Sample <flight> & \"more\""_s;

QByteArray run(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.start(program, arguments);
    EXPECT_TRUE(process.waitForFinished(60000)) << program.toStdString();
    EXPECT_EQ(process.exitCode(), 0) << process.readAllStandardError().toStdString();
    return process.readAllStandardOutput();
}

/// The characters of a text that are seen. A font with ligatures writes "fi" as one sign.
QString inkOf(QString text)
{
    static const QRegularExpression blanks(u"[\\s\\x{a0}]+"_s);
    return text.normalized(QString::NormalizationForm_KC).remove(blanks);
}

QString inkOf(const Sheet &sheet)
{
    QString all;
    for (const LayoutTextBox &box : sheet.boxes) {
        all += inkOf(box.text.text);
    }
    return all;
}

struct PlacedWord {
    QString text;
    QRectF place; ///< in pixels of the sheet
};

/// The words of a PDF of one page; the sheet is in its middle.
QList<PlacedWord> wordsOfPdf(const QString &path, const Sheet &sheet)
{
    static const QRegularExpression page(u"<page width=\"([0-9.]+)\" height=\"([0-9.]+)\">"_s);
    static const QRegularExpression word(
        u"<word xMin=\"([0-9.]+)\" yMin=\"([0-9.]+)\" xMax=\"([0-9.]+)\" yMax=\"([0-9.]+)\">([^<]*)<"_s);
    constexpr double pixels = 96.0 / 72;
    const QString xml = QString::fromUtf8(run(u"pdftotext"_s, { u"-bbox"_s, path, u"-"_s }));
    EXPECT_EQ(xml.count(u"<page "), 1);
    const auto size = page.match(xml);
    const QPointF corner((size.captured(1).toDouble() * pixels - sheet.width) / 2,
                         (size.captured(2).toDouble() * pixels - sheet.height) / 2);
    QList<PlacedWord> words;
    for (auto hits = word.globalMatch(xml); hits.hasNext();) {
        const auto hit = hits.next();
        const QPointF from(hit.captured(1).toDouble(), hit.captured(2).toDouble());
        const QPointF to(hit.captured(3).toDouble(), hit.captured(4).toDouble());
        words.append({ hit.captured(5), QRectF(from * pixels - corner, to * pixels - corner) });
    }
    return words;
}

/// The texts of the elements with ids box0, box1 ... of an XML file, by number.
QStringList textsOfBoxes(const QByteArray &xml, qsizetype count)
{
    QStringList texts(count, QString());
    QXmlStreamReader reader(xml);
    int depth = 0;
    int box = -1;
    while (!reader.atEnd()) {
        reader.readNext();
        if (reader.isStartElement()) {
            const auto id = reader.attributes().value(u"id"_s);
            if (depth > 0) {
                ++depth;
            } else if (id.startsWith(u"box")) {
                box = id.mid(3).toInt();
                depth = 1;
            }
        } else if (reader.isEndElement()) {
            depth = std::max(depth - 1, 0);
        } else if (reader.isCharacters() && depth > 0) {
            texts[box] += reader.text();
        }
    }
    EXPECT_FALSE(reader.hasError()) << reader.errorString().toStdString();
    return texts;
}

void expectAllTexts(const QByteArray &xml, const Sheet &sheet)
{
    const QStringList texts = textsOfBoxes(xml, qsizetype(sheet.boxes.size()));
    for (size_t i = 0; i < sheet.boxes.size(); ++i) {
        EXPECT_EQ(inkOf(texts[qsizetype(i)]), inkOf(sheet.boxes[i].text.text)) << i;
    }
}

/// How many of the evenly coloured points of a picture are there in the other picture, whose top
/// left corner is at the offset.
double likeness(const QImage &picture, const QImage &other, const QPoint &offset)
{
    int points = 0;
    int alike = 0;
    for (int y = 4; y < picture.height() - 4; y += 5) {
        for (int x = 4; x < picture.width() - 4; x += 5) {
            const QRgb colour = picture.pixel(x, y);
            bool isEven = qGray(colour) < 235;
            for (int i = 0; i < 25 && isEven; ++i) {
                const QRgb near = picture.pixel(x + i % 5 - 2, y + i / 5 - 2);
                isEven = std::abs(qRed(near) - qRed(colour))
                        + std::abs(qGreen(near) - qGreen(colour))
                        + std::abs(qBlue(near) - qBlue(colour))
                    < 12;
            }
            if (!isEven) {
                continue;
            }
            ++points;
            const QColor there = other.pixelColor(QPoint(x, y) + offset);
            alike += std::abs(there.red() - qRed(colour)) < 24
                && std::abs(there.green() - qGreen(colour)) < 24
                && std::abs(there.blue() - qBlue(colour)) < 24;
        }
    }
    EXPECT_GT(points, 1000);
    return double(alike) / points;
}

} // namespace

class SheetExports : public testing::Test, protected SheetsOfFiles
{
protected:
    /// The sheets of the sample pair and of a file of 1,000 lines.
    std::vector<std::pair<Sheet, SheetLook>> sheets() const
    {
        std::vector<std::pair<Sheet, SheetLook>> result;
        for (const SheetKind kind : bothKinds) {
            result.push_back(whole(kind, sampleText()));
            result.push_back(whole(kind, longFileText(1000)));
        }
        return result;
    }

    QString pdfFile(const Sheet &sheet, const SheetLook &look) const
    {
        const auto bytes = pdfOf(sheet, look, title);
        EXPECT_TRUE(bytes);
        return m_files.write(u"sheet.pdf"_s, bytes.value_or(QByteArray()));
    }

    TempFolder m_files;
};

TEST_F(SheetExports, ThePdfHasAllTextsOnOnePageEachInItsBox)
{
    for (const auto &[sheet, look] : sheets()) {
        EXPECT_TRUE(overflowingBoxes(sheet, sheetFont()).empty());
        const QString path = pdfFile(sheet, look);
        const QByteArray text = run(u"pdftotext"_s, { u"-raw"_s, path, u"-"_s });
        EXPECT_EQ(inkOf(QString::fromUtf8(text)), inkOf(sheet));
        for (const PlacedWord &word : wordsOfPdf(path, sheet)) {
            const bool isInside = std::ranges::any_of(sheet.boxes, [&](const auto &box) {
                return placeOf(box).adjusted(-1, -1, 1, 1).contains(word.place);
            });
            EXPECT_TRUE(isInside) << word.text.toStdString();
        }
    }
}

TEST_F(SheetExports, ThePdfsFontsAreEmbedded)
{
    const auto [sheet, look] = first(SheetKind::Joystick, sampleText());
    const QString fonts = QString::fromUtf8(run(u"pdffonts"_s, { pdfFile(sheet, look) }));
    const QStringList lines = fonts.split(u'\n', Qt::SkipEmptyParts).mid(2);
    EXPECT_FALSE(lines.isEmpty());
    for (const QString &line : lines) {
        // The columns emb, sub, uni.
        EXPECT_TRUE(line.contains(QRegularExpression(u" yes +(yes|no) +yes "_s)))
            << line.toStdString();
    }
}

TEST_F(SheetExports, TheUsualSheetIsOnA4AndALargerOneOnPaperOfItsSize)
{
    auto [sheet, look] = first(SheetKind::Joystick, sampleText());
    const auto pageSize = [&] {
        const QString info = QString::fromUtf8(run(u"pdfinfo"_s, { pdfFile(sheet, look) }));
        EXPECT_TRUE(info.contains(QRegularExpression(u"Pages: +1\n"_s)));
        const auto hit = QRegularExpression(u"Page size: +([0-9.]+) x ([0-9.]+) pts"_s).match(info);
        return QSize(qRound(hit.captured(1).toDouble()), qRound(hit.captured(2).toDouble()));
    };
    EXPECT_EQ(pageSize(), QSize(842, 595));
    sheet.width = 1600;
    sheet.height = 800;
    EXPECT_EQ(pageSize(), QSize(1200, 600));
    sheet.width = 600;
    sheet.height = 1000;
    EXPECT_EQ(pageSize(), QSize(595, 842));
}

TEST_F(SheetExports, TheSvgHasAllTextsEachInItsBox)
{
    for (const auto &[sheet, look] : sheets()) {
        const QByteArray svg = svgOf(sheet, look, title);
        expectAllTexts(svg, sheet);
        QXmlStreamReader reader(svg);
        int box = -1;
        while (!reader.atEnd()) {
            reader.readNext();
            const QXmlStreamAttributes values = reader.attributes();
            if (reader.isStartElement() && values.value(u"id"_s).startsWith(u"box")) {
                box = values.value(u"id"_s).mid(3).toInt();
            } else if (reader.isStartElement() && reader.name() == u"tspan") {
                const QRectF place = placeOf(sheet.boxes[size_t(box)]);
                const double left = values.value(u"x"_s).toDouble();
                EXPECT_GE(left, place.left());
                EXPECT_LE(left + values.value(u"textLength"_s).toDouble(), place.right());
                EXPECT_TRUE(values.value(u"font-family"_s).endsWith(u"sans-serif"));
            } else if (reader.isStartElement() && reader.name() == u"text") {
                const QRectF place = placeOf(sheet.boxes[size_t(box)]);
                const double baseline = values.value(u"y"_s).toDouble();
                EXPECT_GT(baseline, place.top());
                EXPECT_LT(baseline, place.bottom());
            }
        }
        EXPECT_FALSE(reader.hasError());
    }
}

TEST_F(SheetExports, TheWebPageHasAllTextsAndNeedsNoOtherFile)
{
    for (const auto &[sheet, look] : sheets()) {
        const QByteArray html = htmlOf(sheet, look, title);
        EXPECT_TRUE(html.startsWith("<!DOCTYPE html>"));
        expectAllTexts(html, sheet);
        const QString text = QString::fromUtf8(html);
        EXPECT_TRUE(text.contains(u"<title>Sample &lt;flight&gt; &amp; "));
        static const QRegularExpression other(u"(src|href)=\"(?!data:)|url\\((?!#)|@import"_s);
        EXPECT_FALSE(text.contains(other)) << other.match(text).captured().toStdString();
        EXPECT_EQ(text.count(u"style=\"font:"), text.count(u"sans-serif;color:"));
        EXPECT_GT(text.count(u"sans-serif;color:"), 50);
    }
}

TEST_F(SheetExports, TheWebPagesBoxesHaveTheirPlaces)
{
    const auto [sheet, look] = first(SheetKind::Throttle, sampleText());
    const QString html = QString::fromUtf8(htmlOf(sheet, look, title));
    for (size_t i = 0; i < sheet.boxes.size(); ++i) {
        const QRectF place = placeOf(sheet.boxes[i]);
        EXPECT_TRUE(html.contains(
            u"id=\"box%1\" class=\"box\" style=\"left:%2px;top:%3px;width:%4px;height:%5px\""_s
                .arg(i)
                .arg(place.left())
                .arg(place.top())
                .arg(place.width())
                .arg(place.height())))
            << i;
    }
}

TEST_F(SheetExports, ThePngHasSoManyPixelsForOneOfTheSheets)
{
    const auto [sheet, look] = first(SheetKind::Joystick, sampleText());
    for (const int scale : { 1, 2, 4 }) {
        const auto bytes = pngOf(sheet, look, scale);
        ASSERT_TRUE(bytes);
        const QImage image = QImage::fromData(*bytes, "PNG");
        EXPECT_EQ(image.size(), QSize(1043, 714) * scale);
        EXPECT_EQ(image.pixelColor(1, 1), QColor(Qt::white));
        EXPECT_NEAR(image.dotsPerMeterX(), 96 * scale / 0.0254, 1);
    }
}

TEST_F(SheetExports, ColoursAreThoseOfThePng)
{
    constexpr int scale = 4;
    for (const SheetKind kind : bothKinds) {
        const auto [sheet, look] = first(kind, sampleText());
        const QImage png = QImage::fromData(*pngOf(sheet, look, scale), "PNG");

        const QString pdf = pdfFile(sheet, look);
        run(u"pdftoppm"_s,
            { u"-png"_s, u"-singlefile"_s, u"-r"_s, QString::number(96 * scale), pdf,
              pdf.chopped(4) });
        const QImage page(pdf.chopped(4) + u".png"_s);
        ASSERT_FALSE(page.isNull());
        const QSize margin = (page.size() - png.size()) / 2;
        EXPECT_GT(likeness(png, page, QPoint(margin.width(), margin.height())), 0.97);

        const QString svg = m_files.write(u"sheet.svg"_s, svgOf(sheet, look, title));
        const QString drawn = m_files.file(u"svg.png"_s);
        run(u"rsvg-convert"_s, { u"-z"_s, QString::number(scale), u"-o"_s, drawn, svg });
        EXPECT_GT(likeness(png, QImage(drawn), {}), 0.97);
    }
}

TEST_F(SheetExports, TextThatDoesNotFitIsMarkedAndNotCutThroughALine)
{
    auto [sheet, look] = first(SheetKind::Joystick, sampleText());
    sheet.boxes[1].Height = 51;
    const QString svg = QString::fromUtf8(svgOf(sheet, look, title));
    EXPECT_EQ(svg.count(u"<polygon"), 1);
    const QString html = QString::fromUtf8(htmlOf(sheet, look, title));
    EXPECT_EQ(html.count(u"class=\"box over\""), 1);
    expectAllTexts(html.toUtf8(), sheet);
    const QStringList texts = textsOfBoxes(svg.toUtf8(), 17);
    const QString all = inkOf(sheet.boxes[1].text.text);
    EXPECT_LT(texts[1].size(), all.size());
    EXPECT_TRUE(all.startsWith(inkOf(texts[1])));

    SheetRenderer renderer;
    const BoxText &text = renderer.text(sheet, look, 1);
    EXPECT_LE(text.heldHeight(51), 51 - 2 * boxPadding);
    const QImage png = QImage::fromData(*pngOf(sheet, look, 1), "PNG");
    const QRectF place = placeOf(sheet.boxes[1]);
    EXPECT_EQ(png.pixelColor((place.bottomRight() - QPointF(3, 3)).toPoint()),
              QColor(0xB4, 0x2A, 0x1C));
}

TEST_F(SheetExports, AnOddTextIsWrittenSoThatXmlHoldsIt)
{
    auto [sheet, look] = first(SheetKind::Joystick, sampleText());
    sheet.boxes[16].text = RichText::plain(u"a\tb <c> & \"d\" \u0001\u0081\u20ac"_s, sheetFont());
    for (const QByteArray &file : { svgOf(sheet, look, title), htmlOf(sheet, look, title) }) {
        const QString text = textsOfBoxes(file, 17)[16];
        EXPECT_EQ(inkOf(text), inkOf(u"a\tb <c> & \"d\" \ufffd\u0081\u20ac"_s));
    }
}

TEST_F(SheetExports, APictureOfTheUsersIsPartOfTheFile)
{
    auto [sheet, look] = first(SheetKind::Joystick, sampleText());
    QImage image(30, 20, QImage::Format_RGB32);
    image.fill(Qt::red);
    EXPECT_TRUE(image.save(m_files.file(u"own.bmp"_s)));
    look.pictures = { *DrawnPicture::load(m_files.path(), u"own.bmp"_s) };
    const QString svg = QString::fromUtf8(svgOf(sheet, look, title));
    EXPECT_TRUE(svg.contains(u"href=\"data:image/png;base64,"));
    EXPECT_FALSE(svg.contains(u"linearGradient"));
}

TEST_F(SheetExports, LeaderLinesAndHiddenPartsAreLeftOutWhenTheyAreOff)
{
    auto [sheet, look] = first(SheetKind::Joystick, sampleText());
    EXPECT_EQ(svgOf(sheet, look, title).count("<circle cx"), 11);
    look.leaderLines = false;
    EXPECT_EQ(svgOf(sheet, look, title).count("<circle cx"), 0);
    look.leaderLines = true;
    sheet.boxes[0].Visible = false;
    EXPECT_EQ(svgOf(sheet, look, title).count("<circle cx"), 10);
    EXPECT_EQ(svgOf(sheet, look, title).count("id=\"box0\""), 0);
    sheet.pictures[0].Visible = false;
    EXPECT_EQ(svgOf(sheet, look, title).count("<circle cx"), 0);
    EXPECT_EQ(svgOf(sheet, look, title).count("linearGradient"), 0);
}
