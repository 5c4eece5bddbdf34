// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "editor/macros/macro_operations.h"

#include "documents/document.h"
#include "documents/editor_texts.h"
#include "documents/editor_view.h"
#include "editor/files/file_saving.h"
#include "editor/macros/macro_list.h"
#include "editor/macros/macrorenameform.h"
#include "menus/menu_actions.h"
#include "platform/status_line.h"
#include "text/macro_search.h"
#include "text/macro_table.h"

#include <QAction>
#include <QMouseEvent>
#include <QTextBlock>

#include <algorithm>

namespace zeph {

MacroOperations::MacroOperations(const Context &context, const Parts &parts)
    : m_context(context), m_parts(parts)
{
    connect(&parts.list, &MacroList::listSelectionChanged, this, [this] { m_foundName.clear(); });
    parts.view.watchMouse(DocumentKind::Joystick, *this);
}

void MacroOperations::ClearMacroTicks()
{
    m_parts.list.model().clearTicks();
}

void MacroOperations::TickMacroList()
{
    const QString &name = m_parts.list.SelectedMacro;
    if (!name.isEmpty()) {
        const QString text = m_parts.view.documents().joystick().text();
        m_parts.list.model().setTick(name, !macroUses(text, name).isEmpty());
    }
}

void MacroOperations::IdentifyMacrosUsed(Mode mode)
{
    const Document &joystick = m_parts.view.documents().joystick();
    const Document &macro = m_parts.view.documents().macro();
    if (joystick.length() == 0 || macro.length() == 0) {
        return;
    }
    m_context.status.setText(u"Analysing the macros you've already assigned in the "_s
                             + joystick.name() + u". Please wait ..."_s);
    const QStringList &names = m_parts.list.model().allNames();
    const QList<bool> used = usedMacros(joystick.text(), names);
    QStringList ticked;
    for (qsizetype i = 0; i < names.size(); ++i) {
        if (used[i]) {
            ticked.append(names[i]);
        }
    }
    m_parts.list.model().setTicked(ticked);
    if (mode == ShowAll && !m_parts.list.MacroListIsEmpty) {
        m_parts.list.showHeading(0);
    }
    m_context.status.setText(u"Finished analysing the macros assigned in your joystick file."_s);
}

void MacroOperations::FindMacroInJF()
{
    const QString name = m_parts.list.SelectedMacro;
    Document &joystick = m_parts.view.documents().joystick();
    const QList<qsizetype> uses = macroUses(joystick.text(), name);
    if (uses.isEmpty()) {
        return;
    }
    const auto next =
        m_foundName == name ? std::lower_bound(uses.begin(), uses.end(), m_findFrom) : uses.begin();
    const qsizetype at = next == uses.end() ? uses.first() : *next;
    m_foundName = name;
    m_findFrom = at + name.size();
    m_parts.view.documents().select(DocumentKind::Joystick);
    joystick.select(int(at), int(name.size()));
    m_parts.view.centreCaret(DocumentKind::Joystick);
}

QString MacroOperations::macroToRename() const
{
    const QString chosen = m_parts.list.chosenMacro();
    if (!chosen.isEmpty()) {
        return chosen;
    }
    const QTextCursor &caret = m_parts.view.documents().selected().cursor();
    return nameAt(caret.block().text(), caret.positionInBlock(), m_parts.list.model().allNames());
}

void MacroOperations::mnuRenameMacro_Click()
{
    const QStringList &macros = m_parts.list.model().allNames();
    const QString macroText = m_parts.view.documents().macro().text();
    MacroRenameForm form(m_context.dialogs,
                         { .macros = macros,
                           .chosen = macroToRename(),
                           // The list is that of the saved file; the text may have more.
                           .alsoTaken = extractMacros(usableMacroLines(macroText)).names.first() },
                         m_parts.view.window());
    if (form.exec() != QDialog::Accepted) {
        return;
    }
    ChangeMacroName(form.oldName(), form.newName());
    if (form.wantsAutoSave()) {
        m_parts.saving.mnuFileSaveBoth_Click();
        m_parts.list.mnuEditUpdateMacros_Click();
        IdentifyMacrosUsed(KeepHeading);
    }
}

void MacroOperations::ChangeMacroName(const QString &oldName, const QString &newName)
{
    if (m_parts.view.documents().isProtected()) {
        m_context.dialogs.box(fileProtectedBox());
        return;
    }
    if (m_parts.view.documents().refuseSent(DocumentKind::Joystick)) {
        return;
    }
    const int inJoystick = renameIn(DocumentKind::Joystick, oldName, newName);
    const int inMacro = renameIn(DocumentKind::Macro, oldName, newName);
    if (inMacro > 0) {
        m_parts.list.showRenamed(oldName, newName);
    }
    const auto counted = [this](int count, DocumentKind kind) {
        return QString::number(count) + u" replacements were made in "_s
            + m_parts.view.documents().of(kind).name();
    };
    m_context.dialogs.tell(u"Replaced 'em all for you. Now buy me a drink"_s,
                           counted(inJoystick, DocumentKind::Joystick) + u", and "_s
                               + counted(inMacro, DocumentKind::Macro));
}

int MacroOperations::renameIn(DocumentKind kind, const QString &oldName, const QString &newName)
{
    Document &document = m_parts.view.documents().of(kind);
    const QString text = document.text();
    if (text.isEmpty()) {
        return 0;
    }
    const QList<qsizetype> hits = renameHits(text, oldName);
    if (hits.isEmpty()) {
        const QString notFound = oldName + u" not found in "_s + document.name();
        m_context.status.setText(notFound);
        m_context.dialogs.tell(u"Text not found"_s, notFound);
        return 0;
    }
    Change change(document);
    document.replaceAll(hits, oldName.size(), newName);
    const qsizetype grown = qsizetype(hits.size() - 1) * (newName.size() - oldName.size());
    document.select(int(hits.back() + grown + newName.size()), 0);
    change.commit();
    m_context.status.setLine(m_parts.view.documents().selected().caretLine());
    return int(hits.size());
}

QString MacroOperations::RichWordOver(const QPoint &at) const
{
    const int position = m_parts.view.characterAt(DocumentKind::Joystick, at);
    if (position < 0) {
        return {};
    }
    // A word never crosses a line end, so its line is enough to search.
    const QTextBlock line = m_parts.view.documents().joystick().content().findBlock(position);
    return wordOver(line.text(), position - line.position());
}

void MacroOperations::mouseMoved(const QPoint &at)
{
    if (!m_parts.actions.action(u"mnuMacroMouseActive")->isChecked()
        || m_context.status.text().startsWith(u"Compile")) {
        return;
    }
    const QString word = RichWordOver(at);
    if (word == m_wordUnderMouse) {
        return;
    }
    m_wordUnderMouse = word;
    if (!word.isEmpty()) {
        // A blank does not change the selected macro: on its way to the menus the mouse crosses the
        // text.
        m_parts.list.SelectedMacro = word;
        m_parts.list.ShowMacroKeys();
    }
}

bool MacroOperations::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::MouseMove) {
        mouseMoved(static_cast<QMouseEvent *>(event)->pos());
    } else if (event->type() == QEvent::Leave) {
        m_wordUnderMouse.clear();
    }
    return QObject::eventFilter(watched, event);
}

} // namespace zeph
