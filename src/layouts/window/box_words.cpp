// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "layouts/window/box_words.h"

#include "language/words.h"

#include <QStringList>

namespace zeph {

namespace {

constexpr auto modifiers = int(language::slashModifiers.size());
/// The modifiers, and the two calls after them, which the user completes.
constexpr int slashWords = modifiers + 2;

} // namespace

int GetEmptyTextBox(const Sheet &sheet)
{
    for (size_t i = 0; i < sheet.boxes.size(); ++i) {
        if (sheet.boxes[i].text.text.size() < emptyBoxCharacters) {
            return int(i);
        }
    }
    return -1;
}

QString insertedWord(QStringView text, qsizetype caret, const QString &word)
{
    return caret > 0 && caret <= text.size() && text[caret - 1] != u' ' ? u' ' + word : word;
}

QStringList slashCaptions()
{
    QStringList captions;
    for (const language::Word &word : language::insertWords.first(slashWords)) {
        captions.append(QString::fromUtf16(word.caption));
    }
    return captions;
}

QString slashWord(int index)
{
    return language::insertWords[size_t(index)].text.toString() + (index < modifiers ? u' ' : u'(');
}

RichText withoutUnderscores(RichText text)
{
    text.text.replace(u'_', u' ');
    return text;
}

} // namespace zeph
