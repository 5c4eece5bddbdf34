// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "layouts/draw/sheet_exports.h"

#include "layouts/draw/web_writing.h"

namespace zeph {

namespace {

void writeRun(QXmlStreamWriter &xml, const BoxRun &run, double left)
{
    if (run.text == u"\t") {
        return;
    }
    const CharFormat &format = run.format;
    xml.writeStartElement(u"tspan"_s);
    xml.writeAttribute(u"x"_s, svgNumber(left + run.left));
    xml.writeAttribute(u"font-family"_s, webFontFamilies(format.family));
    xml.writeAttribute(u"font-size"_s, svgNumber(webPixels(format.pointSize)));
    if (format.bold) {
        xml.writeAttribute(u"font-weight"_s, u"bold"_s);
    }
    if (format.italic) {
        xml.writeAttribute(u"font-style"_s, u"italic"_s);
    }
    if (format.underline || format.strike) {
        xml.writeAttribute(u"text-decoration"_s,
                           format.underline ? u"underline"_s : u"line-through"_s);
    }
    xml.writeAttribute(u"fill"_s, webColour(format.colour.value_or(0)));
    if (!QStringView(run.text).trimmed().isEmpty()) {
        // Another font with other measures keeps the line's length.
        xml.writeAttribute(u"textLength"_s, svgNumber(run.width));
        xml.writeAttribute(u"lengthAdjust"_s, u"spacingAndGlyphs"_s);
    }
    xml.writeCharacters(xmlText(run.text));
    xml.writeEndElement();
}

void writeText(QXmlStreamWriter &xml, const BoxText &text, const QRectF &box)
{
    const double held = text.heldHeight(box.height());
    for (const BoxLine &line : text.lines()) {
        if (line.top >= held) {
            break;
        }
        xml.writeStartElement(u"text"_s);
        xml.writeAttribute(u"y"_s, svgNumber(box.top() + boxPadding + line.baseline));
        xml.writeAttribute(u"xml:space"_s, u"preserve"_s);
        for (const BoxRun &run : line.runs) {
            writeRun(xml, run, box.left() + boxPadding);
        }
        xml.writeEndElement();
    }
}

void writeRect(QXmlStreamWriter &xml, const QRectF &place, const QString &fill)
{
    xml.writeEmptyElement(u"rect"_s);
    xml.writeAttribute(u"x"_s, svgNumber(place.x()));
    xml.writeAttribute(u"y"_s, svgNumber(place.y()));
    xml.writeAttribute(u"width"_s, svgNumber(place.width()));
    xml.writeAttribute(u"height"_s, svgNumber(place.height()));
    xml.writeAttribute(u"fill"_s, fill);
}

void writeBox(QXmlStreamWriter &xml, const QRectF &box, const BoxText &text, const SheetLook &look)
{
    constexpr double half = frameWidth / 2;
    writeRect(xml, box.adjusted(half, half, -half, -half),
              look.whiteBoxes ? u"#ffffff"_s : u"none"_s);
    xml.writeAttribute(u"stroke"_s, webColour(frameColour));
    xml.writeAttribute(u"stroke-width"_s, svgNumber(frameWidth));
    writeRect(xml, QRectF(box.topLeft(), QSizeF(box.width(), topRuleWidth)), webColour(ruleColour));
    writeText(xml, text, box);
    if (look.overflowMarks && !text.fits(box.height())) {
        QStringList points;
        for (const QPointF &corner : overflowMark(box)) {
            points.append(svgNumber(corner.x()) + u',' + svgNumber(corner.y()));
        }
        xml.writeEmptyElement(u"polygon"_s);
        xml.writeAttribute(u"points"_s, points.join(u' '));
        xml.writeAttribute(u"fill"_s, webColour(overflowColour));
    }
}

} // namespace

QByteArray svgOf(const Sheet &sheet, const SheetLook &look, const QString &title)
{
    QByteArray bytes;
    QXmlStreamWriter xml(&bytes);
    xml.writeStartDocument();
    writeSvgGround(xml, sheet, look);
    xml.writeTextElement(u"title"_s, xmlText(title));
    SheetRenderer renderer;
    for (const size_t i : paintingOrder(sheet, look.raised)) {
        if (sheet.boxes[i].Visible) {
            xml.writeCharacters(u"\n"_s);
            xml.writeStartElement(u"g"_s);
            xml.writeAttribute(u"id"_s, u"box%1"_s.arg(i));
            writeBox(xml, placeOf(sheet.boxes[i]), renderer.text(sheet, look, i), look);
            xml.writeEndElement();
        }
    }
    xml.writeEndDocument();
    return bytes;
}

} // namespace zeph
