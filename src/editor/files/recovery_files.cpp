// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "editor/files/recovery_files.h"

#include "platform/core/paths.h"

#include <QDir>

#include <algorithm>

namespace zeph {

namespace {

constexpr QByteArrayView firstLine = "Zeph recovery file";
constexpr QByteArrayView kindKey = "Kind=";
constexpr QByteArrayView pathKey = "Path=";
constexpr QByteArrayView writtenKey = "Written=";
constexpr QByteArrayView lengthKey = "Length=";
constexpr QByteArrayView kindNames[] = { "Joystick", "Macro", "Template" };
constexpr QStringView fileNames[] = { u"joystick.txt", u"macro.txt", u"template.txt" };
constexpr RecoveredKind allKinds[] = { RecoveredKind::Joystick, RecoveredKind::Macro,
                                       RecoveredKind::Template };
/// More than anybody runs at once; bounds the search for a free number.
constexpr int mostFolders = 1000;

QByteArray keyLine(QByteArrayView key, const QByteArray &value)
{
    return key.toByteArray() + value + '\n';
}

/// Removes the next line and returns its value; no value when the line has another key.
std::optional<QByteArray> takeValue(QByteArrayView &bytes, QByteArrayView key)
{
    const qsizetype end = bytes.indexOf('\n');
    if (end < 0 || !bytes.startsWith(key)) {
        return {};
    }
    const QByteArray value = bytes.sliced(key.size(), end - key.size()).toByteArray();
    bytes = bytes.sliced(end + 1);
    return value;
}

QString fileIn(const QString &folder, RecoveredKind kind)
{
    return withClosingSeparator(folder) + fileNames[size_t(kind)].toString();
}

void removeFolder(const QString &folder)
{
    QDir().rmdir(folder);
    // Fails, as it should, while another run still has its folder in the parent.
    QDir().rmdir(QFileInfo(folder).path());
}

} // namespace

QByteArray recoveryBytes(const RecoveredText &recovered)
{
    const QByteArray text = recovered.text.toUtf8();
    return keyLine(firstLine, {})
        + keyLine(kindKey, kindNames[size_t(recovered.kind)].toByteArray())
        + keyLine(pathKey, recovered.path.toUtf8())
        + keyLine(writtenKey, recovered.written.toString(Qt::ISODate).toLatin1())
        + keyLine(lengthKey, QByteArray::number(text.size())) + '\n' + text;
}

std::optional<RecoveredText> readRecovery(const QByteArray &bytes)
{
    QByteArrayView rest = bytes;
    if (!takeValue(rest, firstLine)) {
        return {};
    }
    const auto kind = takeValue(rest, kindKey);
    const auto path = kind ? takeValue(rest, pathKey) : std::nullopt;
    const auto written = path ? takeValue(rest, writtenKey) : std::nullopt;
    const auto length = written ? takeValue(rest, lengthKey) : std::nullopt;
    if (!length || !rest.startsWith('\n')) {
        return {};
    }
    const auto *name = std::ranges::find(kindNames, QByteArrayView(*kind));
    rest = rest.sliced(1);
    if (name == std::end(kindNames) || rest.size() != length->toLongLong()) {
        return {};
    }
    return RecoveredText{ RecoveredKind(name - std::begin(kindNames)), QString::fromUtf8(*path),
                          QDateTime::fromString(QString::fromLatin1(*written), Qt::ISODate),
                          QString::fromUtf8(rest) };
}

RecoveryFolder::RecoveryFolder(const QString &parent) : m_parent(withClosingSeparator(parent)) { }

Expected<void, FileError> RecoveryFolder::claim()
{
    QDir().mkpath(m_parent);
    for (int number = 1; number <= mostFolders; ++number) {
        const QString folder = m_parent + QString::number(number);
        // A folder that exists already may hold what another run left.
        if (QDir().mkdir(folder)) {
            m_lock = std::make_unique<InstanceLock>(folder);
            if (!m_lock->isFirst()) {
                // Another program, just starting, took the empty folder for one that a crash left.
                continue;
            }
            m_folder = folder;
            return {};
        }
        if (!folderExists(folder)) {
            return Unexpected<FileError>(FileError{ folder, u"the folder can't be made."_s });
        }
    }
    return Unexpected<FileError>(FileError{ m_parent, u"the folder is full."_s });
}

Expected<void, FileError> RecoveryFolder::write(const RecoveredText &recovered)
{
    if (m_folder.isEmpty()) {
        if (auto claimed = claim(); !claimed) {
            return claimed;
        }
    }
    return writeFileAtomically(fileIn(m_folder, recovered.kind), recoveryBytes(recovered));
}

RecoveryFolder::~RecoveryFolder()
{
    settle();
}

void RecoveryFolder::writeSoon(std::function<std::vector<RecoveredText>()> make)
{
    m_writing = std::async(std::launch::async, [this, make = std::move(make)] {
        std::vector<Written> written;
        for (RecoveredText &text : make()) {
            auto result = write(text);
            written.push_back({ std::move(text), std::move(result) });
        }
        Q_EMIT hasWritten();
        return written;
    });
}

std::vector<RecoveryFolder::Written> RecoveryFolder::settle()
{
    return m_writing.valid() ? m_writing.get() : std::vector<Written>();
}

void RecoveryFolder::remove(RecoveredKind kind)
{
    if (!m_folder.isEmpty()) {
        QFile::remove(fileIn(m_folder, kind));
    }
}

void RecoveryFolder::finish()
{
    if (m_folder.isEmpty()) {
        return;
    }
    for (const RecoveredKind kind : allKinds) {
        remove(kind);
    }
    m_lock.reset();
    removeFolder(m_folder);
    m_folder.clear();
}

LeftRecovery::LeftRecovery(QString folder, std::unique_ptr<InstanceLock> lock)
    : m_folder(std::move(folder)), m_lock(std::move(lock))
{
    for (const RecoveredKind kind : allKinds) {
        const QString path = fileIn(m_folder, kind);
        const auto bytes = readWholeFile(path);
        if (auto recovered = bytes ? readRecovery(*bytes) : std::nullopt) {
            m_files.append({ path, *std::move(recovered) });
        } else if (QFile::exists(path)) {
            m_damaged.append(path);
        }
    }
}

void LeftRecovery::remove(const File &file)
{
    QFile::remove(file.path);
}

void LeftRecovery::finish()
{
    m_lock.reset();
    // An interrupted write leaves a partial file beside the target, which would keep the folder
    // from ever being empty: with the target's name and an ending, or on Windows a name of its own.
    QStringList parts{ u"~*"_s };
    for (const QStringView name : fileNames) {
        parts.append(name.toString() + u".*"_s);
    }
    QDir folder(m_folder);
    for (const QString &part : folder.entryList(parts, QDir::Files)) {
        folder.remove(part);
    }
    removeFolder(m_folder);
}

std::vector<LeftRecovery> leftRecoveries(const QString &parent, const MayTakeOver &mayTakeOver)
{
    std::vector<LeftRecovery> left;
    const QFileInfoList folders =
        QDir(parent).entryInfoList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Time);
    for (const QFileInfo &folder : folders) {
        const QString path = QDir::toNativeSeparators(folder.filePath());
        auto lock = std::make_unique<InstanceLock>(path, InstanceLock::folderLock, mayTakeOver);
        if (lock->isFirst()) {
            left.emplace_back(path, std::move(lock));
        }
    }
    if (folders.isEmpty()) {
        // A run that was killed between the two removals of its end left the bare parent.
        QDir().rmdir(parent);
    }
    return left;
}

} // namespace zeph
