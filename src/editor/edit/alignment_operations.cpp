// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "editor/edit/alignment_operations.h"

#include "documents/coloured_insert.h"
#include "documents/document.h"
#include "documents/editor_view.h"
#include "documents/highlighting.h"
#include "editor/editor_settings.h"
#include "menus/menu_actions.h"
#include "platform/status_line.h"
#include "settings/settings.h"
#include "text/alignment.h"
#include "text/text_lines.h"

#include <QAction>
#include <algorithm>

namespace zeph {

AlignmentOperations::AlignmentOperations(const Context &context, const Parts &parts)
    : m_context(context), m_parts(parts)
{
    MenuActions &on = m_parts.actions;
    on.connectTo(u"mnuAlignSlash", [this] { mnuAlignSlash_Click(); });
    on.connectTo(u"mnuIndentSlashes", [this] { mnuIndentSlashes_Click(); });
    on.connectTo(u"mnuViewrefreshIndent", [this] { mnuViewrefreshIndent_Click(); });
    applySettings();
}

void AlignmentOperations::applySettings()
{
    m_parts.actions.action(u"mnuIndentSlashes")
        ->setChecked(m_context.settings.of<EditorSettings>().IndentAsWell);
}

void AlignmentOperations::mnuAlignSlash_Click()
{
    if (m_parts.view.documents().refuseProtected()
        || m_parts.view.documents().refuseSent(DocumentKind::Joystick)) {
        return;
    }
    Document &joystick = m_parts.view.documents().joystick();
    const QString text = joystick.text();
    if (text.isEmpty()) {
        return;
    }
    m_context.status.setTextNow(u" Hang on - this could take time ..."_s);
    const EditorView::KeptTab tab(m_parts.view);
    m_parts.view.documents().select(DocumentKind::Joystick);
    const auto &settings = m_context.settings.of<EditorSettings>();
    const QString aligned = AlignSlashes(text, { settings.IndentAsWell, settings.IndentSpaces });
    const int anchor = int(placeAfterAligning(text, aligned, joystick.cursor().anchor()));
    const int caret = int(placeAfterAligning(text, aligned, joystick.cursor().position()));
    const EditorView::KeptPlace place(m_parts.view, joystick);
    if (aligned != text) {
        Change change(joystick);
        joystick.replaceWhole(aligned);
        joystick.setCaret(anchor, caret);
        change.commit();
    }
    m_parts.highlighting.mnuViewColourJoystick_Click();
    joystick.setCaret(anchor, caret);
    m_context.status.setText(u" OK - done!"_s);
}

void AlignmentOperations::mnuIndentSlashes_Click()
{
    m_context.settings.of<EditorSettings>().IndentAsWell =
        m_parts.actions.action(u"mnuIndentSlashes")->isChecked();
}

void AlignmentOperations::mnuViewrefreshIndent_Click()
{
    Document &document = m_parts.view.documents().selected();
    if (m_parts.view.documents().refuseProtected() || document.length() == 0) {
        return;
    }
    m_context.status.setText(u"Reformatting layout. Please wait ..."_s);
    document.setMargins();
    m_parts.view.UpdateSavedIcon();
    m_context.status.setText(u"Layout refreshed ... (I wish I was!)"_s);
    document.history().storeShown();
}

namespace {

bool anyChanged(const std::vector<LineChange> &lines)
{
    return std::ranges::any_of(lines, &LineChange::changed);
}

} // namespace

BlockOperations::BlockOperations(const Parts &parts) : m_parts(parts)
{
    MenuActions &on = m_parts.actions;
    on.connectTo(u"mnuBlockREM", [this] { BlockREM(); });
    on.connectTo(u"mnuBlockRemoveREM", [this] { BlockRemoveREM(); });
}

LineRange BlockOperations::lines() const
{
    const Document &document = m_parts.view.documents().selected();
    return touchedLines(document.text(), document.selStart(), document.selLength());
}

std::vector<LineChange> BlockOperations::changed(LineRange range,
                                                 LineChange (*change)(QStringView line)) const
{
    const QString text = m_parts.view.documents().selected().text();
    return changeLines(QStringView(text).sliced(range.start, range.length), change);
}

void BlockOperations::insertOver(LineRange range, const RichText &text)
{
    m_parts.insert.BeginColInsert();
    m_parts.view.documents().selected().select(int(range.start), int(range.length));
    m_parts.insert.insertRich(text);
    goToStart(range);
    m_parts.insert.EndColInsert();
}

void BlockOperations::goToStart(LineRange range)
{
    m_parts.view.documents().selected().select(int(range.start), 0);
}

void BlockOperations::BlockREM()
{
    if (m_parts.view.documents().refuseProtected()) {
        return;
    }
    const LineRange range = lines();
    const std::vector<LineChange> all = changed(range, commentedOut);
    if (!anyChanged(all)) {
        goToStart(range);
        return;
    }
    QString text;
    for (const LineChange &line : all) {
        text += line.text;
    }
    insertOver(range, m_parts.highlighting.JustREMtocolour(text));
}

void BlockOperations::BlockRemoveREM()
{
    if (m_parts.view.documents().refuseProtected()) {
        return;
    }
    const LineRange range = lines();
    const std::vector<LineChange> all = changed(range, commentedIn);
    if (!anyChanged(all)) {
        goToStart(range);
        return;
    }
    const Document &document = m_parts.view.documents().selected();
    constexpr qsizetype taken = 4; // "rem" and its blank
    RichText text;
    qsizetype at = range.start;
    for (const LineChange &line : all) {
        const qsizetype length = line.text.size() + (line.changed ? taken : 0);
        // Unchanged lines keep their looks; lines commented in are coloured as if they were typed.
        text.append(line.changed ? m_parts.highlighting.ColourType(line.text)
                                 : document.richText(int(at), int(length)));
        at += length;
    }
    insertOver(range, text);
}

} // namespace zeph
