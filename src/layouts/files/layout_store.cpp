// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "layouts/files/layout_store.h"

#include "platform/core/file_io.h"
#include "platform/core/paths.h"
#include "platform/core/portable_paths.h"
#include "platform/core/rtf.h"
#include "platform/core/zip_names.h"

#include <QDir>
#include <QFileInfo>

namespace zeph {

namespace {

/// The folder of transfers, below that of all layouts.
const QString transferFolder = u"temp"_s;
const QString rtfExtension = u".rtf"_s;
const QString placeExtension = u".pos"_s;

Unexpected<LayoutError> failure(const FileError &error)
{
    return Unexpected<LayoutError>(LayoutError{ error.path, 0, error.reason });
}

/// The bytes of a file whose name may be written in another case. The error has the path as asked.
Expected<QByteArray, LayoutError> bytesOf(const QString &path)
{
    const QString existing = existingPath(path);
    if (existing.isEmpty()) {
        return Unexpected<LayoutError>(LayoutError{ path, 0, u"the file is missing"_s });
    }
    auto bytes = readWholeFile(existing);
    if (!bytes) {
        return failure(bytes.error());
    }
    return *bytes;
}

/// The file to replace: what exists under the name in any case, at the end of its links.
QString targetOf(const QString &path)
{
    const QString existing = existingPath(path);
    const QString target = QFileInfo(existing).canonicalFilePath();
    return target.isEmpty() ? path : QDir::toNativeSeparators(target);
}

/// Files that are written together, after their folder has been made.
class FolderWriter
{
public:
    explicit FolderWriter(QString folder) : m_folder(std::move(folder))
    {
        const QString existing = existingPath(m_folder);
        if (!existing.isEmpty()) {
            m_folder = withClosingSeparator(existing);
        } else if (!QDir().mkpath(m_folder)) {
            m_error = LayoutError{ m_folder, 0, u"the folder cannot be made"_s };
        }
    }

    void add(const QString &name, const QByteArray &bytes)
    {
        const QString path = targetOf(m_folder + name);
        if (!m_error && isReadOnlyFile(path)) {
            m_error = LayoutError{ path, 0, u"the file is read only"_s };
        }
        if (!m_error) {
            if (const auto added = m_batch.add(path, bytes); !added) {
                m_error = LayoutError{ path, 0, added.error().reason };
            }
        }
    }

