// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "shell/main_scene.h"

#include "documents/documents.h"
#include "documents/editor_view.h"
#include "editor/editor.h"
#include "editor/files/file_opening.h"
#include "editor/files/file_saving.h"
#include "language/error_codes.h"
#include "platform/dialogs.h"
#include "platform/status_line.h"
#include "platform/tool_windows.h"
#include "shell/help_menu.h"
#include "shell/main_status_bar.h"
#include "shell/mum.h"
#include "toolchain/compile/compile.h"
#include "toolchain/compile/compilerhelp.h"
#include "toolchain/cougar_tools.h"

namespace zeph {

namespace {

/// The help topic on compiler errors.
constexpr int errorsTopic = 410;

} // namespace

MainScene::MainScene(const Context &context, const Parts &parts)
    : QObject(&parts.editor), m_context(context), m_parts(parts)
{
    CougarTools &tools = parts.tools;
    tools.attach(parts.editor.actions(), parts.editor.documents(), *this, *this);
    addCompilerHelp(parts.mum.toolWindows(), context, *this);
    connectStatusBar();
    connect(&parts.mum, &Mum::compileWanted, &tools,
            guarded(context.dialogs, [&tools] { tools.compile().mnuAppsCompile_Click(); }));
    connect(&parts.editor, &Editor::emergencyOff, &tools,
            guarded(context.dialogs, [&tools] { tools.modes().emergencyOff(); }));
}

void MainScene::connectStatusBar()
{
    CougarModes &modes = m_parts.tools.modes();
    MainStatusBar &bar = m_parts.mum.bar();
    m_context.status.setModeTooltip(modes.tooltip());
    connect(&modes, &CougarModes::tooltipChanged, &m_context.status, &StatusLine::setModeTooltip);
    connect(&bar, &MainStatusBar::modeTooltipWanted, &modes,
            guarded(m_context.dialogs, [&modes] { modes.UpdateStatusTooltip(); }));
    connect(&bar, &MainStatusBar::modePanelClicked, &modes,
            guarded(m_context.dialogs,
                    [&modes](Qt::MouseButton button) { modes.panelClicked(button); }));
}

void MainScene::saveSelected()
{
    m_parts.editor.saving().mnuFileSave_Click();
}

bool MainScene::settleChanges()
{
    FileSaving &saving = m_parts.editor.saving();
    Documents &documents = m_parts.editor.documents();
    return saving.settleChange(documents.joystick()) && saving.settleChange(documents.macro());
}

void MainScene::minimiseToolWindows()
{
    ToolWindows &windows = m_parts.mum.toolWindows();
    windows.unload<CompilerHelp>();
    windows.minimiseForCompiler();
}

void MainScene::showCompilerHelp(const CompilerError &error)
{
    ToolWindows &windows = m_parts.mum.toolWindows();
    auto *help = windows.load<CompilerHelp>();
    help->ShowTheError(error);
    ToolWindows::raise(*help);
}

void MainScene::showHelpOnErrors()
{
    m_parts.help.showTopic(errorsTopic);
}

void MainScene::HighlightErrorLine(const CompilerError &error)
{
    const Document &document = m_parts.editor.documents().of(language::documentOfError(error.text));
    if (isSameFile(document.path(), error.file().path)) {
        m_parts.editor.HighlightErrorLine(error.line, error.text);
        return;
    }
    const QString note = u" (in %1, which isn't open any more)"_s.arg(error.file().name);
    if (!m_context.status.text().endsWith(note)) {
        m_context.status.setText(m_context.status.text() + note);
    }
}

void MainScene::ResetFocusToEditor()
{
    m_parts.editor.ResetFocusToEditor();
}

void MainScene::OpenPreviouslySavedFiles(const QString &path)
{
    m_parts.editor.opening().OpenPreviouslySavedFiles(path);
}

void MainScene::bringMainWindowBack()
{
    ToolWindows::raise(m_parts.mum);
    ResetFocusToEditor();
}

void MainScene::minimiseMainWindow()
{
    m_parts.mum.showMinimized();
}

} // namespace zeph
