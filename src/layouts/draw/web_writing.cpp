// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "layouts/draw/web_writing.h"

#include <QBuffer>
#include <QXmlStreamReader>

#include <algorithm>

namespace zeph {

namespace {

const QString svgNamespace = u"http://www.w3.org/2000/svg"_s;

void writePlace(QXmlStreamWriter &xml, const QRectF &place)
{
    xml.writeAttribute(u"x"_s, svgNumber(place.x()));
    xml.writeAttribute(u"y"_s, svgNumber(place.y()));
    xml.writeAttribute(u"width"_s, svgNumber(place.width()));
    xml.writeAttribute(u"height"_s, svgNumber(place.height()));
}

/// Copies an element's attributes; ids get the prefix, since two drawings may have the same ones.
void copyAttributes(QXmlStreamWriter &xml, const QXmlStreamAttributes &attributes,
                    const QString &prefix)
{
    for (const QXmlStreamAttribute &each : attributes) {
        QString value = each.value().toString();
        if (each.name() == u"id") {
            value.prepend(prefix);
        } else {
            value.replace(u"url(#"_s, u"url(#"_s + prefix);
        }
        xml.writeAttribute(each.name().toString(), value);
    }
}

/// Copies a drawing into an svg element at its place, without the invisible places of controls.
void copyDrawing(QXmlStreamWriter &xml, const QByteArray &svg, const QRectF &place,
                 const QString &prefix)
{
    QXmlStreamReader reader(svg);
    int depth = 0;
    while (!reader.atEnd()) {
        reader.readNext();
        if (reader.isStartElement()) {
            QXmlStreamAttributes attributes = reader.attributes();
            if (attributes.value(u"class"_s) == u"place") {
                reader.skipCurrentElement();
                continue;
            }
            xml.writeStartElement(reader.name().toString());
            if (depth == 0) {
                writePlace(xml, place);
                attributes.removeIf([](const QXmlStreamAttribute &each) {
                    return each.name() == u"width" || each.name() == u"height";
                });
            }
            ++depth;
            copyAttributes(xml, attributes, prefix);
        } else if (reader.isEndElement()) {
            --depth;
            xml.writeEndElement();
        } else if (reader.isCharacters() && !reader.isWhitespace()) {
            xml.writeCharacters(reader.text().toString());
        }
    }
}

void writePictures(QXmlStreamWriter &xml, const Sheet &sheet, const SheetLook &look)
{
    const size_t count = std::min(sheet.pictures.size(), look.pictures.size());
    for (size_t i = 0; i < count; ++i) {
        const DrawnPicture &picture = look.pictures[i];
        if (!sheet.pictures[i].Visible || picture.isNull()) {
            continue;
        }
        const QRectF place(QPointF(sheet.pictures[i].Left, sheet.pictures[i].Top), picture.size());
        if (picture.isDrawing()) {
            copyDrawing(xml, picture.svg(), place, u"p%1-"_s.arg(i));
            continue;
        }
        QBuffer bytes;
        bytes.open(QIODevice::WriteOnly);
        picture.image().save(&bytes, "PNG");
        xml.writeEmptyElement(u"image"_s);
        writePlace(xml, place);
        xml.writeAttribute(
            u"href"_s, u"data:image/png;base64,"_s + QString::fromLatin1(bytes.data().toBase64()));
    }
}

void writeLines(QXmlStreamWriter &xml, const std::vector<QLineF> &lines, ColorRef colour,
                double width)
{
    xml.writeStartElement(u"g"_s);
    xml.writeAttribute(u"stroke"_s, webColour(colour));
    xml.writeAttribute(u"stroke-width"_s, svgNumber(width));
    for (const QLineF &line : lines) {
        if (!line.isNull()) {
            xml.writeEmptyElement(u"line"_s);
            xml.writeAttribute(u"x1"_s, svgNumber(line.x1()));
            xml.writeAttribute(u"y1"_s, svgNumber(line.y1()));
            xml.writeAttribute(u"x2"_s, svgNumber(line.x2()));
            xml.writeAttribute(u"y2"_s, svgNumber(line.y2()));
        }
    }
    xml.writeEndElement();
}

void writeLeaderLines(QXmlStreamWriter &xml, const std::vector<QLineF> &lines)
{
    constexpr ColorRef white = 0xFFFFFF;
    writeLines(xml, lines, white, leaderHalo);
    writeLines(xml, lines, ruleColour, leaderWidth);
    for (const QLineF &line : lines) {
        if (!line.isNull()) {
            xml.writeEmptyElement(u"circle"_s);
            xml.writeAttribute(u"cx"_s, svgNumber(line.x2()));
            xml.writeAttribute(u"cy"_s, svgNumber(line.y2()));
            xml.writeAttribute(u"r"_s, svgNumber(leaderDot));
            xml.writeAttribute(u"fill"_s, webColour(ruleColour));
            xml.writeAttribute(u"stroke"_s, webColour(white));
            xml.writeAttribute(u"stroke-width"_s, svgNumber(leaderWidth));
        }
    }
}

} // namespace

QString svgNumber(double number)
{
    QString text = QString::number(number, 'f', 3);
    while (text.endsWith(u'0')) {
        text.chop(1);
    }
    return text.endsWith(u'.') ? text.chopped(1) : text;
}

QString webColour(ColorRef colour)
{
    return u"#%1%2%3"_s.arg(redOf(colour), 2, 16, QChar(u'0'))
        .arg(greenOf(colour), 2, 16, QChar(u'0'))
        .arg(blueOf(colour), 2, 16, QChar(u'0'));
}

QString xmlText(QString text)
{
    for (QChar &each : text) {
        const bool isControl = each < u' ' && each != u'\t' && each != u'\n';
        if (isControl || each.isSurrogate() || each >= QChar(0xFFFE)) {
            each = QChar::ReplacementCharacter;
        }
    }
    return text;
}

QString webFontFamilies(const QString &family)
{
    static const struct {
        QStringView name;
        QStringView others;
    } alike[] = {
        { u"Arial", u"\"Liberation Sans\", \"Nimbus Sans\", Helvetica, sans-serif" },
        { u"Helvetica", u"Arial, \"Liberation Sans\", \"Nimbus Sans\", sans-serif" },
        { u"Times New Roman", u"\"Liberation Serif\", \"Nimbus Roman\", Times, serif" },
        { u"Courier New", u"\"Liberation Mono\", \"Nimbus Mono PS\", Courier, monospace" },
    };
    QString name = family;
    name.remove(u'"').remove(u'\\');
    QString result = u'"' + xmlText(name) + u"\", "_s;
    for (const auto &each : alike) {
        if (family.compare(each.name, Qt::CaseInsensitive) == 0) {
            return result + each.others.toString();
        }
    }
    return result + u"Arial, Helvetica, sans-serif"_s;
}

double webPixels(double points)
{
    constexpr double pointsPerInch = 72;
    return points * sheetDotsPerInch / pointsPerInch;
}

void writeSvgGround(QXmlStreamWriter &xml, const Sheet &sheet, const SheetLook &look)
{
    xml.writeStartElement(u"svg"_s);
    xml.writeDefaultNamespace(svgNamespace);
    xml.writeAttribute(u"width"_s, QString::number(sheet.width));
    xml.writeAttribute(u"height"_s, QString::number(sheet.height));
    xml.writeAttribute(u"viewBox"_s, u"0 0 %1 %2"_s.arg(sheet.width).arg(sheet.height));
    xml.writeEmptyElement(u"rect"_s);
    writePlace(xml, QRectF(0, 0, sheet.width, sheet.height));
    xml.writeAttribute(u"fill"_s, u"#ffffff"_s);
    writePictures(xml, sheet, look);
    if (look.leaderLines) {
        writeLeaderLines(xml, leaderLines(sheet, look.controls));
    }
}

} // namespace zeph
