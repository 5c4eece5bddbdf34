// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// Rich Text Format, after the published form 1.9: what Windows' rich text control, WordPad, Word
// and LibreOffice write is read; what Zeph knows of a text is written.

#include "platform/core/base.h"
#include "platform/core/rich_text.h"

#include <QByteArray>

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
/// The same with the look of the file's first style, which is that of its plain text; nothing for a
/// file without styles.
struct StyledRichText {
    RichText text;
    std::optional<CharFormat> plain;
};
Expected<StyledRichText, RtfError> readStyledRtf(QByteArrayView bytes);

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
