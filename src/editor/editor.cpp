// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "editor/editor.h"

#include "documents/document_settings.h"
#include "editor/actions.h"
#include "editor/editor_settings.h"

#include "documents/coloured_copies.h"
#include "documents/coloured_insert.h"
#include "documents/editor_view.h"
#include "documents/highlighting.h"
#include "documents/show_line.h"
#include "documents/text_looks.h"
#include "documents/undo_histories.h"
#include "editor/edit/editing_tools.h"
#include "editor/edit/insert_forms.h"
#include "editor/editor_keys.h"
#include "editor/entry_conditions.h"
#include "editor/files/file_new.h"
#include "editor/files/file_opening.h"
#include "editor/files/file_saving.h"
#include "editor/files/loss_guards.h"
#include "editor/files/packaging.h"
#include "editor/files/use_directives.h"
#include "editor/macros/framemacros.h"
#include "editor/macros/macro_features.h"
#include "editor/right_menu.h"
#include "editor/view_entries.h"
#include "language/error_codes.h"
#include "menus/menu_actions.h"
#include "platform/dialogs.h"
#include "settings/settings.h"
#include "settings/shared_settings.h"

#include <QAction>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include <exception>

namespace zeph {

Editor::Editor(const Context &context, QWidget *parent)
    : QWidget(parent), m_context(context),
      m_actions(std::make_unique<MenuActions>(context.dialogs, context.paths.inApp(u"icons/"),
                                              menuBarTable(), actionTable(), this)),
      m_documents(std::make_unique<Documents>(context)),
      m_view(std::make_unique<EditorView>(context, *m_documents, this)),
      m_copies(std::make_unique<ColouredCopies>(context.paths)),
      m_keys(std::make_unique<EditorKeys>(*m_view, *m_actions,
                                          context.settings.of<SharedSettings>(), context.status)),
      // Must come after the keys: event filters run last-installed first, and a blinking line has
      // to be released before a key runs its entry.
      m_undos(std::make_unique<UndoHistories>(context, *m_view, *m_actions)),
      m_insert(std::make_unique<ColouredInsert>(context, *m_view)),
      m_highlighting(std::make_unique<Highlighting>(
          context, Highlighting::Parts{ *m_view, *m_actions, *m_copies, *m_insert })),
      m_looks(
          std::make_unique<TextLooks>(context, TextLooks::Parts{ *m_view, *m_actions, *m_insert })),
      m_typingColour(std::make_unique<TypingColour>(*m_view, *m_highlighting,
                                                    context.settings.of<DocumentSettings>())),
      m_editing(std::make_unique<EditingTools>(
          context, EditingTools::Parts{ *m_view, *m_actions, *m_highlighting, *m_insert })),
      m_useDirectives(std::make_unique<UseDirectives>(context, *m_documents)),
      m_conditions(std::make_unique<EntryConditions>(
          EntryConditions::Parts{ *m_documents, *m_actions, *m_useDirectives },
          context.settings.of<EditorSettings>())),
      m_saving(std::make_unique<FileSaving>(context, *m_view, *m_actions, *m_copies)),
      m_opening(std::make_unique<FileOpening>(
          context,
          FileOpening::Parts{ *m_view, *m_actions, *m_copies, *m_highlighting, *m_saving })),
      m_fresh(std::make_unique<FileNew>(context, *m_view, *m_actions, *m_opening)),
      m_rightMenu(std::make_unique<RightMenu>(*m_view, *m_actions)),
      m_guards(new LossGuards{ .autoSave = { context, *m_view, *m_saving },
                               .recovery = { context, { *m_view, *m_opening } },
                               .changedFiles = { context, { *m_view, *m_opening } } }),
      m_insertForms(std::make_unique<InsertForms>(
          context, InsertForms::Parts{ *m_view, *m_actions, *m_insert })),
      m_packaging(std::make_unique<Packaging>(
          context, Packaging::Parts{ *m_view, *m_actions, *m_useDirectives, *m_opening }))
{
    setObjectName(u"Editor"_s);
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_view.get(), 1);
    m_saving->guardBy(m_guards->changedFiles);
    connectEditing();
    connectOptions();
    connectLooks();
    connectMacros();
    connect(m_keys.get(), &EditorKeys::helpOn, this, &Editor::helpOn);
    connect(m_keys.get(), &EditorKeys::emergencyOff, this, &Editor::emergencyOff);
}

