// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "documents/paragraph_source.h"

#include "platform/richtext/rich_text_document.h"

namespace zeph {

std::vector<ParagraphRun> ParagraphSource::read(qsizetype from, QStringView text, bool isLast) const
{
    if (!m_document) {
        return { { text.count(u'\n') + (isLast ? 1 : 0), m_uniform } };
    }
    std::vector<ParagraphRun> runs = paragraphRunsOf(*m_document, from, text);
    if (!isLast && --runs.back().count == 0) {
        // The line after the last line end is counted too, but belongs to the next chunk.
        runs.pop_back();
    }
    runs.shrink_to_fit();
    return runs;
}

} // namespace zeph
