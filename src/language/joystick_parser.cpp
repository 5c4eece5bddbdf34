// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "language/joystick_parser.h"

#include "language/body_parser.h"
#include "language/scan.h"
#include "language/use_forms.h"
#include "language/words.h"

namespace zeph::language {

namespace {

struct KeywordKind {
    QStringView word;
    StatementKind kind;
};

// All other statement keywords are axes or StatementKind::Legacy.
constexpr KeywordKind kinds[] = {
    { u"BTN"_w, StatementKind::Button },      { u"DEF"_w, StatementKind::FlagDefinition },
    { u"USE"_w, StatementKind::Use },         { u"CURVE"_w, StatementKind::Curve },
    { u"RATE"_w, StatementKind::Rate },       { u"SHIFTBTN"_w, StatementKind::ShiftButton },
    { u"DISABLE"_w, StatementKind::Disable }, { u"THR_RANGE"_w, StatementKind::ThrottleRange },
};

StatementKind kindOf(QStringView keyword)
{
    for (const KeywordKind &row : kinds) {
        if (sameWord(row.word, keyword))
            return row.kind;
    }
    return rowOf(keyword).is(AxisRole) ? StatementKind::Axis : StatementKind::Legacy;
}

constexpr size_t letters = 26;

// For each letter the lengths of the words with that first letter, as bits, that may begin a
// statement in the middle of a line. Every word of a file is asked for, and most end here.
constexpr std::array<quint32, letters> lengthsInLine = [] {
    std::array<quint32, letters> lengths{};
    const auto add = [&lengths](QStringView word) {
        lengths[size_t(word[0].unicode() - u'A')] |= 1U << unsigned(word.size());
    };
    for (const Word &row : words) {
        if (row.is(AxisRole))
            add(row.text);
    }
    for (const QStringView word : { u"BTN"_w, u"DEF"_w, u"USE"_w, u"CURVE"_w })
        add(word);
    return lengths;
}();

bool mayBeginInLine(QStringView word)
{
    constexpr qsizetype bits = 32;
    const unsigned letter = (word[0].unicode() | 0x20U) - u'a';
    return letter < letters && word.size() < bits
        && (lengthsInLine[letter] >> unsigned(word.size()) & 1U) != 0;
}

class JoystickParser
{
public:
    JoystickParser(JoystickFile &file, const WordMap &macros)
        : m_file(file), m_text(file.text), m_macros(macros), m_body(file, macros)
    {
    }

    void run()
    {
        constexpr qsizetype usualCharactersPerItem = 8;
        m_file.items.reserve(m_text.size() / usualCharactersPerItem);
        LineReader lines(m_text);
        Line line;
        while (lines.next(line)) {
            if (line.codeEnd > line.first)
                readLine(line);
        }
        finish();
    }

private:
    void readLine(Line line)
    {
        qsizetype at = line.first;
        if (const qsizetype keyword = keywordAfterTildes(line); keyword > 0)
            line.first = keyword;
        const qsizetype keywordEnd = statementKeywordEnd(line);
        if (keywordEnd > 0) {
            finish();
            at = start(line, keywordEnd);
        } else if (!m_open) {
            open(StatementKind::Unknown, line);
        } else if (m_nameIsDue) {
            at = startWithName(line, line.first);
        }
        const qsizetype end = line.codeEnd;
        for (;;) {
            const qsizetype next = nextStatement(at, end);
            m_body.read(at, next, line.number);
            const QStringView read = m_text.first(next).sliced(m_statement.place.position);
            m_statement.place.length = trimmedEnd(read);
            if (next == end)
                return;
            finish();
            line.first = skipTildes(m_text.first(end), next);
            at = start(line, nameEnd(m_text, line.first));
        }
    }

    static qsizetype skipTildes(QStringView code, qsizetype at)
    {
        while (at < code.size() && (code[at] == u'~' || isBlank(code[at])))
            ++at;
        return at;
    }

    // A "~" before a statement does not switch it off, as it does in a macro file. Returns where
    // the statement begins, or 0.
    qsizetype keywordAfterTildes(Line line) const
    {
        if (m_text[line.first] != u'~')
            return 0;
        line.first = skipTildes(m_text.first(line.codeEnd), line.first);
        return line.first < line.codeEnd && statementKeywordEnd(line) > 0 ? line.first : 0;
    }

