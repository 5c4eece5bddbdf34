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
    /// The macros to choose from, the one chosen at first (empty for none), and names besides
    /// theirs that no macro may get.
    struct Names {
        QStringList macros;
        QString chosen = {};
        QStringList alsoTaken = {};
    };
    MacroRenameForm(Dialogs &dialogs, const Names &names, QWidget *parent = nullptr);
    ~MacroRenameForm() override;

    /// The chosen macro; empty when none is.
    QString oldName() const;
    QString newName() const;
    /// Whether to save both files, update the list and identify the macros used after the renaming.
    bool wantsAutoSave() const;

    /// Refuses, with a box, a name that the macro cannot get; the window stays open.
    void accept() override;

private:
    void GetAllMacros(const Names &names);
    void showChosen();
    void updateRename();

    Dialogs &m_dialogs;
    QStringList m_taken;
    QString m_filledIn; ///< the name that the window itself wrote as the new one
    std::unique_ptr<Ui::MacroRenameForm> m_ui;
};

} // namespace zeph
