// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "documents/coloured_insert.h"

#include "documents/document_look.h"
#include "documents/editor_view.h"
#include "documents/text_control.h"
#include "documents/undo_history.h"
#include "platform/richtext/rich_text_document.h"
#include "platform/status_line.h"
#include "settings/colour_settings.h"
#include "settings/settings.h"
#include "text/painter.h"

#include <algorithm>

namespace zeph {

namespace {

const QString blackBlanks(5, u' ');

QString withLineEnds(QString text)
{
    text.replace(u"\r\n"_s, u"\n"_s);
    text.replace(u'\r', u'\n');
    return text;
}

} // namespace

ColouredInsert::ColouredInsert(const Context &context, EditorView &view, UndoHistories &histories)
    : m_context(context), m_view(view), m_histories(histories)
{
}

CharFormat ColouredInsert::plain() const
{
    return m_view.plainFormat(m_view.selected().kind);
}

void ColouredInsert::BeginColInsert()
{
    ++m_view.ColouringBusy;
    m_kind = m_view.selected().kind;
    m_refused = m_inserted = false;
    m_histories.of(m_kind).storeTop();
}

bool ColouredInsert::InsertColouredString(const QString &text, ColorRef colour)
{
    CharFormat format = plain();
    format.colour = colour;
    return insertRich(RichText::plain(withLineEnds(text), format));
}

bool ColouredInsert::InsertColouredStringNoSpace(const QString &text, ColorRef colour)
{
    return InsertColouredString(text, colour);
}

void ColouredInsert::InsertBlackBlanks()
{
    InsertColouredString(blackBlanks, plain().colour.value_or(0));
}

void ColouredInsert::InsertCarriageReturn()
{
    InsertColouredString(u"\n"_s, plain().colour.value_or(0));
}

void ColouredInsert::AddSpaceToColouredText()
{
    const TextControl &control = *m_view.selected().control;
    const int caret = control.selStart();
    if (caret < control.end() && control.document()->characterAt(caret) != u' ') {
        TextToInsert += u' ';
    }
}

void ColouredInsert::CheckAtLineBeginning()
{
    const TextControl &control = *m_view.selected().control;
    QTextCursor caret(control.document());
    caret.setPosition(control.selStart());
    if (!caret.atBlockStart()) {
        InsertCarriageReturn();
    }
    m_context.status.setLine(control.caretLine());
}

void ColouredInsert::MacroTransferText(const QString &text)
{
    if (text.isEmpty()) {
        return;
    }
    const TextControl &control = *m_view.selected().control;
    const int caret = control.selStart();
    QString whole = withLineEnds(text);
    if (caret > 0) {
        const QChar before = control.document()->characterAt(caret - 1);
        if (before != u' ' && !isBlockBorder(before)) {
            whole.prepend(u' ');
        }
    }
    RichText painted = RichText::plain(whole);
    painted.characters = characterRuns(
        paint(whole, typingPasses(),
              colourScheme(m_context.settings.of<ColourSettings>(), m_view.selected().kind)),
        plain());
    insertRich(std::move(painted));
}

bool ColouredInsert::insertRich(RichText text)
{
    if (m_view.refuseProtected()) {
        m_refused = true;
        return false;
    }
    const BusyGuard busy(m_view);
    TextControl &control = *m_view.selected().control;
    // Lines that it brings take the document's margin, not their own.
    text.paragraphs.clear();
    QTextCursor cursor = control.textCursor();
    insertRichText(cursor, text);
    control.setTextCursor(cursor);
    control.setCurrentCharFormat(toTextFormat(plain()));
    control.setFocus();
    m_inserted = true;
    return true;
}

void ColouredInsert::EndColInsert()
{
    m_view.ColouringBusy = std::max(m_view.ColouringBusy - 1, 0);
    if (m_inserted || !m_refused) {
        m_histories.of(m_kind).UndoStepNext = 1;
        m_histories.textChanged(m_kind);
    }
    m_view.ResetFocusToEditor();
}

} // namespace zeph
