// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/context.h"
#include "platform/core/file_io.h"
#include "platform/core/rich_text.h"

namespace zeph {

class Document;

/// The coloured copies: a document's looks, kept in one flat folder under the file's own name. A
/// copy is a cache; the plain file is the truth.
class ColouredCopies
{
public:
    explicit ColouredCopies(const Paths &paths) : m_paths(paths) { }

    QString pathOf(const QString &name) const { return m_paths.rtfFolder() + name; }
    /// The copy for a file of that name, if its text equals the plain text exactly. Its plain font
    /// and size become the given ones, and text as bold as its plain text becomes as bold as the
    /// given font. Other looks stay.
    std::optional<NumberedRichText> load(const QString &name, const QString &plainText,
                                         const CharFormat &font) const;
    /// Writes the copy of a document as it is now.
    Expected<void, FileError> SaveColouredText(Document &document) const;

private:
    const Paths &m_paths;
};

} // namespace zeph
