// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// The lines of a layout file, one after the other.

#include "platform/core/base.h"
#include "platform/core/file_io.h"

#include <QByteArray>
#include <QStringList>

namespace zeph {

/// Why a layout cannot be read or written.
struct LayoutError {
    QString file;
    int line = 0; ///< 1-based; 0 where the file as a whole is meant
    QString reason; ///< without a full stop

    /// The error in one sentence.
    QString text() const;
    /// The same for those who tell the path on their own.
    FileError fileError() const;

    friend bool operator==(const LayoutError &, const LayoutError &) = default;
};

/// Takes one line after the other from a file's bytes, in code page 1252, with line ends LF or CR
/// LF. After the first fault all lines are empty and all numbers 0, so that a reader has to ask for
/// the fault only once.
class LayoutLines
{
public:
    /// The bytes must outlive this. The file is named in errors.
    LayoutLines(QByteArrayView bytes, QString file);

    /// The next line as it is.
    QString line(QStringView what);
    /// The next line's fields between commas, without the blanks around them.
    QStringList fields(qsizetype count, QStringView what);
    /// The next line's fields between blanks and tabs.
    QStringList words(qsizetype count, QStringView what);

    /// A field of the present line as a number that a place can be.
    float number(const QString &field, QStringView what);
    /// The same as a whole number within these limits.
    int integer(const QString &field, QStringView what, int least, int most);
    /// The fault of the present line.
    void fail(const QString &reason);

    const std::optional<LayoutError> &error() const { return m_error; }

private:
    QByteArrayView next(QStringView what);
    QStringList counted(const QStringList &fields, qsizetype count, QStringView what);

    QByteArrayView m_bytes;
    qsizetype m_at = 0;
    int m_line = 0;
    QString m_file;
    std::optional<LayoutError> m_error;
};

/// The longest line of a layout file, in characters: longer than any path.
constexpr qsizetype longestLayoutLine = 4096;
/// Places reach as far from 0 as single-precision numbers hold every whole number.
constexpr int farthestPlace = 1 << 24;

} // namespace zeph
