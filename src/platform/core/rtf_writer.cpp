// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "platform/core/rtf.h"
#include "platform/core/rtf_code_pages.h"

#include <QHash>

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <string_view>

namespace zeph {

namespace {

// Bullets hang by a quarter of an inch, as word processors have them.
constexpr int bulletTwips = 360;
constexpr int maxIndentTwips = 31680;
constexpr int maxHalfPoints = 3276;
constexpr size_t fewColours = 16;

/// Collects bytes one after the other. Reserves room for many at once.
class Sink
{
public:
    Sink() : m_bytes(1024, Qt::Uninitialized), m_at(m_bytes.data()) { }
    void ensure(qsizetype more)
    {
        if (m_bytes.size() - m_size < more) {
            m_bytes.resize(std::max(m_size + more, m_bytes.size() * 2));
            m_at = m_bytes.data();
        }
    }
    void put(char c) { m_at[m_size++] = c; }
    void put(std::string_view text)
    {
        std::copy(text.begin(), text.end(), m_at + m_size);
        m_size += qsizetype(text.size());
    }
    void put(std::string_view word, int number)
    {
        put(word);
        char digits[16];
        const auto [end, failure] = std::to_chars(std::begin(digits), std::end(digits), number);
        put(std::string_view(digits, size_t(end - digits)));
    }
    void putHex(uchar byte)
    {
        constexpr std::string_view digits = "0123456789abcdef";
        put("\\'");
        put(digits[byte >> 4]);
        put(digits[byte & 15]);
    }
    std::string_view written() const { return { m_at, size_t(m_size) }; }
    QByteArray take()
    {
        m_bytes.resize(m_size);
        return std::move(m_bytes);
    }

private:
    QByteArray m_bytes;
    char *m_at;
    qsizetype m_size = 0;
};

// What one character takes at most ("\u-32768?"), and what a change of looks takes.
constexpr qsizetype bytesPerCharacter = 9;
constexpr qsizetype bytesPerChange = 256;
constexpr qsizetype chunk = 1024;

constexpr std::array<bool, 128> makePlainCharacters()
{
    std::array<bool, 128> isPlain{};
    for (size_t c = 0x20; c < 0x7F; ++c) {
        isPlain[c] = c != '\\' && c != '{' && c != '}';
    }
    return isPlain;
}

constexpr std::array<bool, 128> plainCharacters = makePlainCharacters();

/// Writes a character as an RTF escape: a backslash and the character, its byte of Windows-1252 or
/// its number in Unicode.
void putEscaped(Sink &sink, char16_t c)
{
    if (c == u'\\' || c == u'{' || c == u'}') {
        sink.put('\\');
        sink.put(char(c));
    } else if (c < 0x80) {
        sink.putHex(uchar(c));
    } else if (const uchar byte = rtf::byteIn1252(c)) {
        sink.putHex(byte);
    } else {
        sink.put("\\u", qint16(c));
        sink.put('?');
    }
}

/// How characters look, by numbers of the tables; 0 is what the reader's control has.
struct Look {
    int font = 0;
    int halfPoints = 0;
    int colour = 0;
    bool bold = false;
    bool italic = false;
    bool underline = false;
    bool strike = false;
};

/// 0 for a size that is none.
int halfPointsOf(double pointSize)
{
    return pointSize > 0 ? int(std::lround(std::min(pointSize * 2, double(maxHalfPoints)))) : 0;
}

} // namespace

class RtfWriter::Body
{
public:
    void setPlain(const CharFormat &plain)
    {
        m_plain = plain;
        m_plain->colour.reset();
    }
    void add(const RichText &piece);
    QByteArray take();

private:
    void putRun(QStringView run, const CharFormat &format);
    void putLinked(QStringView run, const CharFormat &format);
    void putText(QStringView run);
    void putCharacters(QStringView characters);
    void putLook(const CharFormat &format);
    void startParagraph();
    void putBullet(bool isFirst);
    QByteArray withHeader();
    void putFamily(Sink &sink, const QString &family);

