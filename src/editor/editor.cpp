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
#include "documents/line_blink.h"
#include "documents/text_looks.h"
#include "documents/undo_histories.h"
#include "editor/edit/editing_tools.h"
#include "editor/edit/insert_forms.h"
#include "editor/editor_keys.h"
#include "editor/files/file_new.h"
#include "editor/files/file_opening.h"
#include "editor/files/file_saving.h"
#include "editor/files/loss_guards.h"
#include "editor/files/packaging.h"
#include "editor/files/use_directives.h"
#include "editor/macros/framemacros.h"
#include "editor/macros/macro_features.h"
#include "editor/right_menu.h"
#include "language/error_codes.h"
#include "menus/menu_actions.h"
#include "platform/dialogs.h"
#include "platform/richtext/rich_text_mime.h"
#include "settings/settings.h"
#include "settings/shared_settings.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QHBoxLayout>
#include <QMenu>
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
      m_keys(
          std::make_unique<EditorKeys>(*m_view, *m_actions, context.settings.of<SharedSettings>())),
      // Must come after the keys: event filters run last-installed first, and a blinking line has
      // to be released before a key runs its entry.
      m_undos(std::make_unique<UndoHistories>(context, *m_view, *m_actions)),
      m_insert(std::make_unique<ColouredInsert>(context, *m_view)),
      m_highlighting(std::make_unique<Highlighting>(
          context, Highlighting::Parts{ *m_view, *m_copies, *m_insert })),
      m_looks(
          std::make_unique<TextLooks>(context, TextLooks::Parts{ *m_view, *m_actions, *m_insert })),
      m_typingColour(std::make_unique<TypingColour>(*m_view, *m_highlighting,
                                                    context.settings.of<DocumentSettings>())),
      m_editing(std::make_unique<EditingTools>(
          context, EditingTools::Parts{ *m_view, *m_actions, *m_highlighting, *m_insert })),
      m_useDirectives(std::make_unique<UseDirectives>(context, *m_documents)),
      m_saving(std::make_unique<FileSaving>(context, *m_view, *m_copies)),
      m_opening(std::make_unique<FileOpening>(
          context, FileOpening::Parts{ *m_view, *m_copies, *m_highlighting, *m_saving })),
      m_fresh(std::make_unique<FileNew>(context, *m_view, *m_opening)),
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
    connectFiles();
    connectEditing();
    connectOptions();
    connectLooks();
    connectPainting();
    connectMacros();
    connect(m_keys.get(), &EditorKeys::helpOn, this, &Editor::helpOn);
    connect(m_keys.get(), &EditorKeys::emergencyOff, this, &Editor::emergencyOff);
    m_documents->forEach([this](Document &each) {
        connect(&each, &Document::selectionChanged, this, &Editor::updateConditions);
    });
    connect(m_documents.get(), &Documents::selectedChanged, this, &Editor::updateConditions);
    connect(m_documents.get(), &Documents::selectedChanged, this, &Editor::updateDownloadCaption);
    connect(&m_documents->joystick(), &Document::replaced, this, &Editor::updateDownloadCaption);
    connect(QApplication::clipboard(), &QClipboard::dataChanged, this, &Editor::updateConditions);
    updateConditions();
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

