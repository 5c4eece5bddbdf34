// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// A tools' folder with a pair of documents, and a compiler that is played.

#include "documents/documents.h"
#include "menus/menu_actions.h"
#include "platform/fakes/fake_joystick.h"
#include "tests/toolchain/toolchain_bench.h"
#include "toolchain/compile/after_download.h"
#include "toolchain/compile/verdict.h"
#include "toolchain/document_saver.h"
#include "toolchain/modes/cougar_modes.h"
#include "toolchain/modes/profiles.h"
#include "toolchain/tool_parts.h"
#include "toolchain/tool_scene.h"
#include "toolchain/toolchain_settings.h"

#include <QAction>

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
    void HighlightErrorLine(int line, const QString &errorText) override
    {
        m_done += u"highlight %1 %2"_s.arg(line).arg(errorText);
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

    bool works = true;

private:
    Documents &m_documents;
    QStringList &m_done;
};

inline constexpr MenuRow testerMenus[] = { { u"mnuApps", u"Apps" } };
inline constexpr ActionRow testerRows[] = {
    { u"mnuApps", u"mnuAppsKeyTester", u"Key Tester", u"", u"", u"", CommonWhen::Always,
      ActionKind::Entry },
    { u"mnuApps", u"mnuAppsDX8_0", u"DirectX tester", u"", u"", u"", CommonWhen::Always,
      ActionKind::Entry },
};

/// A fixture for what runs the compiler, with two saved documents of which the macro file is
/// selected. Notes in order which programs start and what is asked of the windows.
class CompilerBench : public ToolchainBench
{
protected:
    CompilerBench()
    {
        paths.iniPath = folder.file(u"Zeph.ini"_s);
        folder.write(u"Profiles/Default.tmc"_s, "x");
        folder.write(u"ZephNUMLon.exe"_s, "x");
        app = folder.write(u"Tools/app.exe"_s, "x");
        settings.of<ToolchainSettings>().ResetProfile = u"Default"_s;
        joystick.setText(u"BTN S1 x"_s);
        joystick.rename(folder.file(u"My files/A.TMJ"_s));
        joystick.setState(Document::Saved);
        macro.setText(u"m = a"_s);
        macro.rename(folder.file(u"My files/a.tmm"_s));
        macro.setState(Document::Saved);
        documents.select(DocumentKind::Macro);
        afterTick = [this](int count) {
            if (count == 1 && !statusWritten.isEmpty()) {
                writeVerdict();
            }
        };
        afterModeTick = [this](int) {
            writeMode(u"Status"_s, u"OKAY"_s);
        };
        launcher.onStart = [this](const Launch &launch) {
            return start(launch);
        };
        noteSignals();
    }

    /// The mode detector runs, so that a download's mode is shown and noted.
    void detectMode()
    {
        modes.EnableStatusTimer();
        done.clear();
    }

    void writeVerdict() const
    {
        writeCompiler(u"Memory"_s, u"4"_s);
        writeCompiler(u"CompileTime"_s, u"0.5"_s);
        writeCompiler(u"DownloadTime"_s, u"1.25"_s);
        writeCompiler(u"LineNumber"_s, lineWritten);
        writeCompiler(u"ErrorCode"_s, errorWritten);
        writeCompiler(u"Status"_s, statusWritten);
    }

    /// Plays the start of a program: the compiler leaves the Cougar in programmed mode.
    Expected<void, QString> start(const Launch &launch)
    {
        const QString name = nameOf(launch.program);
        done += u"start "_s + name;
        hasten();
        if (name == refused) {
            return Unexpected<QString>(launch.program + u": No such file or directory"_s);
        }
        if (launch.program == paths.compiler()) {
            writeMode(u"Buttons"_s, u"1"_s);
        }
        return {};
    }

    ToolParts parts()
    {
        return { *handshake, modes, profiles, afterDownload, documents,
                 saver,      scene, actions,  mainWindow };
    }

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
    MenuActions actions{ dialogs, {}, testerMenus, testerRows, &mainWindow };
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
    void noteSignals()
    {
        QObject::connect(&joystick, &Document::lockedChanged, &joystick,
                         [this](bool locked) { done += locked ? u"lock"_s : u"unlock"_s; });
        QObject::connect(&status, &StatusLine::changed, &status, [this](StatusPanel panel) {
            if (panel == StatusPanel::Mode) {
                done += u"mode"_s;
            }
        });
        QObject::connect(actions.action(u"mnuAppsKeyTester"), &QAction::triggered, &joystick,
                         [this] { done += u"tester"_s; });
    }
};

} // namespace zeph::test
