// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "toolchain/compile/compile.h"

#include <QObject>

namespace zeph {

class Editor;
class HelpMenu;
class Mum;
class ToolchainHandshake;

/// Ties the compile to the main window: the Editor's documents, the tool windows and the window
/// that explains errors.
class CompileMenu : public QObject
{
    Q_OBJECT
public:
    CompileMenu(const Context &context, ToolchainHandshake &handshake, Mum &mum, Editor &editor,
                HelpMenu &help);

    /// The Editor, for everything that runs the compiler.
    CompilerHost compilerHost();
    /// Shows the window that explains an error, without blocking.
    void showCompilerHelp(const CompilerVerdict &verdict);

private:
    CompileHost compileHost();

    Context m_context;
    Mum &m_mum;
    Editor &m_editor;
    HelpMenu &m_help;
    Compile m_compile;
};

} // namespace zeph
