// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "livetools/quickview/key_texts.h"

namespace zeph {

namespace {

/// The end of the first such character from a position on; the position when there is none.
qsizetype afterFirst(QStringView text, QChar sought, qsizetype from)
{
    from = std::min(from, text.size());
    const qsizetype at = text.indexOf(sought, from);
    return at < 0 ? from : at + 1;
}

QString withBlanks(QStringView text, const LabelOptions &options)
{
    QString shown = text.toString();
    return options.Underscores ? shown.replace(u'_', u' ') : shown;
}

} // namespace

qsizetype rotaryNumbersLength(QStringView text)
{
    qsizetype start = 0;
    while (start < text.size() && text[start] == u' ') {
        ++start;
    }
    if (start == text.size()) {
        return 0;
    }
    const char16_t type = text[start].unicode();
    if (type >= u'4' && type <= u'6') {
        return afterFirst(text, u')', start + 4);
    }
    if (type >= u'1' && type <= u'3') {
        return afterFirst(text, u' ', start + 2);
    }
    return 0;
}

QString labelText(int row, const QString &cell, const LabelOptions &options, const MacroKeys *keys)
{
    QStringView text = cell;
    if (options.RotaryStrip && isRotaryRow(row)) {
        text = text.sliced(rotaryNumbersLength(withBlanks(text, options)));
    }
    if (!keys) {
        return withBlanks(text, options).trimmed();
    }
    QString shown;
    qsizetype copied = 0;
    for (const MacroWord &word : keys->in(text)) {
        shown += withBlanks(text.sliced(copied, word.place.start - copied), options) + word.keys;
        copied = word.place.start + word.place.length;
    }
    return (shown + withBlanks(text.sliced(copied), options)).trimmed();
}

QString labelTip(const QString &cell, const MacroKeys &keys)
{
    const QString shown = keys.shownIn(cell);
    return shown == cell ? cell : cell + u'\n' + shown;
}

} // namespace zeph
