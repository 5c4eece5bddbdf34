// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

// What rewrites whole texts line by line: the three aligners and the block comments. The first byte
// chooses how far statements are moved in.

#include "text/alignment.h"
#include "text/digest.h"
#include "text/text_lines.h"

#include <QStringList>

#include <cstdlib>

using namespace zeph;

namespace {

void require(bool holds)
{
    if (!holds) {
        abort();
    }
}

QString withoutBlanks(QString text)
{
    return text.remove(u' ').remove(u'\t');
}

/// Blanks before a "rem" or a "~" make a line that the next alignment leaves out.
bool hasMovedComments(const QString &text)
{
    for (const QString &line : text.split(u'\n')) {
        QStringView rest = line;
        while (rest.startsWith(u' ') || rest.startsWith(u'\t')) {
            rest = rest.sliced(1);
        }
        if (rest.size() < line.size()
            && (rest.startsWith(u'~') || rest.startsWith(u"rem", Qt::CaseInsensitive))) {
            return true;
        }
    }
    return false;
}

void align(const QString &text, const IndentOptions &options)
{
    const QString once = AlignSlashes(text, options);
    const QString whole = text.isEmpty() || text.endsWith(u'\n') ? text : text + u'\n';
    require(once.count(u'\n') == whole.count(u'\n'));
    require(withoutBlanks(once) == withoutBlanks(whole));
    if (!hasMovedComments(text)) {
        require(AlignSlashes(once, options) == once);
    }
}

void comment(const QString &text, qsizetype start, qsizetype length)
{
    const LineRange range = touchedLines(text, start, length);
    require(range.start >= 0 && range.start + range.length <= text.size());
    const QString lines = text.mid(range.start, range.length);
    const auto changed = [](const QString &before, LineChange (*change)(QStringView line)) {
        QString after;
        for (const LineChange &line : changeLines(before, change)) {
            after += line.text;
        }
        return after;
    };
    require(changed(changed(lines, commentedOut), commentedIn) == lines);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    if (size < 2) {
        return 0;
    }
    QString text;
    for (size_t i = 2; i < size; ++i) {
        text += QChar(data[i] == '\r' ? '\n' : data[i]);
    }
    const IndentOptions options{ data[0] % 2 == 1, data[0] / 2 };
    align(text, options);
    const QString layout = AlignForLayouts(text);
    require(layout.isEmpty() == text.isEmpty() && !layout.contains(QString(70, u' ') + u'/'));
    const QString digest = LeftAlignAnalyse(text);
    require(digest.endsWith(u"*** \nEND \n"));
    comment(text, data[1], size % 256);
    return 0;
}
