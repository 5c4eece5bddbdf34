// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "language/body_parser.h"

#include "language/words.h"

// Brackets that are keys: "CTL (" presses the key "(", and so may any bracket with blanks on both
// sides. While reading, an opening bracket is taken for the start of a group. When such a bracket
// finds no partner it was a key, and nobody complains. Only the first complaint of a body is kept.
//
// KD, KU and USB hold keys and nothing else. A slash modifier or another call shows that their own
// closing bracket is missing. Of two closing brackets the first may be a key: "KD(LSHF ))".

namespace zeph::language {

namespace {

SlashLevel levelOf(int modifier)
{
    return slashModifiers[size_t(modifier)].level;
}

bool standsAlone(QStringView text, qsizetype at)
{
    return (at == 0 || isBlank(text[at - 1])) && (at + 1 == text.size() || isBlank(text[at + 1]));
}

} // namespace

void BodyParser::readBracket(qsizetype at)
{
    if (m_text[at] == u')')
        countClosers(at);
    if (isAmongKeys() && isKeyAmongKeys(at))
        add(ItemKind::Key, at, at + 1);
    else if (closingOf(m_text[at]))
        open(at);
    else
        close(at);
}

// Index of the item before the bracket if it is a word that takes arguments, or -1.
int BodyParser::callBefore(qsizetype at) const
{
    const int index = int(m_source.items.size()) - 1;
    if (m_text[at] != u'(' || index < m_body.items.first)
        return -1;
    const Item &item = m_source.items[index];
    const bool canCall = item.kind == ItemKind::Word || item.alsoKey;
    if (!canCall || item.place.line != m_line || item.endItem != index + 1)
        return -1;
    const QStringView between = m_text.sliced(item.place.end(), at - item.place.end());
    if (trimmedEnd(between) != 0 || rowOf(m_source.at(item)).arguments == CallShape::None)
        return -1;
    return index;
}

void BodyParser::open(qsizetype at)
{
    OpenBracket bracket;
    bracket.closing = closingOf(m_text[at]);
    bracket.place = placeOf(at, at + 1);
    bracket.item = callBefore(at);
    bracket.mayBeKey = mayBeKey(at);
    if (bracket.item >= 0) {
        if (isAmongKeys()) {
            endKeys(bracket.item);
            m_source.items[bracket.item].parent = m_open.isEmpty() ? -1 : m_open.top().item;
        }
        Item &call = m_source.items[bracket.item];
        // A macro may have the word's name, and the bracket be a key.
        bracket.mayBeKey = bracket.mayBeKey && call.kind == ItemKind::MacroUse;
        call.kind = ItemKind::Call;
        call.alsoKey = false;
        const Word &row = rowOf(m_source.at(call));
        call.reference = indexOf(row);
        bracket.keys = row.arguments == CallShape::Keys;
    } else {
        bracket.item = add(ItemKind::Group, at, at + 1);
    }
    bracket.chain = m_chain;
    bracket.outFirst = m_outFirst;
    m_open.push(bracket);
}

void BodyParser::close(qsizetype at)
{
    const int partner = m_open.partnerOf(m_text[at].unicode());
    if (partner < 0) {
        if (mayBeKey(at)) {
            add(ItemKind::Key, at, at + 1);
            return;
        }
        const bool crosses = !m_open.isEmpty() && !m_open.top().mayBeKey;
        complain(crosses ? m_open.top().place : placeOf(at, at + 1), crosses);
        return;
    }
    while (m_open.size() > partner + 1) {
        Item &key = m_source.items[m_open.pop().item];
        if (key.kind == ItemKind::Group)
            key.kind = ItemKind::Key;
    }
    const OpenBracket bracket = m_open.pop();
    Item &item = m_source.items[bracket.item];
    item.endItem = int(m_source.items.size());
    item.place.length = at + 1 - item.place.position;
    item.closed = true;
    m_inModifiers = false;
    restoreChain(bracket);
}

// Modifiers inside brackets end with the brackets.
void BodyParser::restoreChain(const OpenBracket &bracket)
{
    const bool isSame = bracket.chain.size == m_chain.size && bracket.chain.links == m_chain.links;
    if (isSame)
        return;
    // If the brackets are two keys, the modifiers between them hold on: "/O ( /D ) /I a".
    bool isDoubtful = false;
    for (int link = 0; bracket.mayBeKey && link < bracket.chain.size; ++link)
        isDoubtful |= bracket.chain.links[size_t(link)] != m_chain.links[size_t(link)];
    m_chain = bracket.chain;
    m_outFirst = isDoubtful ? std::array<bool, slashLevels>() : bracket.outFirst;
    endBranch();
}

// Ends a list of keys whose closing bracket is missing. The item `next` is the first one after it.
void BodyParser::endKeys(int next)
{
    const OpenBracket bracket = m_open.pop();
    Item &item = m_source.items[bracket.item];
    item.endItem = next;
    const qsizetype end = std::max(bracket.place.end(), m_source.items[next - 1].place.end());
    item.place.length = end - item.place.position;
    complain(bracket.place, true);
}

// Counts each ")" once: the next one of those already counted leaves one less.
void BodyParser::countClosers(qsizetype at)
{
    if (at < m_countedTo) {
        --m_closersAhead;
        return;
    }
    m_closersAhead = 0;
    for (m_countedTo = at + 1; m_countedTo < m_end; ++m_countedTo) {
        const QChar c = m_text[m_countedTo];
        const bool beginsWord = !isBodyCharacter(m_text[m_countedTo - 1]);
        const bool ends = c == u'('
            || (c != u',' && c != u')' && isBracketOrComma(c) && !standsAlone(m_text, m_countedTo))
            || (beginsWord && slashAt(m_text.first(m_end), m_countedTo) >= 0);
        if (ends)
            return;
        m_closersAhead += c == u')' ? 1 : 0;
    }
}

// Among keys a bracket is a key if it is a word of its own. A closing one is none if all that
// follow are needed for the brackets that are open.
bool BodyParser::isKeyAmongKeys(qsizetype at) const
{
    const QChar before = m_text[at - 1];
    const bool begins = isBlank(before) || before == u'(';
    const bool ends = at + 1 >= m_end || isBlank(m_text[at + 1]) || m_text[at + 1] == u')';
    if (!begins || !ends)
        return false;
    if (m_text[at] == u')')
        return m_closersAhead >= m_open.rounds();
    const int call = callBefore(at);
    return call < 0 || m_source.items[call].kind == ItemKind::MacroUse;
}

bool BodyParser::mayBeKey(qsizetype at) const
{
    if (m_holds != Holds::Keys || !standsAlone(m_text, at))
        return false;
    const bool isArgument = !m_open.isEmpty() && !m_open.top().keys
        && m_source.items[m_open.top().item].kind == ItemKind::Call;
    return !isArgument;
}

// A bracket that may be a key probably is one where no group can have contents: after a modifier
// key, at the body's end, and before a slash modifier that ends the branch.
bool BodyParser::isProbablyKey(const OpenBracket &bracket) const
{
    if (!bracket.mayBeKey)
        return false;
    const int next = bracket.item + 1;
    const bool afterModifierKey = bracket.item > m_body.items.first
        && m_source.items[bracket.item - 1].kind == ItemKind::ModifierKey;
    if (afterModifierKey || next == m_source.items.size())
        return true;
    const Item &following = m_source.items[next];
    if (following.kind != ItemKind::Slash)
        return false;
    for (int at = 0; at < bracket.chain.size; ++at) {
        if (levelOf(bracket.chain.links[size_t(at)].modifier) == levelOf(following.reference))
            return true;
    }
    return false;
}

bool BodyParser::isInBrackets() const
{
    return !m_open.isEmpty() && !(isProbablyKey(m_open.bottom()) && isProbablyKey(m_open.top()));
}

void BodyParser::complain(const Place &place, bool opening)
{
    if (m_complained)
        return;
    m_complained = true;
    m_source.strayBrackets.append({ place, opening });
}

void BodyParser::complainOfOpenBrackets()
{
    // Keys that are not closed take every bracket after them for a key.
    if (isAmongKeys())
        return complain(m_open.top().place, true);
    for (int index = 0; index < m_open.size(); ++index) {
        if (!m_open.at(index).mayBeKey)
            return complain(m_open.at(index).place, true);
    }
}

// If an open bracket was a key, the modifiers after it may belong to another branch than it seems.
void BodyParser::forgetDoubtfulS3()
{
    const OpenBracket &first = m_open.bottom();
    while (first.mayBeKey && !m_source.lateS3.isEmpty()
           && m_source.lateS3.last().position > first.place.position)
        m_source.lateS3.removeLast();
}

} // namespace zeph::language
