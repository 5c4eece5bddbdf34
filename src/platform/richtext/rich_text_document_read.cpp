// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "platform/richtext/rich_text_document.h"

#include <QTextBlock>
#include <QTextList>

#include <algorithm>

namespace zeph {

namespace {

// Twips in a device-independent pixel; indents keep fractions, so that they come back exactly.
constexpr double twipsPerPixel = 15;

/// A text of the toolkit with '\n' in place of the toolkit's line ends.
QString withLineEnds(QString text)
{
    // Nearly all characters are far below the borders' code points: one test decides.
    const auto isBorder = [](QChar c) {
        return c >= QChar(QChar::LineSeparator) && isBlockBorder(c);
    };
    QChar *const end = text.data() + text.size();
    std::replace_if(text.data(), end, isBorder, QChar(u'\n'));
    return text;
}

/// Collects runs from the toolkit's format numbers; looks up each format once.
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
    // After the last paragraph the toolkit counts a separator that is no character of the text.
    return document.characterCount() - 1;
}

/// A stretch clamped to the document.
struct Stretch {
    Stretch(const QTextDocument &document, qsizetype start, qsizetype length)
        : from(std::clamp(start, qsizetype(0), lengthOf(document))),
          to(from + std::clamp(length, qsizetype(0), lengthOf(document) - from))
    {
    }
    qsizetype from;
    qsizetype to;
};

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
        // A line end has the format that the next block starts with.
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

RichText stretchOf(const QTextDocument &document, QString text, qsizetype from)
{
    RichText result;
    result.text = std::move(text);
    result.characters = characterRuns(document, from, from + result.text.size());
    result.paragraphs = paragraphRunsOf(document, from, result.text);
    return result;
}

} // namespace

bool isBlockBorder(QChar character)
{
    return character == QChar::ParagraphSeparator || character == QChar::LineSeparator
        || character == QChar(0xFDD0) || character == QChar(0xFDD1);
}

QString plainTextOf(const QTextDocument &document)
{
    return withLineEnds(document.toRawText());
}

QString plainTextOf(const QTextDocument &document, qsizetype from, qsizetype length)
{
    const Stretch stretch(document, from, length);
    if (stretch.from == 0 && stretch.to == lengthOf(document)) {
        return plainTextOf(document);
    }
    QTextCursor cursor(const_cast<QTextDocument *>(&document));
    cursor.setPosition(int(stretch.from));
    cursor.setPosition(int(stretch.to), QTextCursor::KeepAnchor);
    return withLineEnds(cursor.selectedText());
}

std::vector<ParagraphRun> paragraphRunsOf(const QTextDocument &document, qsizetype from,
                                          QStringView text)
{
    std::vector<ParagraphRun> runs;
    const qsizetype total = text.count(u'\n') + 1;
    const QTextBlock last = document.findBlock(int(from + text.size()));
    const QTextBlock first = document.findBlock(int(from));
    const bool hasSoftEnds = last.blockNumber() - first.blockNumber() + 1 != total;
    int formatIndex = -1;
    for (QTextBlock block = first; block.isValid(); block = block.next()) {
        qsizetype count = 1;
        if (hasSoftEnds) {
            const qsizetype start = std::max(block.position() - from, qsizetype(0));
            const qsizetype end = block.position() + block.length() - 1 - from;
            count += text.mid(start, end - start).left(text.size() - start).count(u'\n');
        }
        if (runs.empty() || block.blockFormatIndex() != formatIndex) {
            formatIndex = block.blockFormatIndex();
            const ParagraphFormat format = paragraphFormatOf(block);
            if (runs.empty() || runs.back().format != format) {
                runs.push_back({ 0, format });
            }
        }
        runs.back().count += count;
        if (block == last) {
            break;
        }
    }
    return runs;
}

RichText richTextOf(const QTextDocument &document)
{
    return stretchOf(document, plainTextOf(document), 0);
}

RichText richTextOf(const QTextDocument &document, qsizetype from, qsizetype length)
{
    const Stretch stretch(document, from, length);
    return stretchOf(document, plainTextOf(document, from, length), stretch.from);
}

std::vector<CharRun> characterRunsOf(const QTextDocument &document)
{
    return characterRuns(document, 0, lengthOf(document));
}

std::vector<CharRun> characterRunsOf(const QTextDocument &document, qsizetype from,
                                     qsizetype length)
{
    const Stretch stretch(document, from, length);
    return characterRuns(document, stretch.from, stretch.to);
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
        if (isBlockBorder(c)) {
            c = u'\n';
        }
        // In a set a line end is CR and LF, as in the files.
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
