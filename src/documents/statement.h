// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// What a generator gives: a statement to write into a document, or a refusal to show. Plain values.

#include "platform/dialogs.h"
#include "text/painter.h"

namespace zeph {

class RichTextBox;

/// Text of a joystick or macro file that a tool has made.
struct Statement {
    /// A piece without a colour is painted as typing paints it.
    struct Piece {
        QString text;
        std::optional<ColorRef> colour = {};
    };

    QList<Piece> pieces;
    /// It begins a line of its own, unless the caret is at the start of one.
    bool startsLine = false;

    QString text() const;
};

/// Why a tool makes no statement: what its box says.
struct Refusal {
    QString title;
    QString text;
    BoxIcon icon = BoxIcon::Exclamation;
};

/// A text in the colours that typing gives it; characters without a colour look plain. Lines end
/// in '\n'.
RichText paintedAsTyped(const QString &text, const ColourScheme &scheme, const CharFormat &plain);
/// A statement's text in its colours.
RichText richTextOf(const Statement &statement, const ColourScheme &scheme,
                    const CharFormat &plain);
/// Paints a box's text as typing is painted. Its paragraphs, caret and selection stay.
void colourBox(RichTextBox &box, const ColourScheme &scheme, const CharFormat &plain);

/// A text whose line ends are CR LF or CR, with '\n' for each.
QString withLineEnds(QString text);

} // namespace zeph
