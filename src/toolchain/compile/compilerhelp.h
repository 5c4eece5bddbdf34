// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/context.h"
#include "platform/core/rich_text.h"
#include "toolchain/compile/verdict.h"

#include <QDialog>

#include <memory>

namespace zeph {

namespace Ui {
class CompilerHelp;
}

/// Explains an error of the compiler: shows where it is, and selects the entry of its code in the
/// list of all codes. Does not block the other windows.
class CompilerHelp : public QDialog
{
    Q_OBJECT
public:
    /// Loads the explanations; when the file cannot be read, the window shows the reason instead.
    explicit CompilerHelp(const QString &errorCodesPath, QWidget *parent = nullptr);
    ~CompilerHelp() override;

    /// Fills the labels, and selects the heading of the error's entry.
    void ShowTheError(const CompilerError &error);

Q_SIGNALS:
    /// The user wants to see the error's line in the document.
    void highlightRequested(const zeph::CompilerError &error);
    /// The user wants the help topic on errors.
    void helpRequested();

private:
    void load(const QString &path);
    void setFontSize(int points);

    std::unique_ptr<Ui::CompilerHelp> m_ui;
    CompilerError m_error;
};

class ToolScene;
class ToolWindows;

/// Registers the window, which asks the scene for what happens outside it.
void addCompilerHelp(ToolWindows &windows, const Context &context, ToolScene &scene);

// "Error codes.rtf", the explanations of the compiler's errors. Each entry starts with its code:
// "ERROR " and four digits.

/// Where an error is explained; positions are 0-based.
struct ErrorPassage {
    qsizetype entryStart = 0;
    qsizetype entryEnd = 0; ///< where the next entry starts, or the text's end
    qsizetype headingEnd = 0; ///< after the heading line's last character

    friend bool operator==(const ErrorPassage &, const ErrorPassage &) = default;
};

/// Finds the entry of the code that an error text begins with (its first ten characters). None when
/// the explanations lack the code. A heading without a line end after it counts as long as the
/// error text.
std::optional<ErrorPassage> findErrorEntry(QStringView text, QStringView errorText);

/// Reads the explanations. The error says in words which file failed and why.
Expected<RichText, QString> readErrorCodes(const QString &path);

} // namespace zeph
