// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "layouts/draw/sheet_exports.h"

#include "layouts/draw/web_writing.h"

namespace zeph {

namespace {

QString pixels(double number)
{
    return svgNumber(number) + u"px"_s;
}

QString styleSheet(const Sheet &sheet, const SheetLook &look)
{
    const QString text =
        u"@page{size:%1px %2px;margin:0}"
        "body{margin:0;background:#e9ebed}"
        ".sheet{position:relative;width:%1px;height:%2px;margin:24px auto;background:#fff;"
        "box-shadow:0 1px 6px #0003;-webkit-print-color-adjust:exact;print-color-adjust:exact}"
        ".sheet svg{position:absolute;left:0;top:0}"
        ".box{position:absolute;box-sizing:border-box;overflow:auto;background:%3;"
        "border:%4 solid %5;border-top:%6 solid %7;padding:%8 %9}"_s;
    const QString rest = u".box p{margin:0;tab-size:80px}"
                         ".line{display:block;white-space:pre}"
                         ".over::after{content:'';position:absolute;right:0;bottom:0;"
                         "width:%1;height:%1;"
                         "background:linear-gradient(135deg,transparent 50%,%2 50%)}"
                         "@media print{body{background:#fff}.sheet{margin:0;box-shadow:none}}"_s;
    return text.arg(sheet.width)
               .arg(sheet.height)
               .arg(look.whiteBoxes ? u"#fff"_s : u"none"_s, pixels(frameWidth),
                    webColour(frameColour), pixels(topRuleWidth), webColour(ruleColour),
                    pixels(boxPadding - topRuleWidth), pixels(boxPadding - frameWidth))
        + rest.arg(pixels(overflowMarkSize), webColour(overflowColour));
}

QString styleOf(const BoxRun &run)
{
    const CharFormat &format = run.format;
    QString style = u"font:"_s + (format.italic ? u"italic "_s : QString())
        + (format.bold ? u"bold "_s : QString()) + pixels(webPixels(format.pointSize)) + u' '
        + webFontFamilies(format.family) + u";color:"_s + webColour(format.colour.value_or(0));
    if (format.underline || format.strike) {
        style += u";text-decoration:"_s + (format.underline ? u"underline"_s : u"line-through"_s);
    }
    return style;
}

void writeLine(QXmlStreamWriter &xml, const BoxLine &line)
{
    xml.writeStartElement(u"span"_s);
    xml.writeAttribute(u"class"_s, u"line"_s);
    QString style = u"height:%1;line-height:%1"_s.arg(pixels(line.height));
    if (!line.runs.empty() && line.runs.front().left > 0) {
        style += u";padding-left:"_s + pixels(line.runs.front().left);
    }
    xml.writeAttribute(u"style"_s, style);
    xml.writeCharacters(QString()); // an empty line needs its end tag too
    for (const BoxRun &run : line.runs) {
        xml.writeStartElement(u"span"_s);
        xml.writeAttribute(u"style"_s,
                           run.text == u"\t" ? u"display:inline-block;width:"_s + pixels(run.width)
                                             : styleOf(run) + u";line-height:inherit"_s);
        xml.writeCharacters(xmlText(run.text));
        xml.writeEndElement();
    }
    xml.writeEndElement();
}

void writeBox(QXmlStreamWriter &xml, const QRectF &box, const BoxText &text, bool isMarked)
{
    xml.writeAttribute(u"class"_s, isMarked ? u"box over"_s : u"box"_s);
    xml.writeAttribute(
        u"style"_s,
        u"left:%1;top:%2;width:%3;height:%4"_s.arg(pixels(box.left()), pixels(box.top()),
                                                   pixels(box.width()), pixels(box.height())));
    bool isOpen = false;
    for (const BoxLine &line : text.lines()) {
        if (!isOpen) {
            xml.writeStartElement(u"p"_s);
        }
        writeLine(xml, line);
        isOpen = !line.endsParagraph;
        if (!isOpen) {
            xml.writeEndElement();
        }
    }
}

} // namespace

QByteArray htmlOf(const Sheet &sheet, const SheetLook &look, const QString &title)
{
    QByteArray bytes;
    QXmlStreamWriter xml(&bytes);
    xml.writeDTD(u"<!DOCTYPE html>"_s);
    xml.writeStartElement(u"html"_s);
    xml.writeAttribute(u"lang"_s, u"en"_s);
    xml.writeStartElement(u"head"_s);
    xml.writeEmptyElement(u"meta"_s);
    xml.writeAttribute(u"charset"_s, u"utf-8"_s);
    xml.writeTextElement(u"title"_s, xmlText(title));
    xml.writeTextElement(u"style"_s, styleSheet(sheet, look));
    xml.writeEndElement();
    xml.writeStartElement(u"body"_s);
    xml.writeStartElement(u"main"_s);
    xml.writeAttribute(u"class"_s, u"sheet"_s);
    writeSvgGround(xml, sheet, look);
    xml.writeEndElement();
    SheetRenderer renderer;
    for (const size_t i : paintingOrder(sheet, look.raised)) {
        if (sheet.boxes[i].Visible) {
            const BoxText &text = renderer.text(sheet, look, i);
            const bool isMarked = look.overflowMarks && !text.fits(sheet.boxes[i].Height);
            xml.writeCharacters(u"\n"_s);
            xml.writeStartElement(u"section"_s);
            xml.writeAttribute(u"id"_s, u"box%1"_s.arg(i));
            writeBox(xml, placeOf(sheet.boxes[i]), text, isMarked);
            xml.writeCharacters(QString());
            xml.writeEndElement();
        }
    }
    xml.writeEndDocument();
    return bytes;
}

} // namespace zeph
