// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "layouts/files/layout_lines.h"

#include "platform/core/text1252.h"

#include <cmath>

namespace zeph {

namespace {

/// So much of what a file says is quoted in an error.
constexpr qsizetype quotedLength = 40;

QString quoted(const QString &text)
{
    return text.size() <= quotedLength ? u"“%1”"_s.arg(text)
                                       : u"“%1…”"_s.arg(text.first(quotedLength));
}

QString trimmed(const QString &text)
{
    return text.trimmed();
}

} // namespace

QString LayoutError::text() const
{
    return line > 0 ? u"%1, line %2: %3."_s.arg(file, QString::number(line), reason)
                    : u"%1: %2."_s.arg(file, reason);
}

FileError LayoutError::fileError() const
{
    return { file, line > 0 ? u"line %1: %2"_s.arg(QString::number(line), reason) : reason };
}

LayoutLines::LayoutLines(QByteArrayView bytes, QString file)
    : m_bytes(bytes), m_file(std::move(file))
{
}

QByteArrayView LayoutLines::next(QStringView what)
{
    if (m_error) {
        return {};
    }
    ++m_line;
    if (m_at >= m_bytes.size()) {
        fail(u"the file ends before %1"_s.arg(what));
        return {};
    }
    const qsizetype end = m_bytes.indexOf('\n', m_at);
    QByteArrayView line = m_bytes.sliced(m_at, (end < 0 ? m_bytes.size() : end) - m_at);
    m_at += line.size() + 1;
    if (line.endsWith('\r')) {
        line.chop(1);
    }
    if (line.size() > longestLayoutLine) {
        fail(u"the line has %1 characters, which is too long for %2"_s.arg(
            QString::number(line.size()), what));
        return {};
    }
    return line;
}

QString LayoutLines::line(QStringView what)
{
    return fromText1252(next(what));
}

QStringList LayoutLines::fields(qsizetype count, QStringView what)
{
    QStringList fields = line(what).split(u',');
    std::ranges::transform(fields, fields.begin(), trimmed);
    return counted(fields, count, what);
}

QStringList LayoutLines::words(qsizetype count, QStringView what)
{
    return counted(line(what).simplified().split(u' ', Qt::SkipEmptyParts), count, what);
}

QStringList LayoutLines::counted(const QStringList &fields, qsizetype count, QStringView what)
{
    if (fields.size() != count) {
        const bool isEmpty = fields.isEmpty() || (fields.size() == 1 && fields[0].isEmpty());
        fail(u"%1 needs %2, and here are %3"_s.arg(what, QString::number(count),
                                                   QString::number(isEmpty ? 0 : fields.size())));
    }
    return m_error ? QStringList(count) : fields;
}

float LayoutLines::number(const QString &field, QStringView what)
{
    if (m_error) {
        return 0;
    }
    bool isNumber = false;
    const double number = field.toDouble(&isNumber);
    if (!isNumber || !std::isfinite(number)) {
        fail(u"%1 is no number for %2"_s.arg(quoted(field), what));
    } else if (std::abs(number) > farthestPlace) {
        fail(u"%1 is too large for %2"_s.arg(quoted(field), what));
    }
    return m_error ? 0 : float(number);
}

int LayoutLines::integer(const QString &field, QStringView what, int least, int most)
{
    if (m_error) {
        return 0;
    }
    bool isNumber = false;
    const int number = field.toInt(&isNumber);
    if (!isNumber) {
        fail(u"%1 is no whole number for %2"_s.arg(quoted(field), what));
    } else if (number < least || number > most) {
        fail(u"%1 is not between %2 and %3, as %4 must be"_s.arg(
            quoted(field), QString::number(least), QString::number(most), what));
    }
    return m_error ? 0 : number;
}

void LayoutLines::fail(const QString &reason)
{
    if (!m_error) {
        m_error = LayoutError{ m_file, m_line, reason };
    }
}

} // namespace zeph
