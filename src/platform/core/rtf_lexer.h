// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// RTF cut into tokens, without a thought about what they mean.

#include <QByteArrayView>

#include <string_view>

namespace zeph::rtf {

struct Token {
    enum class Kind {
        End, ///< of the input
        Open, ///< {
        Close, ///< }
        Word, ///< \name or \nameN: text is the name
        Symbol, ///< \ and a character that is no letter: text is that character
        Byte, ///< \'hh: value is the byte
        Text, ///< plain bytes, without line ends and NULs
    };
    Kind kind = Kind::End;
    std::string_view text; ///< into the input
    int value = 0; ///< a word's number, cut to what an int holds
    bool hasValue = false;
};

/// Walks over the input once. The bytes of \bin are stepped over together with their word.
class Lexer
{
public:
    explicit Lexer(QByteArrayView bytes);

    Token next();
    /// 0-based byte at which the next token starts.
    qsizetype offset() const { return m_at - m_begin; }

private:
    Token escape();
    Token word();
    Token hexByte();
    Token text();
    int number();

    const char *m_begin;
    const char *m_at;
    const char *m_end;
};

} // namespace zeph::rtf
