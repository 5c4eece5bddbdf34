// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "composer/wizards/lesson_text.h"

#include "documents/documents.h"
#include "platform/colours.h"

#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>

namespace zeph {

namespace {

bool isExample(const QTextBlock &block)
{
    return block.blockFormat().nonBreakableLines();
}

/// A cursor that has selected each example in turn.
QList<QTextCursor> exampleCursors(const QTextDocument &document)
{
    QList<QTextCursor> found;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        if (!isExample(block)) {
            continue;
        }
        QTextCursor cursor(block);
        while (isExample(block.next())) {
            block = block.next();
        }
        cursor.setPosition(block.position() + block.length() - 1, QTextCursor::KeepAnchor);
        found.append(cursor);
    }
    return found;
}

QString textOf(const QTextCursor &example)
{
    QString text = example.selectedText();
    text.replace(QChar::ParagraphSeparator, u'\n');
    text.replace(QChar::LineSeparator, u'\n');
    text.replace(QChar::Nbsp, u' ');
    return text;
}

} // namespace

QStringList examplesIn(const QTextDocument &document)
{
    QStringList examples;
    for (const QTextCursor &each : exampleCursors(document)) {
        examples.append(textOf(each));
    }
    return examples;
}

void paintExamples(QTextDocument &document, const ColourScheme &scheme, const CharFormat &plain,
                   ColorRef background)
{
    for (QTextCursor &example : exampleCursors(document)) {
        const int start = example.selectionStart();
        QTextBlockFormat ground;
        ground.setBackground(toColor(background));
        example.mergeBlockFormat(ground);
        int at = start;
        for (const CharRun &run : paintedAsTyped(textOf(example), scheme, plain).characters) {
            QTextCursor piece(&document);
            piece.setPosition(at);
            at += int(run.length);
            piece.setPosition(at, QTextCursor::KeepAnchor);
            QTextCharFormat look;
            look.setForeground(toColor(run.format.colour.value_or(0)));
            piece.mergeCharFormat(look);
        }
    }
}

} // namespace zeph
