// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

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
    /// The user wants to see the line in the document.
    void highlightRequested(int line, const QString &errorText);
    /// The user wants the help topic on errors.
    void helpRequested();

private:
    void load(const QString &path);
    void setFontSize(int points);

    std::unique_ptr<Ui::CompilerHelp> m_ui;
    CompilerError m_error;
};

} // namespace zeph
