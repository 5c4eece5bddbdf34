// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "editor/macros/macro_list.h"

#include "documents/coloured_insert.h"
#include "documents/editor_view.h"
#include "editor/editor_settings.h"
#include "editor/files/file_saving.h"
#include "editor/macros/framemacros.h"
#include "menus/menu_actions.h"
#include "platform/core/file_io.h"
#include "platform/core/text_search.h"
#include "platform/dialogs.h"
#include "platform/status_line.h"
#include "settings/settings.h"
#include "settings/settings_files.h"
#include "text/macro_search.h"
#include "text/text_lines.h"

#include <QAction>
#include <QComboBox>
#include <QMenu>

#include <algorithm>

namespace zeph {

MacroList::MacroList(const Context &context, const Parts &parts)
    : m_context(context), m_parts(parts), m_frame(std::make_unique<FrameMacros>(m_model))
{
    MacroListView &list = m_frame->list();
    connect(&list, &MacroListView::chosen, this,
            guarded(context.dialogs, [this](const QString &name) { choose(name); }));
    connect(&list, &MacroListView::insertWanted, this,
            guarded(context.dialogs, [this](const QString &name) {
                SelectedMacro = name;
                List1_DblClick();
            }));
    connect(&list, &MacroListView::findWanted, this, &MacroList::findWanted);
    connect(&list, &MacroListView::popUpWanted, this, &MacroList::popUpWanted);
    connect(&list, &MacroListView::dragStarted, this, &MacroList::dragStarted);
    connect(m_frame.get(), &FrameMacros::headingChosen, this,
            guarded(context.dialogs, [this](const QString &heading) { Combo1_Click(heading); }));
    connect(m_frame.get(), &FrameMacros::widthChosen, this, &MacroList::storeWidth);
    ClearAllForNewMacroFile();
}

MacroList::~MacroList() = default;

void MacroList::ClearAllForNewMacroFile()
{
    m_table = MacroTable();
    MacroListIsEmpty = true;
    m_frame->setHeadings({});
    m_heading = 0;
    m_model.setNames({});
    m_context.status.setTextTooltip(macroCounts(m_table));
    Q_EMIT tableChanged();
}

void MacroList::GetEachLineFromMacroFile()
{
    const Document &macro = m_parts.view.documents().macro();
    const QString path = existingPath(macro.path());
    if (path.isEmpty()) {
        return;
    }
    m_context.status.setText(u"Opening "_s + macro.name() + u" file for analysis "_s);
    m_table.MacroLines.clear();
    const auto bytes = readWholeFile(path);
    if (!bytes) {
        return;
    }
    if (const auto text = documentText(*bytes)) {
        m_table.MacroLines = usableMacroLines(*text);
    }
}

void MacroList::ExtractMacrosAndTitles()
{
    m_context.status.setText(u"Analysing "_s + m_parts.view.documents().macro().name()
                             + u" for macros and sub-headings. Please wait ..."_s);
    m_table = extractMacros(m_table.MacroLines);
    MacroListIsEmpty = false;
    m_model.setNames(m_table.names);
    m_frame->setHeadings(m_table.MacroHeadings);
    showHeading(0);
    m_context.status.setTextTooltip(macroCounts(m_table));
    m_context.status.setText(u"Done"_s);
    Q_EMIT tableChanged();
}

QString MacroList::chosenMacro() const
{
    return m_frame->list().selectedName();
}

void MacroList::showRenamed(const QString &oldName, const QString &newName)
{
    const auto isOld = [&oldName](const QString &name) {
        return name.compare(oldName, Qt::CaseInsensitive) == 0;
    };
    const qsizetype heading = m_heading;
    const QString chosen = chosenMacro();
    QStringList ticked = m_model.tickedNames();
    std::ranges::replace_if(ticked, isOld, newName);
    for (QString &line : m_table.MacroLines) {
        line = renamedIn(line, oldName, newName);
    }
    m_table = extractMacros(m_table.MacroLines);
    m_model.setNames(m_table.names);
    m_model.setTicked(ticked);
    m_frame->setHeadings(m_table.MacroHeadings);
    showHeading(heading);
    m_frame->list().select(isOld(chosen) ? newName : chosen);
    if (isOld(SelectedMacro)) {
        SelectedMacro = newName;
    }
    Q_EMIT tableChanged();
}

void MacroList::showHeading(qsizetype heading)
{
    m_heading = heading;
    m_model.showHeading(heading);
    m_frame->setCurrentHeading(int(heading));
}

void MacroList::Combo1_Click(const QString &heading)
{
    if (m_frame->isVisible()) {
        m_frame->list().setFocus();
    }
    m_context.status.setText(u"Select a macro heading to view the macros under it"_s);
    const auto isChosen = [&heading](const QString &each) {
        return each.compare(heading, Qt::CaseInsensitive) == 0;
    };
    const QStringList &all = m_table.MacroHeadings;
    showHeading(std::distance(all.begin(), std::find_if(all.begin(), all.end(), isChosen)));
    if (m_frame->list().selectFirst()) {
        select(m_frame->list().currentName());
    }
}

void MacroList::select(const QString &name)
{
    SelectedMacro = name;
    if (m_listSelection != name) {
        m_listSelection = name;
        Q_EMIT listSelectionChanged();
    }
    ShowMacroKeys();
}

void MacroList::choose(const QString &name)
{
    select(name);
    Q_EMIT macroChosen(name);
}

void MacroList::ShowMacroKeys()
{
    const auto line = macroKeys(m_table, SelectedMacro);
    if (!line) {
        return;
    }
    m_context.status.setKeys(*line);
    const bool macroIsSeen =
        m_parts.view.documents().selected().kind() == DocumentKind::Macro || m_parts.view.isTiled();
    if (macroIsSeen && m_parts.actions.action(u"MnuMacroSelectMacroShow")->isChecked()) {
        showInMacroText(*line);
    }
}

bool MacroList::showInMacroText(const QString &line)
{
    Document &macro = m_parts.view.documents().macro();
    const qsizetype at = findText(macro.text(), line, 0, SearchPlain);
    if (at >= 0) {
        macro.select(int(at), int(line.size()));
        m_parts.view.centreCaret(DocumentKind::Macro);
    }
    return at >= 0;
}

void MacroList::List1_DblClick()
{
    if (SelectedMacro.isEmpty() || m_parts.view.documents().refuseProtected()) {
        return;
    }
    const Document &document = m_parts.view.documents().selected();
    m_parts.insert.BeginColInsert();
    m_parts.insert.InsertColouredStringNoSpace(
        macroInsertion(document, SelectedMacro),
        m_parts.view.documents().plainFormat(document.kind()).colour.value_or(0));
    m_parts.insert.EndColInsert();
    Q_EMIT inserted();
}

void MacroList::mnuRHListEdit_Click()
{
    m_parts.view.documents().select(DocumentKind::Macro);
    m_parts.view.ResetFocusToEditor();
    if (const auto line = macroKeys(m_table, SelectedMacro)) {
        m_context.status.setText(*line);
        showInMacroText(*line);
    }
}

bool MacroList::askForSave()
{
    const Document &macro = m_parts.view.documents().macro();
    const BoxButton answer = m_context.dialogs.box(
        { u" Save "_s + macro.name() + u" now?"_s,
          macro.name()
              + u" has changed and isn't saved. You must save it if you want to update your macros "
                "list. Shall I go ahead and save it?"_s,
          BoxIcon::Question,
          { BoxButton::Yes, BoxButton::No },
          BoxButton::Yes });
    if (answer == BoxButton::Yes) {
        m_parts.saving.mnuFileSave_Click();
    }
    if (!macro.isModified()) {
        return true;
    }
    m_context.dialogs.tell(
        u"File not saved"_s,
        macro.name() + u" wasn't saved, so I won't continue to update your macros list."_s);
    return false;
}

void MacroList::mnuEditUpdateMacros_Click()
{
    const Document &macro = m_parts.view.documents().macro();
    if (!macro.text().contains(u'=')) {
        return;
    }
    m_parts.view.documents().select(DocumentKind::Macro);
    if (macro.isModified() && !askForSave()) {
        return;
    }
    show();
    ClearAllForNewMacroFile();
    GetEachLineFromMacroFile();
    ExtractMacrosAndTitles();
}

void MacroList::mnuViewMacros_Click()
{
    m_frame->setVisible(m_parts.actions.action(u"mnuViewMacros")->isChecked());
}

void MacroList::show()
{
    m_parts.actions.action(u"mnuViewMacros")->setChecked(true);
    m_frame->show();
}

void MacroList::storeWidth(int width)
{
    m_context.settings.of<EditorSettings>().MacroFrameWidth = width;
    // A failed write is not told: the width is right for this run at least.
    (void)saveSettings(m_context.settings, settingsFilesOf(m_context.paths),
                       { &EditorSettings::MacroFrameWidth });
}

MacroListMenu::MacroListMenu(const Context &context, MacroList &list, MenuActions &actions)
    : m_context(context), m_list(list), m_actions(actions)
{
    connect(&list, &MacroList::popUpWanted, this, [this](const QPoint &at) { build()->exec(at); });
}

std::unique_ptr<QMenu> MacroListMenu::build()
{
    auto menu = std::make_unique<QMenu>();
    menu->setObjectName(u"mnuRHList"_s);
    const auto add = [this, &menu](const QString &name, const QString &caption,
                                   std::function<void()> run, bool needsMacro = true) {
        QAction *entry = menu->addAction(caption);
        entry->setObjectName(name);
        entry->setEnabled(!needsMacro || !m_list.SelectedMacro.isEmpty());
        connect(entry, &QAction::triggered, this,
                guarded(m_context.dialogs, [run = std::move(run)](bool) { run(); }));
    };
    const auto entryOf = [this](const char16_t *name) {
        return [this, name] {
            m_actions.action(QStringView(name))->trigger();
        };
    };
    add(u"mnuRHListInsert"_s, u"&Insert into Joystick file"_s, [this] { m_list.List1_DblClick(); });
    add(u"mnuFindInJoyFile"_s, u"&Find in Joystick file"_s, entryOf(u"mnuFindInJoyFile"));
    add(u"mnuRHListIdentify"_s, u"Identify &macros used"_s, entryOf(u"mnuMacrosIdentify"), false);
    menu->addSeparator();
    add(
        u"mnuRHListQuickTip"_s, u"&Quick tip - read me"_s, [this] { Q_EMIT quickTipWanted(); },
        false);
    menu->addSeparator();
    add(u"mnuRHListRename"_s, u"&Rename in both files"_s, entryOf(u"mnuRenameMacro"));
    add(u"mnuRHListEdit"_s, u"&Edit"_s, [this] { m_list.mnuRHListEdit_Click(); });
    return menu;
}

} // namespace zeph
