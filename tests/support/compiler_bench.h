// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// A tools' folder with a pair of documents, and a compiler that is played.

#include "documents/documents.h"
#include "menus/menu_actions.h"
#include "platform/fakes/fake_joystick.h"
#include "tests/support/toolchain_bench.h"
#include "toolchain/compile/after_download.h"
#include "toolchain/compile/verdict.h"
#include "toolchain/document_saver.h"
#include "toolchain/modes/cougar_modes.h"
#include "toolchain/modes/profiles.h"
#include "toolchain/tool_parts.h"
#include "toolchain/tool_scene.h"
#include "toolchain/toolchain_settings.h"

namespace zeph::test {

/// What panel 1 tells during a compile and after it.
inline const QString hangOn = u"Hang on a minute ..."_s;
inline const QString success = u"File successfully compiled!"_s;

/// Notes what is asked of the screen.
class FakeScene : public ToolScene
{
public:
    explicit FakeScene(QStringList &done) : m_done(done) { }

    void minimiseToolWindows() override { m_done += u"minimise tools"_s; }
    void showCompilerHelp(const CompilerError &error) override
    {
        m_done += u"help "_s + error.text;
        shown = error;
    }
    void showHelpOnErrors() override { m_done += u"help on errors"_s; }
    void HighlightErrorLine(const CompilerError &error) override
    {
        m_done += u"highlight %1 %2"_s.arg(error.line).arg(error.text);
        shown = error;
    }
    void ResetFocusToEditor() override { m_done += u"focus"_s; }
    void OpenPreviouslySavedFiles(const QString &path) override
    {
        m_done += u"open "_s + nameOf(path);
    }
    void bringMainWindowBack() override { m_done += u"back"_s; }
    void minimiseMainWindow() override { m_done += u"minimise"_s; }

    CompilerError shown;

private:
    QStringList &m_done;
};

/// Saves nothing, but notes it and marks the selected document as saved.
class FakeSaver : public DocumentSaver
{
public:
    FakeSaver(Documents &documents, QStringList &done) : m_documents(documents), m_done(done) { }

    void saveSelected() override
    {
        m_done += u"save "_s + m_documents.selected().name();
        if (works) {
            m_documents.selected().setState(Document::Saved);
        }
    }

    bool settleChanges() override { return !leftOpen; }

    bool works = true;
    /// Another program has changed a file, and the user leaves that open.
    bool leftOpen = false;

private:
    Documents &m_documents;
    QStringList &m_done;
};

/// A fixture for what runs the compiler, with two saved documents of which the macro file is
/// selected. Notes in order which programs start and what is asked of the windows.
class CompilerBench : public ToolchainBench
{
protected:
    CompilerBench();

    /// The mode detector runs, so that a download's mode is shown and noted.
    void detectMode();
    void writeVerdict() const;
    /// Plays the start of a program: the compiler leaves the Cougar in programmed mode.
    Expected<void, QString> start(const Launch &launch);
    ToolParts parts();

    QStringList done;
    Documents documents{ context };
    Document &joystick = documents.joystick();
    Document &macro = documents.macro();
    FakeJoystick stick;
    CougarModes modes{ context, *handshake, stick };
    Profiles profiles{ context, *handshake };
    AfterDownload afterDownload{ context };
    FakeSaver saver{ documents, done };
    FakeScene scene{ done };
    /// The entries of the two testers.
    MenuActions actions;
    QString app;
    QString statusWritten = u"OKAY"_s;
    QString lineWritten = u"0"_s;
    QString errorWritten = u"ERROR 1013: bad macro"_s;
    /// The program that cannot be started.
    QString refused;
    const QString compilerStarts = u"start HOTASCompiler.exe"_s;
    const QString configStarts = u"start HOTASConfig.exe"_s;
    const QString appStarts = u"start app.exe"_s;

private:
    void noteSignals();
};

} // namespace zeph::test
