// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "platform/rich_text_document.h"

#include <QTextBlock>
#include <QTextList>

#include <algorithm>

namespace zeph {

namespace {

// Twips in a device-independent pixel; indents keep fractions, so that they come back exactly.
constexpr double twipsPerPixel = 15;
constexpr double pointsPerPixel = 0.75;

/// What the toolkit's document takes for a border of blocks or frames.
bool isBorder(QChar c)
{
    return c == QChar::ParagraphSeparator || c == QChar::LineSeparator || c == QChar(0xFDD0)
        || c == QChar(0xFDD1);
}

/// The text with the value's line ends, of a text with the toolkit's.
QString withLineEnds(QString text)
{
    QChar *const end = text.data() + text.size();
    std::replace_if(text.data(), end, isBorder, QChar(u'\n'));
    return text;
}

/// A text that the toolkit cannot take for more blocks than its '\n' make. The characters replaced
/// are none of any text file's; each stays one character, so that the runs fit.
QString insertable(const QString &text)
{
    const auto isStray = [](QChar c) {
        return c == u'\r' || isBorder(c);
    };
    if (std::none_of(text.begin(), text.end(), isStray)) {
        return text;
    }
    QString clean = text;
    std::replace_if(clean.begin(), clean.end(), isStray, QChar(QChar::ReplacementCharacter));
    return clean;
}

/// The toolkit's formats of the few looks that many runs share.
class FormatCache
{
public:
    const QTextCharFormat &operator()(const CharFormat &format)
    {
        auto found = m_formats.constFind(format);
        if (found == m_formats.cend()) {
            found = m_formats.insert(format, toTextFormat(format));
        }
        return found.value();
    }

private:
    QHash<CharFormat, QTextCharFormat> m_formats;
};

/// Collects runs from formats by the toolkit's numbers of them, each looked at once.
class RunCollector
{
public:
    RunCollector(qsizetype from, qsizetype to) : m_from(from), m_to(to) { }

    template <class Format> void add(int index, qsizetype start, qsizetype length, Format format)
    {
        const qsizetype size = std::min(start + length, m_to) - std::max(start, m_from);
        if (size <= 0) {
            return;
        }
        if (index != m_lastIndex || m_runs.empty()) {
            m_lastIndex = index;
            auto known = m_formats.constFind(index);
            if (known == m_formats.cend()) {
                known = m_formats.insert(index, fromTextFormat(format()));
            }
            if (m_runs.empty() || m_runs.back().format != known.value()) {
                m_runs.push_back({ 0, known.value() });
            }
        }
        m_runs.back().length += size;
    }
    std::vector<CharRun> take() { return std::move(m_runs); }

private:
    qsizetype m_from;
    qsizetype m_to;
    int m_lastIndex = -1;
    QHash<int, CharFormat> m_formats;
    std::vector<CharRun> m_runs;
};

qsizetype lengthOf(const QTextDocument &document)
{
    // Behind the last paragraph the toolkit counts a separator that is no character of the text.
    return document.characterCount() - 1;
}

std::vector<CharRun> characterRuns(const QTextDocument &document, qsizetype from, qsizetype to)
{
    RunCollector runs(from, to);
    QTextBlock block = document.findBlock(int(from));
    while (block.isValid() && block.position() < to) {
        for (auto it = block.begin(); !it.atEnd(); ++it) {
            const QTextFragment fragment = it.fragment();
            runs.add(fragment.charFormatIndex(), fragment.position(), fragment.length(),
                     [&] { return fragment.charFormat(); });
        }
        // A line end has the format that the block behind it starts with.
        const QTextBlock next = block.next();
        if (next.isValid()) {
            runs.add(next.charFormatIndex(), next.position() - 1, 1,
                     [&] { return next.charFormat(); });
        }
        block = next;
    }
    return runs.take();
}

ParagraphFormat paragraphFormatOf(const QTextBlock &block)
{
    const QTextBlockFormat format = block.blockFormat();
    ParagraphFormat result;
    result.leftIndentTwips = qRound(format.leftMargin() * twipsPerPixel);
    if (format.alignment().testFlag(Qt::AlignHCenter)) {
        result.alignment = ParagraphAlignment::Centre;
    } else if (format.alignment().testFlag(Qt::AlignRight)) {
        result.alignment = ParagraphAlignment::Right;
    }
    result.bullet = block.textList() != nullptr;
    return result;
}

/// Paragraphs of the stretch that text is; a soft line end within a block makes one more.
std::vector<ParagraphRun> paragraphRuns(const QTextDocument &document, QStringView text, int from)
{
    std::vector<ParagraphRun> runs;
    const qsizetype total = text.count(u'\n') + 1;
    const QTextBlock last = document.findBlock(from + int(text.size()));
    const QTextBlock first = document.findBlock(from);
    const bool hasSoftEnds = last.blockNumber() - first.blockNumber() + 1 != total;
    for (QTextBlock block = first; block.isValid(); block = block.next()) {
        qsizetype count = 1;
        if (hasSoftEnds) {
            const qsizetype start = std::max(block.position() - from, 0);
            const qsizetype end = block.position() + block.length() - 1 - from;
            count += text.mid(start, end - start).left(text.size() - start).count(u'\n');
        }
        const ParagraphFormat format = paragraphFormatOf(block);
        if (!runs.empty() && runs.back().format == format) {
            runs.back().count += count;
        } else {
            runs.push_back({ count, format });
        }
        if (block == last) {
            break;
        }
    }
    return runs;
}

RichText stretchOf(const QTextDocument &document, QString text, qsizetype from)
{
    RichText result;
    result.text = std::move(text);
    result.characters = characterRuns(document, from, from + result.text.size());
    result.paragraphs = paragraphRuns(document, result.text, int(from));
    return result;
}

QTextBlockFormat toBlockFormat(const ParagraphFormat &paragraph)
{
    QTextBlockFormat format;
    if (paragraph.leftIndentTwips != 0) {
        format.setLeftMargin(paragraph.leftIndentTwips / twipsPerPixel);
    }
    if (paragraph.alignment != ParagraphAlignment::Left) {
        format.setAlignment(paragraph.alignment == ParagraphAlignment::Centre ? Qt::AlignHCenter
                                                                              : Qt::AlignRight);
    }
    return format;
}

void setParagraphs(QTextCursor &cursor, int firstBlock, int count, const ParagraphFormat &format)
{
    const QTextDocument &document = *cursor.document();
    const QTextBlock last = document.findBlockByNumber(firstBlock + count - 1);
    cursor.setPosition(document.findBlockByNumber(firstBlock).position());
    cursor.setPosition(last.position(), QTextCursor::KeepAnchor);
    cursor.setBlockFormat(toBlockFormat(format));
    if (format.bullet) {
        cursor.createList(QTextListFormat::ListDisc);
    }
}

/// Gives the blocks [first, last] the formats of a text's paragraphs, whose first one is the
/// block start.
void applyParagraphRuns(QTextCursor cursor, const std::vector<ParagraphRun> &runs, int start,
                        int first, int last)
{
    int block = start;
    for (const ParagraphRun &run : runs) {
        const int begin = std::max(block, first);
        block += int(run.count);
        const int count = std::min(block, last + 1) - begin;
        if (count > 0) {
            setParagraphs(cursor, begin, count, run.format);
        }
    }
}

/// Lays the parts of runs over the text where it looks otherwise.
class RunPainter
{
public:
    RunPainter(QTextDocument &document, std::vector<CharRun> present)
        : m_cursor(&document), m_present(std::move(present))
    {
    }