void Editor::connectFiles()
{
    m_saving->guardBy(m_guards->changedFiles);
    MenuActions &on = *m_actions;
    on.connectTo(u"mnuFileNewJoystick", [this] { m_fresh->mnuFileNewJoystick_Click(); });
    on.connectTo(u"mnuFileNewMacro", [this] { m_fresh->mnuFileNewMacro_Click(); });
    on.connectTo(u"mnuFileNewBoth", [this] { m_fresh->mnuFileNewBoth_Click(); });
    on.connectTo(u"mnuFileClose", [this] { m_fresh->mnuFileClose_Click(); });
    on.connectTo(u"mnuFileCloseBoth", [this] { m_fresh->mnuFileCloseBoth_Click(); });
    on.connectTo(u"mnuFileOpen", [this] { m_opening->mnuFileOpen_Click(); });
    on.connectTo(u"mnuFileJoystickLoad", [this] { m_opening->mnuFileJoystickLoad_Click(); });
    on.connectTo(u"MnuFileMacroLoad", [this] { m_opening->MnuFileMacroLoad_Click(); });
    on.connectTo(u"mnuFileSave", [this] { m_saving->mnuFileSave_Click(); });
    on.connectTo(u"mnuFileSaveAs", [this] { m_saving->mnuFileSaveAs_Click(); });
    on.connectTo(u"mnuFileSaveBoth", [this] { m_saving->mnuFileSaveBoth_Click(); });
    connect(m_useDirectives.get(), &UseDirectives::filesChanged, this, [this] {
        m_actions->setCondition(EditorWhen::ReadMe, !m_useDirectives->textFilePath().isEmpty());
    });
    connect(on.menu(u"mnuFile"), &QMenu::aboutToShow, this, [this] {
        m_fresh->rewriteUntitled();
        QString caption = selected().caption();
        caption.replace(u'&', u"&&"_s);
        action(u"mnuFileClose")->setText(u"C&lose "_s + caption);
    });
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
        updateConditions();
    });
    on.connectTo(u"mnuJoyPopUpSingleFile", [this] {
        m_opening->OpenSingleFileOnly = action(u"mnuJoyPopUpSingleFile")->isChecked();
        m_context.settings.of<EditorSettings>().OpenSingleFileOnly = m_opening->OpenSingleFileOnly;
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

void Editor::connectPainting()
{
    struct Entry {
        QStringView name;
        void (Highlighting::*operation)();
    };
    constexpr Entry entries[] = {
        { u"mnuViewColourJoystick", &Highlighting::mnuViewColourJoystick_Click },
        { u"mnuViewColourMacro", &Highlighting::mnuViewColourMacro_Click },
        { u"mnuViewApplyColourBothFiles", &Highlighting::mnuViewApplyColourBothFiles_Click },
        { u"mnuViewHighlightLine", &Highlighting::mnuViewHighlightLine_Click },
        { u"mnuRemoveColourJoystick", &Highlighting::mnuRemoveColourJoystick_Click },
        { u"mnuRemoveColourMacro", &Highlighting::mnuRemoveColourMacro_Click },
        { u"mnuRemoveColourSelectedText", &Highlighting::mnuRemoveColourSelectedText_Click },
        { u"mnuViewReformat", &Highlighting::mnuViewReformat_Click },
    };
    MenuActions &on = *m_actions;
    for (const Entry &entry : entries) {
        on.connectTo(entry.name, [this, entry] { (*m_highlighting.*entry.operation)(); });
    }
    on.connectArray(u"mnuFormatArray1"_s, [this](int i) { m_looks->mnuFormatArray1_Click(i); });
    on.connectArray(u"mnuStyleArray"_s, [this](int i) { m_looks->mnuStyleArray_Click(i); });
    on.connectTo(u"mnuFormatStyleEditor", [this] { m_looks->mnuFormatStyleEditor_Click(); });
    on.connectTo(u"mnuFormatFont", [this] { m_looks->mnuFormatFont_Click(); });
}

void Editor::connectMacros()
{
    m_macros = std::make_unique<MacroFeatures>(
        m_context, MacroFeatures::Parts{ *m_view, *m_actions, *m_opening, *m_saving, *m_insert });
    layout()->addWidget(m_macros->list().frame());
    connect(&m_macros->menu(), &MacroListMenu::quickTipWanted, this,
            [this] { Q_EMIT helpOn(u"macro list"_s); });
}

void Editor::updateConditions()
{
    m_actions->setCondition(EditorWhen::Selection, selected().selLength() > 0);
    m_actions->setCondition(EditorWhen::PasteReady,
                            holdsText(QApplication::clipboard()->mimeData()));
    m_actions->setCondition(
        EditorWhen::JoystickText,
        selected().kind() == DocumentKind::Joystick
            || m_context.settings.of<EditorSettings>().AlwaysShowCompileDownload);
}

void Editor::updateDownloadCaption()
{
    // Only a .tmj file can be downloaded, so other names are not shown.
    const bool named = lastThree(joystick().name()) == extensionOf(DocumentKind::Joystick);
    QString caption = named ? joystick().caption() : u"joystick file"_s;
    caption.replace(u'&', u"&&"_s);
    action(u"DownloadArray1_0")->setText(u"&Download "_s + caption);
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
    updateConditions();
}

} // namespace zeph
