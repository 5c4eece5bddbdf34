// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "documents/coloured_insert.h"

#include "documents/document.h"
#include "documents/documents.h"
#include "documents/editor_texts.h"
#include "documents/editor_view.h"
#include "platform/richtext/rich_text_document.h"
#include "platform/status_line.h"
#include "settings/colour_settings.h"
#include "settings/settings.h"

#include <QTextBlock>

namespace zeph {

namespace {

const QString blackBlanks(5, u' ');

} // namespace

QString macroInsertion(const Document &into, const QString &name)
{
    const int at = into.selStart();
    const bool needsBlank =
        into.selLength() == 0 && at > 0 && into.content().characterAt(at - 1) != u' ';
    return (needsBlank ? u" "_s : QString()) + name + u' ';
}

ColouredInsert::ColouredInsert(const Context &context, EditorView &view)
    : m_context(context), m_view(view)
{
}

ColouredInsert::~ColouredInsert() = default;

Document &ColouredInsert::document() const
{
    return m_view.documents().selected();
}

void ColouredInsert::BeginColInsert()
{
    m_change = std::make_unique<Change>(document());
}

bool ColouredInsert::InsertColouredString(const QString &text, ColorRef colour)
{
    CharFormat format = document().plain();
    format.colour = colour;
    return insertRich(RichText::plain(withLineEnds(text), format));
}

bool ColouredInsert::InsertColouredStringNoSpace(const QString &text, ColorRef colour)
{
    return InsertColouredString(text, colour);
}

void ColouredInsert::InsertBlackBlanks()
{
    InsertColouredString(blackBlanks, document().plain().colour.value_or(0));
}

void ColouredInsert::InsertCarriageReturn()
{
    InsertColouredString(u"\n"_s, document().plain().colour.value_or(0));
}

void ColouredInsert::AddSpaceToColouredText()
{
    const Document &into = document();
    const int caret = into.selStart();
    if (caret < into.length() && into.content().characterAt(caret) != u' ') {
        TextToInsert += u' ';
    }
}

void ColouredInsert::CheckAtLineBeginning()
{
    const Document &into = document();
    if (into.content().findBlock(into.selStart()).position() != into.selStart()) {
        InsertCarriageReturn();
    }
    m_context.status.setLine(into.caretLine());
}

void ColouredInsert::MacroTransferText(const QString &text)
{
    if (text.isEmpty()) {
        return;
    }
    const Document &into = document();
    const int caret = into.selStart();
    QString whole = withLineEnds(text);
    if (caret > 0) {
        const QChar before = into.content().characterAt(caret - 1);
        if (before != u' ' && !isBlockBorder(before)) {
            whole.prepend(u' ');
        }
    }
    insertRich(paintedAsTyped(
        whole, colourScheme(m_context.settings.of<ColourSettings>(), into.kind()), into.plain()));
}

bool ColouredInsert::insertRich(const RichText &text)
{
    if (m_view.documents().refuseProtected()) {
        return false;
    }
    document().insert(text);
    m_view.ResetFocusToEditor();
    return true;
}

void ColouredInsert::EndColInsert()
{
    if (m_change) {
        m_change->commit();
        m_change.reset();
    }
    m_view.ResetFocusToEditor();
}

} // namespace zeph
