// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// How a text has to begin and end so that it fits what is around it in the document.

#include "documents/documents.h"

namespace zeph {

/// The characters around a document's selection, which an insertion replaces; a null character at
/// an end of the text, '\n' at a line end.
struct Surroundings {
    QChar before;
    QChar after;
};

Surroundings surroundingsOf(const Document &document);

/// The blank that keeps an insertion apart from the character after it; empty before a blank and at
/// the text's end.
QString blankBefore(QChar after);

/// A composed statement as it goes in: a blank before it where it would touch a word of its line,
/// and after it a line end if there has to be one and it does not bring its own.
Statement composedAt(Statement statement, const Surroundings &around, bool addLineEnd);

/// A fragment (control, slash modifier, remark) as it goes in, in one colour: a blank after it,
/// unless one is there or the text ends. A control starts a line.
Statement fragmentAt(const QString &text, ColorRef colour, const Surroundings &around);

/// The joystick text with a statement in it, and where that is.
struct Landing {
    QString text;
    qsizetype start = 0; ///< 0-based
    qsizetype length = 0; ///< without a line end before or after
    int line = 1; ///< 1-based, of the start
};

/// What the text becomes when a placed statement goes over a selection.
Landing landingOf(const QString &text, int selStart, int selLength, const Statement &placed);

} // namespace zeph
