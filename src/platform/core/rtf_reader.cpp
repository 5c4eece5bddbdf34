// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "platform/core/rtf_reader.h"

#include <algorithm>

namespace zeph {

namespace rtf {

namespace {

// Word nests a few dozen groups; a file that nests more than this was made to do harm.
constexpr size_t maxDepth = 256;
constexpr int maxIndentTwips = 31680;
constexpr qsizetype bytesBetweenQuestions = 1 << 18;

/// Where a field's instruction leads when it is a hyperlink: an address in quotes or without, and
/// after \l the name of a place. No value for other fields.
std::optional<QString> linkOf(const QString &instruction)
{
    const QString text = instruction.trimmed();
    if (!text.startsWith(u"HYPERLINK", Qt::CaseInsensitive)) {
        return std::nullopt;
    }
    QString address;
    QString place;
    QString other; // such as the tip that is shown over it
    QString *into = &address;
    for (qsizetype i = 9; i < text.size(); ++i) {
        if (text[i] == u'"') {
            // A backslash in quotes stands for the sign after it.
            for (++i; i < text.size() && text[i] != u'"'; ++i) {
                i += text[i] == u'\\' && i + 1 < text.size() ? 1 : 0;
                *into += text[i];
            }
            into = &address;
        } else if (text[i] == u'\\' && i + 1 < text.size()) {
            into = text[++i] == u'l' ? &place : &other;
        } else if (!text[i].isSpace()) {
            *into += text[i];
        }
    }
    return place.isEmpty() ? address : address + u'#' + place;
}

bool isLineEnd(QChar c)
{
    return c == u'\n' || c == u'\r' || c == QChar::LineSeparator || c == QChar::ParagraphSeparator;
}

/// Whether a list marker is a picture of a bullet, and not a number that the text would miss.
bool isBullet(QStringView marker)
{
    return !marker.isEmpty() && !marker.endsWith(u'.') && !marker.endsWith(u')')
        && std::ranges::none_of(marker, [](QChar c) { return c.isDigit(); });
}

RtfError error(const char *reason, const Lexer &lexer)
{
    return { QString::fromLatin1(reason), lexer.offset() };
}

void addParagraph(std::vector<ParagraphRun> &runs, const ParagraphFormat &format)
{
    if (!runs.empty() && runs.back().format == format) {
        ++runs.back().count;
    } else {
        runs.push_back({ 1, format });
    }
}

} // namespace

/// A paragraph's place is where its first line begins: a hanging first line moves it to the left.
ParagraphFormat GroupState::paragraphFormat() const
{
    const int left = leftTwips + std::min(firstTwips, 0);
    return { std::clamp(left, -maxIndentTwips, maxIndentTwips), alignment, bullet };
}

Reader::Reader(QByteArrayView bytes) : m_lexer(bytes)
{
    // An estimate: control words take about half of a file. The text grows where they do not.
    m_result.text.reserve(bytes.size() / 2);
}

Expected<RtfReading, RtfError> Reader::read(const std::function<bool(qsizetype)> &goOn)
{
    using Kind = Token::Kind;
    const Token open = m_lexer.next();
    const Token first = m_lexer.next();
    if (open.kind != Kind::Open || first.kind != Kind::Word || first.text != "rtf") {
        return Unexpected<RtfError>({ u"The file is not in Rich Text Format."_s, 0 });
    }
    m_groups.emplace_back();
    for (qsizetype nextQuestion = bytesBetweenQuestions;;) {
        if (goOn && m_lexer.offset() >= nextQuestion) {
            nextQuestion = m_lexer.offset() + bytesBetweenQuestions;
            if (!goOn(m_lexer.offset())) {
                return Unexpected<RtfError>(error("The reading was stopped.", m_lexer));
            }
        }
        Token token = m_lexer.next();
        if (m_toStepOver > 0 && stepOverFallback(token)) {
            continue;
        }
        if (token.kind != Kind::Text && token.kind != Kind::Byte && !m_bytes.isEmpty()) {
            flushBytes();
        }
        switch (token.kind) {
        case Kind::End:
            return Unexpected<RtfError>(error("The file ends within a group.", m_lexer));
        case Kind::Open:
            if (!openGroup()) {
                return Unexpected<RtfError>(
                    error("The file's groups are nested too deeply.", m_lexer));
            }
            break;
        case Kind::Close: {
            if (m_groups.size() > 1) {
                closeGroup();
                break;
            }
            if (m_lexer.next().kind == Kind::Close) {
                return Unexpected<RtfError>(
                    error("A group is closed that was not opened.", m_lexer));
            }
            const auto plain = m_firstStyle ? std::optional(formatOf(*m_firstStyle)) : std::nullopt;
            return RtfReading{ finish(), m_losses, plain };
        }
        default:
            handle(token);
            break;
        }
    }
}

void Reader::handle(const Token &token)
{
    switch (token.kind) {
    case Token::Kind::Word:
        handleWord(token);
        break;
    case Token::Kind::Symbol:
        handleSymbol(token.text.front());
        m_starred = token.text.front() == '*';
        return;
    case Token::Kind::Byte:
        putByte(token.value);
        break;
    default:
        putText(token.text);
        break;
    }
    m_starred = false;
}

/// Skips the characters that older readers show for a \uN. True when they are the whole token.
bool Reader::stepOverFallback(Token &token)
{
    switch (token.kind) {
    case Token::Kind::Open:
    case Token::Kind::Close:
    case Token::Kind::End:
        m_toStepOver = 0;
        return false;
    case Token::Kind::Text: {
        const size_t taken = std::min(size_t(m_toStepOver), token.text.size());
        m_toStepOver -= int(taken);
        token.text.remove_prefix(taken);
        return token.text.empty();
    }
    default:
        --m_toStepOver;
        return true;
    }
}

bool Reader::openGroup()
{
    if (m_groups.size() >= maxDepth) {
        return false;
    }
    m_groups.push_back(GroupState(state()));
    m_starred = false;
    return true;
}

void Reader::closeGroup()
{
    m_starred = false;
    const Destination closed = state().destination;
    if (closed == Destination::Fonts) {
        m_fonts.commit();
    }
    m_groups.pop_back();
    if (closed == state().destination) {
        return;
    }
    if (closed == Destination::Fonts) {
        // Text that names no font is in the default one, which is known only now.
        useCodePageOf(state().look.font < 0 ? m_defaultFont : state().look.font);
    } else if (closed == Destination::Marker) {
        finishMarker();
    } else if (closed == Destination::Instruction) {
        finishInstruction();
    } else if (closed == Destination::BulletForm) {
        state().bullet = std::exchange(m_isBulletForm, false) || state().bullet;
    }
}

void Reader::handleWord(const Token &token)
{
    if (state().destination == Destination::Skipped) {
        return;
    }
    const Word *const word = findWord(token.text);
    if (m_starred && !(word && word->isDestination)) {
        state().destination = Destination::Skipped;
        return;
    }
    if (!word) {
        return;
    }
    const bool isOff = token.hasValue && (token.value == 0 || token.value == word->usual);
    if (state().destination == Destination::Document && (word->isDestination || !isOff)) {
        m_losses |= word->loss;
    }
    if (word->handler) {
        (this->*word->handler)(word->argument, token);
    }
}

void Reader::handleSymbol(char symbol)
{
    switch (symbol) {
    case '\r':
    case '\n':
        endParagraph(1, {});
        break;
    case '\t':
    case '\\':
    case '{':
    case '}':
        putCharacter(symbol, {});
        break;
    case '~':
        putCharacter(0xA0, {});
        break;
    case '-':
        putCharacter(0xAD, {});
        break;
    case '_':
        putCharacter(0x2011, {});
        break;
    default:
        break;
    }
}

QString *Reader::target(qsizetype added)
{
    switch (state().destination) {
    case Destination::Fonts:
        return &m_fonts.current().family;
    case Destination::Marker:
        return &m_marker;
    case Destination::Instruction:
        return &m_instruction;
    case Destination::Document:
        break;
    default:
        return nullptr;
    }
    std::vector<LookRun> &runs = m_result.characters.runs;
    if (runs.empty() || state().look != m_runLook) {
        m_runLook = state().look;
        auto number = m_numbers.constFind(m_runLook);
        if (number == m_numbers.cend()) {
            number = m_numbers.insert(m_runLook, m_looks.numberOf(formatOf(m_runLook)));
        }
        if (runs.empty() || runs.back().format != *number) {
            runs.push_back({ 0, *number });
        }
    }
    runs.back().length += quint32(added);
    m_textParagraph = state().paragraphFormat();
    m_paragraphHasText = true;
    m_endsWithParagraph = false;
    return &m_result.text;
}

void Reader::putText(std::string_view bytes)
{
    switch (state().destination) {
    case Destination::Skipped:
    case Destination::BulletForm:
        return;
    case Destination::Fonts:
        putInFont(bytes);
        return;
    case Destination::Colours:
        m_colours.put(bytes);
        return;
    case Destination::Styles:
        // The style's name, which comes after its look.
        m_firstStyle = m_firstStyle.value_or(state().look);
        return;
    default:
        break;
    }
    const HighHalf *const high = highHalf();
    if (!high) {
        m_bytes.append(bytes.data(), qsizetype(bytes.size()));
        return;
    }
    QString &text = *target(qsizetype(bytes.size()));
    const qsizetype size = text.size();
    text.resize(size + qsizetype(bytes.size()));
    QChar *to = text.data() + size;
    for (const char c : bytes) {
        const uchar byte = uchar(c);
        *to++ = QChar(byte < 0x80 ? char16_t(byte) : (*high)[byte - 0x80U]);
    }
}

void Reader::putByte(int byte)
{
    if (byte == '\n' || byte == '\r') {
        flushBytes();
        endParagraph(0, {});
    } else if (const HighHalf *const high = highHalf()) {
        putCharacter(byte < 0x80 ? byte : (*high)[size_t(byte) - 0x80], {});
    } else if (state().destination != Destination::Skipped
               && state().destination != Destination::Styles) {
        m_bytes.append(char(byte));
    }
}

void Reader::putCharacter(int character, const Token &)
{
    if (isLineEnd(QChar(character))) {
        endParagraph(0, {});
    } else if (QString *const text = target(1)) {
        text->append(QChar(character));
    }
}

void Reader::putCharacters(QStringView characters)
{
    for (const QChar c : characters) {
        putCharacter(c.unicode(), {});
    }
}

void Reader::putUnicode(int, const Token &token)
{
    m_toStepOver = state().unicodeFallback;
    // Written as a number of 16 bits with its sign; some writers give the whole code point.
    const int value = token.value < 0 ? token.value + 0x10000 : token.value;
    if (value < 0 || value > 0x10FFFF) {
        putCharacter(QChar::ReplacementCharacter, {});
    } else if (value > 0xFFFF) {
        putCharacter(QChar::highSurrogate(char32_t(value)), {});
        putCharacter(QChar::lowSurrogate(char32_t(value)), {});
    } else {
        putCharacter(value, {});
    }
}

void Reader::endParagraph(int isHard, const Token &)
{
    if (state().destination != Destination::Document) {
        return;
    }
    target(1)->append(u'\n');
    addParagraph(m_result.paragraphs, m_textParagraph);
    m_paragraphHasText = false;
    m_paragraphHasBullet = false;
    m_endsWithParagraph = isHard != 0;
}

const HighHalf *Reader::highHalf()
{
    if (m_highHalfOf != state().codePage) {
        m_highHalfOf = state().codePage;
        m_highHalf = highHalfOf(m_highHalfOf);
    }
    return m_highHalf;
}

void Reader::flushBytes()
{
    if (!m_bytes.isEmpty()) {
        const QByteArray bytes = std::exchange(m_bytes, {});
        putCharacters(decoded(bytes, state().codePage));
    }
}

/// Takes text of the font table: a ";" ends a name. One that is spelled \'3b belongs to the name.
void Reader::putInFont(std::string_view bytes)
{
    for (const char c : bytes) {
        if (c == ';') {
            flushBytes();
            m_fonts.commit();
        } else {
            putByte(uchar(c));
        }
    }
}

void Reader::finishMarker()
{
    const QString marker = std::exchange(m_marker, {});
    const QStringView sign = QStringView(marker).trimmed();
    if (isBullet(sign)) {
        state().bullet = true;
        m_paragraphHasBullet = true;
    } else if (!sign.isEmpty()) {
        m_losses |= RtfLoss::NumberedLists;
        putCharacters(marker);
    }
}

/// The text that a hyperlink shows follows in the same group.
void Reader::finishInstruction()
{
    if (const auto link = linkOf(std::exchange(m_instruction, {})); !link || link->isEmpty()) {
        m_losses |= RtfLoss::Fields;
    } else {
        state().look.link = int(m_links.size());
        m_links.append(*link);
    }
}

CharFormat Reader::formatOf(const Look &look) const
{
    CharFormat format;
    format.family = m_fonts.find(look.font < 0 ? m_defaultFont : look.font).family;
    format.pointSize = look.halfPoints / 2.0;
    format.bold = look.bold;
    format.italic = look.italic;
    format.underline = look.underline;
    format.colour = m_colours.find(look.colour);
    format.strike = look.strike;
    format.link = m_links.value(look.link);
    return format;
}

NumberedRichText Reader::finish()
{
    flushBytes();
    if (m_endsWithParagraph) {
        // Every writer closes the last paragraph too; no other begins after it.
        m_result.text.chop(1);
        if (--m_result.characters.runs.back().length == 0) {
            m_result.characters.runs.pop_back();
        }
    } else {
        addParagraph(m_result.paragraphs,
                     m_paragraphHasText ? m_textParagraph : state().paragraphFormat());
    }
    m_result.text.squeeze();
    m_result.characters.looks = m_looks.take();
    return std::move(m_result);
}

} // namespace rtf

Expected<RichText, RtfError> readRtf(QByteArrayView bytes)
{
    auto reading = rtf::Reader(bytes).read({});
    if (!reading) {
        return Unexpected<RtfError>(reading.error());
    }
    return reading->text.rich();
}

Expected<RtfReading, RtfError> readRtfWithLosses(QByteArrayView bytes,
                                                 const std::function<bool(qsizetype)> &goOn)
{
    return rtf::Reader(bytes).read(goOn);
}

} // namespace zeph
