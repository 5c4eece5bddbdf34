// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// Rich Text Format, after the published form 1.9: what Windows' rich text control, WordPad, Word
// and LibreOffice write is read; what Zeph knows of a text is written.

#include "platform/core/base.h"
#include "platform/core/rich_text.h"

#include <QByteArray>
#include <QFlags>

#include <functional>
#include <memory>

namespace zeph {

struct RtfError {
    QString reason;
    qsizetype offset = 0; ///< 0-based byte at which reading gave up
};

/// Reads what it understands and skips the rest; unknown words and destinations are no error.
/// An error is given for what is no RTF at all, for unbalanced groups and for nesting beyond a
/// fixed depth. Memory stays proportional to the input.
/// A \par with nothing after it ends the last paragraph and adds no empty one. Bullets are
/// paragraphs' formats; the numbers of numbered lists stay text.
Expected<RichText, RtfError> readRtf(QByteArrayView bytes);

/// What a file has and a RichText cannot hold.
enum class RtfLoss {
    Pictures = 1 << 0,
    Drawings = 1 << 1,
    Objects = 1 << 2,
    Tables = 1 << 3, ///< their texts are read, tabs between the cells
    HeadersAndFooters = 1 << 4,
    Footnotes = 1 << 5,
    Comments = 1 << 6,
    Fields = 1 << 7, ///< all but hyperlinks; the text that they show is read
    PageBreaks = 1 << 8,
    TrackedChanges = 1 << 9,
    NumberedLists = 1 << 10, ///< the numbers are read as text
    Effects = 1 << 11, ///< of characters: raised, highlighted, capitals, kinds of underlines ...
    ParagraphLayout = 1 << 12, ///< spacing, tab stops, right and first line's indents, justified
};
Q_DECLARE_FLAGS(RtfLosses, RtfLoss)
Q_DECLARE_OPERATORS_FOR_FLAGS(RtfLosses)

struct RtfReading {
    NumberedRichText text;
    RtfLosses losses;
    /// The look of the file's first style, which is that of its plain text; none without styles.
    std::optional<CharFormat> plain;
};

/// readRtf() for a file that may be written again: tells what of it the text does not hold. The
/// function receives the number of bytes read so far, every now and then; when it gives false, the
/// reading stops with an error.
Expected<RtfReading, RtfError> readRtfWithLosses(QByteArrayView bytes,
                                                 const std::function<bool(qsizetype)> &goOn = {});

/// The whole value as RTF 1 in 7-bit ASCII; characters beyond 1252 as \uN and a "?".
/// readRtf() gives the same value back, but for sizes, which RTF holds in half points.
QByteArray writeRtf(const RichText &text);

/// writeRtf() of a text that comes in pieces, each of whole lines.
class RtfWriter
{
public:
    RtfWriter();
    ~RtfWriter();

    /// Names the look of plain text as the file's only style.
    void setPlain(const CharFormat &plain);
    void add(const RichText &piece);
    /// The file; the object is empty afterwards.
    QByteArray take();

private:
    class Body;
    std::unique_ptr<Body> m_body;
};

} // namespace zeph
