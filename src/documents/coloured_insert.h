// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/context.h"
#include "platform/core/rich_text.h"

#include <memory>

namespace zeph {

class Change;
class Document;
class EditorView;

/// A macro's name as a double click inserts it into a document: with a blank after it, and one
/// before it unless it replaces a selection, comes after a blank or begins the text.
QString macroInsertion(const Document &into, const QString &name);

/// Writes into the selected document in pieces: begin, any number of pieces in their colours, end.
/// The whole insert is one undo step.
class ColouredInsert
{
public:
    ColouredInsert(const Context &context, EditorView &view);
    ~ColouredInsert();

    /// Begins a Change of the selected document and puts the present looks and caret into its top
    /// undo slot.
    void BeginColInsert();
    /// Inserts at the caret (a selection is deleted first); the caret goes to its end and typing
    /// goes on in the plain colour. A line end may be CR LF. A protected macro file is refused with
    /// the box. False when refused.
    bool InsertColouredString(const QString &text, ColorRef colour);
    /// Does what InsertColouredString does.
    bool InsertColouredStringNoSpace(const QString &text, ColorRef colour);
    /// Inserts five blanks in the plain colour.
    void InsertBlackBlanks();
    void InsertCarriageReturn();
    /// Appends a blank to TextToInsert, unless a blank or the end of the text is at the caret.
    void AddSpaceToColouredText();
    /// Starts a line if the caret is not at the start of one.
    void CheckAtLineBeginning();
    /// Inserts a piece of statement text, painted as typing paints it. A blank goes before it
    /// unless the caret is after a blank or at a line's start. An empty text does nothing.
    void MacroTransferText(const QString &text);
    /// Inserts rich text over the selection, as InsertColouredString does. Margins are the
    /// document's own. False when refused.
    bool insertRich(const RichText &text);
    /// Commits the Change, so that the whole insert is one undo step, and returns the focus to the
    /// Editor. When nothing was inserted there is no step.
    void EndColInsert();

    /// What AddSpaceToColouredText works on.
    QString TextToInsert;

private:
    Document &document() const;

    Context m_context;
    EditorView &m_view;
    std::unique_ptr<Change> m_change; ///< from Begin to End
};

} // namespace zeph