    Expected<void, LayoutError> commit()
    {
        if (!m_error) {
            const auto errors = m_batch.commit();
            if (!errors.empty()) {
                m_error = LayoutError{ errors.front().path, 0, errors.front().reason };
            }
        }
        if (m_error) {
            return Unexpected<LayoutError>(*m_error);
        }
        return {};
    }

private:
    QString m_folder;
    FileBatch m_batch;
    std::optional<LayoutError> m_error;
};

QString transferPath(const QString &layouts)
{
    return layouts + transferFolder + QDir::separator();
}

QString numbered(QStringView start, size_t number)
{
    return start.toString() + QString::number(number) + rtfExtension;
}

Expected<TransferBox, LayoutError> loadBox(const QRectF &place, const QString &textFile)
{
    const auto bytes = bytesOf(textFile);
    if (!bytes) {
        return Unexpected<LayoutError>(bytes.error());
    }
    auto text = readLayoutText(*bytes, textFile);
    if (!text) {
        return Unexpected<LayoutError>(text.error());
    }
    return TransferBox{ place, std::move(*text) };
}

/// The bytes of what was sent; empty when nothing was.
Expected<QByteArray, LayoutError> sent(const QString &path)
{
    if (!fileExists(path)) {
        return QByteArray();
    }
    return bytesOf(path);
}

} // namespace

std::optional<LayoutForm> layoutFormOf(SheetKind kind, const QString &path)
{
    for (const LayoutForm form : { LayoutForm::Positions, LayoutForm::WithText }) {
        if (path.endsWith(sheetKind(kind).form(form).extension, Qt::CaseInsensitive)) {
            return form;
        }
    }
    return std::nullopt;
}

QString layoutPath(SheetKind kind, LayoutForm form, const QString &layouts, const QString &name)
{
    const SheetKindRow &row = sheetKind(kind);
    if (form == LayoutForm::WithText) {
        return layouts + name + QDir::separator() + row.folderFile.toString();
    }
    const QString extension = row.positions.extension.toString();
    return layouts + name + (name.endsWith(extension, Qt::CaseInsensitive) ? QString() : extension);
}

QStringList layoutNames(const QString &layouts)
{
    QStringList names = QDir(layouts).entryList(QDir::Dirs | QDir::NoDotAndDotDot | QDir::Hidden,
                                                QDir::Name | QDir::IgnoreCase);
    names.removeIf(
        [](const QString &name) { return name.compare(transferFolder, Qt::CaseInsensitive) == 0; });
    return names;
}

Expected<void, QString> checkLayoutName(const QString &name)
{
    if (name.compare(transferFolder, Qt::CaseInsensitive) == 0) {
        return Unexpected<QString>(u"I keep the texts on their way to the custom sheet under "
                                   "“temp”: please take another name."_s);
    }
    return checkFileName(name).map_error([](const QString &reason) {
        return u"I can't save a layout under that name: %1."_s.arg(reason);
    });
}

Expected<Sheet, LayoutError> loadLayout(SheetKind kind, LayoutForm form, const QString &path)
{
    const auto positions = bytesOf(path);
    if (!positions) {
        return Unexpected<LayoutError>(positions.error());
    }
    if (form == LayoutForm::Positions) {
        return readPositions(kind, *positions, path);
    }
    LayoutFolder files{ *positions, {} };
    for (int i = 0; i < sheetKind(kind).boxes; ++i) {
        const auto text = bytesOf(folderOf(path) + layoutTextName(kind, i));
        if (!text) {
            return Unexpected<LayoutError>(text.error());
        }
        files.texts.push_back(*text);
    }
    return readLayoutFolder(kind, files, path);
}

Expected<void, LayoutError> saveLayout(const Sheet &sheet, LayoutForm form, const QString &path)
{
    const auto files = form == LayoutForm::WithText
        ? writeLayoutFolder(sheet, path)
        : writePositions(sheet, path).map([](const QByteArray &bytes) {
              return LayoutFolder{ bytes, {} };
          });
    if (!files) {
        return Unexpected<LayoutError>(files.error());
    }
    FolderWriter writer(folderOf(path));
    writer.add(nameOf(path), files->positions);
    for (size_t i = 0; i < files->texts.size(); ++i) {
        writer.add(layoutTextName(sheet.kind, int(i)), files->texts[i]);
    }
    return writer.commit();
}

QString pictureFile(const QString &path, const QString &appFolder)
{
    const bool startsAtRoot = path.startsWith(u'\\') || path.startsWith(u'/');
    for (const QString &name : { path, startsAtRoot ? path.sliced(1) : QString() }) {
        const QString found = name.isEmpty() ? QString() : resolvedPath(name, appFolder);
        if (fileExists(found)) {
            return existingPath(found);
        }
    }
    return {};
}

QString picturePathOf(const QString &file, const QString &appFolder)
{
    return storedPath(file, appFolder);
}

std::vector<TransferBox> shownBoxes(const Sheet &sheet)
{
    std::vector<TransferBox> boxes;
    for (const LayoutTextBox &box : sheet.boxes) {
        if (box.Visible) {
            boxes.push_back({ QRectF(box.Left, box.Top, box.Width, box.Height), box.text });
        }
    }
    return boxes;
}

Expected<void, LayoutError> saveAllForTransfer(SheetKind from, const QString &layouts,
                                               const std::vector<TransferBox> &boxes)
{
    const TransferNames &names = sheetKind(from).transfer;
    FolderWriter writer(transferPath(layouts));
    std::vector<QRectF> places;
    for (const TransferBox &box : boxes) {
        writer.add(numbered(names.texts, places.size()), writeRtf(box.text));
        places.push_back(box.place);
    }
    writer.add(names.list.toString(), writeTransferList(places));
    return writer.commit();
}

Expected<void, LayoutError> saveSingleForTransfer(SheetKind from, const QString &layouts,
                                                  const TransferBox &box)
{
    const QString name = sheetKind(from).transfer.single.toString();
    FolderWriter writer(transferPath(layouts));
    writer.add(name + rtfExtension, writeRtf(box.text));
    writer.add(name + placeExtension, writeTransferPlace(box.place));
    return writer.commit();
}

Expected<std::vector<TransferBox>, LayoutError> loadAllForTransfer(SheetKind from,
                                                                   const QString &layouts)
{
    const TransferNames &names = sheetKind(from).transfer;
    const QString folder = transferPath(layouts);
    const auto list = sent(folder + names.list.toString());
    if (!list) {
        return Unexpected<LayoutError>(list.error());
    }
    std::vector<TransferBox> boxes;
    if (list->isEmpty()) {
        return boxes;
    }
    const auto places = readTransferList(*list, folder + names.list.toString());
    if (!places) {
        return Unexpected<LayoutError>(places.error());
    }
    for (const QRectF &place : *places) {
        auto box = loadBox(place, folder + numbered(names.texts, boxes.size()));
        if (!box) {
            return Unexpected<LayoutError>(box.error());
        }
        boxes.push_back(std::move(*box));
    }
    return boxes;
}

Expected<std::vector<TransferBox>, LayoutError> loadSingleForTransfer(SheetKind from,
                                                                      const QString &layouts)
{
    const QString start = transferPath(layouts) + sheetKind(from).transfer.single.toString();
    const auto record = sent(start + placeExtension);
    if (!record) {
        return Unexpected<LayoutError>(record.error());
    }
    std::vector<TransferBox> boxes;
    if (record->isEmpty()) {
        return boxes;
    }
    const auto place = readTransferPlace(*record, start + placeExtension);
    if (!place) {
        return Unexpected<LayoutError>(place.error());
    }
    auto box = loadBox(*place, start + rtfExtension);
    if (!box) {
        return Unexpected<LayoutError>(box.error());
    }
    boxes.push_back(std::move(*box));
    return boxes;
}

} // namespace zeph
