// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// Reads bodies: what follows a statement's head or a macro's "=", given line by line.

#include "language/model.h"
#include "language/word_map.h"

#include <vector>

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
    /// Whether a bracket is open that is certainly no key.
    bool isInBrackets() const;
    /// Ends the body and returns it; brackets still open end with it.
    Body finish();

private:
    struct OpenBracket {
        char16_t closing = 0;
        /// The item of the group or call. A call's item begins at its word, so the place of the
        /// bracket is kept apart.
        int item = -1;
        Place place;
        Chain chain;
        std::array<bool, slashLevels> outFirst{};
        bool keys = false;
    };

    void readWord(qsizetype from, qsizetype to);
    void readSlash(qsizetype from, int modifier);
    void open(qsizetype at);
    void close(qsizetype at);
    bool isKeyBracket(qsizetype at) const;
    bool standsAlone(qsizetype at) const;
    bool isAfterModifierKey(int item) const;
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
    /// For each link of the chain: whether the first S3 modifier of its level was /O.
    std::array<bool, slashLevels> m_outFirst{};
    bool m_branchOpen = false;
    bool m_inModifiers = false;
    bool m_complained = false;
};

} // namespace zeph::language
