// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "platform/richtext/rich_text_document.h"

#include "platform/colours.h"

#include <QTextBlock>
#include <QTextList>

#include <algorithm>

namespace zeph {

namespace {

// Twips in a device-independent pixel; indents keep fractions, so that they come back exactly.
constexpr double twipsPerPixel = 15;
constexpr double pointsPerPixel = 0.75;

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

bool allParagraphsHave(const QTextDocument &document, const ParagraphFormat &format)
{
    const QTextBlockFormat wanted = toBlockFormat(format);
    int good = -1;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        if (block.blockFormatIndex() == good) {
            continue;
        }
        if (format.bullet || block.textList() || block.blockFormat() != wanted) {
            return false;
        }
        good = block.blockFormatIndex();
    }
    return true;
}

/// Lays the parts of runs over the text where it looks otherwise.
class RunPainter
{
public:
    /// The present runs start at a position of the document, and so do those that are painted.
    RunPainter(QTextDocument &document, std::vector<CharRun> present, qsizetype from = 0)
        : m_cursor(&document), m_present(std::move(present)), m_from(from), m_start(from)
    {
    }

    void paint(const std::vector<CharRun> &runs)
    {
        m_cursor.beginEditBlock();
        qsizetype position = m_from;
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
    qsizetype m_from;
    size_t m_index = 0; ///< of the present run, and the position where it starts
    qsizetype m_start;
};

/// The look that the most runs have, among the first few looks: a text that has it from the start
/// needs the fewest changes. Files have few looks.
CharFormat commonLook(const std::vector<CharRun> &runs)
{
    constexpr size_t few = 16;
    std::vector<std::pair<const CharFormat *, int>> looks;
    for (const CharRun &run : runs) {
        const auto known = std::find_if(looks.begin(), looks.end(), [&run](const auto &look) {
            return *look.first == run.format;
        });
        if (known != looks.end()) {
            ++known->second;
        } else if (looks.size() < few) {
            looks.emplace_back(&run.format, 1);
        }
    }
    const auto most =
        std::max_element(looks.begin(), looks.end(),
                         [](const auto &a, const auto &b) { return a.second < b.second; });
    return most == looks.end() ? CharFormat() : *most->first;
}

/// Replaces the cursor's selection with a text, without the paragraphs' formats; the cursor is
/// after it then.
void insertCharacters(QTextCursor &cursor, const RichText &text)
{
    const int from = cursor.selectionStart();
    const CharFormat common = commonLook(text.characters);
    cursor.insertText(insertableText(text.text), toTextFormat(common));
    RunPainter(*cursor.document(), { { text.text.size(), common } }, from).paint(text.characters);
}

/// Puts what a function inserts in place of everything.
template <class Insert>
void fill(QTextDocument &document, const std::vector<ParagraphRun> &paragraphs, Insert insert)
{
    const bool hadUndo = document.isUndoRedoEnabled();
    document.setUndoRedoEnabled(false);
    QTextCursor cursor(&document);
    cursor.beginEditBlock();
    document.clear();
    const bool isUniform =
        paragraphs.empty() || (paragraphs.size() == 1 && !paragraphs.front().format.bullet);
    if (isUniform && !paragraphs.empty()) {
        // Each paragraph takes over the format of the one before it.
        cursor.setBlockFormat(toBlockFormat(paragraphs.front().format));
    }
    insert(cursor);
    if (!isUniform) {
        applyParagraphRuns(cursor, paragraphs, 0, 0, document.blockCount() - 1);
    }
    cursor.endEditBlock();
    document.setUndoRedoEnabled(hadUndo);
    document.setModified(false);
}

} // namespace

QString insertableText(const QString &text)
{
    const auto isStray = [](QChar c) {
        return c == u'\r' || isBlockBorder(c);
    };
    if (std::none_of(text.begin(), text.end(), isStray)) {
        return text;
    }
    QString clean = text;
    std::replace_if(clean.begin(), clean.end(), isStray, QChar(QChar::ReplacementCharacter));
    return clean;
}

QTextCharFormat toTextFormat(const CharFormat &format)
{
    QTextCharFormat result;
    if (!format.family.isEmpty()) {
        result.setFontFamilies({ format.family });
    }
    if (format.pointSize > 0) {
        result.setFontPointSize(format.pointSize);
    }
    // Set also when they are off: the control's own font may be bold.
    result.setFontWeight(format.bold ? QFont::Bold : QFont::Normal);
    result.setFontItalic(format.italic);
    result.setFontUnderline(format.underline);
    if (format.strike) {
        result.setFontStrikeOut(true);
    }
    if (!format.link.isEmpty()) {
        result.setAnchor(true);
        result.setAnchorHref(format.link);
    }
    if (format.colour) {
        result.setForeground(toColor(*format.colour));
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
    result.strike = format.fontStrikeOut();
    result.link = format.anchorHref();
    const QBrush brush = format.foreground();
    if (brush.style() == Qt::SolidPattern) {
        const QRgb rgb = brush.color().rgb();
        result.colour = colorRef(quint32(qRed(rgb)), quint32(qGreen(rgb)), quint32(qBlue(rgb)));
    }
    return result;
}

void setRichText(QTextDocument &document, const RichText &text)
{
    fill(document, text.paragraphs,
         [&text](QTextCursor &cursor) { insertCharacters(cursor, text); });
}

bool fillDocument(QTextDocument &document, const RichText &text,
                  const std::function<bool(qsizetype)> &goOn)
{
    constexpr qsizetype pieceSize = 1 << 17;
    document.setUndoRedoEnabled(false);
    QTextCursor cursor(&document);
    // One edit: between edits a cursor asks where it stands, and has all of the text laid out.
    cursor.beginEditBlock();
    qsizetype done = 0;
    bool goesOn = true;
    forEachPiece(text, pieceSize, [&](const RichText &piece) {
        insertRichText(cursor, piece);
        done += piece.text.size();
        goesOn = goOn(done);
        return goesOn;
    });
    cursor.endEditBlock();
    document.setUndoRedoEnabled(true);
    document.setModified(false);
    return goesOn;
}

bool holdsLongWord(QStringView text, qsizetype length)
{
    qsizetype start = 0;
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text[i].isSpace() || isBlockBorder(text[i])) {
            start = i + 1;
        } else if (i + 1 - start >= length) {
            return true;
        }
    }
    return false;
}

