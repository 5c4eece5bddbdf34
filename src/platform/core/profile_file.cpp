// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "platform/core/profile_file.h"

#include "platform/core/paths.h"
#include "platform/core/text1252.h"

#include <QDeadlineTimer>
#include <QFileInfo>
#include <QLockFile>
#include <QThread>

#include <algorithm>

namespace zeph {

namespace profile {

namespace {

constexpr QByteArrayView byteOrderMark = "\xEF\xBB\xBF";

/// Offsets into the file: [start, end) is the line, next the start of the line after it.
struct ProfileLine {
    qsizetype start = 0;
    qsizetype end = 0;
    qsizetype next = 0;
};

/// Walks the lines of a file. All three kinds of line ends count, also mixed in one file.
class Lines
{
public:
    explicit Lines(const QByteArray &file)
        : m_file(file), m_next(file.startsWith(byteOrderMark) ? byteOrderMark.size() : 0)
    {
    }

    bool next(ProfileLine &line)
    {
        if (m_next >= m_file.size()) {
            return false;
        }
        line.start = m_next;
        const char *data = m_file.constData();
        const char *stop = data + m_file.size();
        const char *end =
            std::find_if(data + m_next, stop, [](char c) { return c == '\n' || c == '\r'; });
        line.end = end - data;
        line.next = std::min(line.end + 1, m_file.size());
        if (line.next < m_file.size() && data[line.end] == '\r' && data[line.next] == '\n') {
            ++line.next;
        }
        m_next = line.next;
        return true;
    }

private:
    const QByteArray &m_file;
    qsizetype m_next;
};

bool isBlank(char c)
{
    return c == ' ' || c == '\t';
}

QByteArrayView withoutBlanks(QByteArrayView bytes)
{
    while (!bytes.isEmpty() && isBlank(bytes.front())) {
        bytes = bytes.sliced(1);
    }
    while (!bytes.isEmpty() && isBlank(bytes.back())) {
        bytes = bytes.chopped(1);
    }
    return bytes;
}

QStringView withoutBlanks(QStringView text)
{
    const auto blank = [](QChar c) {
        return c == u' ' || c == u'\t';
    };
    while (!text.isEmpty() && blank(text.front())) {
        text = text.sliced(1);
    }
    while (!text.isEmpty() && blank(text.back())) {
        text = text.chopped(1);
    }
    return text;
}

bool isSameName(QByteArrayView bytes, QStringView name)
{
    return bytes.size() == name.size()
        && fromText1252(bytes).compare(name, Qt::CaseInsensitive) == 0;
}

/// The name of a section header; no value for another line. The closing bracket may be missing.
std::optional<QByteArrayView> sectionOf(QByteArrayView line)
{
    line = withoutBlanks(line);
    if (line.isEmpty() || line.front() != '[') {
        return std::nullopt;
    }
    line = line.sliced(1);
    const qsizetype close = line.indexOf(']');
    return withoutBlanks(close < 0 ? line : line.first(close));
}

bool isComment(QByteArrayView line)
{
    line = withoutBlanks(line);
    return !line.isEmpty() && line.front() == ';';
}

bool isQuoted(QStringView value)
{
    return value.size() >= 2 && value.front() == value.back()
        && (value.front() == u'"' || value.front() == u'\'');
}

/// Where a key is, or where it would be added.
struct KeyPlace {
    bool hasSection = false;
    qsizetype sectionEnd = 0; ///< after the section's last line that is not empty
    bool hasKey = false;
    ProfileLine line; ///< the key's
    qsizetype valueStart = 0; ///< after the "=" and its blanks
    qsizetype valueEnd = 0; ///< the line's end, blanks included
};

KeyPlace placeOf(const QByteArray &file, QStringView section, QStringView key)
{
    KeyPlace place;
    Lines lines(file);
    ProfileLine line;
    while (lines.next(line)) {
        const QByteArrayView bytes = QByteArrayView(file).sliced(line.start, line.end - line.start);
        if (const auto name = sectionOf(bytes)) {
            if (place.hasSection) {
                break;
            }
            if (isSameName(*name, section)) {
                place.hasSection = true;
                place.sectionEnd = line.next;
            }
            continue;
        }
        if (!place.hasSection || withoutBlanks(bytes).isEmpty()) {
            continue;
        }
        place.sectionEnd = line.next;
        const qsizetype equals = bytes.indexOf('=');
        if (equals >= 0 && !isComment(bytes)
            && isSameName(withoutBlanks(bytes.first(equals)), key)) {
            place.hasKey = true;
            place.line = line;
            place.valueStart = line.start + equals + 1;
            place.valueEnd = line.end;
            while (place.valueStart < place.valueEnd && isBlank(file[place.valueStart])) {
                ++place.valueStart;
            }
            break;
        }
    }
    return place;
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

QByteArray lineEndOf(const QByteArray &file)
{
    Lines lines(file);
    ProfileLine line;
    if (!lines.next(line) || line.next == line.end) {
        return "\r\n";
    }
    return file.sliced(line.end, line.next - line.end);
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

QByteArray withValue(const QByteArray &file, const ProfileEntry &entry)
{
    const QStringView section = withoutBlanks(entry.section);
    const QStringView key = withoutBlanks(entry.key);
    if (!isSectionName(section) || !isKeyName(key)) {
        return file;
    }
    const QStringView text = oneLine(entry.value);
    const KeyPlace place = placeOf(file, section, key);
    QByteArray result = file;
    if (place.hasKey) {
        if (valueAt(file, place) != text) {
            result.replace(place.valueStart, place.valueEnd - place.valueStart, written(text));
        }
        return result;
    }
    const QByteArray lineEnd = lineEndOf(file);
    QByteArray added = toText1252(key) + '=' + written(text) + lineEnd;
    if (!place.hasSection) {
        added.prepend('[' + toText1252(section) + ']' + lineEnd);
    }
    const qsizetype at = place.hasSection ? place.sectionEnd : file.size();
    const bool onNewLine = at == 0 || file[at - 1] == '\n' || file[at - 1] == '\r'
        || (at == byteOrderMark.size() && file.startsWith(byteOrderMark));
    return result.insert(at, onNewLine ? added : lineEnd + added);
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
    const QString &text = *value;
    const bool negative = text.front() == u'-';
    quint32 number = 0;
    for (qsizetype i = negative || text.front() == u'+' ? 1 : 0; i < text.size(); ++i) {
        const char16_t c = text[i].unicode();
        if (c < u'0' || c > u'9') {
            break;
        }
        number = number * 10 + (c - u'0');
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
        m_lock.setStaleLockTime(staleMs);
        const QDeadlineTimer patience(patienceMs);
        while (!m_lock.tryLock(0) && m_lock.error() == QLockFile::LockFailedError
               && !patience.hasExpired()) {
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
    const auto done = change([&entries](QByteArray file) {
        for (const ProfileEntry &entry : entries) {
            if (firstNot1252(entry.value) < 0) {
                file = profile::withValue(file, entry);
            }
        }
        return file;
    });
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