    // Where, after `from`, the line's next statement begins: at its keyword, or at the "~" before
    // it. `end` when there is none.
    qsizetype nextStatement(qsizetype from, qsizetype end) const
    {
        const QStringView code = m_text.first(end);
        for (qsizetype at = from; at < end;) {
            const qsizetype to = wordEnd(code, at);
            const qsizetype word = code[at] == u'~' ? skipTildes(code.first(to), at) : at;
            if (at > from && beginsInLine(code, word, to))
                return at;
            at = std::max(to, at + 1);
        }
        return end;
    }

    // Whether a word in the middle of a line certainly begins a statement: options and arguments
    // have the same words.
    bool beginsInLine(QStringView code, qsizetype from, qsizetype to) const
    {
        const QStringView word = code.sliced(from, to - from);
        if (word.isEmpty() || !mayBeginInLine(word))
            return false;
        const Word &row = rowOf(word);
        if (!row.is(StatementRole) || m_macros.value(word) >= 0)
            return false;
        if (sameWord(word, u"BTN"_w))
            return true;
        // Text before the first statement may be prose, which has the other words by chance.
        if (m_statement.kind == StatementKind::Unknown)
            return false;
        const qsizetype next = skipBlanks(code, to);
        const QStringView name = code.sliced(next, wordEnd(code, next) - next);
        if (sameWord(word, u"DEF"_w))
            return flagNumber(name) || rowOf(name).is(ControlRole);
        if (sameWord(word, u"USE"_w))
            return beginsUse(code, next);
        if (isArgument(code, from))
            return false;
        const qsizetype afterModifiers = skipSlashes(code, next);
        if (row.is(AxisRole))
            return beginsAxisType(code, afterModifiers);
        // In a body CURVE is a call, so its bracket follows at once.
        return sameWord(word, u"CURVE"_w) && afterModifiers > next && afterModifiers < code.size()
            && code[afterModifiers] == u'(';
    }

    // Whether a USE statement that is known goes on here.
    static bool beginsUse(QStringView code, qsizetype at)
    {
        if (useFormOf(code.sliced(at)) >= 0)
            return true;
        const qsizetype end = wordEnd(code, at);
        const qsizetype second = skipBlanks(code, end);
        const QStringView word = code.sliced(second, wordEnd(code, second) - second);
        return sameWord(word, u"AS"_w) || sameWord(word, u"FORCED_CORNERS"_w)
            || code.sliced(at, end - at).endsWith(sensitivityEnding, Qt::CaseInsensitive);
    }

    // Whether the word at the position belongs to the brackets or to the DISABLE before it.
    static bool isArgument(QStringView code, qsizetype at)
    {
        const QStringView before = code.first(trimmedEnd(code.first(at)));
        if (before.endsWith(u'(') || before.endsWith(u','))
            return true;
        const QStringView disable = u"DISABLE"_w;
        const qsizetype start = before.size() - disable.size();
        return start >= 0 && sameWord(before.sliced(start), disable)
            && (start == 0 || !isBodyCharacter(before[start - 1]));
    }

    static qsizetype skipSlashes(QStringView code, qsizetype at)
    {
        while (at < code.size() && slashAt(code, at) >= 0)
            at = skipBlanks(code, at + 2);
        return at;
    }

    static bool beginsAxisType(QStringView code, qsizetype at)
    {
        const qsizetype end = wordEnd(code, at);
        const std::optional<int> type = wholeNumber(code.sliced(at, end - at));
        return type && *type >= 1 && *type <= lastAxisType;
    }

    // The end of the statement keyword that starts the line, or 0. "THR-Up" and "Use_Flaps" are
    // macros.
    qsizetype statementKeywordEnd(const Line &line) const
    {
        const QStringView code = m_text.first(line.codeEnd);
        const qsizetype end = nameEnd(code, line.first);
        const bool ends = end == code.size() || isBlank(code[end]) || isBracketOrComma(code[end])
            || slashAt(code, end) >= 0;
        if (!ends || end - line.first < 2)
            return 0;
        const QStringView word = code.sliced(line.first, end - line.first);
        if (!rowOf(word).is(StatementRole))
            return 0;
        // RATE and the like also occur in bodies, and axes as arguments, so inside brackets they
        // start no statement.
        const bool isInBrackets =
            rowOf(word).is(AxisRole) ? m_body.isInCertainBrackets() : m_body.isInBrackets();
        const bool goesOn = m_open && isInBrackets && !beginsAnywhere(word);
        return goesOn ? 0 : end;
    }

