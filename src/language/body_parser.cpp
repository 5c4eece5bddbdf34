// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "language/body_parser.h"

#include "language/words.h"

// A body is a list of words, and two things make it hard to read.
//
// Slash modifiers: each one opens a branch, the items up to the next one. m_chain holds the
// modifiers in force; enter() replaces the one of the same level. Modifiers in a run ("/U /I") open
// one branch together, which m_inModifiers tells.
//
// Brackets: each opening bracket adds an item and goes onto m_open with the chain of that moment,
// which its closing bracket restores. Contents are the items in between, with the bracket's item as
// their parent. body_brackets.cpp reads them.

namespace zeph::language {

namespace {

SlashLevel levelOf(int modifier)
{
    return slashModifiers[size_t(modifier)].level;
}

// In longer words only what is inside all square brackets can be a macro's name, so that a line of
// brackets costs no more than other lines.
constexpr qsizetype longestBracketedName = 100;

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
    if (!m_open.isEmpty()) {
        complainOfOpenBrackets();
        forgetDoubtfulS3();
    }
    while (!m_open.isEmpty()) {
        const OpenBracket bracket = m_open.pop();
        Item &item = m_source.items[bracket.item];
        item.endItem = int(m_source.items.size());
        const bool isEmpty = item.endItem == bracket.item + 1;
        if (bracket.mayBeKey && isEmpty && item.kind == ItemKind::Group)
            item.kind = ItemKind::Key;
        const Place &last = m_source.items.last().place;
        item.place.length = std::max(item.place.end(), last.end()) - item.place.position;
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
    m_countedTo = position;
    qsizetype at = position;
    while (at < end) {
        const QChar c = m_text[at];
        if (isBlank(c)) {
            ++at;
        } else if (c == u',') {
            const bool separates = !m_open.isEmpty();
            add(separates ? ItemKind::Comma : ItemKind::Key, at, at + 1);
            ++at;
        } else if (isBracketOrComma(c)) {
            readBracket(at);
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

bool BodyParser::readMacroUse(qsizetype from, qsizetype to)
{
    const QStringView word = m_text.sliced(from, to - from);
    const size_t hash = foldedHash(word);
    const int macro = m_macros.value(word, hash);
    if (macro < 0)
        return false;
    const Word &row = rowOf(word, hash);
    Item &item = m_source.items[add(ItemKind::MacroUse, from, to)];
    item.reference = macro;
    item.alsoKey = word.size() == 1 || row.isKnown();
    return true;
}

// Square brackets are keys, but they may also enclose a macro's name or belong to it. So they are
// taken off one by one, the opening ones first, until a macro has the name that is left.
void BodyParser::readWord(qsizetype from, qsizetype to)
{
    const auto isTried = [&] {
        return to - from <= longestBracketedName;
    };
    bool isMacro = readMacroUse(from, to);
    while (!isMacro && to - from > 1 && m_text[from] == u'[') {
        add(ItemKind::Key, from, from + 1);
        ++from;
        isMacro = isTried() && readMacroUse(from, to);
    }
    const qsizetype end = to;
    while (!isMacro && to - from > 1 && m_text[to - 1] == u']') {
        --to;
        isMacro = isTried() && readMacroUse(from, to);
    }
    if (!isMacro)
        readPlainWord(from, to);
    for (; to < end; ++to)
        add(ItemKind::Key, to, to + 1);
}

void BodyParser::readPlainWord(qsizetype from, qsizetype to)
{
    if (to - from > longestBracketedName && readMacroUse(from, to))
        return;
    const QStringView word = m_text.sliced(from, to - from);
    const Word &row = rowOf(word);
    if (row.is(StatementRole) && m_open.isEmpty() && sameWord(word, u"BTN"_w))
        leaveModifiers();
    ItemKind kind = ItemKind::Unknown;
    if (word == u"^")
        kind = ItemKind::Null;
    else if (wholeNumber(word))
        kind = ItemKind::Number;
    else if (row.is(ModifierKeyRole))
        kind = ItemKind::ModifierKey;
    else if (word.size() == 1 || row.is(KeyRole))
        kind = ItemKind::Key;
    else if (flagNumber(word))
        kind = ItemKind::Flag;
    else if (row.isKnown() || isDirectXButton(word))
        kind = ItemKind::Word;
    add(kind, from, to);
}

void BodyParser::readSlash(qsizetype from, int modifier)
{
    if (isAmongKeys())
        endKeys(int(m_source.items.size()));
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
    item.parent = m_open.isEmpty() ? -1 : m_open.top().item;
    item.endItem = index + 1;
    m_source.items.append(item);
    return index;
}

// A second BTN in the same body begins without the modifiers of the first.
void BodyParser::leaveModifiers()
{
    endBranch();
    m_chain = {};
    m_outFirst = {};
}

} // namespace zeph::language
