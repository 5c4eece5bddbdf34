// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#include "toolchain/compile/verdict.h"

#include "documents/documents.h"
#include "language/error_codes.h"

namespace zeph {

namespace {

/// The words that depend on what the compiler was asked to do.
struct VerdictWords {
    QStringView noResponse;
    QStringView errorAtLine;
    QStringView errorWithoutLine;
    bool tellsDownloadTime;
};

/// In the order of CompilerTask.
constexpr VerdictWords wordsByTask[] = {
    {
        u"I didn't get any response from the Compiler when asking it how the compile went. There "
        u"may be a problem. I'm going to exit the compile function and return control to you.",
        u"Compiler reported an error at line",
        u"Compiler reported the following error: ",
        false,
    },
    {
        u"I didn't get any response from the Compiler when asking it how the download went. There "
        u"may be a problem. I'm going to exit the download function and return control to you.",
        u"Compiler error at line",
        u"Compiler error: ",
        true,
    },
};

constexpr VerdictWords gameWords = { u"", u"Compiler error on line", u"Compiler error: ", false };

constexpr QStringView errorStatus = u"ERROR";

Box box(const QString &title, const QString &text, BoxIcon icon)
{
    Box result;
    result.title = title;
    result.text = text;
    result.icon = icon;
    return result;
}

VerdictTelling tellSuccess(const CompilerVerdict &verdict, const VerdictWords &words,
                           const QString &path, bool statusBarOnly)
{
    const QString memory = QString::number(verdict.Memory);
    VerdictTelling telling;
    telling.panel = u"Compiled successfully. (Memory used: "_s + memory + u"%)"_s;
    if (statusBarOnly) {
        return telling;
    }
    QString text =
        path + u" compiled successfully.\n\nCompile time: "_s + verdict.CompileTime + u"s.\n"_s;
    if (words.tellsDownloadTime) {
        text += u"Download time: "_s + verdict.DownloadTime + u"s.\n"_s;
    }
    text += u"Memory used: "_s + memory + u'%';
    telling.box = box(u"File successfully compiled!"_s, text, BoxIcon::Information);
    return telling;
}

VerdictTelling tellError(const CompilerVerdict &verdict, const VerdictWords &words,
                         bool statusBarOnly)
{
    VerdictTelling telling;
    telling.failed = true;
    telling.showHelp = !statusBarOnly;
    telling.highlightLine = verdict.LineNumber;
    telling.panel = verdict.LineNumber == 0 ? words.errorWithoutLine.toString() + verdict.ErrorCode
                                            : words.errorAtLine.toString() + u' '
            + QString::number(verdict.LineNumber) + u": "_s + verdict.ErrorCode;
    return telling;
}

} // namespace

VerdictTelling tellVerdict(const CompilerVerdict &verdict, CompilerTask task, const QString &path,
                           bool statusBarOnly)
{
    const VerdictWords &words = wordsByTask[size_t(task)];
    if (verdict.Status.isEmpty()) {
        VerdictTelling telling;
        telling.failed = true;
        // Panel 1 has no words for this outcome, so the box is shown whatever the settings say.
        telling.box = box(u"Unknown result"_s, words.noResponse.toString(), BoxIcon::Exclamation);
        return telling;
    }
    if (verdict.Status == errorStatus) {
        return tellError(verdict, words, statusBarOnly);
    }
    return tellSuccess(verdict, words, path, statusBarOnly);
}

VerdictTelling tellGameVerdict(const CompilerVerdict &verdict, bool statusBarOnly)
{
    if (verdict.Status == errorStatus) {
        return tellError(verdict, gameWords, statusBarOnly);
    }
    VerdictTelling telling;
    telling.panel = u"Compiled successfully. Launching game ..."_s;
    return telling;
}

SentFiles sentFiles(Documents &documents)
{
    return { { documents.joystick().path(), documents.joystick().caption() },
             { documents.macro().path(), documents.macro().caption() } };
}

const SentFile &CompilerError::file() const
{
    return language::documentOfError(text) == DocumentKind::Macro ? files.macro : files.joystick;
}

CompilerError errorOf(const CompilerVerdict &verdict, const SentFiles &files)
{
    return { verdict.ErrorCode, verdict.LineNumber, files };
}

} // namespace zeph
