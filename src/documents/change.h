// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "documents/document.h"

namespace zeph {

/// A change of the program's own to a document: begun by the constructor, made of any number of the
/// document's text operations, and one step to undo when it is committed. A change that is thrown
/// away without commit() leaves text, looks and caret as they were before it.
class Change
{
public:
    explicit Change(Document &document);
    ~Change();
    Change(const Change &) = delete;
    Change &operator=(const Change &) = delete;

    Document &document() { return m_document; }
    /// Makes the step; the document is modified then. False when nothing is different: no step.
    bool commit();

private:
    Document &m_document;
    std::optional<ColouredText::Quiet> m_quiet;
    DocumentState m_before;
    int m_anchor;
    int m_caret;
};

} // namespace zeph
