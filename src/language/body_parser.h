// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// Reads bodies: what follows a statement's head or a macro's "=", given line by line.

#include "language/bracket_stack.h"
#include "language/word_map.h"

namespace zeph::language {

class BodyParser
{
public:
    /// Source and macros must outlive the parser. The macros' values are indices in
    /// MacroFile::macros.
    BodyParser(Source &source, const WordMap &macros);

    /// What a body consists of. A bracket can be a key only where keys are.
    enum class Holds : quint8 { Keys, Arguments };

    void begin(Holds holds);
    /// Reads a line's characters from position up to end, both counted from the file's start. The
    /// caller has left the comment out.
    void read(qsizetype position, qsizetype end, int line);
    /// Reads the one character at the position as a key, even a bracket.
    void readKey(qsizetype position, int line);
    /// Whether a bracket is open that is probably no key.
    bool isInBrackets() const;
    /// Whether a bracket is open that is certainly no key.
    bool isInCertainBrackets() const { return m_open.holdsCertain(); }
    /// Ends the body and returns it; brackets still open end with it.
    Body finish();

private:
    void readWord(qsizetype from, qsizetype to);
    bool readMacroUse(qsizetype from, qsizetype to);
    void readPlainWord(qsizetype from, qsizetype to);
    void readBracket(qsizetype at);
    void readSlash(qsizetype from, int modifier);
    void open(qsizetype at);
    void close(qsizetype at);
    void restoreChain(const OpenBracket &bracket);
    void endKeys(int next);
    void countClosers(qsizetype at);
    bool isAmongKeys() const { return !m_open.isEmpty() && m_open.top().keys; }
    bool isKeyAmongKeys(qsizetype at) const;
    bool mayBeKey(qsizetype at) const;
    bool isProbablyKey(const OpenBracket &bracket) const;
    int callBefore(qsizetype at) const;
    void complain(const Place &place, bool opening);
    void complainOfOpenBrackets();
    void forgetDoubtfulS3();
    int add(ItemKind kind, qsizetype from, qsizetype to);
    void enter(int modifier, int item);
    void startBranch(int slashItem);
    void endBranch();
    void leaveModifiers();
    Place placeOf(qsizetype from, qsizetype to) const { return { from, to - from, m_line }; }

    Source &m_source;
    const WordMap &m_macros;
    QStringView m_text;
    qsizetype m_end = 0;
    int m_line = 1;

    Body m_body;
    Holds m_holds = Holds::Keys;
    BracketStack m_open;
    /// How many ")" follow the one just read, up to m_countedTo.
    int m_closersAhead = 0;
    qsizetype m_countedTo = 0;
    Chain m_chain;
    /// For each link of the chain: whether the first S3 modifier of its level was /O.
    std::array<bool, slashLevels> m_outFirst{};
    bool m_branchOpen = false;
    bool m_inModifiers = false;
    bool m_complained = false;
};

} // namespace zeph::language
