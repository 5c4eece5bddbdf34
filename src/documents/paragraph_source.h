// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/core/rich_text.h"

#include <vector>

class QTextDocument;

namespace zeph {

/// Where the chunks of an edited text take their paragraphs' formats from.
class ParagraphSource
{
public:
    /// The edited text lies in a document already, which lives as long as this.
    explicit ParagraphSource(const QTextDocument &document) : m_document(&document) { }
    /// All paragraphs have one format.
    explicit ParagraphSource(const ParagraphFormat &uniform) : m_uniform(uniform) { }

    /// The paragraphs of a chunk's text, which starts at a position of the edited text; isLast says
    /// that it is the text's last chunk.
    std::vector<ParagraphRun> read(qsizetype from, QStringView text, bool isLast) const;

private:
    const QTextDocument *m_document = nullptr;
    ParagraphFormat m_uniform;
};

} // namespace zeph