Editor::~Editor() = default;

QAction *Editor::action(QStringView name) const
{
    return m_actions->action(name);
}

Document &Editor::joystick()
{
    return m_documents->joystick();
}

Document &Editor::macro()
{
    return m_documents->macro();
}

Document &Editor::selected()
{
    return m_documents->selected();
}

QString Editor::joystickText()
{
    return joystick().text();
}

QString Editor::macroText()
{
    return macro().text();
}

void Editor::connectEditing()
{
    connect(m_editing.get(), &EditingTools::helpOn, this, &Editor::helpOn);
    connect(m_insertForms.get(), &InsertForms::helpOn, this, &Editor::helpOn);
    m_actions->connectTo(u"mnuEditSelectAll", [this] { m_view->selectAll(); });
}

void Editor::connectOptions()
{
    MenuActions &on = *m_actions;
    on.connectTo(u"mnuViewTileVertically", [this] {
        m_context.settings.of<EditorSettings>().TileFiles =
            action(u"mnuViewTileVertically")->isChecked();
        m_view->setTiled(m_context.settings.of<EditorSettings>().TileFiles);
    });
    on.connectTo(u"mnuPreferencesProtectMacroFile", [this] {
        m_documents->setProtected(action(u"mnuPreferencesProtectMacroFile")->isChecked());
        m_conditions->update();
    });
}

void Editor::connectLooks()
{
    MenuActions &on = *m_actions;
    on.connectTo(u"mnuViewLineNumbers", [this] {
        m_context.settings.of<DocumentSettings>().LineNumbers =
            action(u"mnuViewLineNumbers")->isChecked();
        applySettings();
    });
    on.connectTo(u"mnuViewCurrentLine", [this] {
        m_context.settings.of<DocumentSettings>().CurrentLineMark =
            action(u"mnuViewCurrentLine")->isChecked();
        applySettings();
    });
}

void Editor::connectMacros()
{
    m_macros = std::make_unique<MacroFeatures>(
        m_context, MacroFeatures::Parts{ *m_view, *m_actions, *m_opening, *m_saving, *m_insert });
    layout()->addWidget(m_macros->list().frame());
    m_viewEntries =
        std::make_unique<ViewEntries>(ViewEntries::Parts{ *m_view, *m_actions, m_macros->list() });
    connect(&m_macros->menu(), &MacroListMenu::quickTipWanted, this,
            [this] { Q_EMIT helpOn(u"macro list"_s); });
}

void Editor::ResetFocusToEditor()
{
    m_view->ResetFocusToEditor();
}

void Editor::HighlightErrorLine(int line, const QString &compileErrorText)
{
    try {
        showLine(m_context, *m_view, m_documents->of(language::documentOfError(compileErrorText)),
                 line, LineCaret::SelectsLine);
    } catch (const std::exception &error) {
        m_context.dialogs.tell(u"Hmmm....bizarre..."_s,
                               u"Please report this on the Klaifi forums so I can investigate "
                               "further. Interesting! "_s
                                   + QString::fromLocal8Bit(error.what()),
                               BoxIcon::Exclamation);
    }
}

bool Editor::queryUnload()
{
    return askBeforeExit(*m_view, *m_saving, m_context.dialogs);
}

QString Editor::restorableFile(DocumentKind kind)
{
    const Document &document = m_documents->of(kind);
    const bool isNoFile = document.state() == Document::Empty || isUntitled(document.name());
    return isNoFile ? QString() : document.path();
}

void Editor::applySettings()
{
    const auto &settings = m_context.settings.of<EditorSettings>();
    const auto &looks = m_context.settings.of<DocumentSettings>();
    m_view->applyLook();
    m_looks->UpdateStyleCaptions();
    m_editing->applySettings();
    m_insertForms->applySettings();
    m_view->setTiled(settings.TileFiles);
    action(u"mnuViewTileVertically")->setChecked(settings.TileFiles);
    m_macros->applySettings();
    m_opening->OpenSingleFileOnly = settings.OpenSingleFileOnly;
    action(u"mnuJoyPopUpSingleFile")->setChecked(m_opening->OpenSingleFileOnly);
    action(u"mnuViewLineNumbers")->setChecked(looks.LineNumbers);
    action(u"mnuViewCurrentLine")->setChecked(looks.CurrentLineMark);
    m_conditions->update();
}

} // namespace zeph
