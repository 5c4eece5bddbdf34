// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "shell/compile_menu.h"

#include "documents/editor_view.h"
#include "editor/editor.h"
#include "editor/files/file_saving.h"
#include "menus/menu_actions.h"
#include "platform/handlers.h"
#include "platform/tool_windows.h"
#include "shell/help_menu.h"
#include "shell/informationwindow.h"
#include "shell/mum.h"
#include "toolchain/compile/compilerhelp.h"
#include "toolchain/hotas_ini.h"

namespace zeph {

namespace {

/// The help topic on compiler errors.
constexpr int errorsTopic = 410;

} // namespace

CompileMenu::CompileMenu(const Context &context, ToolchainHandshake &handshake, Mum &mum,
                         Editor &editor, HelpMenu &help)
    : QObject(&editor), m_context(context), m_mum(mum), m_editor(editor), m_help(help),
      m_compile(context, handshake, compileHost())
{
    editor.actions().connectTo(u"mnuAppsCompile", [this] { m_compile.mnuAppsCompile_Click(); });
    connect(&mum, &Mum::compileWanted, this,
            guarded(context.dialogs, [this] { m_compile.mnuAppsCompile_Click(); }));
}

CompilerHost CompileMenu::compilerHost()
{
    CompilerHost host;
    host.joystickText = [this] {
        return m_editor.joystickText();
    };
    host.macroText = [this] {
        return m_editor.macroText();
    };
    host.joystick = [this]() -> const Document & {
        return m_editor.joystick();
    };
    host.macro = [this]() -> const Document & {
        return m_editor.macro();
    };
    host.selectJoystickTab = [this] {
        m_editor.documents().select(DocumentKind::Joystick);
    };
    host.mnuFileSave_Click = [this] {
        m_editor.saving().mnuFileSave_Click();
    };
    host.ResetFocusToEditor = [this] {
        m_editor.ResetFocusToEditor();
    };
    host.HighlightErrorLine = [this](int line, const QString &text) {
        m_editor.HighlightErrorLine(line, text);
    };
    host.showCompilerHelp = [this](const CompilerVerdict &verdict) {
        showCompilerHelp(verdict);
    };
    return host;
}

CompileHost CompileMenu::compileHost()
{
    CompileHost host{ compilerHost(), {}, {} };
    host.minimiseToolWindows = [this] {
        m_mum.toolWindows().minimiseForCompiler();
    };
    host.unloadHelpers = [this] {
        m_mum.toolWindows().unload<CompilerHelp>();
    };
    return host;
}

void CompileMenu::showCompilerHelp(const CompilerVerdict &verdict)
{
    ToolWindows &windows = m_mum.toolWindows();
    auto *help = windows.load<CompilerHelp>([this](QWidget *owner) {
        auto *made = new CompilerHelp(m_context.paths.infoFolder() + u"Error codes.rtf"_s, owner);
        connect(made, &CompilerHelp::highlightRequested, this,
                guarded(m_context.dialogs, [this](int line, const QString &text) {
                    m_editor.HighlightErrorLine(line, text);
                }));
        connect(made, &CompilerHelp::helpRequested, this,
                guarded(m_context.dialogs, [this] { m_help.showTopic(errorsTopic); }));
        return made;
    });
    help->ShowTheError({ verdict.ErrorCode, verdict.LineNumber, m_editor.joystick().caption(),
                         m_editor.macro().caption() });
    ToolWindows::raise(*help);
}

} // namespace zeph
