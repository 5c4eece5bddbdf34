// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "tests/support/compiler_bench.h"

#include <QAction>

namespace zeph::test {

namespace {

constexpr MenuRow testerMenus[] = { { u"mnuApps", u"Apps" } };
constexpr ActionRow testerRows[] = {
    { u"mnuApps", u"mnuAppsKeyTester", u"Key Tester", u"", u"", u"", CommonWhen::Always,
      ActionKind::Entry },
    { u"mnuApps", u"mnuAppsDX8_0", u"DirectX tester", u"", u"", u"", CommonWhen::Always,
      ActionKind::Entry },
};

} // namespace

CompilerBench::CompilerBench() : actions(dialogs, {}, testerMenus, testerRows, &mainWindow)
{
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

void CompilerBench::detectMode()
{
    modes.EnableStatusTimer();
    done.clear();
}

void CompilerBench::writeVerdict() const
{
    writeCompiler(u"Memory"_s, u"4"_s);
    writeCompiler(u"CompileTime"_s, u"0.5"_s);
    writeCompiler(u"DownloadTime"_s, u"1.25"_s);
    writeCompiler(u"LineNumber"_s, lineWritten);
    writeCompiler(u"ErrorCode"_s, errorWritten);
    writeCompiler(u"Status"_s, statusWritten);
}

Expected<void, QString> CompilerBench::start(const Launch &launch)
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

ToolParts CompilerBench::parts()
{
    return { *handshake, modes, profiles, afterDownload, documents,
             saver,      scene, actions,  mainWindow };
}

void CompilerBench::noteSignals()
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

} // namespace zeph::test
