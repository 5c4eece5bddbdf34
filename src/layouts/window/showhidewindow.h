// SPDX-FileCopyrightText: The Zeph authors
// SPDX-License-Identifier: MIT

#pragma once

#include "layouts/sheet.h"

#include <QDialog>

#include <vector>

class QCheckBox;

namespace zeph {

class MenuActions;
class SheetModel;

/// A tick for each box of a sheet that is shown, and the commands that go with it: HideForF22,
/// HideForTQS or HideForCleo, by the kind of sheet.
class ShowHideWindow : public QDialog
{
    Q_OBJECT
public:
    /// The commands are the entries of the sheet's menus. Model and menus must outlive this.
    ShowHideWindow(SheetKind kind, SheetModel &model, MenuActions &actions, QWidget *parent);

private:
    QWidget *makeTicks(SheetKind kind);
    QWidget *makeCommands(MenuActions &actions);
    void showTicks();

    SheetModel &m_model;
    std::vector<QCheckBox *> m_ticks;
};

} // namespace zeph
