// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

// A tools' folder with a pair of documents, and a compiler that is played.

#include "documents/document.h"
#include "tests/toolchain/toolchain_bench.h"
#include "toolchain/compile/compiler_host.h"

namespace zeph::test {

/// What panel 1 tells during a compile and after it.
inline const QString hangOn = u"Hang on a minute ..."_s;
inline const QString success = u"File successfully compiled!"_s;

/// A fixture for what runs the compiler. What is asked of the windows is noted in order.
class CompilerBench : public ToolchainBench
{
protected:
    CompilerBench()
    {
        joystick.rename(folder.file(u"My files/A.TMJ"_s));
        joystick.setState(Document::Saved);
        macro.rename(u"a.tmm"_s);
        macro.setState(Document::Saved);
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
        host.joystick = [this]() -> const Document & {
            return joystick;
        };
        host.macro = [this]() -> const Document & {
            return macro;
        };
        host.selectJoystickTab = note(u"joystick tab"_s);
        host.mnuFileSave_Click = [this] {
            done += u"save"_s;
            joystick.setState(saveWorks ? Document::Saved : Document::Modified);
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

    Document joystick;
    Document macro{ DocumentKind::Macro };
    QString joystickText = u"BTN S1 x"_s;
    QString macroText = u"m = a"_s;
    bool saveWorks = true;
    QString statusWritten = u"OKAY"_s;
    QString lineWritten = u"0"_s;
    QStringList done;
};

} // namespace zeph::test
