// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/core/base.h"

#include <QDialog>

#include <memory>

namespace zeph {

namespace Ui {
class CompilerHelp;
}

/// An error that the compiler reported, with what is needed to say where it is.
struct CompilerError {
    QString text; ///< begins with the code
    int line = 0; ///< 1-based; 0 = none
    QString joystickName; ///< as the first tab shows it
    QString macroName; ///< as the second tab shows it
};

/// Explains an error of the compiler: where it is, and the entry of its code among all the codes.
/// Stands beside the other windows.
class CompilerHelp : public QDialog
{
    Q_OBJECT
public:
    /// Loads the explanations; a file that cannot be read is told in their place.
    explicit CompilerHelp(const QString &errorCodesPath, QWidget *parent = nullptr);
    ~CompilerHelp() override;

    /// Fills the labels, and selects the heading of the error's entry.
    void ShowTheError(const CompilerError &error);

Q_SIGNALS:
    /// The user wants the line in the document.
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