    Look lookOf(const CharFormat &format);
    int fontOf(const QString &family);
    int colourOf(std::optional<ColorRef> colour);

    std::optional<CharFormat> m_plain;
    std::vector<ParagraphRun> m_paragraphs; ///< of the piece
    Sink m_body;
    Look m_look;
    bool m_isWordOpen =
        false; ///< a control word was written last, and text right after it would lengthen it

    size_t m_paragraphRun = 0;
    qsizetype m_inParagraphRun = 0;
    bool m_atParagraphStart = true;
    std::optional<ParagraphFormat> m_paragraph;

    QHash<QString, int> m_fonts; ///< numbered from 1
    std::vector<QString> m_families;
    QHash<ColorRef, int> m_colours; ///< numbered from 1; 0 is the control's own
    std::vector<ColorRef> m_colourTable;
    QString m_lastFamily;
    int m_lastFont = 0;
    double m_lastPointSize = 0;
    int m_lastHalfPoints = 0;
};

void RtfWriter::Body::add(const RichText &piece)
{
    m_body.ensure(piece.text.size() * 3 / 2 + qsizetype(piece.characters.size()) * 16);
    m_paragraphs = piece.paragraphs;
    m_paragraphRun = 0;
    m_inParagraphRun = 0;
    const QStringView text = piece.text;
    qsizetype from = 0;
    for (const CharRun &run : piece.characters) {
        const qsizetype to = std::min(from + std::max(run.length, qsizetype(0)), text.size());
        if (to > from) {
            putRun(text.sliced(from, to - from), run.format);
            from = to;
        }
    }
    if (from < text.size()) {
        putRun(text.sliced(from), {});
    }
}

QByteArray RtfWriter::Body::take()
{
    startParagraph();
    m_body.ensure(bytesPerChange);
    m_body.put("\\par\r\n}\r\n");
    return withHeader();
}

void RtfWriter::Body::putRun(QStringView run, const CharFormat &format)
{
    if (format.link.isEmpty()) {
        putLook(format);
        putText(run);
        return;
    }
    // A field for each paragraph: what one group says of a paragraph ends with the group.
    while (!run.isEmpty()) {
        const qsizetype end = run.indexOf(u'\n');
        const qsizetype length = end < 0 ? run.size() : end + 1;
        putLinked(run.first(length), format);
        run = run.sliced(length);
    }
}

void RtfWriter::Body::putLinked(QStringView run, const CharFormat &format)
{
    startParagraph();
    const Look outside = m_look;
    QString address = format.link;
    address.replace(u'\\', u"\\\\"_s).replace(u'"', u"\\\""_s);
    m_body.ensure(bytesPerChange);
    m_body.put("{\\field{\\*\\fldinst{HYPERLINK \"");
    m_isWordOpen = false;
    putText(address);
    m_body.ensure(bytesPerChange);
    m_body.put("\"}}{\\fldrslt");
    m_isWordOpen = true;
    putLook(format);
    putText(run);
    m_body.ensure(bytesPerChange);
    m_body.put("}}");
    m_isWordOpen = false;
    m_look = outside;
}

void RtfWriter::Body::putText(QStringView run)
{
    for (; !run.isEmpty(); run = run.sliced(std::min(chunk, run.size()))) {
        m_body.ensure(chunk * bytesPerCharacter + bytesPerChange);
        putCharacters(run.first(std::min(chunk, run.size())));
    }
}

void RtfWriter::Body::putCharacters(QStringView characters)
{
    for (const QChar character : characters) {
        const char16_t c = character.unicode();
        if (m_atParagraphStart) {
            startParagraph();
        }
        if (c == u'\n') {
            m_body.put("\\par\r\n");
            m_isWordOpen = false;
            m_atParagraphStart = true;
            continue;
        }
        if (c == u'\t') {
            m_body.put("\\tab");
            m_isWordOpen = true;
            continue;
        }
        if (m_isWordOpen) {
            m_body.put(' ');
            m_isWordOpen = false;
        }
        if (c < 0x80 && plainCharacters[c]) {
            m_body.put(char(c));
        } else {
            putEscaped(m_body, c);
        }
    }
}

void RtfWriter::Body::startParagraph()
{
    if (!m_atParagraphStart) {
        return;
    }
    m_atParagraphStart = false;
    m_body.ensure(bytesPerChange + chunk * bytesPerCharacter);
    const std::vector<ParagraphRun> &runs = m_paragraphs;
    while (m_paragraphRun < runs.size() && m_inParagraphRun >= runs[m_paragraphRun].count) {
        ++m_paragraphRun;
        m_inParagraphRun = 0;
    }
    ++m_inParagraphRun;
    const ParagraphFormat format =
        m_paragraphRun < runs.size() ? runs[m_paragraphRun].format : ParagraphFormat();
    const bool isSame = m_paragraph == format;
    m_paragraph = format;
    if (!isSame) {
        m_body.put("\\pard");
        m_isWordOpen = true;
    }
    if (format.bullet) {
        putBullet(!isSame);
    }
    if (isSame) {
        return;
    }
    const int left = std::clamp(format.leftIndentTwips, -maxIndentTwips, maxIndentTwips);
    if (format.bullet) {
        m_body.put("\\fi", -bulletTwips);
        m_body.put("\\li", left + bulletTwips);
    } else if (left != 0) {
        m_body.put("\\li", left);
    }
    if (format.alignment != ParagraphAlignment::Left) {
        m_body.put(format.alignment == ParagraphAlignment::Centre ? "\\qc" : "\\qr");
    }
    m_isWordOpen = true;
}

/// Writes the sign that readers without lists show, and where a list begins its form.
void RtfWriter::Body::putBullet(bool isFirst)
{
    m_body.put("{\\pntext\\'95\\tab}");
    if (isFirst) {
        m_body.put("{\\*\\pn\\pnlvlblt\\pnindent", bulletTwips);
        m_body.put("{\\pntxtb\\'95}}");
    }
    m_isWordOpen = false;
}

void RtfWriter::Body::putLook(const CharFormat &format)
{
    m_body.ensure(bytesPerChange);
    const Look look = lookOf(format);
    if ((look.font == 0 && m_look.font != 0) || (look.halfPoints == 0 && m_look.halfPoints != 0)) {
        m_body.put("\\plain");
        m_look = {};
        m_isWordOpen = true;
    }
    const Look before = std::exchange(m_look, look);
    const auto putNumber = [&](std::string_view word, int was, int is) {
        if (was != is) {
            m_body.put(word, is);
            m_isWordOpen = true;
        }
    };
    const auto putSwitch = [&](std::string_view on, std::string_view off, bool was, bool is) {
        if (was != is) {
            m_body.put(is ? on : off);
            m_isWordOpen = true;
        }
    };
    putNumber("\\f", before.font, look.font);
    putNumber("\\fs", before.halfPoints, look.halfPoints);
    putSwitch("\\b", "\\b0", before.bold, look.bold);
    putSwitch("\\i", "\\i0", before.italic, look.italic);
    putSwitch("\\ul", "\\ulnone", before.underline, look.underline);
    putSwitch("\\strike", "\\strike0", before.strike, look.strike);
    putNumber("\\cf", before.colour, look.colour);
}

Look RtfWriter::Body::lookOf(const CharFormat &format)
{
    Look look;
    look.font = fontOf(format.family);
    if (format.pointSize != m_lastPointSize) {
        m_lastPointSize = format.pointSize;
        m_lastHalfPoints = halfPointsOf(format.pointSize);
    }
    look.halfPoints = m_lastHalfPoints;
    look.colour = colourOf(format.colour);
    look.bold = format.bold;
    look.italic = format.italic;
    look.underline = format.underline;
    look.strike = format.strike;
    return look;
}

int RtfWriter::Body::fontOf(const QString &family)
{
    if (family == m_lastFamily) {
        return m_lastFont;
    }
    m_lastFamily = family;
    m_lastFont = m_fonts.value(family);
    if (m_lastFont == 0 && !family.trimmed().isEmpty()) {
        m_families.push_back(family);
        m_lastFont = int(m_families.size());
        m_fonts.insert(family, m_lastFont);
    }
    return m_lastFont;
}

int RtfWriter::Body::colourOf(std::optional<ColorRef> colour)
{
    if (!colour) {
        return 0;
    }
    const ColorRef key = *colour & 0xFFFFFF;
    // A file has tens of thousands of runs in a handful of colours: those found first need no hash.
    const size_t few = std::min(m_colourTable.size(), fewColours);
    for (size_t i = 0; i < few; ++i) {
        if (m_colourTable[i] == key) {
            return int(i + 1);
        }
    }
    int &number = m_colours[key];
    if (number == 0) {
        m_colourTable.push_back(key);
        number = int(m_colourTable.size());
    }
    return number;
}

void RtfWriter::Body::putFamily(Sink &sink, const QString &family)
{
    sink.ensure(family.size() * bytesPerCharacter + bytesPerChange);
    for (const QChar character : family) {
        const char16_t c = character.unicode();
        if (c == u';') {
            sink.putHex(uchar(c));
        } else if (c < 0x80 && plainCharacters[c]) {
            sink.put(char(c));
        } else {
            putEscaped(sink, c);
        }
    }
    sink.put(";}");
}

QByteArray RtfWriter::Body::withHeader()
{
    // No default font is named: text without one is to look as the reader's control has it.
    Sink file;
    const Look plain = m_plain ? lookOf(*m_plain) : Look();
    file.ensure(bytesPerChange);
    file.put("{\\rtf1\\ansi\\ansicpg1252\\uc1");
    if (!m_families.empty()) {
        file.put("{\\fonttbl");
        for (size_t i = 0; i < m_families.size(); ++i) {
            file.ensure(bytesPerChange);
            file.put("{\\f", int(i + 1));
            file.put("\\fnil\\fcharset0 ");
            putFamily(file, m_families[i]);
        }
        file.put('}');
    }
    file.ensure(bytesPerChange);
    file.put("\r\n{\\colortbl ;");
    for (const ColorRef colour : m_colourTable) {
        file.ensure(bytesPerChange);
        file.put("\\red", redOf(colour));
        file.put("\\green", greenOf(colour));
        file.put("\\blue", blueOf(colour));
        file.put(';');
    }
    file.put("}\r\n");
    if (m_plain) {
        file.ensure(bytesPerChange);
        file.put("{\\stylesheet{");
        if (plain.font > 0) {
            file.put("\\f", plain.font);
        }
        if (plain.halfPoints > 0) {
            file.put("\\fs", plain.halfPoints);
        }
        file.put(plain.bold ? "\\b Normal;}}\r\n" : " Normal;}}\r\n");
    }
    file.ensure(qsizetype(m_body.written().size()));
    file.put(m_body.written());
    return file.take();
}

RtfWriter::RtfWriter() : m_body(std::make_unique<Body>()) { }

RtfWriter::~RtfWriter() = default;

void RtfWriter::setPlain(const CharFormat &plain)
{
    m_body->setPlain(plain);
}

void RtfWriter::add(const RichText &piece)
{
    m_body->add(piece);
}

QByteArray RtfWriter::take()
{
    return std::exchange(m_body, std::make_unique<Body>())->take();
}

QByteArray writeRtf(const RichText &text)
{
    RtfWriter writer;
    writer.add(text);
    return writer.take();
}

} // namespace zeph
