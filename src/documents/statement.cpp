// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "documents/statement.h"

#include "platform/richtext/rich_text_box.h"

namespace zeph {

QString Statement::text() const
{
    QString all;
    for (const Piece &piece : pieces) {
        all += piece.text;
    }
    return all;
}

RichText paintedAsTyped(const QString &text, const ColourScheme &scheme, const CharFormat &plain)
{
    RichText painted = RichText::plain(text);
    painted.characters = characterRuns(paint(text, typingPasses(), scheme), plain);
    return painted;
}

RichText richTextOf(const Statement &statement, const ColourScheme &scheme, const CharFormat &plain)
{
    RichText all;
    for (const Statement::Piece &piece : statement.pieces) {
        const QString text = withLineEnds(piece.text);
        if (!piece.colour) {
            all.append(paintedAsTyped(text, scheme, plain));
            continue;
        }
        CharFormat format = plain;
        format.colour = piece.colour;
        all.append(RichText::plain(text, format));
    }
    return all;
}

void colourBox(RichTextBox &box, const ColourScheme &scheme, const CharFormat &plain)
{
    RichText text = box.richText();
    text.characters = paintedAsTyped(text.text, scheme, plain).characters;
    const int start = box.selStart();
    const int length = box.selLength();
    box.setRichText(text);
    box.select(start, length);
}

QString withLineEnds(QString text)
{
    text.replace(u"\r\n"_s, u"\n"_s);
    text.replace(u'\r', u'\n');
    return text;
}

} // namespace zeph
