// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "cougar/handle_file.h"

#include "platform/core/paths.h"
#include "platform/core/text1252.h"

namespace zeph {

namespace {

/// The hot spots in the order of their records.
constexpr QStringView recordIds[] = {
    u"BTN_0", u"BTN_1", u"BTN_2", u"BTN_3", u"HAT_0", u"HAT_1", u"HAT_2", u"HAT_3", u"TRIG",
};

bool isBlank(QChar character)
{
    return character == u' ' || character == u'\t';
}

bool isLineEnd(QChar character)
{
    return character == u'\r' || character == u'\n';
}

/// Takes one field after the other from a text. After the first fault all fields are empty, so that
/// a reader has to ask for the fault only once.
class FieldReader
{
public:
    explicit FieldReader(QStringView text) : m_text(text) { }

    QString next(QStringView what);
    /// The field as a whole number of 16 bits; 0 with a fault when it is none.
    int nextNumber(QStringView what);
    void fail(const QString &what);

    bool hasFailed() const { return !m_fault.isEmpty(); }
    const QString &fault() const { return m_fault; }

private:
    bool atEnd() const { return m_at >= m_text.size(); }
    void skipBlanks();
    void skipEmptyLines();
    QString quoted();
    void passSeparator();

    QStringView m_text;
    qsizetype m_at = 0;
    int m_line = 1;
    int m_lineOfField = 1;
    bool m_afterComma = false;
    QString m_fault;
};

QString FieldReader::next(QStringView what)
{
    if (hasFailed()) {
        return {};
    }
    if (!m_afterComma) {
        skipEmptyLines();
    }
    skipBlanks();
    m_lineOfField = m_line;
    if (atEnd()) {
        fail(u"the file ends before %1"_s.arg(what));
        return {};
    }
    if (m_text[m_at] == u'"') {
        const QString field = quoted();
        passSeparator();
        return field;
    }
    const qsizetype start = m_at;
    while (!atEnd() && m_text[m_at] != u',' && !isLineEnd(m_text[m_at])) {
        ++m_at;
    }
    const QString field = m_text.mid(start, m_at - start).trimmed().toString();
    passSeparator();
    return field;
}

int FieldReader::nextNumber(QStringView what)
{
    const QString field = next(what);
    if (hasFailed()) {
        return 0;
    }
    bool isNumber = false;
    const short number = field.toShort(&isNumber);
    if (!isNumber) {
        fail(u"“%1” is no whole number for %2"_s.arg(field.left(40), what));
    }
    return number;
}

void FieldReader::fail(const QString &what)
{
    if (!hasFailed()) {
        m_fault = u"Line %1: %2."_s.arg(m_lineOfField).arg(what);
    }
}

void FieldReader::skipBlanks()
{
    while (!atEnd() && isBlank(m_text[m_at])) {
        ++m_at;
    }
}

void FieldReader::skipEmptyLines()
{
    skipBlanks();
    while (!atEnd() && isLineEnd(m_text[m_at])) {
        passSeparator();
        skipBlanks();
    }
}

QString FieldReader::quoted()
{
    const qsizetype start = ++m_at;
    while (!atEnd() && m_text[m_at] != u'"' && !isLineEnd(m_text[m_at])) {
        ++m_at;
    }
    const QString field = m_text.mid(start, m_at - start).toString();
    if (atEnd() || m_text[m_at] != u'"') {
        fail(u"a quotation mark is missing"_s);
    } else {
        ++m_at;
    }
    return field;
}

/// Passes the comma or the line end after a field, where CR LF is one line end.
void FieldReader::passSeparator()
{
    skipBlanks();
    m_afterComma = !atEnd() && m_text[m_at] == u',';
    if (atEnd()) {
        return;
    }
    const QChar separator = m_text[m_at];
    if (separator != u',' && !isLineEnd(separator)) {
        fail(u"there is something between a quotation mark and the comma"_s);
        return;
    }
    ++m_at;
    if (separator == u'\r' && !atEnd() && m_text[m_at] == u'\n') {
        ++m_at;
    }
    m_line += separator == u',' ? 0 : 1;
}

/// Adds the record's hot spot if it is shown.
void readRecord(FieldReader &fields, QStringView id, QList<HotSpot> &spots)
{
    const QString name = spokenName(id).replace(0, 1, spokenName(id).first(1).toLower());
    const auto part = [&name](QStringView what) {
        return u"%1 of the %2"_s.arg(what, name);
    };
    const int left = fields.nextNumber(part(u"the left edge"));
    const int top = fields.nextNumber(part(u"the top"));
    const int width = fields.nextNumber(part(u"the width"));
    const int height = fields.nextNumber(part(u"the height"));
    if (width < 0 || height < 0) {
        fields.fail(u"the %1 is less than nothing wide or high"_s.arg(name));
    }
    const QString visible = fields.next(part(u"the visibility"));
    if (visible == u"True") {
        spots.append({ id.toString(), QRect(left, top, width, height) });
    }
}

} // namespace

Expected<HandleFile, QString> handleFileFrom(QStringView text)
{
    FieldReader fields(text);
    HandleFile handle;
    // The picture lies in the program's folder, whatever folder the file names.
    handle.picture = nameOf(nativeSeparators(fields.next(u"the name of the picture")));
    if (handle.picture.isEmpty()) {
        fields.fail(u"the picture has no name"_s);
    }
    handle.triggerHasStages = fields.nextNumber(u"the stages of the trigger") != 0;
    for (const QStringView id : recordIds) {
        readRecord(fields, id, handle.spots);
    }
    if (fields.hasFailed()) {
        return Unexpected<QString>(fields.fault());
    }
    return handle;
}

Expected<HandleFile, FileError> loadHandleFile(const QString &path)
{
    const QString existing = existingPath(path);
    const auto bytes = readWholeFile(existing.isEmpty() ? path : existing);
    if (!bytes) {
        return Unexpected<FileError>(bytes.error());
    }
    const auto handle = handleFileFrom(fromText1252(*bytes));
    if (!handle) {
        return Unexpected<FileError>(FileError{ path, handle.error() });
    }
    return *handle;
}

} // namespace zeph
