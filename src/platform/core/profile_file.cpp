// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "platform/core/profile_file.h"

#include "platform/core/paths.h"
#include "platform/core/profile_index.h"
#include "platform/core/text1252.h"

#include <QDeadlineTimer>
#include <QFileInfo>
#include <QHash>
#include <QLockFile>
#include <QThread>

#include <algorithm>
#include <vector>

namespace zeph {

namespace profile {

namespace {

bool isQuoted(QStringView value)
{
    return value.size() >= 2 && value.front() == value.back()
        && (value.front() == u'"' || value.front() == u'\'');
}

QString valueAt(const QByteArray &file, const KeyPlace &place)
{
    QByteArrayView bytes =
        QByteArrayView(file).sliced(place.valueStart, place.valueEnd - place.valueStart);
    // The platform's calls end a text at its first NUL.
    const qsizetype nul = bytes.indexOf('\0');
    if (nul >= 0) {
        bytes = bytes.first(nul);
    }
    const QString text = fromText1252(withoutBlanks(bytes));
    return isQuoted(text) ? text.sliced(1, text.size() - 2) : text;
}

/// The part of a text that fits into one line: up to the first NUL or line end.
QStringView oneLine(QStringView text)
{
    const auto end = std::find_if(text.begin(), text.end(),
                                  [](QChar c) { return c == u'\0' || c == u'\n' || c == u'\r'; });
    return text.first(end - text.begin());
}

/// The value as it has to be written so that a read gives it back.
QByteArray written(QStringView value)
{
    const bool needsQuotes = isQuoted(value) || withoutBlanks(value).size() != value.size();
    const QByteArray bytes = toText1252(value);
    return needsQuotes ? '"' + bytes + '"' : bytes;
}

bool isKeyName(QStringView key)
{
    return !key.isEmpty() && key.front() != u'[' && key.front() != u';' && !key.contains(u'=')
        && oneLine(key).size() == key.size() && firstNot1252(key) < 0;
}

bool isSectionName(QStringView section)
{
    return !section.contains(u']') && oneLine(section).size() == section.size()
        && firstNot1252(section) < 0;
}

} // namespace

std::optional<QString> value(const QByteArray &file, QStringView section, QStringView key)
{
    const KeyPlace place = placeOf(file, withoutBlanks(section), withoutBlanks(key));
    return place.hasKey ? std::optional(valueAt(file, place)) : std::nullopt;
}

namespace {

/// The bytes of one place that give way to others.
struct ProfileEdit {
    qsizetype at = 0;
    qsizetype length = 0;
    QByteArray bytes;
    bool isLine = false; ///< begins on a line of its own
};

QString keyNameOf(const ProfileEntry &entry)
{
    return (withoutBlanks(entry.section).toString() + u'\n' + withoutBlanks(entry.key).toString())
        .toCaseFolded();
}

/// Each key once, with the value that is given last.
QList<ProfileEntry> lastValues(const QList<ProfileEntry> &entries)
{
    QList<ProfileEntry> last;
    QHash<QString, qsizetype> places;
    for (const ProfileEntry &entry : entries) {
        const QString name = keyNameOf(entry);
        const auto known = places.constFind(name);
        if (known == places.cend()) {
            places.insert(name, last.size());
            last.append(entry);
        } else {
            last[*known].value = entry.value;
        }
    }
    return last;
}

/// A key that the file has, and the value that it is to get.
struct HeldKey {
    KeyPlace place;
    QStringView value;
};

/// The edits that give these keys their values; the last one of several for one key counts.
std::vector<ProfileEdit> editsOf(const QByteArray &file, std::vector<HeldKey> keys)
{
    const auto placeOfValue = [](const HeldKey &key) {
        return key.place.valueStart;
    };
    std::ranges::stable_sort(keys, {}, placeOfValue);
    std::vector<ProfileEdit> edits;
    for (size_t at = 0; at < keys.size(); ++at) {
        const auto &[place, value] = keys[at];
        const bool isLast = at + 1 == keys.size() || placeOfValue(keys[at + 1]) > place.valueStart;
        if (isLast && valueAt(file, place) != value) {
            edits.push_back(
                { place.valueStart, place.valueEnd - place.valueStart, written(value) });
        }
    }
    return edits;
}

/// The edits that add these keys to their sections, or sections for them to the file.
std::vector<ProfileEdit> additionsOf(const QByteArray &file, const QList<ProfileEntry> &entries,
                                     const QByteArray &lineEnd)
{
    std::vector<ProfileEdit> edits;
    std::vector<std::pair<QString, ProfileEdit>> newSections;
    for (const ProfileEntry &entry : lastValues(entries)) {
        const QStringView section = withoutBlanks(entry.section);
        const QStringView key = withoutBlanks(entry.key);
        const KeyPlace place = placeOf(file, section, key);
        const QByteArray line = toText1252(key) + '=' + written(oneLine(entry.value)) + lineEnd;
        if (place.hasSection) {
            edits.push_back({ place.sectionEnd, 0, line, true });
            continue;
        }
        auto known = std::ranges::find_if(newSections, [section](const auto &each) {
            return section.compare(each.first, Qt::CaseInsensitive) == 0;
        });
        if (known == newSections.end()) {
            known = newSections.insert(
                known,
                { section.toString(),
                  { file.size(), 0, '[' + toText1252(section) + ']' + lineEnd, true } });
        }
        known->second.bytes += line;
    }
    for (auto &[name, edit] : newSections) {
        edits.push_back(std::move(edit));
    }
    return edits;
}

QByteArray applied(const QByteArray &file, const std::vector<ProfileEdit> &edits,
                   const QByteArray &lineEnd)
{
    QByteArray result;
    result.reserve(file.size() + 1024);
    qsizetype done = 0;
    for (const ProfileEdit &edit : edits) {
        result.append(QByteArrayView(file).sliced(done, edit.at - done));
        const bool isOnNewLine = result.isEmpty() || result.endsWith('\n') || result.endsWith('\r')
            || QByteArrayView(result) == byteOrderMark;
        if (edit.isLine && !isOnNewLine) {
            result.append(lineEnd);
        }
        result.append(edit.bytes);
        done = edit.at + edit.length;
    }
    return result.append(QByteArrayView(file).sliced(done));
}

} // namespace

QByteArray withValues(const QByteArray &file, const QList<ProfileEntry> &entries)
{
    std::vector<HeldKey> held;
    QList<ProfileEntry> missing;
    for (const ProfileEntry &entry : entries) {
        const QStringView section = withoutBlanks(entry.section);
        const QStringView key = withoutBlanks(entry.key);
        if (!isSectionName(section) || !isKeyName(key)) {
            continue;
        }
        const KeyPlace place = placeOf(file, section, key);
        if (place.hasKey) {
            held.push_back({ place, oneLine(entry.value) });
        } else {
            missing.append(entry);
        }
    }
    const QByteArray lineEnd = lineEndOf(file);
    std::vector<ProfileEdit> edits = editsOf(file, std::move(held));
    std::ranges::move(additionsOf(file, missing, lineEnd), std::back_inserter(edits));
    std::ranges::stable_sort(edits, {}, &ProfileEdit::at);
    return edits.empty() ? file : applied(file, edits, lineEnd);
}

QByteArray withValue(const QByteArray &file, const ProfileEntry &entry)
{
    return withValues(file, { entry });
}

QByteArray withoutKeys(QByteArray file, QStringView section, const QStringList &keys)
{
    for (const QString &key : keys) {
        // Without this line a later one of the same key would count: all of them go.
        for (KeyPlace place = placeOf(file, withoutBlanks(section), key); place.hasKey;
             place = placeOf(file, withoutBlanks(section), key)) {
            file.remove(place.line.start, place.line.next - place.line.start);
        }
    }
    return file;
}

qint32 integerOf(const std::optional<QString> &value, qint32 fallback)
{
    if (!value || value->isEmpty()) {
        return fallback;
    }
    QStringView text = *value;
    while (!text.isEmpty() && text.front() <= u' ') {
        // Quotes may hold blanks before the number.
        text = text.sliced(1);
    }
    const bool negative = text.startsWith(u'-');
    if (negative || text.startsWith(u'+')) {
        text = text.sliced(1);
    }
    quint32 number = 0;
    for (const QChar c : text) {
        if (c < u'0' || c > u'9') {
            break;
        }
        number = number * 10 + (c.unicode() - u'0');
    }
    return qint32(negative ? 0 - number : number);
}

} // namespace profile

namespace {

/// The path under which the file really exists, or the given one when it is to be made.
QString diskPath(const QString &path)
{
    const QString found = existingPath(path);
    return found.isEmpty() ? nativeSeparators(path) : found;
}

/// The first entry whose value the file's code page cannot hold, or null.
const ProfileEntry *firstUnwritable(const QList<ProfileEntry> &entries)
{
    const auto found = std::ranges::find_if(
        entries, [](const ProfileEntry &entry) { return firstNot1252(entry.value) >= 0; });
    return found == entries.end() ? nullptr : &*found;
}

/// A program that changes a file again and again must not keep this one busy for ever.
constexpr int mostAttempts = 100;

/// Windows' own editors write UTF-16 with a mark; without one every other byte of its Latin letters
/// is NUL.
bool isUtf16(const QByteArray &file)
{
    return file.startsWith("\xFF\xFE") || file.startsWith("\xFE\xFF")
        || (file.size() > 1 && (file[0] == '\0') != (file[1] == '\0'));
}

/// The lock of a file that several programs change; it is held as long as this lives. A lock that
/// cannot be made, or that its owner does not give back in time, keeps nobody from writing.
class SharedFileLock
{
public:
    explicit SharedFileLock(const QString &path) : m_lock(path + u".lock"_s)
    {
        constexpr int staleMs = 3000;
        constexpr int patienceMs = 5000;
        constexpr int pauseMs = 5;
        constexpr int mostDenials = 20;
        m_lock.setStaleLockTime(staleMs);
        // A folder that is not there is told by the write itself.
        const bool canBeMade = QFileInfo(QFileInfo(path).path()).isDir();
        const QDeadlineTimer patience(patienceMs);
        int denials = 0;
        while (canBeMade && !m_lock.tryLock(0) && !patience.hasExpired()) {
            // Windows denies access to a lock that is just being removed, as it does for good where
            // nobody may write.
            const bool isHeld = m_lock.error() == QLockFile::LockFailedError;
            if (!isHeld
                && (m_lock.error() != QLockFile::PermissionError || ++denials > mostDenials)) {
                break;
            }
            QThread::msleep(pauseMs);
        }
    }

private:
    QLockFile m_lock;
};

} // namespace

ProfileFile::ProfileFile(QString path, ProfileUse use) : m_path(std::move(path)), m_use(use) { }

Expected<QByteArray, FileError> ProfileFile::bytes() const
{
    const QString path = diskPath(m_path);
    return QFileInfo::exists(path) ? readWholeFile(path)
                                   : Expected<QByteArray, FileError>(QByteArray());
}

QString ProfileFile::text(QStringView section, QStringView key, const QString &fallback,
                          int buffer) const
{
    const auto file = bytes();
    const auto found = file ? profile::value(*file, section, key) : std::nullopt;
    return found.value_or(fallback).left(buffer - 1);
}

qint32 ProfileFile::integer(QStringView section, QStringView key, qint32 fallback) const
{
    const auto file = bytes();
    return profile::integerOf(file ? profile::value(*file, section, key) : std::nullopt, fallback);
}

Expected<void, FileError> ProfileFile::write(const ProfileEntry &entry) const
{
    return write(QList<ProfileEntry>{ entry });
}

Expected<void, FileError> ProfileFile::write(const QList<ProfileEntry> &entries) const
{
    if (entries.isEmpty()) {
        return {};
    }
    QList<ProfileEntry> writable = entries;
    writable.removeIf([](const ProfileEntry &entry) { return firstNot1252(entry.value) >= 0; });
    const auto done =
        change([&writable](const QByteArray &file) { return profile::withValues(file, writable); });
    if (!done) {
        return done;
    }
    if (const ProfileEntry *lost = firstUnwritable(entries)) {
        return Unexpected<FileError>(FileError{
            diskPath(m_path),
            u"The value of %1 holds a character that the file cannot take."_s.arg(lost->key) });
    }
    return {};
}

Expected<void, FileError> ProfileFile::remove(QStringView section, const QStringList &keys) const
{
    if (!QFileInfo::exists(diskPath(m_path))) {
        return {};
    }
    return change([section, &keys](const QByteArray &file) {
        return profile::withoutKeys(file, section, keys);
    });
}

Expected<void, FileError> ProfileFile::change(const Change &change) const
{
    const QString path = diskPath(m_path);
    std::optional<SharedFileLock> lock;
    if (m_use == ProfileUse::Shared) {
        lock.emplace(path);
    }
    for (int i = 0; i < mostAttempts; ++i) {
        const auto held = bytes();
        if (!held) {
            // Replacing what cannot be read would lose all other keys.
            return Unexpected<FileError>(held.error());
        }
        if (isUtf16(*held)) {
            return Unexpected<FileError>(FileError{
                path, u"It is written in UTF-16, so I left it alone: save it as ANSI text"_s });
        }
        const QByteArray changed = change(*held);
        if (changed == *held && QFileInfo::exists(path)) {
            return {};
        }
        const auto replaced = replaceFile(path, *held, changed);
        if (!replaced) {
            return Unexpected<FileError>(replaced.error());
        }
        if (*replaced) {
            return {};
        }
    }
    return Unexpected<FileError>(FileError{ path, u"Another program writes it again and again"_s });
}

} // namespace zeph
