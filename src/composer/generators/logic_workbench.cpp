// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "composer/generators/logic_workbench.h"

#include "language/model.h"
#include "language/scan.h"

#include <QStringList>

namespace zeph {

namespace {

constexpr size_t flagCount = language::lastFlag;

// "X1" to "X48": a name needs up to three characters.
constexpr auto flagLetters = [] {
    std::array<std::array<char16_t, 3>, flagCount> letters{};
    for (size_t at = 0; at < flagCount; ++at) {
        const size_t number = at + 1;
        letters[at][0] = u'X';
        if (number < 10) {
            letters[at][1] = char16_t(u'0' + number);
        } else {
            letters[at][1] = char16_t(u'0' + number / 10);
            letters[at][2] = char16_t(u'0' + number % 10);
        }
    }
    return letters;
}();

constexpr auto flags = [] {
    std::array<QStringView, flagCount> names;
    for (size_t at = 0; at < flagCount; ++at)
        names[at] = QStringView(flagLetters[at].data(), at + 1 < 10 ? 2 : 3);
    return names;
}();

std::optional<Statement> statementOf(const QString &lines)
{
    if (lines.isEmpty())
        return {};
    return *plainStatement(lines + u'\n', true);
}

} // namespace

std::span<const QStringView> flagNames()
{
    return flags;
}

QString flagTerm(int index, const FlagFields &fields)
{
    const auto &[lists, values] = fields;
    switch (index) {
    case 0:
        return lists[0];
    case 1:
        return lists[1] + lists[5];
    case 2:
        return lists[2];
    case 3:
        return u"PULSE("_s + values[0] + u' ' + values[1] + u')';
    case 4:
        return u"DELAY("_s + values[2] + u')';
    case 5:
        return lists[3] + u'(' + lists[4] + u' ' + values[3] + u')';
    case 6:
        return u"DLY("_s + values[4] + u')';
    case 7:
        return u"RPT("_s + values[5] + u')';
    default:
        return {};
    }
}

QString withWord(const QString &line, QStringView word)
{
    const bool touches = !line.isEmpty() && !line.endsWith(u' ') && !word.isEmpty();
    return line + (touches ? u" "_s : QString()) + word.toString();
}

void LogicWorkbench::append(QStringView word)
{
    setLine(m_selected, withWord(line(m_selected), word));
}

std::optional<Statement> LogicWorkbench::allLines() const
{
    QString text;
    for (const QString &line : m_lines) {
        if (!line.isEmpty())
            text += line + u'\n';
    }
    return statementOf(text);
}

std::optional<Statement> LogicWorkbench::selectedLine() const
{
    const QString &text = line(m_selected);
    return statementOf(text.isEmpty() ? QString() : text + u'\n');
}

std::optional<Refusal> LogicWorkbench::readBack(QStringView joystickText)
{
    if (joystickText.isEmpty())
        return {};
    m_lines.fill({});
    m_selected = 0;
    size_t next = 0;
    forEachLine(joystickText, [&](QStringView line) {
        const bool isLogic = line.startsWith(u"BTN X") || line.startsWith(u"DEF X");
        if (isLogic && next < m_lines.size())
            m_lines[next++] = line.toString();
    });
    if (next > 0)
        return {};
    return Refusal{ u"What logical statements?"_s,
                    u"I couldn't find any logical statements in your joystick file"_s };
}

std::optional<QString> readLogicLine(QStringView statement)
{
    const language::FilePair pair = language::parsePair(statement.toString(), {});
    if (pair.joystick.statements.size() != 1)
        return {};
    using enum language::StatementKind;
    const language::StatementKind kind = pair.joystick.statements.first().kind;
    if (kind != FlagButton && kind != FlagDefinition)
        return {};
    QStringList parts;
    QStringView last;
    language::LineReader lines(statement);
    for (language::Line line; lines.next(line);) {
        if (line.isEmpty())
            continue;
        if (!last.isEmpty())
            parts.append(last.toString());
        // A comment may stay after the last line, and nowhere else.
        const qsizetype lineEnd = statement.indexOf(u'\n', line.first);
        last = statement.sliced(line.first, line.codeEnd - line.first);
        const QStringView whole = lineEnd < 0 ? statement : statement.first(lineEnd);
        if (statement.sliced(whole.size()).trimmed().isEmpty())
            last = whole.sliced(line.first);
    }
    parts.append(last.toString());
    return parts.join(u' ');
}

} // namespace zeph
