// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "layouts/files/layout_file.h"

#include "platform/core/paths.h"
#include "platform/core/rtf.h"
#include "platform/core/text1252.h"

#include <cmath>
#include <limits>

namespace zeph {

namespace {

constexpr QStringView noPicture = u"none";
constexpr QStringView yes = u"True";
constexpr QStringView no = u"False";

/// A sheet's width and height have 16 bits.
constexpr int mostSheetPixels = std::numeric_limits<qint16>::max();

/// The custom sheet's last picture is the pilot's own; its lines are shorter.
constexpr size_t ownPicture = 3;

// ---- reading

void readSize(LayoutLines &lines, Sheet &sheet)
{
    const QStringList numbers = lines.words(2, u"the size of the sheet");
    sheet.width = lines.integer(numbers[0], u"the width of the sheet", 1, mostSheetPixels);
    sheet.height = lines.integer(numbers[1], u"the height of the sheet", 1, mostSheetPixels);
}

void readPicturePlace(LayoutLines &lines, SheetPicture &picture)
{
    const QStringList fields = lines.fields(4, u"the place of a picture");
    picture.Left = lines.number(fields[0], u"the left edge of a picture");
    picture.Top = lines.number(fields[1], u"the top of a picture");
    picture.Visible = fields[2] == yes;
    picture.Locked = fields[3] == yes;
}

void readPicturePath(LayoutLines &lines, SheetPicture &picture)
{
    const QString path = lines.line(u"the file of a picture");
    if (path.contains(u'\r')) {
        lines.fail(u"there is a line end within the file of a picture"_s);
    }
    picture.path = path == noPicture ? QString() : path;
}

void readPictures(LayoutLines &lines, Sheet &sheet)
{
    if (sheet.kind != SheetKind::Custom) {
        readPicturePlace(lines, sheet.pictures.front());
        return;
    }
    for (size_t i = 0; i < ownPicture; ++i) {
        readPicturePlace(lines, sheet.pictures[i]);
        readPicturePath(lines, sheet.pictures[i]);
    }
    SheetPicture &own = sheet.pictures[ownPicture];
    own.Visible = lines.fields(1, u"whether the fourth picture is shown")[0] == yes;
    readPicturePath(lines, own);
}

float readExtent(LayoutLines &lines, const QString &field, QStringView what)
{
    const float extent = lines.number(field, what);
    if (extent < 0) {
        lines.fail(u"%1 is less than nothing"_s.arg(what));
    }
    return extent;
}

void readBox(LayoutLines &lines, LayoutTextBox &box, int index)
{
    const QString name = u"text box %1"_s.arg(index + 1);
    const auto part = [&name](QStringView what) {
        return u"the %1 of %2"_s.arg(what, name);
    };
    const QStringList fields = lines.fields(6, name);
    box.Left = lines.number(fields[0], part(u"left edge"));
    box.Top = lines.number(fields[1], part(u"top"));
    box.Width = readExtent(lines, fields[2], part(u"width"));
    box.Height = readExtent(lines, fields[3], part(u"height"));
    box.Visible = fields[4] == yes;
    box.Locked = fields[5] == yes;
}

QRectF readRecord(LayoutLines &lines)
{
    const QStringList fields = lines.fields(4, u"the place of a text box");
    const float left = lines.number(fields[0], u"the left edge of a text box");
    const float top = lines.number(fields[1], u"the top of a text box");
    const float width = readExtent(lines, fields[2], u"the width of a text box");
    const float height = readExtent(lines, fields[3], u"the height of a text box");
    return { left, top, width, height };
}

/// The value that was read, or the fault of its lines.
template <class T> Expected<T, LayoutError> unlessFailed(const LayoutLines &lines, T value)
{
    if (lines.error()) {
        return Unexpected<LayoutError>(*lines.error());
    }
    return value;
}

// ---- writing

QByteArray whole(double number)
{
    const double readable = std::clamp(number, -double(farthestPlace), double(farthestPlace));
    return QByteArray::number(qint64(std::floor(readable)));
}

QByteArray flag(bool value)
{
    return (value ? yes : no).toLatin1();
}

QByteArray lineOf(const QByteArrayList &fields)
{
    return fields.join(',') + "\r\n";
}

QByteArray picturePlace(const SheetPicture &picture)
{
    return lineOf(
        { whole(picture.Left), whole(picture.Top), flag(picture.Visible), flag(picture.Locked) });
}

QByteArray picturePath(const SheetPicture &picture)
{
    return picture.path.isEmpty() ? lineOf({ noPicture.toLatin1() })
                                  : lineOf({ toText1252(picture.path) });
}

QByteArray picturesOf(const Sheet &sheet)
{
    if (sheet.kind != SheetKind::Custom) {
        return picturePlace(sheet.pictures.front());
    }
    QByteArray bytes;
    for (size_t i = 0; i < ownPicture; ++i) {
        bytes += picturePlace(sheet.pictures[i]) + picturePath(sheet.pictures[i]);
    }
    const SheetPicture &own = sheet.pictures[ownPicture];
    return bytes + lineOf({ flag(own.Visible) }) + picturePath(own);
}

QByteArrayList placeFields(const QRectF &place)
{
    return { whole(place.x()), whole(place.y()), whole(place.width()), whole(place.height()) };
}

/// Why a layout file cannot hold the path; empty when it can.
QString reasonAgainst(const QString &path)
{
    if (const qsizetype at = firstNot1252(path); at >= 0) {
        return u"a layout file has no letter for “%1” in the picture's path %2"_s.arg(path[at]).arg(
            path);
    }
    const bool isOneLine = !path.contains(u'\n') && !path.contains(u'\r');
    return isOneLine && path.size() <= longestLayoutLine && path != noPicture
        ? QString()
        : u"a layout file cannot hold the path of a picture"_s;
}

} // namespace

Expected<Sheet, LayoutError> readPositions(SheetKind kind, QByteArrayView bytes,
                                           const QString &file)
{
    LayoutLines lines(bytes, file);
    Sheet sheet = emptySheet(kind);
    readSize(lines, sheet);
    readPictures(lines, sheet);
    int index = 0;
    for (LayoutTextBox &box : sheet.boxes) {
        readBox(lines, box, index++);
    }
    return unlessFailed(lines, std::move(sheet));
}

Expected<QByteArray, LayoutError> writePositions(const Sheet &sheet, const QString &file)
{
    for (const SheetPicture &picture : sheet.pictures) {
        const QString reason =
            sheet.kind == SheetKind::Custom ? reasonAgainst(picture.path) : QString();
        if (!reason.isEmpty()) {
            return Unexpected<LayoutError>(LayoutError{ file, 0, reason });
        }
    }
    QByteArray bytes =
        QByteArray::number(sheet.width) + ' ' + QByteArray::number(sheet.height) + "\r\n";
    bytes += picturesOf(sheet);
    for (const LayoutTextBox &box : sheet.boxes) {
        bytes += lineOf(placeFields({ box.Left, box.Top, box.Width, box.Height })
                        + QByteArrayList{ flag(box.Visible), flag(box.Locked) });
    }
    return bytes;
}

Expected<RichText, LayoutError> readLayoutText(QByteArrayView rtf, const QString &file)
{
    const auto text = readRtf(rtf);
    if (text) {
        return *text;
    }
    const qsizetype at = std::clamp(text.error().offset, qsizetype(0), rtf.size());
    const int line = 1 + int(std::count(rtf.begin(), rtf.begin() + at, '\n'));
    return Unexpected<LayoutError>(LayoutError{ file, line, text.error().reason });
}

QString layoutTextName(SheetKind kind, int box)
{
    return sheetKind(kind).folderTexts.toString() + QString::number(box) + u".rtf"_s;
}

Expected<Sheet, LayoutError> readLayoutFolder(SheetKind kind, const LayoutFolder &files,
                                              const QString &path)
{
    auto sheet = readPositions(kind, files.positions, path);
    for (int i = 0; sheet && i < sheetKind(kind).boxes; ++i) {
        const QString file = folderOf(path) + layoutTextName(kind, i);
        if (size_t(i) >= files.texts.size()) {
            return Unexpected<LayoutError>(LayoutError{ file, 0, u"the file is missing"_s });
        }
        const auto text = readLayoutText(files.texts[size_t(i)], file);
        if (!text) {
            return Unexpected<LayoutError>(text.error());
        }
        sheet->boxes[size_t(i)].text = *text;
    }
    return sheet;
}

Expected<LayoutFolder, LayoutError> writeLayoutFolder(const Sheet &sheet, const QString &path)
{
    const auto positions = writePositions(sheet, path);
    if (!positions) {
        return Unexpected<LayoutError>(positions.error());
    }
    LayoutFolder files{ *positions, {} };
    for (const LayoutTextBox &box : sheet.boxes) {
        files.texts.push_back(writeRtf(box.text));
    }
    return files;
}

Sheet withPlacesOf(Sheet open, const Sheet &layout)
{
    open.width = layout.width;
    open.height = layout.height;
    const bool isCustom = open.kind == SheetKind::Custom;
    for (size_t i = 0; i < open.pictures.size(); ++i) {
        SheetPicture &picture = open.pictures[i];
        const SheetPicture before = picture;
        picture = layout.pictures[i];
        if (!isCustom) {
            picture.path = before.path;
        } else if (i == ownPicture) {
            picture.Left = before.Left;
            picture.Top = before.Top;
            picture.Locked = before.Locked;
        }
    }
    for (size_t i = 0; i < open.boxes.size(); ++i) {
        RichText text = std::move(open.boxes[i].text);
        open.boxes[i] = layout.boxes[i];
        open.boxes[i].text = std::move(text);
    }
    return open;
}

QByteArray writeTransferPlace(const QRectF &place)
{
    return lineOf(placeFields(place));
}

QByteArray writeTransferList(const std::vector<QRectF> &places)
{
    QByteArray bytes = QByteArray::number(places.size()) + "\r\n";
    for (const QRectF &place : places) {
        bytes += writeTransferPlace(place);
    }
    return bytes;
}

Expected<std::vector<QRectF>, LayoutError> readTransferList(QByteArrayView bytes,
                                                            const QString &file)
{
    LayoutLines lines(bytes, file);
    const QStringList first = lines.fields(1, u"the count of text boxes");
    const int count = lines.integer(first[0], u"the count of text boxes", 0, mostSheetPixels);
    std::vector<QRectF> places;
    while (!lines.error() && places.size() < size_t(count)) {
        places.push_back(readRecord(lines));
    }
    return unlessFailed(lines, std::move(places));
}

Expected<QRectF, LayoutError> readTransferPlace(QByteArrayView bytes, const QString &file)
{
    LayoutLines lines(bytes, file);
    const QRectF place = readRecord(lines);
    return unlessFailed(lines, place);
}

} // namespace zeph
