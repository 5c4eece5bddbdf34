// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "shell/composer_tools.h"

#include "composer/insertoptions.h"
#include "composer/logicflagsdetected.h"
#include "composer/tumbo/rawform.h"
#include "documents/editor_view.h"
#include "documents/line_blink.h"
#include "editor/edit/insert_forms.h"
#include "editor/editor.h"
#include "editor/editor_settings.h"
#include "editor/macros/macro_features.h"
#include "menus/tool_entries.h"
#include "settings/settings.h"
#include "settings/settings_files.h"

namespace zeph {

ComposerTools::ComposerTools(const Context &context, ToolWindows &windows, Editor &editor)
    : QObject(&editor), m_context(context), m_windows(windows), m_editor(editor),
      m_blink(new LineBlink(editor.view(), this))
{
    const ToolEntries tools{ editor.actions(), windows };
    tools.add<InsertOptions>(u"mnuAppsComposer", [this](QWidget *owner) {
        auto *window = new InsertOptions(m_context, m_editor.documents(), *this, owner);
        connect(window, &InsertOptions::helpWanted, this, &ComposerTools::helpWanted);
        connect(window, &InsertOptions::keywordWanted, this, &ComposerTools::keywordWanted);
        connect(window, &InsertOptions::flagsWanted, this,
                guarded(m_context.dialogs, [this] { m_windows.open<LogicFlagsDetected>(); }));
        return window;
    });
    windows.offer<LogicFlagsDetected>([this](QWidget *owner) {
        return new LogicFlagsDetected(m_context, m_editor.documents(), action(u"MnuDiagArray_5"),
                                      owner);
    });
    windows.offer<RAWform>([this](QWidget *owner) {
        auto *window = new RAWform(m_context, m_editor.documents(), *this, owner);
        connect(window, &RAWform::helpWanted, this, &ComposerTools::helpWanted);
        return window;
    });
    editor.actions().connectTo(u"mnuAppsTumbo", [this] { mnuInsertRAW_Click(); });
    followMacroList();
}

void ComposerTools::openTemplates()
{
    m_windows.open<InsertOptions>()->showPage(InsertOptions::Templates);
}

void ComposerTools::mnuInsertRAW_Click()
{
    disconnect(m_tumboFeed);
    m_windows.open<RAWform>();
}

void ComposerTools::openTumboFor(std::function<void(const QString &)> feed, const QObject *context)
{
    mnuInsertRAW_Click();
    m_tumboFeed = connect(m_windows.get<RAWform>(), &RAWform::totalCombinedTextChanged,
                          context ? context : this, std::move(feed));
}

void ComposerTools::followMacroList()
{
    const auto tell = [this](auto act) {
        return guarded(m_context.dialogs, [this, act](auto &&...) {
            if (auto *window = m_windows.get<InsertOptions>()) {
                act(*window);
            }
        });
    };
    MacroList &list = m_editor.macros().list();
    connect(&list, &MacroList::tableChanged, this,
            tell([](InsertOptions &window) { window.macroListChanged(); }));
    connect(&list.model(), &MacroListModel::dataChanged, this,
            tell([](InsertOptions &window) { window.ticksChanged(); }));
    connect(&list, &MacroList::macroChosen, this,
            guarded(m_context.dialogs, [this](const QString &name) {
                if (m_windows.isOpen<InsertOptions>()) {
                    m_windows.get<InsertOptions>()->selectMacro(name);
                }
            }));
}

QList<MacroGroup> ComposerTools::macroGroups() const
{
    MacroList &list = m_editor.macros().list();
    const MacroTable &table = list.table();
    QList<MacroGroup> groups;
    for (qsizetype i = 0; i < table.names.size() && i < table.MacroHeadings.size(); ++i) {
        MacroGroup group{ table.MacroHeadings[i], {} };
        for (const QString &name : table.names[i]) {
            group.macros.append({ name, list.model().isTicked(name) });
        }
        groups.append(group);
    }
    return groups;
}

void ComposerTools::ShowMacroKeys(const QString &macro)
{
    m_editor.macros().list().SelectedMacro = macro;
    m_editor.macros().list().ShowMacroKeys();
    m_editor.macros().operations().TickMacroList();
}

void ComposerTools::TickMacroList(const QString &macro)
{
    m_editor.macros().list().SelectedMacro = macro;
    m_editor.macros().operations().TickMacroList();
}

void ComposerTools::FindMacroInJF(const QString &macro)
{
    m_editor.macros().list().SelectedMacro = macro;
    m_editor.macros().operations().FindMacroInJF();
}

void ComposerTools::editMacro(const QString &macro)
{
    m_editor.macros().list().SelectedMacro = macro;
    m_editor.macros().list().mnuRHListEdit_Click();
    m_editor.window()->activateWindow();
}

int ComposerTools::DefaultDLYvalue() const
{
    return m_context.settings.of<EditorSettings>().DefaultDLYvalue;
}

void ComposerTools::setDefaultDLYvalue(int milliseconds)
{
    m_context.settings.of<EditorSettings>().DefaultDLYvalue = milliseconds;
    if (const auto kept = saveSettings(m_context.settings, settingsFilesOf(m_context.paths),
                                       { &EditorSettings::DefaultDLYvalue });
        !kept) {
        tellNotKept(m_context.status, kept.error());
    }
    m_editor.insertForms().applySettings();
}

QAction *ComposerTools::action(QStringView name) const
{
    return m_editor.action(name);
}

void ComposerTools::ResetFocusToEditor()
{
    m_editor.ResetFocusToEditor();
}

void ComposerTools::showCaretLine()
{
    m_blink->start(m_editor.selected().kind());
}

} // namespace zeph