    void open(StatementKind kind, const Line &line)
    {
        m_statement = {};
        m_statement.kind = kind;
        m_statement.place = { line.first, 0, line.number };
        m_body.begin(holdsKeys(kind) ? BodyParser::Holds::Keys : BodyParser::Holds::Arguments);
        m_nameIsDue = false;
        m_open = true;
    }

    static bool beginsAnywhere(QStringView keyword)
    {
        return sameWord(keyword, u"BTN"_w) || sameWord(keyword, u"DEF"_w)
            || sameWord(keyword, u"USE"_w);
    }

    static bool holdsKeys(StatementKind kind)
    {
        using enum StatementKind;
        return kind == Button || kind == FlagButton || kind == Axis || kind == Legacy
            || kind == Unknown;
    }

    // Begins a statement and returns the position where its body begins.
    qsizetype start(const Line &line, qsizetype keywordEnd)
    {
        const QStringView keyword = m_text.sliced(line.first, keywordEnd - line.first);
        open(kindOf(keyword), line);
        m_statement.keyword = { line.first, keyword.size(), line.number };
        m_statement.subject = { keywordEnd, 0, line.number };
        switch (m_statement.kind) {
        case StatementKind::Button:
        case StatementKind::FlagDefinition:
            return startWithName(line, keywordEnd);
        case StatementKind::Use:
            return startUse(line, keywordEnd);
        case StatementKind::Axis:
            m_statement.subject = m_statement.keyword;
            return keywordEnd;
        case StatementKind::Unknown:
        case StatementKind::Legacy:
        case StatementKind::FlagButton:
            return keywordEnd;
        default:
            // CURVE, RATE and the like take arguments, so the body begins with the keyword.
            return line.first;
        }
    }

    qsizetype startWithName(const Line &line, qsizetype keywordEnd)
    {
        const QStringView code = m_text.first(line.codeEnd);
        const qsizetype from = skipBlanks(code, keywordEnd);
        qsizetype to = from;
        while (to < code.size() && isBodyCharacter(code[to]) && slashAt(code, to) < 0)
            ++to;
        m_statement.subject = { from, to - from, line.number };
        m_nameIsDue = from == code.size();
        const bool isFlag = flagNumber(code.sliced(from, to - from)).has_value();
        if (isFlag && m_statement.kind == StatementKind::Button)
            m_statement.kind = StatementKind::FlagButton;
        return to;
    }

    qsizetype startUse(const Line &line, qsizetype keywordEnd)
    {
        const QStringView code = m_text.first(line.codeEnd);
        const qsizetype from = skipBlanks(code, keywordEnd);
        m_statement.useForm = useFormOf(code.sliced(from));
        if (m_statement.useForm < 0)
            return from;
        const UseForm &form = useForms()[size_t(m_statement.useForm)];
        qsizetype to = nameEnd(code, from);
        for (qsizetype more = form.head.count(u' '); more > 0; --more)
            to = nameEnd(code, skipBlanks(code, to));
        m_statement.subject = { from, to - from, line.number };
        switch (form.shape) {
        case UseShape::Tail: {
            const qsizetype tail = skipBlanks(code, to);
            m_statement.tail = { tail, line.codeEnd - tail, line.number };
            return line.codeEnd;
        }
        case UseShape::Brackets:
            return from;
        default:
            return to;
        }
    }

    void finish()
    {
        if (!m_open)
            return;
        m_statement.body = m_body.finish();
        m_file.statements.append(m_statement);
        m_open = false;
    }

    JoystickFile &m_file;
    QStringView m_text;
    const WordMap &m_macros;
    BodyParser m_body;
    JoystickStatement m_statement;
    bool m_open = false;
    /// The line ended after BTN or DEF, so the name is on a later line.
    bool m_nameIsDue = false;
};

} // namespace

void parseJoystick(JoystickFile &file, const WordMap &macros)
{
    JoystickParser(file, macros).run();
}

std::optional<MacroReference> macroReference(const JoystickFile &joystick)
{
    for (auto it = joystick.statements.crbegin(); it != joystick.statements.crend(); ++it) {
        if (it->useForm < 0 || useForms()[size_t(it->useForm)].head != u"MDEF"_w)
            continue;
        QStringView name = joystick.at(it->tail);
        if (name.size() > 1 && name.startsWith(u'"') && name.endsWith(u'"'))
            name = name.sliced(1, name.size() - 2).trimmed();
        return MacroReference{ name.toString(), it->tail };
    }
    return {};
}

} // namespace zeph::language
