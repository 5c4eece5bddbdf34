// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// The operations of a rich text control, once, over the toolkit's document. Works with both kinds
// of layout.

#include "platform/core/rich_text.h"

#include <QTextCursor>
#include <QTextDocument>

#include <functional>

namespace zeph {

/// By how much a bullet's text hangs, in device-independent pixels: a quarter of an inch.
constexpr double bulletIndentPixels = 24;

/// A character's format as the toolkit's, and back.
QTextCharFormat toTextFormat(const CharFormat &format);
CharFormat fromTextFormat(const QTextCharFormat &format);

/// Whether the toolkit's document takes a character for a border of blocks or frames: all of them
/// are line ends here.
bool isBlockBorder(QChar character);

/// The document's characters, line ends as '\n'. Unlike the toolkit's own reading it keeps
/// no-break spaces, which are letters of a file's code page like any other.
QString plainTextOf(const QTextDocument &document);
/// A stretch of them, clamped to the document.
QString plainTextOf(const QTextDocument &document, qsizetype from, qsizetype length);

/// The document's text and looks as a value, whole or a stretch of it.
RichText richTextOf(const QTextDocument &document);
RichText richTextOf(const QTextDocument &document, qsizetype from, qsizetype length);

/// The looks of the document's characters alone, whole or of a stretch of it.
std::vector<CharRun> characterRunsOf(const QTextDocument &document);
std::vector<CharRun> characterRunsOf(const QTextDocument &document, qsizetype from,
                                     qsizetype length);

/// The paragraphs that a text has which starts at a position of the document; a line end within a
/// paragraph makes one more.
std::vector<ParagraphRun> paragraphRunsOf(const QTextDocument &document, qsizetype from,
                                          QStringView text);

/// The text with another character for each, except '\n', at which the toolkit would end a block.
/// No text file holds such a character. The length stays the same, so that the runs fit.
QString insertableText(const QString &text);

/// Whether somewhere in a text so many characters follow each other at which no line can be broken.
bool holdsLongWord(QStringView text, qsizetype length);

/// Replaces everything in one edit block, without an entry in the toolkit's own undo, which is
/// emptied; the document counts as not modified.
void setRichText(QTextDocument &document, const RichText &text);
/// The same for an empty document that nothing shows yet, piece by piece; the function receives the
/// number of characters so far. False when it gave false: the document holds a part then.
bool fillDocument(QTextDocument &document, const RichText &text,
                  const std::function<bool(qsizetype)> &goOn);
/// Does the same without looks of characters.
void setPlainText(QTextDocument &document, const QString &text,
                  const std::vector<ParagraphRun> &paragraphs);
/// Gives the paragraphs of a stretch their formats where they have others.
void setParagraphRuns(QTextDocument &document, qsizetype from, QStringView text,
                      const std::vector<ParagraphRun> &wanted);
/// Replaces the cursor's selection with rich text; the cursor is after it then. A paragraph that
/// had characters before or after the cursor keeps its format for the part that they are in.
void insertRichText(QTextCursor &cursor, const RichText &text);
/// Gives the text the looks of character runs, from a position on, in one edit block; the text does
/// not change, and characters after the last run keep their looks. Only characters that look
/// otherwise are touched, and only those that the runs cover are read.
void applyCharacterRuns(QTextDocument &document, const std::vector<CharRun> &runs,
                        qsizetype from = 0);
/// Gives all paragraphs one format; nothing is touched when they have it.
void setParagraphFormat(QTextDocument &document, const ParagraphFormat &format);

/// 0-based line of a position; a line is a line of the file, since documents do not wrap.
int lineOfCharacter(const QTextDocument &document, int position);
/// Position of a 0-based line's first character, or -1 beyond the last line.
int startOfLine(const QTextDocument &document, int line);
int lineCount(const QTextDocument &document);

/// Position after the stretch that holds only (or, negated, none of) the characters of a set.
int spanEnd(const QTextDocument &document, int from, QStringView set, bool forward, bool negate);

} // namespace zeph
