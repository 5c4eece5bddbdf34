// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "platform/core/rtf_lexer.h"

#include <algorithm>
#include <array>
#include <cstdint>

namespace zeph::rtf {

namespace {

/// Bytes that end a stretch of text, as a table: reading costs one look-up a byte.
constexpr std::array<bool, 256> makeTextEnds()
{
    std::array<bool, 256> ends{};
    for (const char c : { '\\', '{', '}', '\r', '\n', '\0' }) {
        ends[static_cast<unsigned char>(c)] = true;
    }
    return ends;
}

constexpr std::array<bool, 256> textEnds = makeTextEnds();

bool endsText(char c)
{
    return textEnds[static_cast<unsigned char>(c)];
}

bool isIgnored(char c)
{
    return c == '\r' || c == '\n' || c == '\0';
}

bool isLetter(char c)
{
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

int hexDigit(char c)
{
    if (isDigit(c)) {
        return c - '0';
    }
    const char lower = char(c | 0x20);
    return lower >= 'a' && lower <= 'f' ? lower - 'a' + 10 : -1;
}

} // namespace

Lexer::Lexer(QByteArrayView bytes)
    : m_begin(bytes.data()), m_at(bytes.data()), m_end(bytes.data() + bytes.size())
{
}

Token Lexer::next()
{
    while (m_at != m_end && isIgnored(*m_at)) {
        ++m_at;
    }
    if (m_at == m_end) {
        return {};
    }
    switch (*m_at) {
    case '{':
        ++m_at;
        return { Token::Kind::Open, {}, 0, false };
    case '}':
        ++m_at;
        return { Token::Kind::Close, {}, 0, false };
    case '\\':
        ++m_at;
        return escape();
    default:
        return text();
    }
}

Token Lexer::text()
{
    const char *const start = m_at;
    m_at = std::find_if(m_at, m_end, endsText);
    return { Token::Kind::Text, { start, size_t(m_at - start) }, 0, false };
}

Token Lexer::escape()
{
    if (m_at == m_end) {
        return {};
    }
    if (isLetter(*m_at)) {
        return word();
    }
    const char *const symbol = m_at++;
    if (*symbol == '\'') {
        return hexByte();
    }
    if (*symbol == '\r' && m_at != m_end && *m_at == '\n') {
        ++m_at;
    }
    return { Token::Kind::Symbol, { symbol, 1 }, 0, false };
}

Token Lexer::hexByte()
{
    int value = 0;
    int digits = 0;
    while (digits < 2 && m_at != m_end && hexDigit(*m_at) >= 0) {
        value = value * 16 + hexDigit(*m_at++);
        ++digits;
    }
    // Without two digits it names no byte; as an unknown symbol it is passed over.
    if (digits < 2) {
        return { Token::Kind::Symbol, "'", 0, false };
    }
    return { Token::Kind::Byte, {}, value, true };
}

Token Lexer::word()
{
    const char *const start = m_at;
    m_at = std::find_if_not(m_at, m_end, isLetter);
    Token token{ Token::Kind::Word, { start, size_t(m_at - start) }, 0, false };
    const bool isNegative = m_end - m_at >= 2 && *m_at == '-' && isDigit(m_at[1]);
    if (isNegative) {
        ++m_at;
    }
    if (m_at != m_end && isDigit(*m_at)) {
        token.hasValue = true;
        token.value = isNegative ? -number() : number();
    }
    if (m_at != m_end && *m_at == ' ') {
        ++m_at;
    }
    if (token.text == "bin" && token.value > 0) {
        m_at += std::min(std::ptrdiff_t(token.value), m_end - m_at);
    }
    return token;
}

int Lexer::number()
{
    std::int64_t value = 0;
    while (m_at != m_end && isDigit(*m_at)) {
        value = std::min<std::int64_t>(value * 10 + (*m_at++ - '0'), INT32_MAX);
    }
    return int(value);
}

} // namespace zeph::rtf
