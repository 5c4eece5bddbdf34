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

class JoystickParser
{
public:
    JoystickParser(JoystickFile &file, const WordMap &macros)
        : m_file(file), m_text(file.text), m_body(file, macros)
    {
    }

    void run()
    {
        LineReader lines(m_text);
        Line line;
        while (lines.next(line)) {
            if (line.codeEnd <= line.first || m_text[line.first] == u'~')
                continue;
            readLine(line);
        }
        finish();
    }

private:
    void readLine(const Line &line)
    {
        qsizetype at = line.first;
        const qsizetype keywordEnd = statementKeywordEnd(line);
        if (keywordEnd > 0) {
            finish();
            at = start(line, keywordEnd);
        } else if (!m_open) {
            open(StatementKind::Unknown, line);
        } else if (m_nameIsDue) {
            at = startWithName(line, line.first);
        }
        m_body.read(at, line.codeEnd, line.number);
        m_statement.place.length = line.codeEnd - m_statement.place.position;
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
        // RATE and axes also occur in bodies, so inside brackets they start no statement.
        const bool goesOn = m_open && m_body.isInBrackets() && !beginsAnywhere(word);
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
