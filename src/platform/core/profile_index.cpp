// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "platform/core/profile_index.h"

#include "platform/core/text1252.h"

#include <QMultiHash>
#include <QMutex>

#include <algorithm>
#include <array>
#include <vector>

namespace zeph::profile {

namespace {

/// Walks the lines of a file. All three kinds of line ends count, also mixed in one file.
class Lines
{
public:
    explicit Lines(const QByteArray &file)
        : m_file(file), m_next(file.startsWith(byteOrderMark) ? byteOrderMark.size() : 0)
    {
    }

    /// Goes on at the next line that is not empty, or at the end.
    void skipEmpty()
    {
        while (m_next < m_file.size() && (m_file[m_next] == '\n' || m_file[m_next] == '\r')) {
            ++m_next;
        }
    }

    bool next(ProfileLine &line)
    {
        if (m_next >= m_file.size()) {
            return false;
        }
        line.start = m_next;
        const char *data = m_file.constData();
        line.end = std::min(nextOf('\n', m_nextLf), nextOf('\r', m_nextCr));
        line.next = std::min(line.end + 1, m_file.size());
        if (line.next < m_file.size() && data[line.end] == '\r' && data[line.next] == '\n') {
            ++line.next;
        }
        m_next = line.next;
        return true;
    }

private:
    /// Where the character is next, kept until the walk has passed it: a file may have only one
    /// kind of line ends.
    qsizetype nextOf(char c, qsizetype &known) const
    {
        if (known < m_next) {
            const qsizetype found = m_file.indexOf(c, m_next);
            known = found < 0 ? m_file.size() : found;
        }
        return known;
    }

    const QByteArray &m_file;
    qsizetype m_next;
    qsizetype m_nextLf = -1;
    qsizetype m_nextCr = -1;
};

bool isBlank(char c)
{
    return c == ' ' || c == '\t';
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

/// Where the sections and keys of a file are, so that many keys cost one walk through it.
class ProfileIndex
{
public:
    ProfileIndex() = default;
    explicit ProfileIndex(const QByteArray &file) : m_file(file)
    {
        Lines lines(m_file);
        ProfileLine line;
        std::optional<quint32> section;
        for (lines.skipEmpty(); lines.next(line); lines.skipEmpty()) {
            const QByteArrayView bytes = bytesOf(line);
            if (const auto name = sectionOf(bytes)) {
                // A second section of the name is none.
                section = find(*name) ? std::nullopt : std::optional(quint32(m_sections.size()));
                if (section) {
                    m_places.insert(hashOf(*name, noSection), *section);
                    m_sections.push_back({ *name, line.next });
                }
            } else if (section && !withoutBlanks(bytes).isEmpty()) {
                m_sections[*section].end = line.next;
                const qsizetype equals = bytes.indexOf('=');
                if (equals >= 0 && !isComment(bytes)) {
                    m_keys.push_back(
                        { hashOf(withoutBlanks(bytes.first(equals)), *section), line });
                }
            }
        }
        std::ranges::stable_sort(m_keys, {}, &Key::hash);
    }

    const QByteArray &file() const { return m_file; }

    KeyPlace placeOf(QStringView section, QStringView key) const
    {
        KeyPlace place;
        const auto found = find(toText1252(section));
        if (!found || firstNot1252(section) >= 0) {
            return place;
        }
        place.hasSection = true;
        place.sectionEnd = m_sections[*found].end;
        const auto keys =
            std::ranges::equal_range(m_keys, hashOf(toText1252(key), *found), {}, &Key::hash);
        for (const Key &each : keys) {
            const QByteArrayView bytes = bytesOf(each.line);
            const qsizetype equals = bytes.indexOf('=');
            if (isSameName(withoutBlanks(bytes.first(equals)), key)) {
                place.hasKey = true;
                place.line = each.line;
                place.valueStart = each.line.start + equals + 1;
                place.valueEnd = each.line.end;
                while (place.valueStart < place.valueEnd && isBlank(m_file[place.valueStart])) {
                    ++place.valueStart;
                }
                break;
            }
        }
        return place;
    }

private:
    struct Section {
        QByteArrayView name;
        qsizetype end = 0; ///< after its last line that is not empty
    };
    struct Key {
        quint64 hash = 0;
        ProfileLine line;
    };

    QByteArrayView bytesOf(const ProfileLine &line) const
    {
        return QByteArrayView(m_file).sliced(line.start, line.end - line.start);
    }

    std::optional<quint32> find(QByteArrayView name) const
    {
        const QString text = fromText1252(name);
        const auto [first, last] = m_places.equal_range(hashOf(name, noSection));
        const auto found = std::find_if(first, last, [this, &text](quint32 place) {
            return isSameName(m_sections[place].name, text);
        });
        return found == last ? std::nullopt : std::optional(*found);
    }

    /// The same for names that differ in nothing but case.
    static quint64 hashOf(QByteArrayView name, quint32 section)
    {
        static const std::array<char16_t, 256> folded = [] {
            std::array<char16_t, 256> table{};
            for (int byte = 0; byte < 256; ++byte) {
                const char one = char(byte);
                table[size_t(byte)] =
                    fromText1252(QByteArrayView(&one, 1)).front().toCaseFolded().unicode();
            }
            return table;
        }();
        quint64 hash = 14695981039346656037U ^ section;
        for (const char c : name) {
            hash = (hash ^ folded[uchar(c)]) * 1099511628211U;
        }
        return hash;
    }

    static constexpr quint32 noSection = ~quint32(0);

    QByteArray m_file;
    std::vector<Section> m_sections;
    QMultiHash<quint64, quint32> m_places; ///< of the sections, by their names' hashes
    std::vector<Key> m_keys;
};

/// The start reads some hundred keys of files that do not change meanwhile, each from the disk.
class KnownFiles
{
public:
    KeyPlace placeOf(const QByteArray &file, QStringView section, QStringView key)
    {
        const QMutexLocker lock(&m_mutex);
        return indexOf(file).placeOf(section, key);
    }

private:
    const ProfileIndex &indexOf(const QByteArray &file)
    {
        const auto found = std::ranges::find_if(m_known, [&file](const ProfileIndex &index) {
            return index.file().isSharedWith(file) || index.file() == file;
        });
        if (found != m_known.end()) {
            return *found;
        }
        m_next = (m_next + 1) % m_known.size();
        return m_known[m_next] = ProfileIndex(file);
    }

    // All threads share it: GCC for Windows takes a thread's own objects apart only after their
    // memory has been freed.
    QMutex m_mutex;
    std::array<ProfileIndex, 4> m_known;
    size_t m_next = 0;
};

} // namespace

KeyPlace placeOf(const QByteArray &file, QStringView section, QStringView key)
{
    static KnownFiles known;
    return known.placeOf(file, section, key);
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

QByteArray lineEndOf(const QByteArray &file)
{
    Lines lines(file);
    ProfileLine line;
    if (!lines.next(line) || line.next == line.end) {
        return "\r\n";
    }
    return file.sliced(line.end, line.next - line.end);
}

} // namespace zeph::profile
