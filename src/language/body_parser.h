// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// Reads bodies: what stands behind a statement's head or a macro's "=". Fed line by line.

#include "language/model.h"
#include "language/word_map.h"

#include <vector>

namespace zeph::language {

class BodyParser
{
public:
    /// Both must outlive the parser. The macros' values are indices in MacroFile::macros.
    BodyParser(Source &source, const WordMap &macros);

    /// What a body is made of: only where keys stand, a bracket can be one.
    enum class Holds : quint8 { Keys, Arguments };

    void begin(Holds holds);
    /// Reads the stretch of a line from position up to end, comment cut off already.
    void read(qsizetype position, qsizetype end, int line);
    /// Takes the character there as a key, whatever it is.
    void readKey(qsizetype position, int line);
    /// Whether a bracket is open that is certainly no key.
    bool isInBrackets() const;
    /// Closes what is open and gives the body.
    Body finish();

private:
    struct OpenBracket {
        char16_t closing = 0;
        /// Its item, and the place of the bracket itself: a call's item begins at the word.
        int item = -1;
        Place place;
        Chain chain;
        std::array<bool, 5> outFirst{};
        bool keys = false;
    };

    void readWord(qsizetype from, qsizetype to);
    void readSlash(qsizetype from, int modifier);
    void open(qsizetype at);
    void close(qsizetype at);
    bool isKeyBracket(qsizetype at) const;
    bool standsAlone(qsizetype at) const;
    bool isBehindModifierKey(int item) const;
    bool mayBeKey(const OpenBracket &bracket) const;
    bool mayBeKey(qsizetype closing) const;
    int callBefore(qsizetype at) const;
    void complain(const Place &place, bool opening);
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
    std::vector<OpenBracket> m_open;
    Chain m_chain;
    /// For each link of the chain: the S3 modifier that came first at its level was /O.
    std::array<bool, 5> m_outFirst{};
    bool m_branchOpen = false;
    bool m_inModifiers = false;
    bool m_complained = false;
};

} // namespace zeph::language
