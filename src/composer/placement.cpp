// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "composer/placement.h"

#include "platform/richtext/rich_text_document.h"
#include "text/text_lines.h"

namespace zeph {

namespace {

QChar characterAt(const Document &document, int position)
{
    if (position < 0 || position >= document.length()) {
        return {};
    }
    const QChar found = document.content().characterAt(position);
    return isBlockBorder(found) ? QChar(u'\n') : found;
}

bool touches(QChar before)
{
    return !before.isNull() && before != u' ' && before != u'\n';
}

} // namespace

Surroundings surroundingsOf(const Document &document)
{
    return { characterAt(document, document.selStart() - 1),
             characterAt(document, document.selStart() + document.selLength()) };
}

QString blankBefore(QChar after)
{
    return after.isNull() || after == u' ' ? QString() : u" "_s;
}

Statement composedAt(Statement statement, const Surroundings &around, bool addLineEnd)
{
    const bool isTouched =
        !statement.startsLine && touches(around.before) && !statement.pieces.isEmpty();
    if (isTouched && !statement.pieces.front().text.startsWith(u' ')) {
        statement.pieces.prepend({ u" "_s });
    }
    if (addLineEnd && !statement.text().endsWith(u'\n')) {
        statement.pieces.append({ u"\n"_s });
    }
    return statement;
}

Statement fragmentAt(const QString &text, ColorRef colour, const Surroundings &around)
{
    QString whole = text + blankBefore(around.after);
    // Rem starts a comment only if it is a word of its own.
    if (text.startsWith(remAndBlank) && touches(around.before)) {
        whole.prepend(u' ');
    }
    return { { { whole, colour } }, text.startsWith(u"BTN") };
}

Landing landingOf(const QString &text, int selStart, int selLength, const Statement &placed)
{
    Landing landing;
    QString inserted = withLineEnds(placed.text());
    if (placed.startsLine && selStart > 0 && text[selStart - 1] != u'\n') {
        inserted.prepend(u'\n');
    }
    landing.text = text;
    landing.text.replace(selStart, selLength, inserted);
    qsizetype from = 0;
    qsizetype end = inserted.size();
    while (from < end && inserted[from].isSpace()) {
        ++from;
    }
    while (end > from && inserted[end - 1].isSpace()) {
        --end;
    }
    landing.start = selStart + from;
    landing.length = end - from;
    landing.line = int(QStringView(landing.text).first(landing.start).count(u'\n')) + 1;
    return landing;
}

} // namespace zeph
