// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "composer/generators/generators.h"
#include "platform/context.h"

namespace zeph {

class ComposerEditor;

/// Writes what the Composer's windows make into the documents, each insertion as one step to undo,
/// and shows the box where there is a refusal instead. Afterwards the Editor's document has the
/// focus of its window.
class StatementInserter
{
public:
    StatementInserter(const Context &context, Documents &documents, ComposerEditor &editor)
        : m_context(context), m_documents(documents), m_editor(editor)
    {
    }

    /// A composed statement goes into the joystick file, which is selected first, with a line end
    /// after it if the settings (CompTabsAddCr) want one. False when nothing was inserted.
    bool insertComposed(const Generated &statement);
    /// Lines go into the macro file, which is selected first, from the start of a line on. False
    /// when nothing was inserted.
    bool insertIntoMacroFile(const QString &lines, bool addLineEnd);
    /// A composed statement goes into the selected document, without a line start or a line end of
    /// its own.
    bool insertIntoSelected(const Generated &statement);
    /// A fragment (control, slash modifier, remark) goes into the selected document in one colour.
    bool insertFragment(const QString &text, ColorRef colour);
    /// A text as it is goes into the selected document, in its plain colour.
    bool insertPlain(const QString &text);
    /// Rich text goes into the selected document in the document's font, on a line of its own where
    /// the caret is at the end of a text.
    bool insertRich(const RichText &text);
    /// A macro's line goes into the macro file, which is selected first: onto the caret's line if
    /// that is empty, else onto a line of its own at the end. False when nothing was inserted.
    bool insertMacroLine(const QString &line);
    /// Puts a statement in the place of a stretch of the joystick file, without the blanks around
    /// it. Gives the length of what is there then; no value when nothing was replaced.
    std::optional<int> replace(int start, int length, const Generated &statement);

    /// What insertComposed() would write now, and where.
    Statement composedNow(const Statement &statement) const;
    /// The same of insertIntoSelected().
    Statement pieceNow(const Statement &statement) const;

    /// Tells a refusal. For what is no statement.
    void refuse(const Refusal &refusal);

private:
    bool insert(const Statement &statement);

    Context m_context;
    Documents &m_documents;
    ComposerEditor &m_editor;
};

} // namespace zeph
