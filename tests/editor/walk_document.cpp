// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "tests/editor/walk_document.h"

#include "text/insert_blocks.h"

#include <algorithm>

namespace zeph::test {

WalkText WalkText::of(const QString &text, const WalkLook &look)
{
    return { text, std::vector<WalkLook>(size_t(text.size()), look) };
}

WalkText WalkText::of(const RichText &text)
{
    WalkText result{ text.text, {} };
    for (const CharRun &run : text.characters) {
        result.looks.insert(result.looks.end(), size_t(run.length), { run.format });
    }
    return result;
}

RichText WalkText::richText() const
{
    RichText result = RichText::plain(text, {}, { .leftIndentTwips = 20 });
    result.characters.clear();
    for (const WalkLook &look : looks) {
        result.characters.push_back({ 1, look.format });
    }
    result.normalise();
    return result;
}

WalkText WalkText::mid(qsizetype from, qsizetype length) const
{
    return { text.mid(from, length), { looks.begin() + from, looks.begin() + from + length } };
}

void WalkText::replace(qsizetype from, qsizetype length, const WalkText &by)
{
    text.replace(from, length, by.text);
    looks.erase(looks.begin() + from, looks.begin() + from + length);
    looks.insert(looks.begin() + from, by.looks.begin(), by.looks.end());
}

bool operator==(const WalkText &one, const WalkText &other)
{
    return one.text == other.text
        && std::ranges::equal(one.looks, other.looks, {}, &WalkLook::format, &WalkLook::format);
}

bool WalkText::isWorthTheSameAs(const WalkText &other) const
{
    const auto given = [](const WalkLook &look) {
        CharFormat format = look.format;
        if (!look.isColourByHand) {
            format.colour.reset();
        }
        return format;
    };
    return text == other.text && std::ranges::equal(looks, other.looks, {}, given, given);
}

WalkDocument::WalkDocument(DocumentKind kind, Settings settings)
    : m_kind(kind), m_settings(std::move(settings))
{
    become({}, -1);
}

int WalkDocument::state() const
{
    return m_saved && m_saved->first.isWorthTheSameAs(m_now) ? m_saved->second : 1;
}

void WalkDocument::setState(int state)
{
    m_saved.reset();
    if (state != 1) {
        m_saved.emplace(m_now, state);
    }
}

void WalkDocument::become(WalkText text, int state)
{
    m_now = std::move(text);
    put(0, 0);
    m_history.start(m_now, 0);
    setState(state);
}

void WalkDocument::looksWritten()
{
    if (m_saved && m_saved->first.text == m_now.text) {
        m_saved->first = m_now;
    }
}

void WalkDocument::follow(int anchor, int caret)
{
    if (caret != m_caret || anchor != caret) {
        m_chosen.reset();
    }
    m_anchor = anchor;
    m_caret = caret;
    m_history.caretAt(selStart());
}

void WalkDocument::put(int anchor, int caret)
{
    m_chosen.reset();
    follow(anchor, caret);
}

void WalkDocument::choose(WalkLook look)
{
    look.isColourByHand = look.format.colour != m_settings.plain.colour;
    m_chosen = look;
}

WalkLook WalkDocument::lookAt(qsizetype position) const
{
    const QString &text = m_now.text;
    if (text.isEmpty()) {
        return plainLook();
    }
    const bool startsLine = position == 0 || text[position - 1] == u'\n';
    const bool endsLine = position == text.size() || text[position] == u'\n';
    return m_now
        .looks[size_t(startsLine && !endsLine ? position : std::max<qsizetype>(position - 1, 0))];
}

void WalkDocument::type(int key)
{
    m_history.key(key, text().isEmpty(), selLength() > 0);
    if (key == Qt::Key_Backspace || key == Qt::Key_Delete) {
        const int one = key == Qt::Key_Backspace ? m_caret - 1 : m_caret;
        if (selLength() > 0) {
            erase(selStart(), selLength());
        } else if (one >= 0 && one < text().size()) {
            erase(one, 1);
        }
        return;
    }
    typeOver(key == Qt::Key_Return      ? u'\n'
                 : key == Qt::Key_Space ? u' '
                 : key == Qt::Key_Tab   ? u'\t'
                                        : QChar(key));
}

void WalkDocument::erase(qsizetype from, qsizetype length)
{
    m_now.replace(from, length, {});
    follow(int(from), int(from));
    m_history.changed(m_now, selStart(), m_settings.undoMax);
}

/// A character that stays where it was keeps its look, as a change is as small as it can be.
void WalkDocument::typeOver(QChar character)
{
    const int from = selStart();
    const QString gone = text().mid(from, selLength());
    WalkLook look = typingLook();
    const bool isOnlyLineEnd = character == u'\n' && gone.count(u'\n') == 1;
    if (gone.endsWith(character)) {
        look = m_now.looks[size_t(from + gone.size() - 1)];
    } else if (gone.startsWith(character) || isOnlyLineEnd) {
        look = m_now.looks[size_t(from + gone.indexOf(character))];
    }
    m_now.replace(from, gone.size(), WalkText::of(QString(character), look));
    follow(from + 1, from + 1);
    m_history.changed(m_now, selStart(), m_settings.undoMax);
}

void WalkDocument::drop(int at, const WalkText &text)
{
    put(at, at);
    m_now.replace(at, 0, text);
    const int end = at + int(text.text.size());
    put(end, end);
    m_history.changed(m_now, end, m_settings.undoMax);
    choose(plainLook());
}

void WalkDocument::begin()
{
    store();
    m_before = m_now;
}

void WalkDocument::commit()
{
    if (m_now == m_before) {
        m_now = m_before; // whose colours they are, too
        return;
    }
    m_history.startStep();
    m_history.changed(m_now, selStart(), m_settings.undoMax);
}

void WalkDocument::replace(qsizetype from, qsizetype length, const WalkText &by)
{
    m_now.replace(from, length, by);
}

void WalkDocument::insert(const WalkText &text)
{
    const int end = selStart() + int(text.text.size());
    m_now.replace(selStart(), selLength(), text);
    put(end, end);
    choose(plainLook());
}

void WalkDocument::replaceAll(const std::vector<qsizetype> &starts, qsizetype length,
                              const QString &by)
{
    const WalkText before = m_now;
    WalkText after;
    qsizetype from = 0;
    for (const qsizetype start : starts) {
        after.replace(after.text.size(), 0, before.mid(from, start - from));
        after.replace(after.text.size(), 0, WalkText::of(by, lookAt(start + length)));
        from = start + length;
    }
    const int end = int(after.text.size());
    after.replace(end, 0, before.mid(from, before.text.size() - from));
    m_now = after;
    put(end, end);
}

WalkText WalkDocument::painted(const QString &text, std::span<const PaintPass> passes) const
{
    RichText rich = RichText::plain(text);
    rich.characters = characterRuns(zeph::paint(text, passes, m_settings.scheme), m_settings.plain);
    return WalkText::of(rich);
}

void WalkDocument::paint(qsizetype from, qsizetype length, std::span<const PaintPass> passes)
{
    const WalkText colours = painted(text().mid(from, length), passes);
    std::ranges::copy(colours.looks, m_now.looks.begin() + from);
}

void WalkDocument::paintLines()
{
    const qsizetype from = text().left(selStart()).lastIndexOf(u'\n') + 1;
    const qsizetype end = text().indexOf(u'\n', selStart() + selLength());
    paint(from, (end < 0 ? text().size() : end + 1) - from, typingPasses());
}

void WalkDocument::stamp(const QDateTime &when)
{
    const auto stamp = modifiedStamp(text(), when);
    if (!stamp) {
        return;
    }
    const qsizetype end = stamp->start + stamp->length;
    const auto grown = int(stamp->text.size() - stamp->length);
    const auto moved = [&](int position) {
        return position < stamp->start ? position
            : position <= end          ? int(stamp->start + stamp->text.size())
                                       : position + grown;
    };
    const int anchor = int(movedByStamp(*stamp, m_anchor));
    const int caret = int(movedByStamp(*stamp, m_caret));
    const WalkLook look = lookAt(end);
    follow(moved(m_anchor), moved(m_caret));
    m_now.replace(stamp->start, stamp->length, WalkText::of(stamp->text, look));
    put(anchor, caret);
    store();
}

void WalkDocument::undo(bool back)
{
    if (m_history.canStep(back)) {
        const auto &slot = m_history.step(back);
        m_now = slot.text;
        put(slot.caret, slot.caret);
    }
}

} // namespace zeph::test
