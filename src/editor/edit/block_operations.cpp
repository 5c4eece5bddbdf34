// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "editor/edit/block_operations.h"

#include "documents/coloured_insert.h"
#include "documents/editor_view.h"
#include "documents/highlighting.h"
#include "menus/menu_actions.h"

#include <algorithm>

namespace zeph {

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
    constexpr qsizetype taken = 4; // "rem " and its blank
    RichText text;
    qsizetype at = range.start;
    for (const LineChange &line : all) {
        const qsizetype length = line.text.size() + (line.changed ? taken : 0);
        // What stays keeps the looks that it has; what is live again is painted as it is typed.
        text.append(line.changed ? m_parts.highlighting.ColourType(line.text)
                                 : document.richText(int(at), int(length)));
        at += length;
    }
    insertOver(range, text);
}

} // namespace zeph
