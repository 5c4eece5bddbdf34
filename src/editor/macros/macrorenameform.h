// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/core/base.h"

#include <QDialog>

#include <memory>

namespace zeph {

class Dialogs;

namespace Ui {
class MacroRenameForm;
}

/// Asks which macro to rename, and its new name. The caller does the renaming.
class MacroRenameForm : public QDialog
{
    Q_OBJECT
public:
    MacroRenameForm(Dialogs &dialogs, const QStringList &macros, const QString &selected,
                    QWidget *parent = nullptr);
    ~MacroRenameForm() override;

    QString oldName() const;
    QString newName() const;
    /// Whether to save both files, update the list and identify the macros used after the renaming.
    bool wantsAutoSave() const;

    /// Refuses a new name that equals the old one, in any case of its letters.
    void accept() override;

private:
    void GetAllMacros(const QStringList &macros, const QString &selected);
    void updateRename();

    Dialogs &m_dialogs;
    std::unique_ptr<Ui::MacroRenameForm> m_ui;
};

} // namespace zeph
