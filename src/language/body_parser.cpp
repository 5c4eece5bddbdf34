// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "language/body_parser.h"

#include "language/words.h"

// A body is a list of words, and three things make it hard to read.
//
// Slash modifiers: each one opens a branch, the items up to the next one. m_chain holds the
// modifiers in force; enter() replaces the one of the same level. Modifiers in a run ("/U /I") open
// one branch together, which m_inModifiers tells.
//
// Brackets: each opening bracket adds an item and goes onto m_open with the chain of that moment,
// which its closing bracket restores. Contents are the items in between, with the bracket's item as
// their parent.
//
// Brackets that are keys: "CTL (" presses the key "(". While reading, an opening bracket is taken
// for the start of a group. When no partner is found, mayBeKey() decides whether it can have been a
// key; if so, nobody complains. Only the first complaint of a body is kept.

namespace zeph::language {

namespace {

SlashLevel levelOf(int modifier)
{
    return slashModifiers[size_t(modifier)].level;
}

char16_t partnerOf(QChar bracket)
{
    switch (bracket.unicode()) {
    case u'(':
        return u')';
    case u'<':
        return u'>';
    case u'{':
        return u'}';
    default:
        return 0;
    }
}

} // namespace

bool Chain::holds(QStringView slashWord) const
{
    for (int at = 0; at < size; ++at) {
        const int modifier = links[size_t(at)].modifier;
        if (sameWord(slashModifiers[size_t(modifier)].text, slashWord))
            return true;
    }
    return false;
}

BodyParser::BodyParser(Source &source, const WordMap &macros)
    : m_source(source), m_macros(macros), m_text(source.text)
{
}

void BodyParser::begin(Holds holds)
{
    m_holds = holds;
    m_body.items = { int(m_source.items.size()), 0 };
    m_body.branches = { int(m_source.branches.size()), 0 };
    m_open.clear();
    m_chain = {};
    m_outFirst = {};
    m_branchOpen = false;
    m_inModifiers = false;
    m_complained = false;
}

Body BodyParser::finish()
{
    for (const OpenBracket &bracket : m_open) {
        if (!mayBeKey(bracket)) {
            complain(bracket.place, true);
            break;
        }
    }
    while (!m_open.empty()) {
        Item &item = m_source.items[m_open.back().item];
        item.endItem = int(m_source.items.size());
        const Place &last = m_source.items.last().place;
        item.place.length = std::max(item.place.end(), last.end()) - item.place.position;
        m_open.pop_back();
    }
    endBranch();
    m_body.items.end = int(m_source.items.size());
    m_body.branches.end = int(m_source.branches.size());
    return m_body;
}

void BodyParser::read(qsizetype position, qsizetype end, int line)
{
    m_line = line;
    m_end = end;
    qsizetype at = position;
    while (at < end) {
        const QChar c = m_text[at];
        if (isBlank(c)) {
            ++at;
        } else if (c == u',') {
            const bool separates = !m_open.empty();
            add(separates ? ItemKind::Comma : ItemKind::Key, at, at + 1);
            ++at;
        } else if (isBracketOrComma(c)) {
            if (isKeyBracket(at))
                add(ItemKind::Key, at, at + 1);
            else if (partnerOf(c))
                open(at);
            else
                close(at);
            ++at;
        } else if (const int slash = slashAt(m_text.first(end), at); slash >= 0) {
            readSlash(at, slash);
            at += 2;
        } else {
            const qsizetype to = wordEnd(m_text.first(end), at);
            readWord(at, to);
            at = to;
        }
    }
}

void BodyParser::readKey(qsizetype position, int line)
{
    m_line = line;
    add(ItemKind::Key, position, position + 1);
}

void BodyParser::readWord(qsizetype from, qsizetype to)
{
    const QStringView word = m_text.sliced(from, to - from);
    const size_t hash = foldedHash(word);
    const Word &row = rowOf(word, hash);
    const bool isKey = word.size() == 1 || row.is(KeyRole) || row.is(ModifierKeyRole);
    if (row.is(StatementRole) && m_open.empty() && sameWord(word, u"BTN"_w))
        leaveModifiers();
    if (const int macro = m_macros.value(word, hash); macro >= 0) {
        Item &item = m_source.items[add(ItemKind::MacroUse, from, to)];
        item.reference = macro;
        item.alsoKey = isKey || row.isKnown();
        return;
    }
    // Square brackets are keys, but they may also enclose a macro's name.
    if (word.size() > 1 && word.startsWith(u'[')) {
        add(ItemKind::Key, from, from + 1);
        return readWord(from + 1, to);
    }
    if (word.size() > 1 && word.endsWith(u']')) {
        readWord(from, to - 1);
        add(ItemKind::Key, to - 1, to);
        return;
    }
    ItemKind kind = ItemKind::Unknown;
    if (word == u"^")
        kind = ItemKind::Null;
    else if (wholeNumber(word))
        kind = ItemKind::Number;
    else if (row.is(ModifierKeyRole))
        kind = ItemKind::ModifierKey;
    else if (isKey)
        kind = ItemKind::Key;
    else if (flagNumber(word))
        kind = ItemKind::Flag;
    else if (row.isKnown() || isDirectXButton(word))
        kind = ItemKind::Word;
    add(kind, from, to);
}

void BodyParser::readSlash(qsizetype from, int modifier)
{
    if (!m_inModifiers)
        endBranch();
    const int item = add(ItemKind::Slash, from, from + 2);
    m_source.items[item].reference = modifier;
    enter(modifier, item);
    startBranch(item);
}

// Replaces the modifier of the same level and drops those further in, or adds the new one.
void BodyParser::enter(int modifier, int item)
{
    const SlashLevel level = levelOf(modifier);
    const bool isOut = slashModifiers[size_t(modifier)].text == u"/O"_w;
    int at = 0;
    while (at < m_chain.size && levelOf(m_chain.links[size_t(at)].modifier) != level)
        ++at;
    const bool continues = at < m_chain.size;
    if (level == SlashLevel::S3) {
        bool &outFirst = m_outFirst[size_t(at)];
        if (!continues) {
            outFirst = isOut;
        } else if (outFirst && !isOut) {
            m_source.lateS3.append(m_source.items[item].place);
            outFirst = false;
        }
    }
    m_chain.links[size_t(at)] = { modifier, item };
    m_chain.size = at + 1;
}

void BodyParser::startBranch(int slashItem)
{
    if (m_inModifiers) {
        m_source.branches.last().chain = m_chain;
        m_source.branches.last().items.first = slashItem + 1;
        return;
    }
    m_source.branches.append({ m_source.items[slashItem].place, m_chain, { slashItem + 1, 0 } });
    m_branchOpen = true;
    m_inModifiers = true;
}

void BodyParser::endBranch()
{
    if (!m_branchOpen)
        return;
    Branch &branch = m_source.branches.last();
    branch.items.end = std::max(branch.items.first, int(m_source.items.size()));
    const Item &last = m_source.items.last();
    branch.place.length = std::max(last.place.end(), branch.place.end()) - branch.place.position;
    m_branchOpen = false;
    m_inModifiers = false;
}

int BodyParser::add(ItemKind kind, qsizetype from, qsizetype to)
{
    const int index = int(m_source.items.size());
    if (kind != ItemKind::Slash) {
        if (!m_branchOpen) {
            m_source.branches.append({ placeOf(from, to), m_chain, { index, index } });
            m_branchOpen = true;
        }
        m_inModifiers = false;
    }
    Item item;
    item.place = placeOf(from, to);
    item.kind = kind;
    item.parent = m_open.empty() ? -1 : m_open.back().item;
    item.endItem = index + 1;
    m_source.items.append(item);
    return index;
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
    bracket.closing = partnerOf(m_text[at]);
    bracket.place = placeOf(at, at + 1);
    bracket.item = callBefore(at);
    if (bracket.item >= 0) {
        Item &call = m_source.items[bracket.item];
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
    m_open.push_back(bracket);
}

void BodyParser::close(qsizetype at)
{
    const char16_t closing = m_text[at].unicode();
    while (!m_open.empty() && m_open.back().closing != closing && m_holds == Holds::Keys
           && standsAlone(m_open.back().place.position) && isAfterModifierKey(m_open.back().item))
        m_open.pop_back();
    if (m_open.empty() || m_open.back().closing != closing) {
        if (mayBeKey(at)) {
            add(ItemKind::Key, at, at + 1);
            return;
        }
        complain(m_open.empty() ? placeOf(at, at + 1) : m_open.back().place, !m_open.empty());
        return;
    }
    const OpenBracket bracket = m_open.back();
    m_open.pop_back();
    Item &item = m_source.items[bracket.item];
    item.endItem = int(m_source.items.size());
    item.place.length = at + 1 - item.place.position;
    item.closed = true;
    m_inModifiers = false;
    if (bracket.chain.size == m_chain.size && bracket.chain.links == m_chain.links)
        return;
    // Modifiers inside brackets end with the brackets.
    m_chain = bracket.chain;
    m_outFirst = bracket.outFirst;
    endBranch();
}

// Among the keys of KD and KU an opening bracket is a key. A closing one is a key if it is a word
// of its own and the bracket that closes the call comes next: "KD())" presses ")".
bool BodyParser::isKeyBracket(qsizetype at) const
{
    if (m_open.empty() || !m_open.back().keys)
        return false;
    if (m_text[at] != u')')
        return true;
    const QChar before = m_text[at - 1];
    const bool standsAlone = isBlank(before) || before == u'(';
    return standsAlone && at + 1 < m_end && m_text[at + 1] == u')';
}

bool BodyParser::standsAlone(qsizetype at) const
{
    return (at == 0 || isBlank(m_text[at - 1]))
        && (at + 1 == m_text.size() || isBlank(m_text[at + 1]));
}

bool BodyParser::isAfterModifierKey(int item) const
{
    return item > m_body.items.first && m_source.items[item - 1].kind == ItemKind::ModifierKey;
}

// The keyboard window writes "CTL (" and "/P ( /R a" when the key is the bracket. So an opening
// bracket without a partner counts as a key where no group can have contents: after a modifier key,
// at the body's end, and before a slash modifier that ends the branch.
bool BodyParser::mayBeKey(const OpenBracket &bracket) const
{
    if (m_holds != Holds::Keys || !standsAlone(bracket.place.position)
        || m_source.items[bracket.item].kind != ItemKind::Group)
        return false;
    const int next = bracket.item + 1;
    if (isAfterModifierKey(bracket.item) || next == m_source.items.size())
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

// A closing bracket without a partner counts as a key where no group can end: after a modifier key,
// and as the first word of a body or branch.
bool BodyParser::mayBeKey(qsizetype closing) const
{
    if (m_holds != Holds::Keys || !standsAlone(closing))
        return false;
    const int item = int(m_source.items.size());
    if (isAfterModifierKey(item))
        return true;
    return m_open.empty()
        && (item == m_body.items.first || m_source.items[item - 1].kind == ItemKind::Slash);
}

bool BodyParser::isInBrackets() const
{
    return !m_open.empty() && !(mayBeKey(m_open.front()) && mayBeKey(m_open.back()));
}

// A second BTN in the same body begins without the modifiers of the first.
void BodyParser::leaveModifiers()
{
    endBranch();
    m_chain = {};
    m_outFirst = {};
}

void BodyParser::complain(const Place &place, bool opening)
{
    if (m_complained)
        return;
    m_complained = true;
    m_source.strayBrackets.append({ place, opening });
}

} // namespace zeph::language
