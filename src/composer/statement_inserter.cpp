// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "composer/statement_inserter.h"

#include "composer/composer_editor.h"
#include "composer/composer_settings.h"
#include "composer/placement.h"
#include "documents/editor_texts.h"
#include "settings/colour_settings.h"
#include "settings/settings.h"

#include <QTextBlock>
#include <QTextDocument>

namespace zeph {

namespace {

Statement withoutBlanksAround(Statement statement)
{
    while (!statement.pieces.isEmpty()) {
        QString &first = statement.pieces.front().text;
        while (!first.isEmpty() && first.front().isSpace()) {
            first.remove(0, 1);
        }
        if (!first.isEmpty()) {
            break;
        }
        statement.pieces.removeFirst();
    }
    while (!statement.pieces.isEmpty()) {
        QString &last = statement.pieces.back().text;
        while (!last.isEmpty() && last.back().isSpace()) {
            last.chop(1);
        }
        if (!last.isEmpty()) {
            break;
        }
        statement.pieces.removeLast();
    }
    return statement;
}

} // namespace

bool StatementInserter::insertComposed(const Generated &statement)
{
    if (!statement) {
        refuse(statement.error());
        return false;
    }
    m_documents.select(DocumentKind::Joystick);
    return insert(composedNow(*statement));
}

Statement StatementInserter::composedNow(const Statement &statement) const
{
    return composedAt(statement, surroundingsOf(m_documents.joystick()),
                      m_context.settings.of<ComposerSettings>().CompTabsAddCr);
}

bool StatementInserter::insertIntoMacroFile(const QString &lines, bool addLineEnd)
{
    m_documents.select(DocumentKind::Macro);
    return insert(
        composedAt({ { { lines } }, true }, surroundingsOf(m_documents.macro()), addLineEnd));
}

bool StatementInserter::insertIntoSelected(const Generated &statement)
{
    if (!statement) {
        refuse(statement.error());
        return false;
    }
    return insert(pieceNow(*statement));
}

Statement StatementInserter::pieceNow(const Statement &statement) const
{
    Statement within = statement;
    within.startsLine = false;
    return composedAt(within, surroundingsOf(m_documents.selected()), false);
}

bool StatementInserter::insertFragment(const QString &text, ColorRef colour)
{
    return insert(fragmentAt(text, colour, surroundingsOf(m_documents.selected())));
}

bool StatementInserter::insertPlain(const QString &text)
{
    const CharFormat plain = m_documents.plainFormat(m_documents.selected().kind());
    return insert({ { { text, plain.colour.value_or(0) } } });
}

bool StatementInserter::insertRich(const RichText &text)
{
    if (text.text.isEmpty() || m_documents.refuseProtected()) {
        return false;
    }
    Document &into = m_documents.selected();
    const CharFormat &plain = into.plain();
    RichText whole;
    if (into.length() > 0 && into.selStart() + into.selLength() == into.length()) {
        whole = RichText::plain(u"\n"_s, plain);
    }
    whole.append(text);
    whole.change(0, whole.text.size(), [&plain](CharFormat &format) {
        format.family = plain.family;
        format.pointSize = plain.pointSize;
        if (!format.colour) {
            format.colour = plain.colour;
        }
    });
    Change change(into);
    into.insert(whole);
    change.commit();
    m_editor.ResetFocusToEditor();
    return true;
}

bool StatementInserter::insertMacroLine(const QString &line)
{
    m_documents.select(DocumentKind::Macro);
    if (m_documents.refuseProtected()) {
        return false;
    }
    Document &into = m_documents.macro();
    const bool isFree =
        into.selLength() == 0 && into.content().findBlock(into.selStart()).length() == 1;
    const bool needsLineEnd = !isFree && !into.content().lastBlock().text().isEmpty();
    const RichText text = paintedAsTyped(
        (needsLineEnd ? u"\n"_s : QString()) + line,
        colourScheme(m_context.settings.of<ColourSettings>(), into.kind()), into.plain());
    Change change(into);
    if (!isFree) {
        into.select(into.length(), 0);
    }
    into.insert(text);
    change.commit();
    m_editor.ResetFocusToEditor();
    return true;
}

std::optional<int> StatementInserter::replace(int start, int length, const Generated &statement)
{
    if (!statement) {
        refuse(statement.error());
        return {};
    }
    m_documents.select(DocumentKind::Joystick);
    if (m_documents.refuseProtected()) {
        return {};
    }
    Document &into = m_documents.joystick();
    const RichText text = richTextOf(
        withoutBlanksAround(*statement),
        colourScheme(m_context.settings.of<ColourSettings>(), into.kind()), into.plain());
    Change change(into);
    into.select(start, length);
    into.insert(text);
    change.commit();
    m_editor.ResetFocusToEditor();
    return int(text.text.size());
}

bool StatementInserter::insert(const Statement &statement)
{
    const bool done = m_documents.insert(statement);
    if (done) {
        m_editor.ResetFocusToEditor();
    }
    return done;
}

void StatementInserter::refuse(const Refusal &refusal)
{
    m_context.dialogs.tell(refusal.title, refusal.text, refusal.icon);
}

} // namespace zeph
