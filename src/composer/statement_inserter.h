// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "composer/generators/generators.h"
#include "platform/context.h"

namespace zeph {

class ComposerEditor;

/// Writes what the Composer's windows make into the documents, each insertion as one step to undo,
/// and shows the box where there is a refusal instead.
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
    /// The same into the selected document, without a line start or a line end of its own.
    bool insertIntoSelected(const Generated &statement);
    /// A fragment (control, slash modifier, remark) goes into the selected document in one colour.
    bool insertFragment(const QString &text, ColorRef colour);
    /// Tells a refusal. For what is no statement.
    void refuse(const Refusal &refusal);

private:
    Context m_context;
    Documents &m_documents;
    ComposerEditor &m_editor;
};

} // namespace zeph