    void paint(const std::vector<CharRun> &runs)
    {
        m_cursor.beginEditBlock();
        qsizetype position = 0;
        for (const CharRun &run : runs) {
            const qsizetype end = position + std::max(run.length, qsizetype(0));
            paintRun(position, end, run.format);
            position = end;
        }
        m_cursor.endEditBlock();
    }

private:
    void paintRun(qsizetype position, qsizetype end, const CharFormat &format)
    {
        qsizetype from = -1;
        while (position < end && m_index < m_present.size()) {
            const CharRun &run = m_present[m_index];
            if (run.format == format) {
                set(from, position, format);
                from = -1;
            } else if (from < 0) {
                from = position;
            }
            const qsizetype presentEnd = m_start + run.length;
            position = std::min(end, presentEnd);
            if (position == presentEnd) {
                m_start = presentEnd;
                ++m_index;
            }
        }
        set(from, position, format);
    }

    void set(qsizetype from, qsizetype to, const CharFormat &format)
    {
        if (from >= 0 && from < to) {
            m_cursor.setPosition(int(from));
            m_cursor.setPosition(int(to), QTextCursor::KeepAnchor);
            m_cursor.setCharFormat(m_format(format));
        }
    }

    QTextCursor m_cursor;
    FormatCache m_format;
    std::vector<CharRun> m_present;
    size_t m_index = 0; ///< of the present run, and the position where it starts
    qsizetype m_start = 0;
};

} // namespace

QTextCharFormat toTextFormat(const CharFormat &format)
{
    QTextCharFormat result;
    if (!format.family.isEmpty()) {
        result.setFontFamilies({ format.family });
    }
    if (format.pointSize > 0) {
        result.setFontPointSize(format.pointSize);
    }
    // Said also where they are off: the control's own font may be bold.
    result.setFontWeight(format.bold ? QFont::Bold : QFont::Normal);
    result.setFontItalic(format.italic);
    result.setFontUnderline(format.underline);
    if (format.colour) {
        const ColorRef colour = *format.colour;
        result.setForeground(QColor(redOf(colour), greenOf(colour), blueOf(colour)));
    }
    return result;
}

CharFormat fromTextFormat(const QTextCharFormat &format)
{
    CharFormat result;
    result.family = format.fontFamilies().toStringList().value(0);
    result.pointSize = format.fontPointSize();
    if (result.pointSize <= 0) {
        // Pasted web text gives its sizes in pixels.
        result.pointSize = format.intProperty(QTextFormat::FontPixelSize) * pointsPerPixel;
    }
    result.bold = format.fontWeight() >= QFont::DemiBold;
    result.italic = format.fontItalic();
    result.underline = format.fontUnderline();
    const QBrush brush = format.foreground();
    if (brush.style() == Qt::SolidPattern) {
        const QRgb rgb = brush.color().rgb();
        result.colour = colorRef(quint32(qRed(rgb)), quint32(qGreen(rgb)), quint32(qBlue(rgb)));
    }
    return result;
}

QString plainTextOf(const QTextDocument &document)
{
    return withLineEnds(document.toRawText());
}

RichText richTextOf(const QTextDocument &document)
{
    return stretchOf(document, plainTextOf(document), 0);
}

RichText richTextOf(const QTextDocument &document, qsizetype from, qsizetype length)
{
    const qsizetype size = lengthOf(document);
    from = std::clamp(from, qsizetype(0), size);
    const qsizetype to = from + std::clamp(length, qsizetype(0), size - from);
    QTextCursor cursor(const_cast<QTextDocument *>(&document));
    cursor.setPosition(int(from));
    cursor.setPosition(int(to), QTextCursor::KeepAnchor);
    return stretchOf(document, withLineEnds(cursor.selectedText()), from);
}

void setRichText(QTextDocument &document, const RichText &text)
{
    const bool hadUndo = document.isUndoRedoEnabled();
    document.setUndoRedoEnabled(false);
    QTextCursor cursor(&document);
    cursor.beginEditBlock();
    document.clear();
    cursor.insertText(insertable(text.text), toTextFormat({}));
    RunPainter(document, { { text.text.size(), CharFormat() } }).paint(text.characters);
    const bool isPlain = text.paragraphs.empty()
        || (text.paragraphs.size() == 1 && text.paragraphs.front().format == ParagraphFormat());
    if (!isPlain) {
        applyParagraphRuns(cursor, text.paragraphs, 0, 0, document.blockCount() - 1);
    }
    cursor.endEditBlock();
    document.setUndoRedoEnabled(hadUndo);
    document.setModified(false);
}

void insertRichText(QTextCursor &cursor, const RichText &text)
{
    FormatCache formatOf;
    const QString clean = insertable(text.text);
    cursor.beginEditBlock();
    cursor.removeSelectedText();
    const QTextBlock start = cursor.block();
    const bool keepsFirst =
        !cursor.atBlockStart() || (start.length() > 1 && !clean.contains(u'\n'));
    const bool keepsLast = !cursor.atBlockEnd();
    const int firstBlock = start.blockNumber();
    qsizetype position = 0;
    for (const CharRun &run : text.characters) {
        cursor.insertText(clean.mid(position, run.length), formatOf(run.format));
        position += run.length;
    }
    const int lastBlock = cursor.blockNumber();
    applyParagraphRuns(QTextCursor(cursor), text.paragraphs, firstBlock,
                       keepsFirst ? firstBlock + 1 : firstBlock,
                       keepsLast ? lastBlock - 1 : lastBlock);
    cursor.endEditBlock();
}

void applyCharacterRuns(QTextDocument &document, const std::vector<CharRun> &runs)
{
    RunPainter(document, characterRuns(document, 0, lengthOf(document))).paint(runs);
}

int lineOfCharacter(const QTextDocument &document, int position)
{
    return document.findBlock(std::clamp(position, 0, int(lengthOf(document)))).blockNumber();
}

int startOfLine(const QTextDocument &document, int line)
{
    const QTextBlock block = document.findBlockByNumber(line);
    return block.isValid() ? block.position() : -1;
}

int lineCount(const QTextDocument &document)
{
    return document.blockCount();
}

int spanEnd(const QTextDocument &document, int from, QStringView set, bool forward, bool negate)
{
    const auto isWanted = [&](int position) {
        QChar c = document.characterAt(position);
        if (isBorder(c)) {
            c = u'\n';
        }
        // Sets name a line end as the files have it, CR and LF.
        const bool isInSet = set.contains(c) || (c == u'\n' && set.contains(u'\r'));
        return isInSet != negate;
    };
    const int size = int(lengthOf(document));
    int position = std::clamp(from, 0, size);
    if (forward) {
        while (position < size && isWanted(position)) {
            ++position;
        }
    } else {
        while (position > 0 && isWanted(position - 1)) {
            --position;
        }
    }
    return position;
}

} // namespace zeph
