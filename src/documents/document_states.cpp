// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "documents/document_states.h"

#include "platform/richtext/rich_text_document.h"

#include <QScopedValueRollback>
#include <QTextCursor>
#include <QTextDocument>

#include <algorithm>
#include <unordered_set>

namespace zeph {

namespace {

/// The text is left out, since chunks may share it.
qsizetype bytesOf(const TextChunk &chunk)
{
    return qsizetype(sizeof(TextChunk))
        + qsizetype(chunk.runs.capacity() * sizeof(TextChunk::Run)
                    + chunk.paragraphs.capacity() * sizeof(ParagraphRun));
}

/// Writes edits into the toolkit's document, the last one first, so that the positions of the
/// others stay valid. Gives the end of the last edit's new text.
int write(QTextCursor &cursor, const std::vector<TextEdit> &edits)
{
    QTextCursor end(cursor.document());
    if (!edits.empty()) {
        end.setPosition(int(edits.back().from + edits.back().length));
    }
    for (auto edit = edits.rbegin(); edit != edits.rend(); ++edit) {
        cursor.setPosition(int(edit->from));
        cursor.setPosition(int(edit->from + edit->length), QTextCursor::KeepAnchor);
        cursor.insertText(edit->text, QTextCharFormat());
    }
    return end.position();
}

/// The stretches of the wanted text whose looks are wrong after the edits have made it of the old
/// one. Characters that an edit puts in count as right, since their lines are laid out anew anyway.
/// Both readers are at the start of the stretch, which is one of the wanted text.
std::vector<TextStretch> otherLooksAfter(const std::vector<TextEdit> &edits, ChunkReader old,
                                         ChunkReader wanted, TextStretch stretch)
{
    TextChunk::Runs present;
    TextChunk::Runs runs;
    qsizetype position = stretch.from; // in the old text
    qsizetype grown = 0;
    for (const TextEdit &edit : edits) {
        old.takeRuns(edit.from - position, present);
        wanted.takeRuns(edit.from - position, runs);
        old.skip(edit.length);
        ChunkReader again = wanted;
        again.takeRuns(edit.text.size(), present);
        wanted.takeRuns(edit.text.size(), runs);
        position = edit.from + edit.length;
        grown += edit.text.size() - edit.length;
    }
    const qsizetype rest = stretch.to - grown - position;
    old.takeRuns(rest, present);
    wanted.takeRuns(rest, runs);
    std::vector<TextStretch> stretches;
    addOtherLooks(present, runs, stretch.from, stretches);
    return stretches;
}

} // namespace

qsizetype DocumentState::bytesHeld(std::span<const DocumentState> states)
{
    std::unordered_set<const void *> counted;
    qsizetype bytes = 0;
    for (const DocumentState &state : states) {
        if (!state.m_chunks || !counted.insert(state.m_chunks.get()).second) {
            continue;
        }
        bytes += qsizetype(state.m_chunks->capacity() * sizeof(TextChunks::value_type));
        for (const auto &chunk : *state.m_chunks) {
            if (counted.insert(chunk.get()).second) {
                bytes += bytesOf(*chunk);
                const bool isFirst = counted.insert(chunk->text.constData()).second;
                bytes += isFirst ? chunk->text.capacity() * qsizetype(sizeof(QChar)) : 0;
            }
        }
    }
    return bytes;
}

DocumentStates::DocumentStates(QTextDocument &document, int linesPerChunk)
    : m_document(document), m_linesPerChunk(linesPerChunk)
{
    auto chunk = std::make_shared<TextChunk>();
    chunk->paragraphs.push_back({ 1, {} });
    m_known.m_chunks = std::make_shared<TextChunks>(TextChunks{ std::move(chunk) });
    // Without a layout the toolkit reports no changes.
    document.documentLayout();
    connect(&document, &QTextDocument::contentsChange, this, &DocumentStates::onContentsChange);
    connect(&document, &QTextDocument::contentsChanged, this, &DocumentStates::onContentsChanged);
    catchUp();
    m_revision = m_document.revision();
}

/// The runs are cut to the text's length, or lengthened by characters in the control's own look.
TextEdit DocumentStates::editOf(qsizetype from, qsizetype length, const NumberedRichText &text)
{
    TextEdit edit{ from, length, insertableText(text.text), m_looks.runsOf(text.characters) };
    qsizetype left = edit.text.size();
    auto run = edit.runs.begin();
    for (; run != edit.runs.end() && left > 0; ++run) {
        run->length = quint32(std::min(qsizetype(run->length), left));
        left -= run->length;
    }
    edit.runs.erase(run, edit.runs.end());
    addRun(edit.runs, { quint32(left), m_looks.numberOf({}) });
    return edit;
}

void DocumentStates::setText(const NumberedRichText &text)
{
    const TextEdit whole = editOf(0, m_size, text);
    const std::vector<ParagraphRun> &paragraphs = text.paragraphs;
    const bool isUniform = paragraphs.size() == 1 && !paragraphs.front().format.bullet;
    const QScopedValueRollback writing(m_isWriting, true);
    QTextCursor change(&m_document);
    change.beginEditBlock();
    setPlainText(m_document, whole.text, paragraphs);
    setChunks(edited(*m_known.m_chunks, { whole }, m_linesPerChunk,
                     isUniform ? ParagraphSource(paragraphs.front().format)
                               : ParagraphSource(m_document)));
    change.endEditBlock();
}

void DocumentStates::apply(const std::vector<TextEdit> &edits)
{
    const QScopedValueRollback writing(m_isWriting, true);
    QTextCursor cursor(&m_document);
    cursor.beginEditBlock();
    const int end = write(cursor, edits);
    setChunks(edited(*m_known.m_chunks, edits, m_linesPerChunk, ParagraphSource(m_document)));
    if (!edits.empty()) {
        followParagraphs(edits.front().from, end);
    }
    cursor.endEditBlock();
}

void DocumentStates::replace(qsizetype from, qsizetype length, const RichText &text, By by)
{
    catchUp();
    const QScopedValueRollback forUser(m_writesForUser, by == By::User);
    apply({ editOf(from, length, text) });
}

void DocumentStates::replaceAll(std::span<const qsizetype> starts, qsizetype length,
                                const QString &text)
{
    catchUp();
    std::vector<TextEdit> edits;
    edits.reserve(starts.size());
    for (const qsizetype start : starts) {
        edits.push_back({ start, length, insertableText(text), {} });
        addRun(edits.back().runs,
               { quint32(edits.back().text.size()), lookAround(start + length) });
    }
    apply(edits);
}

void DocumentStates::restore(const DocumentState &state)
{
    const DocumentState now = present();
    const TextChunks &old = *now.m_chunks;
    const TextChunks &wanted = *state.m_chunks;
    const auto [oldFront, wantedFront] = std::ranges::mismatch(old, wanted);
    if (oldFront == old.end() && wantedFront == wanted.end()) {
        return;
    }
    const auto front = size_t(oldFront - old.begin());
    const size_t most = std::min(old.size(), wanted.size()) - front;
    size_t back = 0;
    while (back < most && old[old.size() - 1 - back] == wanted[wanted.size() - 1 - back]) {
        ++back;
    }
    const qsizetype from = sizeOf(old, 0, front);
    const QString before = textOf(old, from, from + sizeOf(old, front, old.size() - back));
    const QString after = textOf(wanted, from, from + sizeOf(wanted, front, wanted.size() - back));
    const bool hasSoftEnds = lineOfCharacter(m_document, int(from + before.size()))
            - lineOfCharacter(m_document, int(from))
        != before.count(u'\n');
    // Some line ends lie within a paragraph. Small edits would leave them there, and their lines
    // could not get formats of their own: the whole stretch is replaced.
    std::vector<TextEdit> edits = hasSoftEnds
        ? std::vector<TextEdit>{ { 0, before.size(), after, {} } }
        : differences(before, after);
    for (TextEdit &edit : edits) {
        edit.from += from;
    }
    const std::vector<TextStretch> stretches = otherLooksAfter(
        edits, ChunkReader(old, front), ChunkReader(wanted, front), { from, from + after.size() });
    std::vector<ParagraphRun> paragraphs = join(wanted, front, wanted.size() - back).paragraphs;
    if (back > 0) {
        // The toolkit may give the line after a replaced stretch another format: it gets its own
        // again.
        addParagraphs(paragraphs, { 1, wanted[wanted.size() - back]->paragraphs.front().format });
    }
    const QScopedValueRollback writing(m_isWriting, true);
    QTextCursor cursor(&m_document);
    cursor.beginEditBlock();
    write(cursor, edits);
    setParagraphRuns(m_document, from, after, paragraphs);
    setChunks(wanted);
    m_known = state;
    cursor.endEditBlock();
    if (!stretches.empty()) {
        Q_EMIT looksChanged(stretches);
    }
}

void DocumentStates::setLooks(const LookRuns &looks, qsizetype from)
{
    catchUp();
    layRuns(m_looks.runsOf(looks), from);
}

void DocumentStates::setCharacterRuns(const std::vector<CharRun> &looks, qsizetype from)
{
    setLooks(LookRuns(looks), from);
}

void DocumentStates::changeLooks(qsizetype from, qsizetype length,
                                 const std::function<void(CharFormat &)> &change, ColourGivenBy by)
{
    catchUp();
    const qsizetype first = std::clamp(from, qsizetype(0), m_size);
    TextChunk::Runs changed;
    QHash<quint32, quint32> numbers;
    for (const TextChunk::Run &run :
         runs(first, std::clamp(length, qsizetype(0), m_size - first))) {
        auto number = numbers.constFind(run.look);
        if (number == numbers.cend()) {
            const bool wasByHand = m_looks.isColourByHand(run.look);
            CharFormat look = m_looks.look(run.look);
            change(look);
            const bool isOther = look.colour != m_looks.look(run.look).colour;
            const bool isByHand = by == ColourGivenBy::SameAsBefore || !isOther
                ? wasByHand
                : by == ColourGivenBy::User;
            number = numbers.insert(run.look, m_looks.numberOf(look, isByHand));
        }
        addRun(changed, { run.length, number.value() });
    }
    layRuns(changed, first);
}

void DocumentStates::layRuns(const TextChunk::Runs &runs, qsizetype from)
{
    qsizetype to = from;
    for (const TextChunk::Run &run : runs) {
        to += run.length;
    }
    TextChunks chunks = *m_known.m_chunks;
    RunReader wanted(runs);
    std::vector<TextStretch> stretches;
    qsizetype start = 0;
    for (auto &chunk : chunks) {
        const qsizetype size = chunk->text.size();
        const qsizetype first = std::clamp(from - start, qsizetype(0), size);
        const qsizetype last = std::clamp(to - start, qsizetype(0), size);
        if (first < last) {
            RunReader old(chunk->runs);
            TextChunk::Runs laid;
            laid.reserve(chunk->runs.size());
            old.take(first, laid);
            wanted.take(last - first, laid);
            if (last < size) {
                TextChunk::Runs covered;
                old.take(last - first, covered);
                old.take(size - last, laid);
            }
            if (laid != chunk->runs) {
                addOtherLooks(chunk->runs, laid, start, stretches);
                laid.shrink_to_fit();
                chunk = std::make_shared<TextChunk>(
                    TextChunk{ chunk->text, std::move(laid), chunk->paragraphs });
            }
        }
        start += size;
    }
    if (!stretches.empty()) {
        setChunks(std::move(chunks));
        Q_EMIT looksChanged(stretches);
    }
}

void DocumentStates::setChunks(TextChunks chunks)
{
    m_size = sizeOf(chunks, 0, chunks.size());
    m_known.m_chunks = std::make_shared<const TextChunks>(std::move(chunks));
    m_lastChunk = 0;
    m_lastStart = 0;
}

} // namespace zeph
