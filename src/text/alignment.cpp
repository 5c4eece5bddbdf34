// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "text/alignment.h"

#include "text/text_lines.h"

#include <algorithm>
#include <array>
#include <initializer_list>

namespace zeph {

namespace {

constexpr qsizetype mostPadding = 69;

constexpr std::array<QStringView, 12> heads = { u"btn", u"curve", u"joyx", u"joyy",
                                                u"thr", u"rddr",  u"lbrk", u"rbrk",
                                                u"mix", u"miy",   u"ant",  u"rng" };

bool beginsAnyCase(QStringView line, QStringView start)
{
    return line.startsWith(start, Qt::CaseInsensitive);
}

bool isHead(QStringView line)
{
    return std::ranges::any_of(heads,
                               [line](QStringView head) { return beginsAnyCase(line, head); });
}

bool isKept(QStringView line)
{
    return line.isEmpty() || line.front() == u'~' || beginsAnyCase(line, u"rem");
}

/// A line without leading blanks, tabs as blanks, and no two blanks side by side.
QString collapsed(QStringView line)
{
    QString result;
    result.reserve(line.size());
    bool blankBefore = true;
    for (const QChar character : line) {
        const bool blank = character == u' ' || character == u'\t';
        if (!blank) {
            result += character;
        } else if (!blankBefore) {
            result += u' ';
        }
        blankBefore = blank;
    }
    return result;
}

/// 1-based column of the first of the words that the line holds, in their order; 0 without any.
qsizetype columnOf(QStringView line, std::initializer_list<QStringView> words)
{
    for (const QStringView word : words) {
        const qsizetype at = line.indexOf(word);
        if (at >= 0) {
            return at + 1;
        }
    }
    return 0;
}

/// Where the modifiers of a statement stand, by kind.
struct Columns {
    qsizetype dogfight = 0;
    qsizetype s3 = 0;
    qsizetype action = 0;
    qsizetype toggle = 0;

