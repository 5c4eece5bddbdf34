// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// A tools' folder with a pair of documents, and a compiler that is played.

#include "documents/editor_document.h"
#include "tests/toolchain/toolchain_bench.h"
#include "toolchain/compile/compiler_host.h"

namespace zeph::test {

/// A fixture for what runs the compiler. What is asked of the windows is noted in order.
class CompilerBench : public ToolchainBench
{
protected:
    CompilerBench()
    {
        joystick.path = folder.file(u"My files/A.TMJ"_s);
        joystick.name = u"A.TMJ"_s;
        joystick.state = EditorDocument::Saved;
        macro.name = u"a.tmm"_s;
        macro.state = EditorDocument::Saved;
        afterTick = [this](int count) {
            if (count == 1 && !statusWritten.isEmpty()) {
                writeVerdict();
            }
        };
    }

    void writeVerdict() const
    {
        writeCompiler(u"Memory"_s, u"4"_s);
        writeCompiler(u"CompileTime"_s, u"0.5"_s);
        writeCompiler(u"DownloadTime"_s, u"1.25"_s);
        writeCompiler(u"LineNumber"_s, lineWritten);
        writeCompiler(u"ErrorCode"_s, u"ERROR 1013: bad macro"_s);
        writeCompiler(u"Status"_s, statusWritten);
    }

    std::function<void()> note(const QString &what)
    {
        return [this, what] {
            done += what;
        };
    }

    CompilerHost compilerHost()
    {
        CompilerHost host;
        host.joystickText = [this] {
            return joystickText;
        };
        host.macroText = [this] {
            return macroText;
        };
        host.joystick = [this]() -> const EditorDocument & {
            return joystick;
        };
        host.macro = [this]() -> const EditorDocument & {
            return macro;
        };
        host.selectJoystickTab = note(u"joystick tab"_s);
        host.mnuFileSave_Click = [this] {
            done += u"save"_s;
            joystick.state = saveWorks ? EditorDocument::Saved : EditorDocument::Modified;
        };
        host.ResetFocusToEditor = note(u"focus"_s);
        host.HighlightErrorLine = [this](int line, const QString &text) {
            done += u"highlight %1 %2"_s.arg(line).arg(text);
        };
        host.showCompilerHelp = [this](const CompilerVerdict &verdict) {
            done += u"help "_s + verdict.ErrorCode;
        };
        return host;
    }

    EditorDocument joystick;
    EditorDocument macro;
    QString joystickText = u"BTN S1 x"_s;
    QString macroText = u"m = a"_s;
    bool saveWorks = true;
    QString statusWritten = u"OKAY"_s;
    QString lineWritten = u"0"_s;
    QStringList done;
};

} // namespace zeph::test
