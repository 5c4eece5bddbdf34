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

/// Asks which macro gets which new name. Only says what was asked for; the rename is the caller's.
class MacroRenameForm : public QDialog
{
    Q_OBJECT
public:
    MacroRenameForm(Dialogs &dialogs, const QStringList &macros, const QString &selected,
                    QWidget *parent = nullptr);
    ~MacroRenameForm() override;

    QString oldName() const;
    QString newName() const;
    /// Whether both files are saved, the list updated and the macros used identified afterwards.
    bool wantsAutoSave() const;

    /// Refuses a name that is no new one.
    void accept() override;

private:
    void GetAllMacros(const QStringList &macros, const QString &selected);
    void updateRename();

    Dialogs &m_dialogs;
    std::unique_ptr<Ui::MacroRenameForm> m_ui;
};

} // namespace zeph
