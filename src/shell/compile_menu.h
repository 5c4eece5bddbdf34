// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "toolchain/compile.h"
#include "toolchain/handshake.h"

#include <QObject>

namespace zeph {

class Editor;
class HelpMenu;
class Mum;

/// Ties the compile to the main window: the Editor's documents, the tool windows and the window
/// that explains errors.
class CompileMenu : public QObject
{
    Q_OBJECT
public:
    CompileMenu(const Context &context, Mum &mum, Editor &editor, HelpMenu &help);

private:
    CompileHost host();
    void showCompilerHelp(const CompilerVerdict &verdict);

    Context m_context;
    Mum &m_mum;
    Editor &m_editor;
    HelpMenu &m_help;
    ToolchainHandshake m_handshake;
    Compile m_compile;
};

} // namespace zeph