void setPlainText(QTextDocument &document, const QString &text,
                  const std::vector<ParagraphRun> &paragraphs)
{
    fill(document, paragraphs, [&text](QTextCursor &cursor) {
        cursor.insertText(insertableText(text), QTextCharFormat());
    });
}

void insertRichText(QTextCursor &cursor, const RichText &text)
{
    cursor.beginEditBlock();
    cursor.removeSelectedText();
    const QTextBlock start = cursor.block();
    const bool keepsFirst =
        !cursor.atBlockStart() || (start.length() > 1 && !text.text.contains(u'\n'));
    const bool keepsLast = !cursor.atBlockEnd();
    const int firstBlock = start.blockNumber();
    insertCharacters(cursor, text);
    const int lastBlock = cursor.blockNumber();
    applyParagraphRuns(QTextCursor(cursor), text.paragraphs, firstBlock,
                       keepsFirst ? firstBlock + 1 : firstBlock,
                       keepsLast ? lastBlock - 1 : lastBlock);
    cursor.endEditBlock();
}

void setParagraphRuns(QTextDocument &document, qsizetype from, QStringView text,
                      const std::vector<ParagraphRun> &wanted)
{
    if (paragraphRunsOf(document, from, text) != wanted) {
        const int first = document.findBlock(int(from)).blockNumber();
        const int last = document.findBlock(int(from + text.size())).blockNumber();
        applyParagraphRuns(QTextCursor(&document), wanted, first, first, last);
    }
}

void applyCharacterRuns(QTextDocument &document, const std::vector<CharRun> &runs, qsizetype from)
{
    qsizetype length = 0;
    for (const CharRun &run : runs) {
        length += std::max(run.length, qsizetype(0));
    }
    RunPainter(document, characterRunsOf(document, from, length), from).paint(runs);
}

void setParagraphFormat(QTextDocument &document, const ParagraphFormat &format)
{
    if (!allParagraphsHave(document, format)) {
        QTextCursor cursor(&document);
        cursor.beginEditBlock();
        setParagraphs(cursor, 0, document.blockCount(), format);
        cursor.endEditBlock();
    }
}

} // namespace zeph
