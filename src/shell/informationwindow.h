// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/core/rich_text.h"

#include <QDialog>

#include <memory>

namespace zeph {

class Dialogs;

namespace Ui {
class InformationWindow;
}

/// The looks and text of an information file: RTF by what it holds, plain text otherwise. The error
/// is the reason in words.
Expected<RichText, QString> readInformation(const QString &path);

/// Shows a text of the Info folder beside the work.
class InformationWindow : public QDialog
{
    Q_OBJECT
public:
    explicit InformationWindow(Dialogs &dialogs, QWidget *parent = nullptr);
    ~InformationWindow() override;

    /// Shows a file under a title. Tells the path of a file that cannot be read, and the window
    /// stays as it was; false then.
    bool showFile(const QString &path, const QString &title);

private:
    Dialogs &m_dialogs;
    std::unique_ptr<Ui::InformationWindow> m_ui;
};

} // namespace zeph
