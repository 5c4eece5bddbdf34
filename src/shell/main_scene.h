// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/context.h"
#include "toolchain/document_saver.h"
#include "toolchain/tool_scene.h"

#include <QObject>

namespace zeph {

class CougarTools;
class Editor;
class HelpMenu;
class Mum;

/// The main window and its Editor as the toolchain knows them.
class MainScene : public QObject, public DocumentSaver, public ToolScene
{
    Q_OBJECT
public:
    struct Parts {
        Mum &mum;
        Editor &editor;
        HelpMenu &help;
        CougarTools &tools;
    };
    /// Attaches the tools to the Editor's menus, and connects them with the status bar and with the
    /// emergency key. The Editor owns this object.
    MainScene(const Context &context, const Parts &parts);

    void saveSelected() override;
    bool settleChanges() override;
    void minimiseToolWindows() override;
    void showCompilerHelp(const CompilerError &error) override;
    void showHelpOnErrors() override;
    void HighlightErrorLine(const CompilerError &error) override;
    void ResetFocusToEditor() override;
    void OpenPreviouslySavedFiles(const QString &path) override;
    void bringMainWindowBack() override;
    void minimiseMainWindow() override;

private:
    void connectStatusBar();

    Context m_context;
    Parts m_parts;
};

} // namespace zeph
