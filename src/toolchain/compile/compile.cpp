// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "toolchain/compile/compile.h"

#include "documents/documents.h"
#include "platform/dialogs.h"
#include "platform/status_line.h"
#include "settings/settings.h"
#include "settings/shared_settings.h"
#include "toolchain/compile/verdict.h"
#include "toolchain/document_saver.h"
#include "toolchain/handshake.h"
#include "toolchain/hotas_ini.h"
#include "toolchain/tool_scene.h"
#include "toolchain/toolchain_settings.h"

namespace zeph {

Compile::Compile(const Context &context, const ToolParts &parts)
    : m_context(context), m_parts(parts)
{
}

void Compile::mnuAppsCompile_Click()
{
    const auto turn =
        m_parts.handshake.commands().turn(u"the compile"_s, [this] { mnuAppsCompile_Click(); });
    if (turn) {
        compile();
    }
}

void Compile::compile()
{
    if (!canBegin() || !m_parts.saver.settleChanges() || !saveJoystick() || !macroFileMayDiffer()) {
        return;
    }
    if (m_parts.documents.joystick().path().contains(u'"')) {
        m_context.dialogs.box(quoteInNameBox(m_parts.documents.joystick().path()));
        return;
    }
    m_parts.scene.minimiseToolWindows();
    const SentFiles sent = sentFiles(m_parts.documents);
    m_parts.handshake.setStatusCaption(u"Compiling "_s + sent.joystick.name);
    const ExchangeEnd end = m_parts.handshake.runCompiler(
        compilerLaunch(m_context.paths, CompilerCommand::Compile, sent.joystick.path));
    if (end == ExchangeEnd::Abandoned || end == ExchangeEnd::NotStarted) {
        return;
    }
    const bool givenUp = end == ExchangeEnd::GivenUp;
    if (givenUp) {
        m_context.dialogs.box(compilerTimeOutBox(
            CompilerTask::Compile, m_context.settings.of<SharedSettings>().PilotCallsign));
    }
    m_context.status.setText(panelAfterCompilerWait(givenUp));
    tellOutcome(sent);
}

bool Compile::canBegin()
{
    if (m_parts.documents.joystick().length() == 0) {
        m_context.dialogs.tell(
            u"Nothing to compile ..."_s,
            u"The Joystick file is empty, so there's not much point in me trying to compile it!. "
            u"Load up a joystick file, or create one, or just put your feet up and watch TV."_s);
        return false;
    }
    const QString compiler = m_context.paths.compiler();
    if (!fileExists(compiler)) {
        m_context.dialogs.tell(
            u"Compiler not found"_s,
            u"I couldn't locate the Compiler, which according to your preferences should be at: "_s
                + compiler + u", so I cannot compile the file. Sorry "_s
                + m_context.settings.of<SharedSettings>().PilotCallsign + u'!',
            BoxIcon::Exclamation);
        return false;
    }
    return true;
}

/// Saves a changed file without a question, since to compile means to save. False, which is told,
/// when the file on the disk is still another.
bool Compile::saveJoystick()
{
    const Document &joystick = m_parts.documents.joystick();
    if (!joystick.isModified()) {
        return true;
    }
    m_parts.documents.select(DocumentKind::Joystick);
    m_parts.saver.saveSelected();
    if (!joystick.isModified()) {
        return true;
    }
    // Both answers end the compile: it would be about another text than the edited one.
    m_context.dialogs.ask(
        u"Hang on a minute ..."_s,
        u"The joystick file isn't saved, which it needs to be for me to be able to compile it"_s);
    return false;
}

bool Compile::macroFileMayDiffer()
{
    const Document &macro = m_parts.documents.macro();
    if (!macro.isModified() || macro.length() == 0) {
        return true;
    }
    return m_context.dialogs.ask(
        u"Hang on a minute ..."_s,
        u"The macro file isn't saved, so when I compile the joystick file, there's a danger that "
        u"the compile might fail or not give the correct response. This will be because the "
        u"compiler is using the macros from the saved file, not the one currently open. Do you "
        u"want to continue anyway?"_s);
}

void Compile::tellOutcome(const SentFiles &sent)
{
    const CompilerVerdict verdict = HotasIni(m_context.paths.hotasIni()).readCompiler();
    const VerdictTelling telling =
        tellVerdict(verdict, CompilerTask::Compile, sent.joystick.path,
                    m_context.settings.of<ToolchainSettings>().HOTASStatusBarErrors);
    if (!telling.panel.isEmpty()) {
        m_context.status.setText(telling.panel);
    }
    if (telling.box) {
        m_context.dialogs.box(*telling.box);
    }
    if (telling.showHelp) {
        m_parts.scene.showCompilerHelp(errorOf(verdict, sent));
    }
    if (telling.highlightLine != 0) {
        m_parts.scene.HighlightErrorLine(errorOf(verdict, sent));
    }
    if (!telling.failed) {
        m_parts.scene.ResetFocusToEditor();
    }
}

} // namespace zeph
