// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "livetools/quickview/readings_differ.h"

#include "language/scan.h"

namespace zeph {

namespace {

using language::Branch;
using language::Chain;
using language::ItemKind;
using language::JoystickFile;
using language::JoystickStatement;
using language::SlashLevel;

SlashLevel levelOf(int modifier)
{
    return language::slashModifiers[size_t(modifier)].level;
}

/// Whether a level is told by the column, not by the cell's text.
bool isOfColumn(SlashLevel level)
{
    return level == SlashLevel::Dogfight || level == SlashLevel::S3;
}

bool holdsIn(const Chain &chain, int column)
{
    const QString name = columnName(column);
    for (int at = 0; at < chain.size; ++at) {
        const int modifier = chain.links[size_t(at)].modifier;
        const QStringView word = language::slashModifiers[size_t(modifier)].text;
        if (isOfColumn(levelOf(modifier)) && !name.contains(word)) {
            return false;
        }
    }
    return true;
}

/// A stretch of the file as one line without comments.
QString inOneLine(QStringView text)
{
    QStringList lines;
    forEachLine(text, [&lines](QStringView line) {
        const qsizetype comment = language::commentStart(line);
        lines.append((comment < 0 ? line : line.first(comment)).toString());
    });
    return lines.join(u' ').simplified();
}

QString textOf(const JoystickFile &model, const Branch &branch)
{
    QString text;
    for (int at = 0; at < branch.chain.size; ++at) {
        const auto &link = branch.chain.links[size_t(at)];
        const bool isOwn = model.items[link.item].place.position >= branch.place.position;
        if (isOwn && !isOfColumn(levelOf(link.modifier))) {
            text += language::slashModifiers[size_t(link.modifier)].text;
            text += u' ';
        }
    }
    if (!branch.items.isEmpty()) {
        const qsizetype start = model.items[branch.items.first].place.position;
        text += QStringView(model.text).sliced(start, branch.place.end() - start);
    }
    return inOneLine(text);
}

QString textIn(const JoystickFile &model, const JoystickStatement &statement, int column)
{
    QStringList texts;
    for (int at = statement.body.branches.first; at < statement.body.branches.end; ++at) {
        const Branch &branch = model.branches[at];
        if (holdsIn(branch.chain, column)) {
            texts.append(textOf(model, branch));
        }
    }
    return texts.join(u' ').simplified();
}

struct DogfightLines {
    bool any = false;
    bool severalOnOne = false;
};

DogfightLines dogfightLines(const JoystickFile &model, const JoystickStatement &statement)
{
    DogfightLines found;
    int lastLine = 0;
    for (int at = statement.body.items.first; at < statement.body.items.end; ++at) {
        const language::Item &item = model.items[at];
        if (item.kind == ItemKind::Slash && levelOf(item.reference) == SlashLevel::Dogfight) {
            found.any = true;
            found.severalOnOne |= item.place.line == lastLine;
            lastLine = item.place.line;
        }
    }
    return found;
}

int rowOf(const JoystickFile &model, const JoystickStatement &statement)
{
    switch (statement.kind) {
    case language::StatementKind::Button:
        return rowOfControl(model.at(statement.subject));
    case language::StatementKind::Axis:
        return rowOfControl(model.at(statement.keyword));
    default:
        return 0;
    }
}

/// The language's reading of one control, over all its statements.
struct LanguageRow {
    bool isDoubtful = false;
    std::array<QString, columnCount> texts;
};

void read(LanguageRow &row, const JoystickFile &model, const JoystickStatement &statement)
{
    for (int column = 1; column <= columnCount; ++column) {
        if (const QString text = textIn(model, statement, column); !text.isEmpty()) {
            row.texts[size_t(column - 1)] = text;
        }
    }
}

} // namespace

std::vector<ReadingDifference> readingsDiffer(const Assignments &table, const Digest &digest,
                                              const JoystickFile &model)
{
    const std::vector<DigestLine> lines = linesOf(digest);
    const std::vector<ControlRecord> records = controlRecords(lines);
    std::array<LanguageRow, rowCount + 1> rows;
    for (const JoystickStatement &statement : model.statements) {
        const int row = rowOf(model, statement);
        const auto record = std::ranges::lower_bound(records, statement.place.line, {},
                                                     &ControlRecord::firstSource);
        if (row == 0 || record == records.end() || record->row != row
            || record->firstSource() != statement.place.line) {
            continue;
        }
        read(rows[size_t(row)], model, statement);
        const DogfightLines dogfight = dogfightLines(model, statement);
        const bool beginsUp = record->firstText().contains(u"/U ", Qt::CaseInsensitive);
        rows[size_t(row)].isDoubtful |= dogfight.severalOnOne || (dogfight.any && !beginsUp);
    }
    std::vector<ReadingDifference> differences;
    for (int row = 1; row <= rowCount; ++row) {
        for (int column = 1; rows[size_t(row)].isDoubtful && column <= columnCount; ++column) {
            const Cell &cell = table.at(row, column);
            const QString &text = rows[size_t(row)].texts[size_t(column - 1)];
            if (!cell.byUse && cell.text.simplified() != text) {
                differences.push_back({ { row, column }, text });
            }
        }
    }
    return differences;
}

QString differenceTip(const ReadingDifference &difference)
{
    const QString start = u"Read by the rules of the language, "_s
        + controlName(difference.cell.row).toString() + u" with "_s
        + columnName(difference.cell.column);
    return difference.languageReads.isEmpty() ? start + u" does nothing."_s
                                              : start + u" does: "_s + difference.languageReads;
}

} // namespace zeph
