// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// Private profile files: "[Section]" headers and "Key=Value" lines that other programs write too.
// Everything that is not changed (comments, order, unknown keys, line ends) survives byte for byte.

#include "platform/core/base.h"
#include "platform/core/file_io.h"

#include <QByteArray>
#include <QList>
#include <QStringList>

#include <functional>

namespace zeph {

/// Buffer sizes of the reads, in characters with the closing NUL: a value is cut to one less.
constexpr int profileTextBuffer = 500;
constexpr int profileColourBuffer = 50;

struct ProfileEntry {
    QString section;
    QString key;
    QString value;
};

/// The pure half, over a file's bytes.
namespace profile {

/// The value of the first key of that name in the first section of that name, in any case, with the
/// blanks around it and one pair of equal quotes dropped. No value when key or section is absent.
std::optional<QString> value(const QByteArray &file, QStringView section, QStringView key);

/// The file with that value set: the key's line replaced, or added at its section's end, or the
/// section added at the file's end.
QByteArray withValue(const QByteArray &file, const ProfileEntry &entry);
/// The same with many values, of which the last one given to a key counts.
QByteArray withValues(const QByteArray &file, const QList<ProfileEntry> &entries);

/// A value as a number: sign and leading decimal digits; no digits give 0, an empty value gives
/// the default; 32 bits, wrapped as the platform's call wraps.
qint32 integerOf(const std::optional<QString> &value, qint32 fallback);

/// The file without the lines of those keys in the first section of that name.
QByteArray withoutKeys(QByteArray file, QStringView section, const QStringList &keys);

} // namespace profile

/// Who changes a profile file.
enum class ProfileUse {
    Own, ///< one program at a time
    Shared ///< several programs: they lock each other out by a file beside it, "NAME.lock"
};

/// One profile file on disk. Holds no content: each call reads the disk, since other programs write
/// the same files at any time. A program that knows no lock may change a file between the reading
/// and the replacing: the change is then made once more to what that program wrote. A file in
/// UTF-16 reads as empty, and writing it is refused.
class ProfileFile
{
public:
    explicit ProfileFile(QString path, ProfileUse use = ProfileUse::Own);

    const QString &path() const { return m_path; }

    /// The whole file as it is now, for many reads at one moment. A missing file is empty.
    Expected<QByteArray, FileError> bytes() const;

    /// The value, cut to buffer - 1 characters; the fallback when absent. A missing file is empty.
    QString text(QStringView section, QStringView key, const QString &fallback = {},
                 int buffer = profileTextBuffer) const;
    qint32 integer(QStringView section, QStringView key, qint32 fallback) const;

    /// Sets one value or many in one replacement of the file, which is made when missing.
    Expected<void, FileError> write(const ProfileEntry &entry) const;
    Expected<void, FileError> write(const QList<ProfileEntry> &entries) const;
    /// Takes the keys out in one replacement. A file that has none of them is not touched.
    Expected<void, FileError> remove(QStringView section, const QStringList &keys) const;

private:
    using Change = std::function<QByteArray(const QByteArray &file)>;

    Expected<void, FileError> change(const Change &change) const;

    QString m_path;
    ProfileUse m_use;
};

} // namespace zeph