    explicit Columns(QStringView line = {})
        : dogfight(columnOf(line, { u"/U", u"/M", u"/D" })), s3(columnOf(line, { u"/I", u"/O" })),
          action(columnOf(line, { u"/P", u"/R" })), toggle(columnOf(line, { u"/T" }))
    {
    }
};

/// Where a line that begins with a modifier goes: under one of two words in the last line that had
/// a slash, else under the statement's column.
struct ColumnRule {
    QStringView begin;
    QStringView above;
    QStringView orAbove;
    qsizetype Columns::*otherwise;
};

using ColumnRules = std::array<ColumnRule, 5>;

constexpr ColumnRules editorRules = { {
    { u"/I", u"/I", u"/O", &Columns::s3 },
    { u"/O", u"/O", u"/I", &Columns::s3 },
    { u"/P", u"/P", u"/R", &Columns::action },
    { u"/R", u"/R", u"/P", &Columns::action },
    { u"/T", u"/T", u"/T", &Columns::toggle },
} };

// The sheets look above for the counterpart alone.
constexpr ColumnRules layoutRules = { {
    { u"/I", u"/O", u"/O", &Columns::s3 },
    { u"/O", u"/I", u"/I", &Columns::s3 },
    { u"/P", u"/R", u"/R", &Columns::action },
    { u"/R", u"/P", u"/P", &Columns::action },
    { u"/T", u"/T", u"/T", &Columns::toggle },
} };

/// The column by how a line begins; no value when no rule is for it.
std::optional<qsizetype> columnBy(const ColumnRules &rules, QStringView line, QStringView reference,
                                  const Columns &columns)
{
    for (const ColumnRule &rule : rules) {
        if (line.startsWith(rule.begin)) {
            const qsizetype column = columnOf(reference, { rule.above, rule.orAbove });
            return column > 0 ? column : columns.*rule.otherwise;
        }
    }
    return std::nullopt;
}

/// The column of a continuation line in the document; 0 leaves it at the left.
qsizetype editorColumn(QStringView line, QStringView reference, const Columns &columns)
{
    if (line.startsWith(u"/U") || line.startsWith(u"/M") || line.startsWith(u"/D")) {
        return columns.dogfight;
    }
    return columnBy(editorRules, line, reference, columns).value_or(0);
}

/// The column of a continuation line on the sheets.
qsizetype layoutColumn(QStringView line, QStringView reference, const Columns &columns)
{
    const qsizetype dogfight = columnOf(line, { u"/U", u"/M", u"/D" }) > 0 ? columns.dogfight : 0;
    return columnBy(layoutRules, line, reference, columns).value_or(dogfight);
}

/// The columns behind a head line that keeps what it does not name.
Columns keptColumns(const Columns &before, QStringView line)
{
    Columns now(line);
    for (qsizetype Columns::*each :
         { &Columns::dogfight, &Columns::s3, &Columns::action, &Columns::toggle }) {
        if (now.*each == 0) {
            now.*each = before.*each;
        }
    }
    return now;
}

void pad(QString &line, qsizetype column)
{
    if (column > 1) {
        line.insert(0, QString(std::min(column - 1, mostPadding), u' '));
    }
}

/// What tells the aligners apart.
struct Rules {
    Columns (*columnsAt)(const Columns &before, QStringView head);
    qsizetype (*columnOf)(QStringView line, QStringView reference, const Columns &columns);
    QString indent; ///< stands before every line that is no comment and long enough
};

QString aligned(QStringView text, const Rules &rules)
{
    QString result;
    result.reserve(text.size() + text.size() / 2);
    Columns columns;
    QString reference;
    forEachLine(text, [&](QStringView input) {
        if (isKept(input)) {
            result += input;
            result += u'\n';
            return;
        }
        QString line = collapsed(input);
        if (isHead(line)) {
            columns = rules.columnsAt(columns, line);
        } else {
            pad(line, rules.columnOf(line, reference, columns));
        }
        if (line.contains(u'/')) {
            reference = line;
        }
        if (line.size() >= 3 && !beginsAnyCase(line, u"rem")) {
            result += rules.indent;
        }
        result += line;
        result += u'\n';
    });
    return result;
}

// The digest ------------------------------------------------------------------------------------

struct UseRecord {
    QStringView start;
    QStringView label;
};

constexpr std::array<UseRecord, 5> useRecords = { {
    { u"USE HAT1 AS", u"Hat1:" },
    { u"USE HAT2 AS", u"Hat2:" },
    { u"USE HAT3 AS", u"Hat3:" },
    { u"USE HAT4 AS", u"Hat4:" },
    { u"USE RADIOSWITCH AS", u"Radio:" },
} };
constexpr QStringView mouseType = u"USE MTYPE A";

constexpr std::array<QStringView, 11> axisStarts = { u"JOYX ", u"JOYY ", u"THR ",  u"ANT ",
                                                     u"RNG ",  u"RDDR ", u"LBRK ", u"RBRK ",
                                                     u"MIX ",  u"MIY ",  u"CURVE " };

QStringView leadingDigits(QStringView text)
{
    const auto end = std::ranges::find_if_not(
        text, [](QChar character) { return character >= u'0' && character <= u'9'; });
    return text.first(end - text.begin());
}

/// What a USE line says of a hat, the radio switch or the mouse, as a record's line; empty when
/// nothing.
QString useRecord(QStringView line)
{
    for (const UseRecord &each : useRecords) {
        if (beginsAnyCase(line, each.start) && line.size() > each.start.size()) {
            return each.label.toString() + line.sliced(each.start.size()).toString();
        }
    }
    if (beginsAnyCase(line, mouseType)) {
        const QStringView number = leadingDigits(line.sliced(mouseType.size()));
        return number.isEmpty() ? QString() : u"MType: "_s + number.toString();
    }
    return {};
}

QStringView withoutComment(QStringView line)
{
    const qsizetype comment = line.indexOf(u"REM ", 0, Qt::CaseInsensitive);
    return comment < 0 ? line : line.first(comment);
}

bool opensAxisRecord(QStringView line)
{
    return std::ranges::any_of(axisStarts, [line](QStringView start) {
        return beginsAnyCase(line, start) && line.size() > start.size();
    });
}

class Digest
{
public:
    void addLine(QStringView line)
    {
        if (beginsAnyCase(line, u"rem") || beginsAnyCase(line, u"DISABLE") || line.size() < 2) {
            return;
        }
        if (beginsAnyCase(line, u"USE")) {
            if (const QString record = useRecord(line); !record.isEmpty()) {
                open();
                write(record);
            }
            return;
        }
        if (beginsAnyCase(line, u"DEF") || beginsAnyCase(line, u"BTN X")) {
            return;
        }
        constexpr QStringView button = u"BTN ";
        if (beginsAnyCase(line, button) && line.size() > button.size()) {
            open();
            write(withoutComment(line.sliced(button.size())));
            return;
        }
        if (opensAxisRecord(line)) {
            open();
        }
        write(withoutComment(line));
    }

    QString take()
    {
        open();
        write(u"END");
        return std::move(m_text);
    }

private:
    void open() { write(u"***"); }
    void write(QStringView line)
    {
        m_text += line;
        m_text += u" \n";
    }

    QString m_text;
};

} // namespace

QString AlignSlashes(QStringView text, const IndentOptions &options)
{
    const QString indent(options.indent ? std::clamp<qsizetype>(options.spaces, 0, mostPadding) : 0,
                         u' ');
    return aligned(
        text,
        { [](const Columns &, QStringView head) { return Columns(head); }, editorColumn, indent });
}

QString AlignForLayouts(QStringView text)
{
    return aligned(text, { keptColumns, layoutColumn, QString() });
}

QString LeftAlignAnalyse(QStringView text)
{
    Digest digest;
    forEachLine(text, [&digest](QStringView line) {
        if (line.size() >= 3) {
            digest.addLine(collapsed(line));
        }
    });
    return digest.take();
}

} // namespace zeph
